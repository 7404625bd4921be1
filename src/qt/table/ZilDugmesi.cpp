#include "qt/table/ZilDugmesi.h"

#include <utility>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Simgeler.h"
#include "qt/Yerlesimler.h"
#include "table/FormTablo.h"

namespace velora {

ZilDugmesi::ZilDugmesi(FormTablo& tablo, Baglayici& baglayici, std::function<void()> tabloyaDon)
    : IkiResimliDugme("Image3", Zil("zil"), Zil("zil-calan"), std::move(tabloyaDon)) {
    setAccessibleName(QMetin(tablo.image3aIpucu));
    setToolTip(QIpucu(tablo.image3Ipucu));
    hide();
    connect(this, &QToolButton::clicked, this,
            [&tablo, &baglayici] { baglayici.Bas([&tablo] { tablo.Image3_Click(); }); });
    baglayici.Izle([this, &tablo] { Goster(tablo.Image3, tablo.Image3a); });
}

IkiResimliDugme::Cizim ZilDugmesi::Zil(const char* ad) const {
    return [this, ad](int boy) {
        return SimgeCiz(QString::fromLatin1(ad), palette().color(QPalette::Highlight), boy);
    };
}

void ZilDugmesi::Goster(bool var, bool sakin) {
    ResimGoster(sakin ? 0 : 1);
    if (var == !isHidden())
        return;
    if (!var)
        OdagiBirak();
    setVisible(var);
}

} // namespace velora
