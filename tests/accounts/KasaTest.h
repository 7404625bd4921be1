#pragma once

#include "accounts/FormGiderler.h"
#include "accounts/FormKasa.h"
#include "accounts/FormKasaEkle.h"
#include "reservation/KayitTest.h"

namespace velora::test {

/// The firm of `KayitTest` with a second hall; the cash book or the expenses stand open over the table while
/// the test works on them.
class KasaTest : public KayitTest {
  protected:
    using Satirlar = std::vector<std::vector<Metin>>;

    KasaTest() { agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n"); }

    FormKasa& Kasa() { return *Prog().FormKasa.Tut(); }
    FormGiderler& Giderler() { return *Prog().FormGiderler.Tut(); }
    FormKasaEkle& Ekle() { return *Prog().FormKasaEkle.Tut(); }

    /// The cash book is opened from the menu of the table, and `is` is what the user does on it.
    void KasaAc(const Is& is) {
        Prog();
        EkranBekle(EkranAdi::FormKasa, is);
        kullanici.KomutSec(Komut::kasarapors);
        Prog().FormKasa.Bosalt();
    }
    /// Opens it on these days, lists, and then does `is`.
    void KasayiListele(MetinBakis ilk, MetinBakis son, const Is& is) {
        KasaAc([&] {
            KasaAraligi(ilk, son);
            Kasa().ListeleGun();
            is();
        });
    }
    void KasaAraligi(MetinBakis ilk, MetinBakis son) {
        TarihSec(Kasa().DTPicker1, TarihCoz(ilk).value());
        TarihSec(Kasa().DTPicker2, TarihCoz(son).value());
    }
    /// From the cash book of hall A into the expenses.
    void GiderleriAc(const Is& is) {
        KasaAc([&] {
            EkranBekle(EkranAdi::FormGiderler, is);
            VELORA_BAS(Prog().FormKasa, Command3);
            Prog().FormGiderler.Bosalt();
        });
    }
    void GiderAraligi(MetinBakis ilk, MetinBakis son) {
        TarihSec(Giderler().DTPicker1, TarihCoz(ilk).value());
        TarihSec(Giderler().DTPicker2, TarihCoz(son).value());
    }
    /// On the screen of a new expense; a screen that is still open after that is taken away.
    void EkleBekle(const Is& is) {
        EkranBekle(EkranAdi::FormKasaEkle, [this, is] {
            is();
            Prog().FormKasaEkle.Bosalt();
        });
    }
    void GiderGir(MetinBakis tutar, MetinBakis aciklama) {
        AlanaYaz(Ekle().Tutar, tutar, {.degisti = [this] { Ekle().Tutar_Change(); }});
        AlanaYaz(Ekle().Aciklama, aciklama);
        VELORA_BAS(Prog().FormKasaEkle, Command1);
    }
    void GideriSil(int sira, Cevap cevap) {
        SatiraTikla(Giderler().Liste, sira, [this] { Giderler().Liste_Click(); });
        KutuBekle(u"Gider kaydını silmek istediğinizden emin misiniz?", cevap, Simge::Soru);
        VELORA_BAS(Prog().FormGiderler, Command4);
    }
    void BosKasaBekle() { KutuBekle(u"Belirtilen tarihler arasında bir kasa kaydı bulunamadı!"); }

    static Satirlar Okunan(const ListeGorunumu& liste) {
        Satirlar satirlar;
        for (const ListeSatiri& satir : liste.satirlar)
            satirlar.push_back(satir.sutun);
        return satirlar;
    }
    void ToplamOlmali(MetinBakis gelir, MetinBakis gider, MetinBakis genel) {
        EXPECT_EQ(Kasa().Gelirler.baslik, gelir);
        EXPECT_EQ(Kasa().Giderler.baslik, gider);
        EXPECT_EQ(Kasa().GenelTop.baslik, genel);
    }

    static constexpr MetinBakis kGiderYolu = u"Salon A/2012/Gider.dat";
};

} // namespace velora::test
