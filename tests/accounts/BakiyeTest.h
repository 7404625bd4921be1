#pragma once

#include "accounts/FormBakiye.h"
#include "reservation/KayitTest.h"

namespace velora::test {

/// The firm of `KayitTest` with a second hall; the report stands open over the table while the test works on
/// it.
class BakiyeTest : public KayitTest {
  protected:
    BakiyeTest() { agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n"); }

    FormBakiye& Rapor() { return *Prog().FormBakiye.Tut(); }

    /// The report is opened from the menu of the table, and `is` is what the user does on it.
    void RaporAc(const Is& is) {
        Prog();
        EkranBekle(EkranAdi::FormBakiye, is);
        kullanici.KomutSec(Komut::BakiyeRaporss);
        Prog().FormBakiye.Bosalt();
    }
    /// Opens the report on the whole of 2012, lists, and then does `is`.
    void YiliListele(const Is& is) {
        RaporAc([&] {
            Aralik(u"01.01.2012", u"31.12.2012");
            Rapor().ListeleGun();
            is();
        });
    }

    void Aralik(MetinBakis ilk, MetinBakis son) {
        TarihSec(Rapor().DTPicker1, TarihCoz(ilk).value());
        TarihSec(Rapor().DTPicker2, TarihCoz(son).value());
    }
    void TipSec(std::size_t sira) { ListedenSec(Rapor().Combo1, Rapor().Combo1.ogeler.at(sira)); }
    void BosKutuBekle() { KutuBekle(u"Belirtilen tarihler arasında bir rezervasyon kaydı bulunamadı!"); }

    /// Puts a reservation of hall A, or another, whose two states are these texts.
    void DurumluKoy(const Metin& gun, const Metin& kesin, const Metin& on) {
        const Metin yol = u"Salon A/2012/" + gun;
        agac.KoyMetin(yol, AnaMetni());
        Metin detay = DetayMetni(false);
        const Metin yazili = u"\"1\",\"0\"";
        detay.replace(detay.find(yazili), yazili.size(), u"\"" + kesin + u"\",\"" + on + u"\"");
        agac.KoyMetin(yol + u"-Detay", detay);
    }

    std::vector<Metin> Sutun(std::size_t no) {
        std::vector<Metin> metinler;
        for (const ListeSatiri& satir : Rapor().Liste.satirlar)
            metinler.push_back(satir.sutun.at(no));
        return metinler;
    }
    std::vector<Metin> Gunler() { return Sutun(0); }

    /// The totals of all kinds, one after the other, with " / " between them.
    Metin TurToplamlari() {
        Metin metin;
        for (const Etiket& etiket : Rapor().DTop)
            metin += (metin.empty() ? u"" : u" / ") + etiket.baslik;
        return metin;
    }
    void GenelOlmali(MetinBakis toplam, MetinBakis alinan, MetinBakis kalan) {
        EXPECT_EQ(Rapor().Toplam.baslik, toplam);
        EXPECT_EQ(Rapor().Alinan.baslik, alinan);
        EXPECT_EQ(Rapor().Kalan.baslik, kalan);
    }
    void SayacOlmali(MetinBakis kesin, MetinBakis on, MetinBakis hepsi) {
        EXPECT_EQ(Rapor().Label14.baslik, kesin);
        EXPECT_EQ(Rapor().Label18.baslik, on);
        EXPECT_EQ(Rapor().Label19.baslik, hepsi);
    }
    void SatirSec(int sira) {
        Rapor().Liste.secili = sira;
        Rapor().Liste_Click();
    }
};

inline constexpr MetinBakis kBosTurler =
    u": 0 TL / : 0 TL / : 0 TL / : 0 TL / : 0 TL / : 0 TL / : 0 TL / : 0 TL";

} // namespace velora::test
