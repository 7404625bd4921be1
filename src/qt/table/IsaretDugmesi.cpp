#include "qt/table/IsaretDugmesi.h"

#include <utility>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Simgeler.h"
#include "qt/Yerlesimler.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

IkiResimliDugme::Cizim Renkli(const char* ad) {
    return [ad](int boy) { return ResimCiz(QString::fromLatin1(ad), boy); };
}

} // namespace

IsaretDugmesi::IsaretDugmesi(OnlineIsareti& isaret, const IsaretResimleri& resimler, Baglayici& baglayici,
                             const std::function<void()>& tiklandi, std::function<void()> tabloyaDon)
    : IkiResimliDugme(resimler.ad, Sade(resimler.sade), Renkli(resimler.renkli), std::move(tabloyaDon)) {
    connect(this, &QToolButton::clicked, this, tiklandi);
    baglayici.Izle([this, &isaret] { Goster(isaret); });
}

IkiResimliDugme::Cizim IsaretDugmesi::Sade(const char* ad) const {
    return [this, ad](int boy) {
        return SimgeCiz(QString::fromLatin1(ad), palette().color(QPalette::ButtonText), boy);
    };
}

void IsaretDugmesi::Goster(const OnlineIsareti& isaret) {
    // One that went out in the middle of its blinking is as quiet as one that never blinked.
    ResimGoster(isaret.etkin && isaret.renkli ? 1 : 0);
    if (!isaret.etkin)
        OdagiBirak();
    setEnabled(isaret.etkin);
    const QString yazi = QMetin(isaret.etkin ? isaret.ipucu : isaret.baslik);
    Okut(*this, yazi);
    if (toolTip() != yazi)
        setToolTip(yazi);
}

} // namespace velora
