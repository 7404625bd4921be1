#include "tools/FirmaOku.h"

namespace velora::test {

ornek::Istek SabitIstek() {
    ornek::Istek istek;
    istek.bugun = std::chrono::year(2026) / 6 / 17;
    return istek;
}

ornek::Istek KucukIstek() {
    ornek::Istek istek = SabitIstek();
    istek.rezervasyon = 5;
    return istek;
}

ornek::Sonuc FirmaYap(const GeciciAgac& agac, const ornek::Istek& istek) {
    return ornek::FirmaYap(Dosyalar(agac.Kok()), istek);
}

std::vector<Metin> TumDegerler(const GeciciAgac& agac, const Metin& yol) {
    const std::string bayt = agac.Bayt(yol);
    DegerOkuyucu okuyucu(bayt);
    std::vector<Metin> degerler;
    for (Metin deger; okuyucu.Oku(deger);)
        degerler.push_back(deger);
    return degerler;
}

std::vector<Metin> TumAdlar(const GeciciAgac& agac, const Metin& salon, int yil) {
    const Dosyalar dosyalar(agac.Kok());
    return dosyalar.Listele(VeriAgaci(dosyalar).YilKlasoru(salon, SayiMetni(yil)));
}

std::vector<OkunanKayit> TumKayitlar(const GeciciAgac& agac, const ornek::Sonuc& sonuc) {
    const Dosyalar dosyalar(agac.Kok());
    std::vector<OkunanKayit> kayitlar;
    for (const Metin& salon : sonuc.salonlar)
        for (const int yil : sonuc.yillar)
            for (const Metin& ad : TumAdlar(agac, salon, yil)) {
                if (!GunDosyasiDeseni(ad) || EslikDosyasi(ad))
                    continue;
                OkunanKayit kayit{salon, yil, ad, {}, {}, false, {}};
                const Metin yol = VeriAgaci(dosyalar).GunYolu(salon, SayiMetni(yil), ad);
                AnaOku(dosyalar, yol, kayit.ana);
                DetayOku(dosyalar, Metin(yol).append(kDetayEki), kayit.detay);
                kayit.odemeVar = OdemeOku(dosyalar, Metin(yol).append(kOdemeEki), kayit.odemeler);
                kayitlar.push_back(std::move(kayit));
            }
    return kayitlar;
}

const VarsayilanFirma& VarsayilanFirma::Al() {
    static const VarsayilanFirma firma;
    return firma;
}

} // namespace velora::test
