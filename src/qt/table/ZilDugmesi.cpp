#include "qt/table/ZilDugmesi.h"

#include <utility>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Simgeler.h"
#include "qt/Yerlesimler.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr int kZilBoyu = 24;

} // namespace

ZilDugmesi::ZilDugmesi(FormTablo& tablo, Baglayici& baglayici, std::function<void()> tabloyaDon)
    : tabloyaDon_(std::move(tabloyaDon)) {
    setObjectName(QStringLiteral("Image3"));
    setAccessibleName(QMetin(tablo.image3aIpucu));
    setToolTip(QIpucu(tablo.image3Ipucu));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setIconSize({kZilBoyu, kZilBoyu});
    EnterleBasilsin(*this);
    hide();
    connect(this, &QToolButton::clicked, this,
            [&tablo, &baglayici] { baglayici.Bas([&tablo] { tablo.Image3_Click(); }); });
    baglayici.Izle([this, &tablo] { Goster(tablo.Image3, tablo.Image3a); });
}

void ZilDugmesi::ResimleriCiz() {
    olcek_ = devicePixelRatioF();
    for (const auto& [sira, ad] : {std::pair{0, "zil"}, {1, "zil-calan"}}) {
        QPixmap resim = SimgeCiz(QString::fromLatin1(ad), palette().color(QPalette::Highlight),
                                 qRound(kZilBoyu * olcek_));
        resim.setDevicePixelRatio(olcek_);
        resimler_[sira] = resim;
    }
    gorulen_ = -1;
}

void ZilDugmesi::Goster(bool var, bool sakin) {
    // On a screen of another scale they have other pixels.
    if (olcek_ != devicePixelRatioF())
        ResimleriCiz();
    if (const int resim = sakin ? 0 : 1; resim != gorulen_) {
        gorulen_ = resim;
        setIcon(resimler_[resim]);
    }
    if (var == !isHidden())
        return;
    // Before it hides: the toolkit would hand its focus to what comes next.
    if (!var && hasFocus())
        tabloyaDon_();
    setVisible(var);
}

} // namespace velora
