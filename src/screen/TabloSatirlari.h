#pragma once

#include "storage/VeriAgaci.h"

namespace velora {

// The shape of the year table, which is shown and printed.

inline constexpr int kAySayisi = 12;
inline constexpr int kGunSayisi = 31;
inline constexpr int kSatirSayisi = 24;

/// The rows of the table, January to December, in each month the day slot first.
enum SatirAdi {
    OcakGunduz,
    OcakGece,
    SubatGunduz,
    SubatGece,
    MartGunduz,
    MartGece,
    NisanGunduz,
    NisanGece,
    MayisGunduz,
    MayisGece,
    HaziranGunduz,
    HaziranGece,
    TemmuzGunduz,
    TemmuzGece,
    AgustosGunduz,
    AgustosGece,
    EylulGunduz,
    EylulGece,
    EkimGunduz,
    EkimGece,
    KasimGunduz,
    KasimGece,
    AralikGunduz,
    AralikGece
};

constexpr SatirAdi Satir(int ay, GunduzGece dilim) {
    return static_cast<SatirAdi>(2 * (ay - 1) + (dilim == GunduzGece::Gece ? 1 : 0));
}
constexpr int SatirAyi(SatirAdi satir) {
    return satir / 2 + 1;
}
constexpr GunduzGece SatirDilimi(SatirAdi satir) {
    return satir % 2 == 0 ? GunduzGece::Gunduz : GunduzGece::Gece;
}

} // namespace velora
