#pragma once

#include <cstdint>
#include <vector>

#include "storage/Tarih.h"
#include "storage/VeriAgaci.h"
#include "storage/dosya/Dosyalar.h"

namespace velora::ornek {

/// What a sample firm is to be like. The same values give the same bytes.
struct Istek {
    unsigned salon = 2;         ///< halls
    unsigned yil = 2;           ///< years: this one, the next, the ten before, then on behind the next
    unsigned rezervasyon = 120; ///< for each hall and year; no more than a year has slots
    std::uint32_t tohum = 1;    ///< of the random numbers
    Gun bugun{};                ///< the day around which the reservations lie; must be a real day
    bool tumAdlar = false;      ///< 31 days for each month, also those it hasn't got
};

inline constexpr unsigned kEnCokSalon = 100;
/// This year with the ten before and the ten behind it: all can be chosen on the table.
inline constexpr unsigned kEnCokYil = 21;
/// Slots of a year in which every month has 31 days.
inline constexpr unsigned kEnCokRezervasyon = 744;

enum class Durum {
    Tamam,
    AgacVar,    ///< the folder holds a firm already; nothing was written
    Yazilamadi, ///< a file couldn't be written; `Salon.dat` is missing then
};

struct Sonuc {
    Durum durum = Durum::Tamam;
    unsigned rezervasyon = 0;     ///< in all halls and years
    unsigned odeme = 0;           ///< payments of all reservations
    unsigned enAzRezervasyon = 0; ///< in the hall and year with the fewest
    std::vector<Metin> salonlar;  ///< in the order of the hall list
    std::vector<int> yillar;      ///< ascending
};

/// Who may do all in a sample firm.
inline constexpr MetinBakis kYonetici = u"admin";
inline constexpr MetinBakis kYoneticiParolasi = u"velora";

/// The names of the halls that a firm of so many halls has.
std::vector<Metin> SalonAdlari(unsigned adet);

/// The years of a firm, ascending.
std::vector<int> Yillar(const Istek& istek);

/// Writes a whole firm below the root of `dosyalar`, which must be there: its profile, users, contract,
/// halls, menus, holidays, and for each hall and year its reservations and expenses. `Salon.dat` comes last,
/// so that a firm cut short counts as none.
Sonuc FirmaYap(const Dosyalar& dosyalar, const Istek& istek);

} // namespace velora::ornek
