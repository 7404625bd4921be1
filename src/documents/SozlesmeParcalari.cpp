#include "documents/SozlesmeParcalari.h"

namespace velora {

namespace {

// Running texts in points: from their best size down to one that can still be read.
constexpr double kEnBuyuk = 11;
constexpr double kEnKucuk = 8;
constexpr double kPuntoAdimi = 0.5;

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

std::vector<Sayfa> EnIyiBoyda(const std::function<SayfaAkisi(double punto)>& diz) {
    for (double punto = kEnBuyuk; punto > kEnKucuk; punto -= kPuntoAdimi) {
        const SayfaAkisi akis = diz(punto);
        if (akis.Sayfalar().size() == 1)
            return akis.Sayfalar();
    }
    return diz(kEnKucuk).Sayfalar();
}

} // namespace velora
