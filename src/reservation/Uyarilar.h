#pragma once

#include <vector>

#include "screen/Kontroller.h"
#include "storage/RezervasyonDosyalari.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

/// The colour of a row that stands for a pre-reservation: red 0, green 192, blue 0.
inline constexpr RenkDegeri kOnUyariRengi = 49152;

/// How many days before its day a reservation is warned of. One of today or of a day gone by is never near.
struct UyariSuresi {
    double kesin = 0;
    double on = 0;
};

/// The values that a warning shows or goes by.
using UyariAna = SecilenDegerler<AnaNo::AdiSoyadi, AnaNo::GelinDamat, AnaNo::Telefon, AnaNo::Cep,
                                 AnaNo::YaklasincaHatirlat>;
using UyariDetay = SecilenDegerler<DetayNo::KesinRezervasyon, DetayNo::OnRezervasyon>;

/// Looks through year folders for reservations that are near.
///
/// The plain way reads each name of each folder as a main record and its companion as details; what a file
/// doesn't fill stays from the names before it, over all folders. Only days that are near can give a row. So
/// only their files are read, and the names before them where something is missing in these; the rows are the
/// same.
class UyariTaramasi {
  public:
    UyariTaramasi(const Dosyalar& dosyalar, const Gun& bugun, const UyariSuresi& sure)
        : dosyalar_(dosyalar), bugun_(bugun), sure_(sure) {}

    /// Goes on with the names of a year folder that begin with a day number, behind those of the folders
    /// before.
    void KlasorEkle(const Metin& salon, const Metin& klasor);

    /// The rows, in the order of the names: day file name, hall, customer, couple, telephone, mobile phone,
    /// and "Kesin" or "Ön". The tag is the path of the main file. A record that is both gives both rows.
    const std::vector<ListeSatiri>& Satirlar() const { return satirlar_; }

  private:
    /// A name's place: its folder, and its place in the listing of it.
    struct Yer {
        std::size_t klasor;
        std::size_t sira;
    };

    int KalanGun(const Gun& gun) const;
    bool KalanYakin(int kalan) const;
    int SonYil() const;
    bool Onemli(const KlasorOkumasi& okuma);
    bool Yakin(MetinBakis ad);
    void Oku(KlasorOkumasi& okuma, std::size_t sira);
    template <class Degerler, class Dosya>
    void Yurut(Degerler& hal, KlasorOkumasi& okuma, std::size_t sira, const Dosya& dosya) const;
    void SatirlariEkle(const Metin& ad, const Metin& salon);

    const Dosyalar& dosyalar_;
    Gun bugun_;
    UyariSuresi sure_;
    std::vector<Metin> klasorler_;
    UyariAna ana_;
    UyariDetay detay_;
    Yer ilk_{0, 0}; // the values stand as before this name
    Metin tarih_;   // the first letters of the name that was looked at last
    int kalan_ = 0; // a name without a date keeps the days of the name before it
    std::vector<ListeSatiri> satirlar_;
};

} // namespace velora
