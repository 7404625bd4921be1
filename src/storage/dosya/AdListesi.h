#pragma once

#include <cstdint>
#include <vector>

#include "storage/Metin.h"

namespace velora {

/// The names of a folder, all in one piece of memory, so that a listing of thousands costs no memory call for
/// each.
class AdListesi {
  public:
    /// Takes a name as it stands on the disk.
    void Ekle(MetinBakis ad);

    /// Puts the names into the order of `AdSirasi`. Of equal ones the one that stands so on the disk comes
    /// first.
    void Sirala();

    std::size_t Sayi() const { return adlar_.size(); }
    /// In the form of the program's own names (`AdDuzelt`).
    MetinBakis operator[](std::size_t i) const { return Bakis(adlar_[i].ad); }
    /// As it stands on the disk.
    MetinBakis Diskteki(std::size_t i) const { return Bakis(adlar_[i].diskteki); }

  private:
    struct Yer {
        std::size_t bas;
        std::size_t uzunluk;
    };
    struct Ad {
        std::uint64_t anahtar; ///< the first eight letters without their case; orders as the names do
        Yer ad;
        Yer diskteki;
    };
    Yer Sakla(MetinBakis ad);
    MetinBakis Bakis(const Yer& yer) const { return MetinBakis(harfler_).substr(yer.bas, yer.uzunluk); }

    Metin harfler_;
    Metin gecici_; // kept for its memory
    std::vector<Ad> adlar_;
};

} // namespace velora
