#pragma once

#include <span>
#include <vector>

#include "tools/kilavuz/ResimCekimi.h"

namespace velora::kilavuz {

/// All pictures of the guide.
std::span<const ResimTanimi> Resimler();

/// The screens with a window that none of these pictures shows.
std::vector<EkranAdi> ResimsizEkranlar(std::span<const ResimTanimi> resimler);

} // namespace velora::kilavuz
