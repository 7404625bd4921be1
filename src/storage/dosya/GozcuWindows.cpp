#include "storage/dosya/Gozcu.h"

namespace velora::sistem {

// This system may tell of a write only when it comes to the disk: it is never sure.
struct Gozcu::Ic {};

Gozcu::Gozcu() = default;

Gozcu::~Gozcu() = default;

void Gozcu::Izle(const std::filesystem::path& /*klasor*/) {}

bool Gozcu::Degisenler(const std::function<void(DiskAdi ad)>& /*ver*/) {
    return false;
}

} // namespace velora::sistem
