#pragma once

#include <cstdint>
#include <vector>

#include "storage/Metin.h"

namespace velora {

/// The names of a folder, all in one piece of memory, so that a listing of thousands costs no memory call for
/// each.
class AdListesi {
  public:
    void Ekle(MetinBakis ad);

    /// Puts the names into the order of `AdSirasi`.
    void Sirala();

    std::size_t Sayi() const { return adlar_.size(); }
    MetinBakis operator[](std::size_t i) const { return Bakis(adlar_[i]); }

  private:
    struct Ad {
        std::uint64_t anahtar; ///< the first eight letters without their case; orders as the names do
        std::size_t bas;
        std::size_t uzunluk;
    };
    MetinBakis Bakis(const Ad& ad) const { return MetinBakis(harfler_).substr(ad.bas, ad.uzunluk); }

    Metin harfler_;
    std::vector<Ad> adlar_;
};

} // namespace velora
