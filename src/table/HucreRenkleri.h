#pragma once

#include <array>

#include "setup/RenkNo.h"
#include "storage/VeriAgaci.h"

namespace velora {

/// Two of the colours: back and fore of a cell.
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

inline constexpr SatirRenkleri kGunduzRenkleri{
    .bos = {RenkNo::GunduzZemini, RenkNo::GunduzYazisi},
    .haftaSonu = {RenkNo::GunduzHaftaSonuZemini, RenkNo::GunduzHaftaSonuYazisi},
    .kesin = {RenkNo::GunduzKesinZemini, RenkNo::GunduzKesinYazisi},
    .on = {RenkNo::GunduzOnZemini, RenkNo::GunduzOnYazisi}};
inline constexpr SatirRenkleri kGeceRenkleri{
    .bos = {RenkNo::GeceZemini, RenkNo::GeceYazisi},
    .haftaSonu = {RenkNo::GeceHaftaSonuZemini, RenkNo::GeceHaftaSonuYazisi},
    .kesin = {RenkNo::GeceKesinZemini, RenkNo::GeceKesinYazisi},
    .on = {RenkNo::GeceOnZemini, RenkNo::GeceOnYazisi}};
inline constexpr RenkCifti kTatilRengi{RenkNo::TatilZemini, RenkNo::TatilYazisi};
inline constexpr RenkCifti kGecmisRengi{RenkNo::GecmisZemini, RenkNo::GecmisYazisi};
inline constexpr RenkCifti kBaslikRengi{RenkNo::BaslikZemini, RenkNo::BaslikYazisi};

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
