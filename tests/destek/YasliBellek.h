#pragma once

#include <chrono>

#include "storage/dosya/Dosyalar.h"
#include "storage/dosya/OkumaBellegi.h"

namespace velora::test {

/// From here on all that stands on the disk is an hour old to what is kept of folders. What is read then is
/// believed at once: between two changes of one file there must be a `YeniAn` of the tree.
inline void BellekYasliGorsun(const Dosyalar& dosyalar) {
    dosyalar.Bellek().saat = [] { return std::chrono::system_clock::now() + std::chrono::hours(1); };
}

} // namespace velora::test
