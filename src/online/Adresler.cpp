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

Metin YerAdresi(Metin yer, MetinBakis ad) {
    if (yer.empty())
        return yer;
    if (!yer.ends_with(u'/'))
        yer += u'/';
    return yer.append(ad);
}

} // namespace velora
