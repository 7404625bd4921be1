#pragma once

#include <chrono>

namespace velora {

/// The local time that the machine's clock shows.
std::chrono::local_seconds MakineSaati();

} // namespace velora
