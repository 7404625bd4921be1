#include "screen/Pencere.h"

#include <algorithm>
#include <ranges>

namespace velora {

void EkranYigini::Koy(EkranAdi ad, Durus durus, Etkinlestir etkinlestir) {
    // Shown again, a screen that stands already comes to the front.
    Al(ad);
    kayitlar_.push_back({ad, durus, std::move(etkinlestir)});
}

void EkranYigini::Al(EkranAdi ad) {
    const auto yer = std::find_if(kayitlar_.rbegin(), kayitlar_.rend(),
                                  [ad](const Kayit& kayit) { return kayit.ad == ad; });
    if (yer != kayitlar_.rend())
        kayitlar_.erase(std::next(yer).base());
}

void EkranYigini::UsttekileriEtkinlestir() const {
    // Copies: who is activated may show and close screens.
    std::vector<Etkinlestir> sirayla;
    for (const Kayit& kayit : std::views::reverse(kayitlar_)) {
        sirayla.push_back(kayit.etkinlestir);
        if (kayit.durus == Durus::Ustunde)
            break;
    }
    for (const Etkinlestir& etkinlestir : sirayla)
        etkinlestir();
}

bool EkranYigini::Acik(EkranAdi ad) const {
    return std::any_of(kayitlar_.begin(), kayitlar_.end(),
                       [ad](const Kayit& kayit) { return kayit.ad == ad; });
}

} // namespace velora
