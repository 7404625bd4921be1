#pragma once

#include <optional>

#include "screen/Ortam.h"

namespace velora {

/// Whether any network adapter but the loopback is up, carries a signal and has an address.
bool BaglantiVar();

/// The hardware address of the first network adapter, in the order of the system, that is up and isn't the
/// loopback. One that has none, as a tunnel, is passed over.
std::optional<DonanimAdresi> DonanimAdresiBul();

} // namespace velora
