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

/// What every firm of these tests is asked for: the defaults on a fixed day.
inline ornek::Istek SabitIstek() {
    ornek::Istek istek;
    istek.bugun = std::chrono::year(2026) / 6 / 17;
    return istek;
}

inline ornek::Sonuc FirmaYap(const GeciciAgac& agac, const ornek::Istek& istek) {
    return ornek::FirmaYap(Dosyalar(agac.Kok()), istek);
}

/// All values of a record file, with objects of its own.
inline std::vector<Metin> TumDegerler(const GeciciAgac& agac, const Metin& yol) {
    const std::string bayt = agac.Bayt(yol);
    DegerOkuyucu okuyucu(bayt);
    std::vector<Metin> degerler;
    for (Metin deger; okuyucu.Oku(deger);)
        degerler.push_back(deger);
    return degerler;
}

/// All reservations of the halls and years, by the names in the folders.
inline std::vector<OkunanKayit> TumKayitlar(const GeciciAgac& kaynak, const ornek::Sonuc& sonuc) {
    const Dosyalar dosyalar(kaynak.Kok());
    const VeriAgaci agac(dosyalar);
    std::vector<OkunanKayit> kayitlar;
    for (const Metin& salon : sonuc.salonlar)
        for (const int yil : sonuc.yillar)
            for (const Metin& ad : dosyalar.Listele(agac.YilKlasoru(salon, SayiMetni(yil)))) {
                if (!GunDosyasiDeseni(ad) || EslikDosyasi(ad))
                    continue;
                OkunanKayit kayit{salon, yil, ad, {}, {}, false, {}};
                const Metin yol = agac.GunYolu(salon, SayiMetni(yil), ad);
                AnaOku(dosyalar, yol, kayit.ana);
                DetayOku(dosyalar, yol + Metin(kDetayEki), kayit.detay);
                kayit.odemeVar = OdemeOku(dosyalar, yol + Metin(kOdemeEki), kayit.odemeler);
                kayitlar.push_back(std::move(kayit));
            }
    return kayitlar;
}

} // namespace velora::test
