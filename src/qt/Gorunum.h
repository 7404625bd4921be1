#pragma once

#include <QPalette>

class QAction;
class QString;
class QWidget;

namespace velora {

/// The gap that all distances between widgets are made of, in logical pixels.
inline constexpr int kAralik = 8;

/// One look for all windows on all systems: style, colours, and the system's interface font at its own size.
void GorunumuKur();

/// How well two colours are told apart, from 1 for equal ones to 21 for black and white.
double Karsitlik(const QColor& bir, const QColor& iki);

/// Gives a widget a colour of its own; nothing happens when it has it.
void RenkVer(QWidget& parca, QPalette::ColorRole rol, const QColor& renk);

/// Gives an entry a line icon of the program in one colour, drawn for each size in which it may be shown.
void SimgeVer(QAction& girdi, const QString& ad, const QColor& renk);

} // namespace velora
