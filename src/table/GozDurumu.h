#pragma once

#include <array>

#include "storage/VeriAgaci.h"

namespace velora {

/// What a cell of the table says by its back colour. Where two states have the same colour, the one that
/// comes first here holds: the free one, as for the menu of a cell.
enum class GozDurumu { Bos, HaftaSonu, Tatil, Kesin, On, Gecmis };

struct DurumTanimi {
    GozDurumu durum;
    int zemin;     ///< slot of the colour list
    MetinBakis ad; ///< as it is said to the user
};

/// The states of a slot, in the order of `GozDurumu`.
std::array<DurumTanimi, 6> Durumlar(GunduzGece dilim);
DurumTanimi Durum(GozDurumu durum, GunduzGece dilim);

} // namespace velora
