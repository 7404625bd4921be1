#include "screen/Sayfa.h"

#include <cmath>

#include "storage/Sayi.h"

namespace velora {

namespace {

constexpr double kPunto = 25.4 / 72;   // millimetres
constexpr double kSatirArasi = 1.2;    // of the size of the letters
constexpr double kYuvarlama = 1e-6;    // millimetres: sums of widths aren't exact
constexpr double kYazilanOnluk = 10.0; // places are told to a tenth

/// Up to which sign of a line's text it is no wider than it may be; at least one, or nothing would move on.
std::size_t SiganHarf(MetinBakis metin, double en, const SayfaYazisi& yazi, const YaziOlcer& olcer) {
    // Of a long text a line holds little: all that is left isn't measured for each.
    constexpr std::size_t kTahmin = 128;
    const auto sigar = [&](std::size_t harf) {
        return olcer(metin.substr(0, harf), yazi) <= en + kYuvarlama;
    };
    std::size_t sigan = 1;
    std::size_t sigmayan = std::min(kTahmin, metin.size() + 1);
    while (sigmayan <= metin.size() && sigar(sigmayan)) {
        sigan = sigmayan;
        sigmayan = std::min(2 * sigmayan, metin.size() + 1);
    }
    while (sigmayan - sigan > 1) {
        const std::size_t orta = sigan + (sigmayan - sigan) / 2;
        (sigar(orta) ? sigan : sigmayan) = orta;
    }
    return sigan;
}

/// Breaks what stands between two line ends.
void ParagrafiBol(MetinBakis metin, double en, const SayfaYazisi& yazi, const YaziOlcer& olcer,
                  std::vector<Metin>& satirlar, std::size_t enCok) {
    while (!metin.empty()) {
        if (satirlar.size() > enCok)
            return;
        const std::size_t sigan = SiganHarf(metin, en, yazi, olcer);
        if (sigan >= metin.size())
            break;
        // The blank behind the last word that fits may stand behind the edge.
        const std::size_t bosluk = metin.substr(0, sigan + 1).rfind(u' ');
        const MetinBakis satir = bosluk == MetinBakis::npos || Kirp(metin.substr(0, bosluk)).empty()
                                     ? metin.substr(0, sigan)
                                     : metin.substr(0, bosluk);
        satirlar.emplace_back(satir.substr(0, satir.find_last_not_of(u' ') + 1));
        metin.remove_prefix(satir.size());
        metin.remove_prefix(std::min(metin.find_first_not_of(u' '), metin.size()));
        if (metin.empty())
            return;
    }
    satirlar.emplace_back(metin);
}

Metin OnlukMetni(double sayi) {
    return DuzMetin(std::round(sayi * kYazilanOnluk) / kYazilanOnluk);
}

Metin ParcaMetni(const SayfaParcasi& parca) {
    const SayfaYeri& yer = parca.yer;
    Metin metin = parca.ad + u" " + OnlukMetni(yer.sol) + u"," + OnlukMetni(yer.ust) + u" " +
                  OnlukMetni(yer.en) + u"x" + OnlukMetni(yer.boy);
    if (parca.renk != 0)
        metin += u" #" + SayiMetni(parca.renk);
    if (parca.zemin)
        metin += u" /" + SayiMetni(*parca.zemin);
    if (parca.tur == ParcaTuru::Cerceve)
        return metin + u" []\n";
    metin += u" " + OnlukMetni(parca.yazi.punto) + (parca.yazi.kalin ? u"K" : u"");
    metin += parca.hiza == Hiza::Sol ? u" <" : parca.hiza == Hiza::Orta ? u" =" : u" >";
    for (const Metin& satir : parca.satirlar)
        metin += u"|" + satir;
    return metin + u"|\n";
}

} // namespace

double SatirBoyu(const SayfaYazisi& yazi) {
    return yazi.punto * kPunto * kSatirArasi;
}

std::vector<Metin> SatirlaraBol(MetinBakis metin, double en, const SayfaYazisi& yazi, const YaziOlcer& olcer,
                                std::size_t enCok) {
    std::vector<Metin> satirlar;
    while (!metin.empty() && satirlar.size() <= enCok) {
        const std::size_t son = std::min(metin.find_first_of(u"\r\n"), metin.size());
        ParagrafiBol(metin.substr(0, son), en, yazi, olcer, satirlar, enCok);
        metin.remove_prefix(son);
        metin.remove_prefix(metin.starts_with(u"\r\n") ? 2U : metin.empty() ? 0U : 1U);
    }
    return satirlar;
}

Metin SayfalarMetni(const std::vector<Sayfa>& sayfalar) {
    Metin metin;
    for (const Sayfa& sayfa : sayfalar) {
        metin += sayfa.yon == Yon::Dik ? u"--\n" : u"-- yatay\n";
        for (const SayfaParcasi& parca : sayfa.parcalar)
            metin += ParcaMetni(parca);
    }
    return metin;
}

} // namespace velora
