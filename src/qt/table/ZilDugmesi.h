#pragma once

#include <functional>

#include <QPixmap>
#include <QToolButton>

namespace velora {

class Baglayici;
struct FormTablo;

/// The bell over the table: there while a personal reminder falls on today, with two pictures in turn. A
/// click, Space and Enter list what it rings for. Tab reaches it; a click leaves the focus where it is.
class ZilDugmesi : public QToolButton {
  public:
    /// `tabloyaDon` gives the focus to the table: where it goes from a bell that falls silent.
    ZilDugmesi(FormTablo& tablo, Baglayici& baglayici, std::function<void()> tabloyaDon);

  private:
    void ResimleriCiz();
    void Goster(bool var, bool sakin);

    std::function<void()> tabloyaDon_;
    QPixmap resimler_[2]; // quiet, ringing
    double olcek_ = 0;    // that they were drawn for
    int gorulen_ = -1;    // the one that stands on it
};

} // namespace velora
