#include "qt/table/IkiResimliDugme.h"

#include <utility>

#include "qt/Yerlesimler.h"

namespace velora {

namespace {

constexpr int kResimBoyu = 24;

} // namespace

IkiResimliDugme::IkiResimliDugme(const char* ad, Cizim ilk, Cizim ikinci, std::function<void()> tabloyaDon)
    : cizimler_{std::move(ilk), std::move(ikinci)}, tabloyaDon_(std::move(tabloyaDon)) {
    setObjectName(QString::fromLatin1(ad));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setIconSize({kResimBoyu, kResimBoyu});
    EnterleBasilsin(*this);
}

void IkiResimliDugme::ResimleriCiz() {
    olcek_ = devicePixelRatioF();
    for (const int sira : {0, 1}) {
        resimler_[sira] = cizimler_[sira](qRound(kResimBoyu * olcek_));
        resimler_[sira].setDevicePixelRatio(olcek_);
    }
    gorulen_ = -1;
}

void IkiResimliDugme::ResimGoster(int resim) {
    // On a screen of another scale they have other pixels.
    if (olcek_ != devicePixelRatioF())
        ResimleriCiz();
    if (resim == gorulen_)
        return;
    gorulen_ = resim;
    setIcon(resimler_[resim]);
}

void IkiResimliDugme::OdagiBirak() {
    // Also while another window has the keyboard: the mark would be where it comes back to.
    if (window()->focusWidget() == this)
        tabloyaDon_();
}

} // namespace velora
