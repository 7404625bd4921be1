#pragma once

#include <cstdint>
#include <random>
#include <span>

namespace velora::ornek {

/// Random numbers that are the same on every system: the distributions of the standard library are not.
class Rastgele {
  public:
    explicit Rastgele(std::uint32_t tohum) : motor_(tohum) {}

    /// A number from `enAz` to `enCok`, both included.
    int Arasi(int enAz, int enCok) {
        return enAz + static_cast<int>(motor_() % static_cast<std::uint32_t>(enCok - enAz + 1));
    }

    /// True in so many of a hundred cases.
    bool Yuzde(int yuzde) { return Arasi(1, 100) <= yuzde; }

    template <class Deger, std::size_t Boy>
    const Deger& Birini(std::span<const Deger, Boy> liste) {
        return liste[static_cast<std::size_t>(Arasi(0, static_cast<int>(liste.size()) - 1))];
    }

  private:
    std::mt19937 motor_;
};

} // namespace velora::ornek
