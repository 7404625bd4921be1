#pragma once

#include <functional>

#include <QPixmap>
#include <QToolButton>

namespace velora {

/// A button over the table that tells something by two pictures in turn. Space and Enter press it too. Tab
/// reaches it; a click leaves the focus where it is.
class IkiResimliDugme : public QToolButton {
  public:
    /// Draws a picture, `boy` device pixels high and wide.
    using Cizim = std::function<QPixmap(int boy)>;

  protected:
    /// `ad` is the name of its control; `tabloyaDon` gives the focus to the table.
    IkiResimliDugme(const char* ad, Cizim ilk, Cizim ikinci, std::function<void()> tabloyaDon);

    void ResimGoster(int resim); ///< 0 or 1
    /// The focus goes to the table: before the button hides or is disabled the toolkit would hand it to what
    /// comes next.
    void OdagiBirak();

  private:
    void ResimleriCiz();

    Cizim cizimler_[2];
    std::function<void()> tabloyaDon_;
    QPixmap resimler_[2];
    double olcek_ = 0; // that they were drawn for
    int gorulen_ = -1; // the one that stands on it
};

} // namespace velora
