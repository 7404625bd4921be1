#include "qt/table/TabloKlavyesi.h"

#include <algorithm>
#include <array>
#include <vector>

#include <Qt>

namespace velora {

namespace {

/// How far a key goes: in rows and in days.
struct Adim {
    int tus;
    int satir;
    int gun;
};

constexpr std::array<Adim, 8> kAdimlar{{{Qt::Key_Left, 0, -1},
                                        {Qt::Key_Right, 0, 1},
                                        {Qt::Key_Home, 0, -kGunSayisi},
                                        {Qt::Key_End, 0, kGunSayisi},
                                        {Qt::Key_Up, -1, 0},
                                        {Qt::Key_Down, 1, 0},
                                        {Qt::Key_PageUp, -2, 0},
                                        {Qt::Key_PageDown, 2, 0}}};

/// Days are shown from the first on.
int SonGun(const FormTablo& tablo, SatirAdi satir) {
    int gun = 0;
    while (gun < kGunSayisi && tablo.Gozu(satir, gun + 1).gorunur)
        ++gun;
    return gun;
}

/// The rows that show a cell, from above to below.
std::vector<SatirAdi> GorunenSatirlar(const FormTablo& tablo) {
    std::vector<SatirAdi> satirlar;
    for (int no = 0; no < kSatirSayisi; ++no)
        if (const auto satir = static_cast<SatirAdi>(no); SonGun(tablo, satir) > 0)
            satirlar.push_back(satir);
    const auto ust = [&](SatirAdi satir) { return tablo.satirlar[static_cast<std::size_t>(satir)].ust; };
    std::ranges::stable_sort(satirlar, {}, ust);
    return satirlar;
}

TabloIsabeti Goz(SatirAdi satir, int gun) {
    return {TabloIsabeti::Tur::Hucre, SatirAyi(satir), gun, satir};
}

} // namespace

bool GezinmeTusu(int tus) {
    return std::ranges::find(kAdimlar, tus, &Adim::tus) != kAdimlar.end();
}

TabloIsabeti IlkGoz(const FormTablo& tablo, const Gun& bugun) {
    const std::vector<SatirAdi> satirlar = GorunenSatirlar(tablo);
    if (satirlar.empty())
        return {};
    const auto buAy = [&](SatirAdi satir) {
        return SatirAyi(satir) == static_cast<int>(unsigned(bugun.month()));
    };
    const auto satir = std::ranges::find_if(satirlar, buAy);
    if (tablo.BuYil() && satir != satirlar.end())
        return Goz(*satir, static_cast<int>(unsigned(bugun.day())));
    return Goz(satirlar.front(), 1);
}

TabloIsabeti TusunGozu(const FormTablo& tablo, const TabloIsabeti& goz, int tus) {
    const auto adim = std::ranges::find(kAdimlar, tus, &Adim::tus);
    const std::vector<SatirAdi> satirlar = GorunenSatirlar(tablo);
    const auto simdiki = std::ranges::find(satirlar, goz.satir);
    if (adim == kAdimlar.end() || simdiki == satirlar.end())
        return goz;
    const std::ptrdiff_t sira = simdiki - satirlar.begin() + adim->satir;
    if (sira < 0 || sira >= std::ssize(satirlar))
        return goz;
    const SatirAdi satir = satirlar[static_cast<std::size_t>(sira)];
    return Goz(satir, std::clamp(goz.gun + adim->gun, 1, SonGun(tablo, satir)));
}

} // namespace velora
