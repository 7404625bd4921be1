#pragma once

#include <chrono>

#include "storage/dosya/Dosyalar.h"
#include "storage/dosya/OkumaBellegi.h"

namespace velora::test {

/// What is read from here on is believed at once, however young it is: before a change from outside there
/// must be a `YeniAn` of the tree.
inline void BellekBeklemesin(const Dosyalar& dosyalar) {
    dosyalar.Bellek().zamanAdimi = std::chrono::nanoseconds(0);
}

} // namespace velora::test
