#include "screen/Pencere.h"

#include <algorithm>

namespace velora {

void EkranYigini::Koy(EkranAdi ad, Etkinlestir etkinlestir) {
    // Shown again, a screen that stands already comes to the front.
    Al(ad);
    kayitlar_.push_back({ad, std::move(etkinlestir)});
}

void EkranYigini::Al(EkranAdi ad) {
    const auto yer = std::find_if(kayitlar_.rbegin(), kayitlar_.rend(),
                                  [ad](const Kayit& kayit) { return kayit.ad == ad; });
    if (yer != kayitlar_.rend())
        kayitlar_.erase(std::next(yer).base());
}

void EkranYigini::UsttekiniEtkinlestir() const {
    if (kayitlar_.empty())
        return;
    const Etkinlestir etkinlestir = kayitlar_.back().etkinlestir;
    etkinlestir();
}

bool EkranYigini::Acik(EkranAdi ad) const {
    return std::any_of(kayitlar_.begin(), kayitlar_.end(),
                       [ad](const Kayit& kayit) { return kayit.ad == ad; });
}

} // namespace velora
