#pragma once

#include <span>
#include <vector>

#include "storage/Metin.h"

namespace velora {

/// A province and its districts.
struct Il {
    MetinBakis ad;      ///< in capitals, without the letters that only Turkish has
    MetinBakis ilceler; ///< in Turkish alphabetical order, "|" between them
};

/// The 81 provinces, in the order in which they are offered.
std::span<const Il> Iller();

/// The districts of a province, in their order; none for a text that is no province.
std::vector<Metin> Ilceleri(MetinBakis il);

} // namespace velora
