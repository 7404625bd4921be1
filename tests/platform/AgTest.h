#pragma once

#include <gtest/gtest.h>

#include "platform/AgIstemcisi.h"
#include "platform/Sunucu.h"

namespace velora::test {

using namespace std::chrono_literals;

/// Long enough that no slow machine runs into it.
inline constexpr std::chrono::milliseconds kBolZaman = 60s;
/// For requests that are meant to run out of time.
inline constexpr std::chrono::milliseconds kAzZaman = 80ms;

class AgTest : public ::testing::Test {
  protected:
    Metin Getir(
        const Metin& adres, std::chrono::milliseconds sure = kBolZaman,
        const AgIstemcisi::Sira& sira = [] { return true; }) {
        return istemci.Getir(adres, sure, sira);
    }

    AgIstemcisi istemci;
};

} // namespace velora::test
