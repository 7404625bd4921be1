#pragma once

#include <initializer_list>
#include <span>

#include <QString>

class QAbstractButton;
class QFormLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTabWidget;
class QTreeWidget;
class QVBoxLayout;
class QWidget;

namespace velora {

// The pieces that all windows are laid out from, so that distances and rows look the same everywhere.

/// The column that fills a window or a page.
QVBoxLayout* SutunKur(QWidget& parca);

/// Labels in one aligned column, fields beside them.
QFormLayout* FormKur();

/// A row of buttons of one window, at the lower right, with some of them at the left end, if any, and a text
/// behind these. Tab walks them from left to right.
QHBoxLayout* DugmeSeridi(std::initializer_list<QPushButton*> sagdakiler,
                         std::initializer_list<QPushButton*> soldakiler = {}, QWidget* yazi = nullptr);

/// In the widths of a list's columns: shares with the others of its kind what is left.
inline constexpr int kKalanEn = 0;

/// The widths of a list's columns, from the first on. Where none is `kKalanEn`, the last column of the list
/// takes what is left.
void SutunEnleriVer(QTreeWidget& liste, std::span<const int> enler);

/// Ctrl+Tab and Ctrl+PgDn turn to the next page, with Shift and with PgUp to the one before, from whatever
/// field. The pages and the row of their tabs get a name.
void SayfaTuslari(QTabWidget& sayfalar);

/// A label that names a field: its access key leads there.
QLabel* EtiketYap(const QString& baslik, QWidget& alan);

/// Enter presses the button too, as Space does: for one outside of a dialog.
void EnterleBasilsin(QAbstractButton& dugme);

/// The name of a widget's control, and what it is called for those who can't see it.
void Adlandir(QWidget& parca, const QString& ad, const QString& baslik);
/// What it is called now, where that changes: listeners hear only of what is new.
void Okut(QWidget& parca, const QString& isim);

} // namespace velora
