#pragma once

#include "screen/Ortam.h"

namespace velora {

/// Begins to watch a folder, without those below it. Where the system can't watch it there is nothing to wait
/// with.
DegisiklikBekle KlasoruIzle(const std::filesystem::path& klasor);

/// Puts that into the outside world of a program.
void IzlemeyiBagla(Ortam& ortam);

} // namespace velora
