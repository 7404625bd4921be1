#include "maintenance/YedekYolu.h"

namespace velora {

namespace {

constexpr MetinBakis kYedekAdi = u"VRYedek";
constexpr char16_t kTersBolu = u'\\';
constexpr char16_t kBolu = u'/';

} // namespace

Metin HedefYolu(MetinBakis secilen, char16_t ayrac) {
    const Metin tam = Metin(secilen) + ayrac + Metin(kYedekAdi);
    const Metin cift(2, ayrac);
    Metin yol;
    for (std::size_t yer = 0; yer < tam.size(); ++yer) {
        yol += tam[yer];
        if (tam.compare(yer, cift.size(), cift) == 0)
            ++yer;
    }
    return yol;
}

Metin GunlukYol(MetinBakis hedef, const Gun& gun, char16_t ayrac) {
    return Metin(hedef) + ayrac + IkiHane(static_cast<unsigned>(gun.day())) + u'_' +
           IkiHane(static_cast<unsigned>(gun.month())) + u'_' + SayiMetni(static_cast<int>(gun.year()));
}

bool BaskaSistemin(MetinBakis yol, char16_t ayrac) {
    if (ayrac == kTersBolu)
        return yol.starts_with(kBolu);
    return yol.starts_with(kTersBolu) || (yol.size() > 1 && yol[1] == u':');
}

} // namespace velora
