// The first days of a firm: a reservation from the first press to its files, and back.
#include "reservation/KayitTest.h"

namespace velora::test {

class Rezervasyon : public KayitTest {
  protected:
    Rezervasyon() {
        // As a firm that has just defined its hall and its menu: no number was ever given out.
        std::filesystem::remove(agac.Yol(u"Count.dat"));
    }
    static constexpr TabloGozu kHaziran20{20, 6, kGunduz};
    static constexpr TabloGozu kHaziran21{21, 6, kGece};

    /// A free cell gets a reservation by its menu; `is` is what the user does on the screen.
    void YeniKayit(const TabloGozu& goz, const Is& is) {
        Prog();
        EkranBekle(EkranAdi::FormKayit, is);
        EXPECT_TRUE(kullanici.SagTikla(goz));
        kullanici.KomutSec(Komut::newkay);
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
    }
    /// The reservation of a cell is opened by a double click.
    void KayitAc(const TabloGozu& goz, const Is& is) {
        Prog();
        EkranBekle(EkranAdi::FormKayit, is);
        kullanici.CiftTikla(goz);
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
    }
    /// A reservation with two services, a menu and two payments, saved.
    void IlkKayit() {
        YeniKayit(kHaziran20, [this] {
            Doldur();
            Gir(AnaNo::GelinDamat, u"elif / can");
            Tikla(Kayit().Check[1]);
            AlanaYaz(Kayit().TT[1], u"üç katlı, beyaz");
            Tikla(Kayit().Check[13]);
            ListedenSec(Kayit().Combo1, u"Klasik");
            OdemeAl(u"1000");
            OdemeAl(u"0500");
            KaydeteBas();
        });
        ProgramiKapat();
    }
    void IlkOdemeyiSil() {
        SatiraTikla(Kayit().Liste, 0, [this] { Kayit().Liste_ItemClick(); });
        VELORA_BAS(Prog().FormKayit, Command7);
    }
    const std::string kIkiOdeme = "\"15.06.2012\",\"1000\",\"1 - ali usta\"\r\n"
                                  "\"15.06.2012\",\"500\",\"1 - ali usta\"\r\n";
};

TEST_F(Rezervasyon, A_firms_first_reservation_is_on_disk_and_on_the_table_and_opens_as_it_was) {
    IlkKayit();
    EXPECT_EQ(
        AnaBaytlari(),
        "\"Ali Usta\",\"\",\"Elif / Can\",\"D\xFC\xF0\xFCn\",\"\",\"\",\"\",\"5000\",\"1500\",\"3500\",\"\","
        "\"11:00\",\"15.06.2012\",\"1\",\"16:00\",\"\",\"\",\"__.__.____\",1,0\r\n");
    EXPECT_EQ(
        DetayBaytlari(),
        "1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n0\r\n"
        "\"\xFC\xE7 katl\xFD. beyaz\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
        "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
        "\"1\",\"0\"\r\n\"Klasik\"\r\n\"\xC7orba, Tatl\xFD\"\r\n");
    EXPECT_EQ(OdemeBaytlari(), kIkiOdeme);
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"1\"\r\n");
    Prog();
    RenkOlmali(20, 6, kGunduz, 6, 7);
    KayitAc(kHaziran20, [&] {
        EXPECT_EQ(Kayit().Kay[AnaNo::GelinDamat].metin, u"Elif / Can");
        EXPECT_EQ(Kayit().TT[1].metin, u"üç katlı. beyaz");
        EXPECT_EQ(Kayit().Label20.metin, u"Çorba, Tatlı");
        EXPECT_EQ(Kayit().Kayam9.baslik, u"1.500");
        EXPECT_EQ(Kayit().Kayam10.baslik, u"3.500");
        KapataBas();
    });
    YeniKayit(kHaziran21, [&] {
        EXPECT_EQ(Kayit().Kay[AnaNo::SozlesmeNo].metin, u"2");
        KutuBekle(u"Rezervasyonu oluşturmadan kapatıyorsunuz!\n"
                  u"Bu Rezervasyon kaydı oluşturulmayacak emin misiniz?",
                  Cevap::Evet, Simge::Uyari, u"Uyarı");
        KapataBas();
    });
}

TEST_F(Rezervasyon, A_user_without_the_right_to_amounts_can_not_take_a_payment_away) {
    IlkKayit();
    const std::string ana = AnaBaytlari();
    Prog();
    kullanici.Tablo().TutarDegistir = 0;
    KayitAc(kHaziran20, [&] {
        EXPECT_TRUE(Kayit().Kay[AnaNo::ToplamUcret].kilitli);
        KutuBekle(u"Alınan ödemeleri silmeye yetkiniz yok!");
        IlkOdemeyiSil();
        KaydeteBas();
    });
    EXPECT_EQ(OdemeBaytlari(), kIkiOdeme);
    EXPECT_EQ(AnaBaytlari(), ana);
}

TEST_F(Rezervasyon, A_user_with_the_right_takes_a_payment_away_and_the_files_follow_the_save) {
    IlkKayit();
    Prog();
    kullanici.Tablo().TutarDegistir = 1;
    KayitAc(kHaziran20, [&] {
        SilmeSorusuBekle(Cevap::Evet);
        IlkOdemeyiSil();
        EXPECT_EQ(OdemeBaytlari(), kIkiOdeme) << "the file follows only the save";
        KaydeteBas();
    });
    EXPECT_EQ(OdemeBaytlari(), "\"15.06.2012\",\"500\",\"1 - ali usta\"\r\n");
    EXPECT_NE(AnaBaytlari().find("\"5000\",\"500\",\"4500\""), std::string::npos);
    EXPECT_EQ(kullanici.Goz(20, 6, kGunduz).tag, u"|11:00|Düğün|Gündüz|5000|500|4500|Ali Usta|1|1");
}

// The number scan takes payments for records: the fifth amount stands where a record has its number.
TEST_F(Rezervasyon, A_contract_number_is_refused_on_purpose_because_of_a_fifth_payment_of_that_amount) {
    IlkKayit();
    AyarKoy(29, u"0");
    KayitAc(kHaziran20, [&] {
        for (const char16_t* tutar : {u"10", u"20", u"1500"})
            OdemeAl(tutar);
        KaydeteBas();
    });
    YeniKayit(kHaziran21, [&] {
        Doldur();
        Gir(AnaNo::SozlesmeNo, u"1500");
        const std::string once = agac.Resim();
        NumaraKutusuBekle();
        KaydeteBas();
        EXPECT_EQ(kullanici.ortam.odaklar.back(), u"Kay14");
        EXPECT_EQ(agac.Resim(), once);
        Gir(AnaNo::SozlesmeNo, u"1501");
        KaydeteBas();
    });
    EXPECT_TRUE(AnaVar(u"21.06.2012 - Gece"));
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"1501\"\r\n");
}

} // namespace velora::test
