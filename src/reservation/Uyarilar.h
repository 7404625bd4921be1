#pragma once

#include <vector>

#include "screen/Kontroller.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

/// The colour of a row that stands for a pre-reservation: red 0, green 192, blue 0.
inline constexpr RenkDegeri kOnUyariRengi = 49152;

/// How many days before its day a reservation is warned of. One of today or of a day gone by is never near.
struct UyariSuresi {
    double kesin = 0;
    double on = 0;
};

/// Looks through year folders for reservations that are near.
///
/// The plain way reads each name of each folder as a main record and its companion as details; what a file
/// doesn't fill stays from the names before it, over all folders. Only days that are near can give a row. So
/// only their files are read, and the names before them where something is missing in these; the rows are the
/// same.
class UyariTaramasi {
  public:
    explicit UyariTaramasi(const Dosyalar& dosyalar) : dosyalar_(dosyalar) {}

    /// Adds the names of a year folder that begin with a day number, behind those of the folders before.
    void KlasorEkle(const Metin& salon, const Metin& klasor);

    /// The rows, in the order of the names: day file name, hall, customer, couple, telephone, mobile phone,
    /// and "Kesin" or "Ön". The tag is the path of the main file. A record that is both gives both rows.
    std::vector<ListeSatiri> Satirlar(const Gun& bugun, const UyariSuresi& sure) const;

  private:
    struct Ad {
        std::size_t klasor; ///< which of the folders
        Metin metin;
    };
    struct Klasor {
        Metin salon;
        Metin yol;
    };

    Metin Yol(std::size_t sira) const;
    template <class Degerler, class Oku>
    void Yurut(Degerler& hal, std::size_t ilk, std::size_t sira, const Oku& oku) const;

    const Dosyalar& dosyalar_;
    std::vector<Klasor> klasorler_;
    std::vector<Ad> adlar_;
};

} // namespace velora
