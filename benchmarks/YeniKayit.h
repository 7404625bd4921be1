#pragma once

#include "reservation/FormKayit.h"

namespace velora::olcum {

/// The most that a save with what follows it may cost, as a ratio to the floor.
inline constexpr double kEnCokKayitOrani = 1.5;

/// Fills in a new reservation of one day, the same each time.
inline void Doldur(FormKayit& kayit) {
    kayit.Tarih = u"15.06.2026 - Gece";
    kayit.Kay[AnaNo::AdiSoyadi].metin = u"ali usta";
    kayit.Kay[AnaNo::Niteligi].metin = u"Düğün";
    kayit.Kay[AnaNo::ToplamUcret].metin = u"500000";
    kayit.Kay[AnaNo::BaslamaSaati].metin = u"20:00";
    kayit.Kay[AnaNo::BitisSaati].metin = u"23:00";
}

} // namespace velora::olcum
