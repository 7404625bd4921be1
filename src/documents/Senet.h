#pragma once

#include <vector>

#include "screen/Sayfa.h"

namespace velora {

class SayfaAkisi;

/// The promissory note, a form with dots to be filled in by hand, as one block in a frame. Two of its
/// sentences come from outside: what an unpaid note does (`Label38`), and the court (`Label50`). `ara` is the
/// room between two of its lines, in millimetres.
std::vector<SayfaParcasi> SenetBlogu(const SayfaAkisi& akis, MetinBakis muacceliyet, MetinBakis mahkeme,
                                     double ara);

} // namespace velora
