#pragma once

#include <string>

#include "storage/Metin.h"

namespace velora {

/// A compound file (a file system within a file, version 3) that holds one stream under this name, of at most
/// 31 characters. A stream that is shorter than 4,096 bytes is filled up with zeros to that length, so that
/// it needs none of the small sectors.
std::string BilesikDosya(MetinBakis ad, std::string akis);

} // namespace velora
