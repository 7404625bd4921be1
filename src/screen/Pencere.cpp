#include "screen/Pencere.h"

#include <algorithm>
#include <iterator>

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
    const auto ustunde = std::find_if(kayitlar_.rbegin(), kayitlar_.rend(),
                                      [](const Kayit& kayit) { return kayit.durus == Durus::Ustunde; });
    // Copies: who is activated may show and close screens.
    const std::vector<Kayit> usttekiler(kayitlar_.rbegin(),
                                        ustunde == kayitlar_.rend() ? ustunde : std::next(ustunde));
    for (const Kayit& kayit : usttekiler)
        kayit.etkinlestir();
}

bool EkranYigini::Acik(EkranAdi ad) const {
    return std::any_of(kayitlar_.begin(), kayitlar_.end(),
                       [ad](const Kayit& kayit) { return kayit.ad == ad; });
}

} // namespace velora
