#pragma once

#include <string>

#include "destek/GeciciAgac.h"
#include "storage/Metin.h"

namespace velora::test {

/// Texts of record files for tests about anything but the record's shape, as the files hold them.

/// The fields of a main record that the tests care about; the others have fixed texts.
struct OrnekKayit {
    Metin ad = u"Ali Veli";         // value 1
    Metin nitelik = u"Düğün";       // value 4
    Metin ucret = u"5000";          // value 8
    Metin alinan = u"1000";         // value 9
    Metin kalan = u"4000";          // value 10
    Metin saat = u"11:00";          // value 12
    Metin no = u"7";                // value 14
    Metin hatirlat = u"__.__.____"; // value 18
    int check18 = 1;
    int check19 = 0;
};

/// A whole main record.
Metin AnaMetni(const OrnekKayit& kayit = {});
/// A whole details record in one of the two states.
Metin DetayMetni(bool on);
/// Puts a reservation into a tree, with payments when some are given; `yol` is hall/year/day file name.
void KayitKoy(const GeciciAgac& agac, const Metin& yol, const OrnekKayit& kayit = {}, bool on = false,
              MetinBakis odemeler = {});
/// The line of `Settings.dll` with all defaults.
Metin AyarMetni();
/// The same with the field of this number, counted from 1, replaced.
Metin AyarMetni(int alan, MetinBakis deger);

} // namespace velora::test
