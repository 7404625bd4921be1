#pragma once

#include "screen/Ortam.h"

namespace velora {

/// Puts the real network into the outside world of a program. While a request or a fetch waits, the events of
/// that world run; telling it to end gives all of them up. The functions for events and the end must be set
/// before.
void AgiBagla(Ortam& ortam);

} // namespace velora
