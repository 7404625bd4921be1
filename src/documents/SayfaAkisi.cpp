#include "documents/SayfaAkisi.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace velora {

namespace {

constexpr double kAdim = 0.5; // points
constexpr double kPay = 1e-6; // millimetres: sums of heights aren't exact

double MetinBoyu(std::size_t satir, const SayfaYazisi& yazi) {
    return static_cast<double>(satir) * SatirBoyu(yazi);
}

} // namespace

double EnAlt(std::span<const SayfaParcasi> parcalar) {
    double alt = 0;
    for (const SayfaParcasi& parca : parcalar)
        alt = std::max(alt, parca.yer.Alt());
    return alt;
}

SayfaParcasi SayfaAkisi::Parca(Metin ad, MetinBakis metin, const SayfaYeri& yer,
                               const AlanBicimi& bicim) const {
    SayfaYazisi yazi = bicim.yazi;
    std::vector<Metin> satirlar;
    for (;; yazi.punto -= kAdim) {
        // A size that is too large is known by its first lines too many; heights aren't exact to one line.
        const bool enKucuk = yazi.punto - kAdim < bicim.enKucuk;
        const auto sigan = static_cast<std::size_t>((yer.boy + kPay) / SatirBoyu(yazi));
        satirlar = SatirlaraBol(metin, yer.en, yazi, olcer_, enKucuk ? MetinBakis::npos : sigan + 1);
        if (enKucuk || MetinBoyu(satirlar.size(), yazi) <= yer.boy + kPay)
            break;
    }
    SayfaYeri tutulan = yer;
    tutulan.boy = std::max(yer.boy, MetinBoyu(satirlar.size(), yazi));
    return {ParcaTuru::Yazi, std::move(ad), tutulan, yazi, bicim.hiza, std::move(satirlar)};
}

Metin SayfaAkisi::Sira(char16_t isaret, double en, const SayfaYazisi& yazi) const {
    constexpr std::size_t kYuz = 100; // one sign is measured too roughly
    const double yuzununEni = olcer_(Metin(kYuz, isaret), yazi);
    return Metin(static_cast<std::size_t>(en / yuzununEni * kYuz), isaret);
}

void SayfaAkisi::Koy(std::vector<SayfaParcasi> blok) {
    const double boy = EnAlt(blok);
    YerAc(boy);
    for (SayfaParcasi& parca : blok) {
        parca.yer.sol += kenar_;
        parca.yer.ust += ust_;
        sayfalar_.back().parcalar.push_back(std::move(parca));
    }
    ust_ += boy;
}

void SayfaAkisi::Akit(const Metin& ad, MetinBakis metin, const SayfaYazisi& yazi) {
    const double en = kSayfaEni - 2 * kenar_;
    Akit({ParcaTuru::Yazi, ad, {0, 0, en, 0}, yazi, Hiza::Sol, SatirlaraBol(metin, en, yazi, olcer_)});
}

void SayfaAkisi::Akit(const SayfaParcasi& parca, std::vector<SayfaParcasi> yaninda) {
    const double satirBoyu = SatirBoyu(parca.yazi);
    for (auto ilk = parca.satirlar.begin(); ilk != parca.satirlar.end();) {
        YerAc(std::max(satirBoyu, EnAlt(yaninda)));
        const auto sigan = static_cast<std::ptrdiff_t>((Kalan() + kPay) / satirBoyu);
        const auto son = ilk + std::min(std::max(sigan, std::ptrdiff_t{1}), parca.satirlar.end() - ilk);
        SayfaParcasi dilim = parca;
        dilim.yer.boy = static_cast<double>(son - ilk) * satirBoyu;
        dilim.satirlar.assign(ilk, son);
        yaninda.push_back(std::move(dilim));
        Koy(std::exchange(yaninda, {}));
        ilk = son;
    }
}

void SayfaAkisi::YerAc(double boy) {
    if (boy <= Kalan() + kPay)
        return;
    // A block that is higher than a page still goes on one, not behind empty ones.
    if (!sayfalar_.back().parcalar.empty())
        sayfalar_.emplace_back();
    ust_ = kenar_;
}

void SayfaAkisi::DibeKoy(std::vector<SayfaParcasi> blok) {
    const double boy = EnAlt(blok);
    YerAc(boy);
    if (ust_ > kenar_)
        ust_ += std::max(0.0, Kalan() - boy);
    Koy(std::move(blok));
}

void SayfaAkisi::Numarala(MetinBakis metin) {
    const AlanBicimi bicim{{9, false}, Hiza::Orta};
    const double boy = SatirBoyu(bicim.yazi);
    long long sira = 0;
    for (Sayfa& sayfa : sayfalar_)
        sayfa.parcalar.push_back(
            Parca(u"", Metin(metin) + SayiMetni(++sira) + u" / " + SayiMetni(std::ssize(sayfalar_)),
                  {kenar_, kSayfaBoyu - kenar_ - boy, kSayfaEni - 2 * kenar_, boy}, bicim));
}

double SayfaAkisi::Kalan() const {
    return kSayfaBoyu - kenar_ - altlik_ - ust_;
}

} // namespace velora
