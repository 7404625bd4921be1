#pragma once

#include <array>

#include "screen/Kontroller.h"
#include "storage/Koken.h"

namespace velora {

struct Program;

/// The user who may do everything, and alone manages the others. The case of the letters counts.
inline constexpr MetinBakis kAdmin = u"admin";

inline constexpr int kYetkiSayisi = 11;

/// The values of a user's record in `User.dll`, and the columns of the lists of users, from 0. The rights
/// begin at `IlkYetki`, in the order of their numbers.
struct KullaniciNo {
    enum No : std::size_t { Ad, Parola, IlkYetki };
};
inline constexpr std::size_t kKullaniciDegerSayisi = KullaniciNo::IlkYetki + kYetkiSayisi;
static_assert(kKullaniciDegerSayisi == 13);

/// Reads the users, in the order of the file, thirteen values for each, whatever lines they stand on. One
/// whose name is blank is left out. A cut off last record keeps the values of the record before. A file that
/// can't be opened gives no users.
SatirListesi KullanicilariOku(const Program& program, Koken* koken = nullptr);

/// Makes the file hold these users, one on a line, texts uncleaned. A failed write is not reported, and
/// neither is one that `koken` doesn't let go out.
void KullanicilariYaz(const Program& program, const SatirListesi& kullanicilar, const Koken& koken = {});

/// A row of the lists of users.
ListeSatiri KullaniciSatiri(const Metin& ad, const Metin& parola,
                            const std::array<Metin, kYetkiSayisi>& yetkiler);

} // namespace velora
