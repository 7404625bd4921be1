#pragma once

#include <array>

#include "storage/VeriAgaci.h"

namespace velora {

/// Two slots of the colour list: back and fore of a cell.
struct RenkCifti {
    int zemin;
    int yazi;
};

/// The states of a day in one slot, by the colours that show them.
struct SatirRenkleri {
    RenkCifti bos;       ///< free weekday
    RenkCifti haftaSonu; ///< free weekend
    RenkCifti kesin;     ///< firm reservation
    RenkCifti on;        ///< pre-reservation
};

inline constexpr SatirRenkleri kGunduzRenkleri{{2, 3}, {8, 9}, {6, 7}, {19, 20}};
inline constexpr SatirRenkleri kGeceRenkleri{{4, 5}, {10, 11}, {12, 13}, {21, 22}};
inline constexpr RenkCifti kTatilRengi{23, 24};
inline constexpr RenkCifti kGecmisRengi{17, 18};

constexpr const SatirRenkleri& Renkler(GunduzGece dilim) {
    return dilim == GunduzGece::Gunduz ? kGunduzRenkleri : kGeceRenkleri;
}

/// The back colours on which a new reservation can be made.
constexpr std::array<int, 3> BosZeminler(GunduzGece dilim) {
    return {Renkler(dilim).bos.zemin, Renkler(dilim).haftaSonu.zemin, kTatilRengi.zemin};
}

/// The back colours that a reservation shows.
constexpr std::array<int, 2> DoluZeminler(GunduzGece dilim) {
    return {Renkler(dilim).kesin.zemin, Renkler(dilim).on.zemin};
}

} // namespace velora
