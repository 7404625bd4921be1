#pragma once

#include <functional>
#include <random>
#include <vector>

#include "destek/GeciciAgac.h"
#include "destek/Kayitlar.h"

namespace velora::test {

/// Random year folders: the files of reservations and files of other names, most of them whole, the others
/// missing, empty, short or damaged, or a folder in their place. The same seed makes the same tree.
class RastgeleAgac {
  public:
    struct Tarif {
        int adet = 0; ///< of reservations
        std::vector<Metin> salonlar;
        std::vector<Metin> yillar;
        unsigned ilkAy = 1;
        unsigned sonAy = 12;
        std::vector<Metin> adlar; ///< of other files, which each folder gets
        /// The whole text of a file, by what stands behind the day in its name.
        std::function<Metin(MetinBakis ek)> metin;
    };

    RastgeleAgac(const GeciciAgac& agac, unsigned tohum) : agac_(agac), rastgele_(tohum) {}

    void Yap(const Tarif& tarif);

    /// Puts the list of halls: two, or so many that their folders are listed ahead of who reads them.
    std::vector<Metin> SalonlariKoy(bool cok) const;

    /// One of so many, from 0.
    unsigned Sec(std::size_t adet);

    /// The text of this record's file, for a tree of records.
    Metin KayitMetni(MetinBakis ek, const OrnekKayit& kayit);

  private:
    void UcDosyaKoy(const Tarif& tarif, const Metin& salon, const Metin& yil, const Metin& ad);
    void Koy(const Metin& yol, Metin metin);
    void Boz(Metin& metin);

    const GeciciAgac& agac_;
    std::mt19937 rastgele_;
};

} // namespace velora::test
