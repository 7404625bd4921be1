#pragma once

#include <filesystem>

#include "screen/Ortam.h"

namespace velora {

/// Where the system wants a program to keep, for this user, what is neither a setting nor anybody's document.
/// There or not; empty where the system names no such place.
std::filesystem::path DurumKlasoru();

/// Puts that into the outside world of a program.
void DurumuBagla(Ortam& ortam);

} // namespace velora
