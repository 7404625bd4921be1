#pragma once

#include <optional>

#include "screen/Kontroller.h"

namespace velora {

/// How much letters of one colour stand out from a ground, 1 to 21, in colour and on paper without colour:
/// the lower of the two.
double KagittaKarsitlik(RenkDegeri yazi, RenkDegeri zemin);

/// Black or white, whichever stands out more from a ground.
RenkDegeri OneCikan(RenkDegeri zemin);

/// The shade of a ground from which letters of this colour stand out, where they don't do so from the ground
/// itself: as much darker or lighter as it takes. None where they do, and where both are one colour, which is
/// meant.
std::optional<RenkDegeri> OkunurZemin(RenkDegeri yazi, RenkDegeri zemin);

} // namespace velora
