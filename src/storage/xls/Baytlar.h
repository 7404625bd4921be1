#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>

#include "storage/Metin.h"

namespace velora {

/// Puts a number at the end of the bytes, its low byte first.
template <std::unsigned_integral Sayi>
void SayiEkle(std::string& bayt, Sayi sayi) {
    for (std::size_t i = 0; i < sizeof sayi; ++i) {
        bayt += static_cast<char>(sayi & 0xFFU);
        sayi = static_cast<Sayi>(std::uint64_t{sayi} >> 8U);
    }
}

/// Puts a text there, two bytes for each unit.
inline void MetinEkle(std::string& bayt, MetinBakis metin) {
    for (const char16_t harf : metin)
        SayiEkle(bayt, static_cast<std::uint16_t>(harf));
}

} // namespace velora
