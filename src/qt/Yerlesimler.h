#pragma once

#include <initializer_list>

#include <QString>

class QFormLayout;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;
class QWidget;

namespace velora {

// The pieces that all windows are laid out from, so that distances and rows look the same everywhere.

/// The column that fills a window or a page.
QVBoxLayout* SutunKur(QWidget& parca);

/// Labels in one aligned column, fields beside them.
QFormLayout* FormKur();

/// A row of buttons at the lower right.
QHBoxLayout* DugmeSeridi(std::initializer_list<QPushButton*> dugmeler);

/// The name of a widget's control, and what it is called for those who can't see it; `yazi` may mark an access key.
void Adlandir(QWidget& parca, const QString& ad, QString yazi);

} // namespace velora
