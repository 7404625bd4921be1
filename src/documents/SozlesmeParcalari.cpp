#include "documents/SozlesmeParcalari.h"

#include <array>

namespace velora {

namespace {

// From the best size of the running texts down to one that can still be read.
constexpr std::array kDuzenler{SayfaDuzeni{12, 8},   SayfaDuzeni{11.5, 7}, SayfaDuzeni{11, 6},
                               SayfaDuzeni{10.5, 5}, SayfaDuzeni{10, 4},   SayfaDuzeni{9.5, 4},
                               SayfaDuzeni{9, 4},    SayfaDuzeni{8.5, 4},  SayfaDuzeni{8, 4}};

} // namespace

SayfaParcasi UnvanParcasi(const SayfaAkisi& akis, MetinBakis unvan, double en) {
    constexpr double kUnvanBoyu = 14;
    const AlanBicimi buyuk{{18, true}, Hiza::Orta, 9};
    return akis.Parca(u"Unvan", unvan, {(SayfaAkisi::kEn - en) / 2, 0, en, kUnvanBoyu}, buyuk);
}

void ImzalariKoy(SayfaAkisi& akis, MetinBakis soldaki, MetinBakis sagdaki) {
    constexpr double kImzaBoyu = 14;
    constexpr double kCizgiEni = 60;
    const AlanBicimi bicim{{10, true}, Hiza::Orta};
    const double boy = SatirBoyu(bicim.yazi);
    const Metin cizgi = akis.Sira(u'-', kCizgiEni, bicim.yazi);
    std::vector<SayfaParcasi> blok;
    for (const auto& [sol, baslik] : {std::pair{0.0, soldaki}, std::pair{kSagSutun, sagdaki}}) {
        blok.push_back(akis.Parca(u"", baslik, {sol, 0, kSutunEni, boy}, bicim));
        blok.push_back(akis.Parca(u"", cizgi, {sol, kImzaBoyu, kSutunEni, boy}, bicim));
    }
    akis.Koy(std::move(blok));
}

std::vector<Sayfa> EnIyiDuzende(const YaziOlcer& olcer, MetinBakis ad,
                                const std::function<void(SayfaAkisi&, const SayfaDuzeni&)>& diz) {
    constexpr double kAltlik = 6; // millimetres
    const auto dizili = [&](const SayfaDuzeni& duzen, double altlik) {
        SayfaAkisi akis(olcer, altlik);
        diz(akis, duzen);
        return akis;
    };
    for (const SayfaDuzeni& duzen : kDuzenler)
        if (const SayfaAkisi akis = dizili(duzen, 0); akis.Sayfalar().size() == 1)
            return akis.Sayfalar();
    SayfaAkisi enAz = dizili(kDuzenler.front(), kAltlik);
    for (const SayfaDuzeni& duzen : kDuzenler)
        if (SayfaAkisi akis = dizili(duzen, kAltlik); akis.Sayfalar().size() < enAz.Sayfalar().size())
            enAz = std::move(akis);
    enAz.Numarala(ad);
    return enAz.Sayfalar();
}

} // namespace velora
