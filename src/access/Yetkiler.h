#pragma once

#include <span>

#include "access/Kullanicilar.h"
#include "screen/Oturum.h"

namespace velora {

/// One of the eleven rights of a user. A right works by the way to its function alone: whoever has it not
/// doesn't see the way. Right 9 closes none, it is asked where amounts are changed.
struct Yetki {
    MetinBakis baslik;      ///< caption of its box
    KapananYol yol{};       ///< what goes with the right
    bool tutar = false;     ///< it is the right to change amounts
    bool varsayilan = true; ///< a new user has it
    bool degisir = true;    ///< its box can be ticked
    bool gorunur = true;    ///< its box is shown
};

/// The rights in the order of their numbers, 1 to 11.
std::span<const Yetki, kYetkiSayisi> Yetkiler();

/// The number at the beginning of a user's right, 0 where there is none. `no` is the right's number.
double YetkiDegeri(const ListeSatiri& kullanici, int no);

/// Closes to the session what this user has no right to. Right 9 is set either way. A right is missing when
/// its value is 0: letters are 0, "2" isn't.
void YetkileriUygula(Oturum& oturum, const ListeSatiri& kullanici);

/// What only `admin` has.
inline constexpr KapananYol kGuvenlikYolu{.girdi = u"Guvenliksss", .cizgi = u"firmcizgi"};
inline constexpr KapananYol kKullanicilarYolu{.girdi = u"KulTanimssss", .cizgi = u"aline4"};

} // namespace velora
