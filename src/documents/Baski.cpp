#include "documents/Baski.h"

#include "screen/Program.h"
#include "screen/Sorular.h"

namespace velora {

namespace {

constexpr std::size_t kEnUzunAd = 120; // signs: with the folder before it, a path that every system takes

/// What a file name may hold on each system: others become blanks, and no blank or dot stands at its end.
Metin DosyaAdiyla(MetinBakis metin) {
    Metin ad(metin.substr(0, kEnUzunAd));
    for (char16_t& harf : ad)
        if (harf < u' ' || MetinBakis(u"\\/:*?\"<>|").find(harf) != MetinBakis::npos)
            harf = u' ';
    while (ad.ends_with(u' ') || ad.ends_with(u'.'))
        ad.pop_back();
    return ad;
}

} // namespace

Metin BaskiAdi(std::initializer_list<MetinBakis> parcalar) {
    Metin ad;
    for (const MetinBakis parca : parcalar) {
        const MetinBakis kirpilan = Kirp(parca);
        if (kirpilan.empty())
            continue;
        if (!ad.empty())
            ad += u" - ";
        ad += kirpilan;
    }
    return DosyaAdiyla(ad);
}

bool Yazdir(const Program& program, const std::vector<Sayfa>& sayfalar, const Metin& ad) {
    return program.ortam.kagit.yazdir(sayfalar, ad);
}

void PdfKaydet(const Program& program, const std::vector<Sayfa>& sayfalar, const Metin& ad) {
    constexpr MetinBakis kUzanti = u".pdf";
    const auto yol = program.ortam.sor.kayitYeri(
        {u"PDF Olarak Kaydet", ad + Metin(kUzanti), u"PDF dosyası", Metin(kUzanti)});
    if (yol && !program.ortam.kagit.pdfYaz(sayfalar, ad, *yol))
        Soyle(program, u"PDF dosyası kaydedilemedi!\nBaşka bir klasör seçip yeniden deneyin.", u"Velora",
              Simge::Uyari);
}

} // namespace velora
