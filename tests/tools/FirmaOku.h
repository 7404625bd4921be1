#pragma once

#include <string>
#include <vector>

#include "destek/GeciciAgac.h"
#include "storage/RezervasyonDosyalari.h"
#include "tools/OrnekFirma.h"

namespace velora::test {

/// A reservation as it stands on the disk.
struct OkunanKayit {
    Metin salon;
    int yil = 0;
    Metin ad; ///< the day file name
    AnaDegerler ana;
    DetayDegerler detay;
    bool odemeVar = false; ///< there is a payments file
    std::vector<Odeme> odemeler;
};

/// The defaults on a fixed day.
ornek::Istek SabitIstek();
/// The same with so few reservations that making them costs no time.
ornek::Istek KucukIstek();

ornek::Sonuc FirmaYap(const GeciciAgac& agac, const ornek::Istek& istek);

/// All values of a record file, with objects of its own.
std::vector<Metin> TumDegerler(const GeciciAgac& agac, const Metin& yol);

/// The names of all files of a hall's year.
std::vector<Metin> TumAdlar(const GeciciAgac& agac, const Metin& salon, int yil);

/// All reservations of the firm's halls and years, by the names in the folders.
std::vector<OkunanKayit> TumKayitlar(const GeciciAgac& agac, const ornek::Sonuc& sonuc);

/// A firm with all defaults, made once for all tests that only look at it.
struct VarsayilanFirma {
    GeciciAgac agac;
    ornek::Sonuc sonuc = FirmaYap(agac, SabitIstek());
    std::vector<OkunanKayit> kayitlar = TumKayitlar(agac, sonuc);

    static const VarsayilanFirma& Al();
};

} // namespace velora::test
