#pragma once

class QFrame;
class QGridLayout;
class QLabel;
class QPushButton;
class QWidget;

namespace velora {

struct Etiket;

// The two blocks that the reports have in common: the filters above the list and the amounts below it.

/// A filter under the name that it has for those who can't see it. Columns 0 and 3 take filters.
void SuzgecEkle(QGridLayout& izgara, int satir, int sutun, QWidget& parca);
/// Ends the block: the button that lists stands behind the last row.
void SuzgecleriBitir(QGridLayout& izgara, QPushButton& listele);

/// A frame on the ground of the lists, and the grid in it.
QFrame* ToplamCercevesi();
/// An amount behind its caption. Columns 0, 3, 6 and so on take amounts.
void ToplamEkle(QFrame& cerceve, int satir, int sutun, const Etiket& model, QLabel& tutar);

} // namespace velora
