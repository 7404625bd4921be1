#include "online/Adresler.h"

#include <array>

#include "screen/Program.h"
#include "storage/AlanDosyasi.h"

namespace velora {

Adresler AdresleriOku(const Program& program) {
    Adresler adresler;
    const std::array alanlar{MetinAlani(adresler.servis), MetinAlani(adresler.site),
                             MetinAlani(adresler.yardim), MetinAlani(adresler.satir)};
    AlanlariOku(program.dosyalar, program.agac.KokYolu(kAdresDosyasi), alanlar);
    for (Metin* adres : {&adresler.servis, &adresler.site, &adresler.yardim})
        *adres = Kirp(*adres);
    return adresler;
}

Metin IstekAdresi(const Metin& yer, MetinBakis ad, const std::vector<SorguDegeri>& sorgu) {
    if (yer.empty())
        return {};
    Metin adres = yer;
    if (!adres.ends_with(u'/'))
        adres += u'/';
    adres += ad;
    char16_t ayrac = u'?';
    for (const SorguDegeri& biri : sorgu) {
        adres += ayrac;
        adres.append(biri.ad).append(u"=").append(biri.deger);
        ayrac = u'&';
    }
    return adres;
}

} // namespace velora
