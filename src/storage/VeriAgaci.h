#pragma once

#include <array>
#include <optional>

#include "storage/Metin.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

/// The day part of a reservation: the day slot or the evening slot.
enum class GunduzGece { Gunduz, Gece };

inline constexpr MetinBakis kDetayEki = u"-Detay";
inline constexpr MetinBakis kOdemeEki = u"-Odeme";

/// What stands behind the day file name in the names of a reservation's three files, the main file's first.
inline constexpr std::array<MetinBakis, 3> kRezervasyonEkleri{u"", kDetayEki, kOdemeEki};

/// " - Gündüz" or " - Gece".
MetinBakis DilimEki(GunduzGece dilim);

/// ".01." to ".12."; `ay` 1 to 12.
Metin AyEki(unsigned ay);

/// The day file name, as in "05.01.2012 - Gündüz". The year is taken as it stands.
Metin GunAnahtari(unsigned gun, unsigned ay, MetinBakis yil, GunduzGece dilim);

/// The date of a day file name as text, dd.mm.yyyy, taken out by position: characters 1-2, 4-5 and 7-10.
Metin AnahtarTarihi(MetinBakis ad);

/// The year of a day file name as text: characters 7-10.
Metin AnahtarYili(MetinBakis ad);

/// The slot that the last three characters of a selected day tell: "düz" is the day slot, anything else the
/// evening slot.
GunduzGece AnahtarDilimi(MetinBakis ad);

/// True for names that end in "Detay" or "Odeme": never a main record.
bool EslikDosyasi(MetinBakis ad);
/// The same of a name in a folder. One that ends so needn't become a text.
bool EslikDosyasi(const KlasorOkumasi& okuma, std::size_t sira);

/// The pattern "0?.*;1?.*;2?.*;3?.*": a digit from 0 to 3, one further character, a dot, anything.
bool GunDosyasiDeseni(MetinBakis ad);

/// The files of the firm, directly in the program's folder.
inline constexpr MetinBakis kSalonDosyasi = u"Salon.dat";          ///< halls
inline constexpr MetinBakis kMenuDosyasi = u"Menuler.dat";         ///< banquet menus
inline constexpr MetinBakis kSozlesmeDosyasi = u"Sozlesme.dat";    ///< title and clauses of the contract
inline constexpr MetinBakis kAyarDosyasi = u"Settings.dll";        ///< settings and colours
inline constexpr MetinBakis kAyDosyasi = u"Visible.dll";           ///< which months are shown
inline constexpr MetinBakis kTatilDosyasi = u"Tatiller.dll";       ///< holidays
inline constexpr MetinBakis kGenelTatilDosyasi = u"Tatiller.dat";  ///< the published list, as it came
inline constexpr MetinBakis kKullaniciDosyasi = u"User.dll";       ///< users, passwords, rights
inline constexpr MetinBakis kSayacDosyasi = u"Count.dat";          ///< the last contract number
inline constexpr MetinBakis kIptalDosyasi = u"IptalSebep.txt";     ///< log of cancellations
inline constexpr MetinBakis kKilavuzDosyasi = u"Kilavuz.html";     ///< the guide, for the browser
inline constexpr MetinBakis kAdresDosyasi = u"Adresler.dat";       ///< addresses of the service and the site
inline constexpr MetinBakis kFirmaDosyasi = u"Firma.dll";          ///< the firm's profile
inline constexpr MetinBakis kYeniSurumDosyasi = u"VeloraYeni.exe"; ///< a new version, as it came
inline constexpr MetinBakis kGuncelleyici = u"Update.exe";         ///< puts it in the place of the old one
inline constexpr MetinBakis kRaporDosyasi = u"Rapor.xls";          ///< the last report given to a spreadsheet
inline constexpr MetinBakis kSunucuDosyasi = u"Sunucu.dat";        ///< the firm's key at the service
inline constexpr MetinBakis kIstekDosyasi = u"RezTemp.dat";        ///< requests that wait at the service
inline constexpr MetinBakis kYedekDosyasi = u"BackupSetting.dat";  ///< where backups go
/// In a year folder: the expenses of that hall and year.
inline constexpr MetinBakis kGiderDosyasi = u"Gider.dat";

/// The paths of the data tree. Names are joined as they stand; nothing is escaped or cleaned.
class VeriAgaci {
  public:
    explicit VeriAgaci(const Dosyalar& dosyalar) : dosyalar_(dosyalar) {}

    /// A file directly in the program's folder.
    Metin KokYolu(MetinBakis ad) const;
    Metin SalonKlasoru(MetinBakis salon) const;
    Metin YilKlasoru(MetinBakis salon, MetinBakis yil) const;
    /// The companions are this path with `kDetayEki` or `kOdemeEki` behind it.
    Metin GunYolu(MetinBakis salon, MetinBakis yil, MetinBakis gunAnahtari) const;
    /// The same for who has the path of the year folder.
    static Metin GunYolu(MetinBakis yilKlasoru, MetinBakis gunAnahtari);

    /// True when the main file of exactly this path is there: the day and slot is taken.
    bool RezervasyonVarMi(const Metin& yol) const;

    /// Makes the hall folder, then the year folder in it. Failures are passed over.
    void KlasorHazirla(MetinBakis salon, MetinBakis yil) const;

  private:
    const Dosyalar& dosyalar_;
};

} // namespace velora
