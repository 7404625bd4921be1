#pragma once

#include <vector>

#include "storage/RezervasyonDosyalari.h"
#include "tools/OrnekGunler.h"

namespace velora::ornek {

/// A reservation before it is written. Its contract number, and the payments' notes that name it, come with
/// `Numarala`.
struct Rezervasyon {
    std::size_t salon = 0; ///< place in the hall list
    int yil = 0;
    Dilim dilim;
    int sozlesmeGunu = 0; ///< number of the day of the contract
    AnaKayit ana;
    DetayKaydi detay;
    std::vector<Odeme> odemeler;
};

/// Makes up a reservation for the slot. Nothing in it lies after today but the event itself and reminders.
Rezervasyon RezervasyonYap(const Istek& istek, const Dilim& dilim, Rastgele& rastgele);

/// Gives it its contract number.
void Numarala(Rezervasyon& rezervasyon, unsigned no);

/// Sets its personal reminder to this day.
void Hatirlat(Rezervasyon& rezervasyon, const Gun& gun);

} // namespace velora::ornek
