// The first day of a new firm, from the empty folder to a changed reservation.
#include "destek/Eylemler.h"
#include "reservation/FormKayit.h"
#include "reservation/FormOdemeAl.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormMenuEkle.h"
#include "setup/FormSalonTanim.h"
#include "table/TabloTest.h"

namespace velora::test {

class IlkGun : public ::testing::Test {
  protected:
    using Is = std::function<void()>;
    static constexpr TabloGozu kGun{20, 6, kGece};

    Program& Prog() { return kullanici.Prog(); }
    FormKayit& Kayit() { return *Prog().FormKayit.Tut(); }
    void EkrandaYap(EkranAdi ekran, Is is) { kullanici.ortam.Bekle(BeklenenEkran{ekran, std::move(is)}); }

    void SalonuTanimla() {
        kullanici.ortam.Bekle(BeklenenKutu{
            u"Salon Tanımı", u"Önce salon tanımı yapmalısınız!\nŞimdi salon tanımı yapmak ister misiniz?",
            Simge::Soru, Cevap::Evet});
        EkrandaYap(EkranAdi::FormSalonTanim, [this] {
            kullanici.ortam.Bekle(
                BeklenenGirdi{u"Salon Tanımları", u"Lütfen salon adını giriniz!", u"gül SALONU"});
            VELORA_BAS(Prog().FormSalonTanim, Command1);
            VELORA_BAS(Prog().FormSalonTanim, Command3);
        });
        IlkSalonuSor(Prog());
    }
    void MenuyuTanimla() {
        EkrandaYap(EkranAdi::FormMenuAyar, [this] {
            EkrandaYap(EkranAdi::FormMenuEkle, [this] {
                const auto ekle = Prog().FormMenuEkle.Tut();
                AlanaYaz(ekle->Text1, u"klasik", {.degisti = [&] { ekle->Text1_Change(); }});
                SatirlaraYaz(ekle->Text2, u"çorba, et sote");
                VELORA_BAS(Prog().FormMenuEkle, Command4);
            });
            VELORA_BAS(Prog().FormMenuAyar, Command1);
            VELORA_BAS(Prog().FormMenuAyar, Command3);
        });
        kullanici.KomutSec(Komut::MenuAyars);
    }
    void OdemeAl(const Metin& tutar) {
        EkrandaYap(EkranAdi::FormOdemeAl, [this, tutar] {
            const auto odeme = Prog().FormOdemeAl.Tut();
            AlanaYaz(odeme->Text1, tutar, {.degisti = [&] { odeme->Text1_Change(); }});
            VELORA_BAS(Prog().FormOdemeAl, Command1);
        });
        VELORA_BAS(Prog().FormKayit, Command8);
    }
    void RezervasyonuGir() {
        EkrandaYap(EkranAdi::FormKayit, [this] {
            EXPECT_EQ(Kayit().Tarih, u"20.06.2012 - Gece");
            AlanaYaz(Kayit().Kay[AnaNo::AdiSoyadi], u"ali veli");
            AlanaYaz(Kayit().Kay[AnaNo::Niteligi], u"Düğün");
            AlanaYaz(Kayit().Kay[AnaNo::ToplamUcret], u"5.000 TL",
                     {.odakGitti = [this] { Kayit().Kay8_LostFocus(); }});
            AlanaYaz(Kayit().Kay[AnaNo::BitisSaati], u"2330");
            ListedenSec(Kayit().Combo1, u"Klasik");
            Tikla(Kayit().Check[5]);
            AlanaYaz(Kayit().TT[5], u"200 kişilik");
            Tikla(Kayit().Check[17]);
            VELORA_BAS(Prog().FormKayit, Command4);
            OdemeAl(u"1000");
            OdemeAl(u"0500");
            VELORA_BAS(Prog().FormKayit, Command1);
        });
        EXPECT_TRUE(kullanici.SagTikla(kGun));
        kullanici.KomutSec(Komut::newkay);
    }
    /// The reservation is opened on its cell, its first payment is taken away, and it is saved.
    void IlkOdemeyiSil(const BeklenenKutu& kutu) {
        EkrandaYap(EkranAdi::FormKayit, [this, kutu] {
            EXPECT_EQ(Kayit().baslik, u"Kayıt Düzenle");
            EXPECT_EQ(Kayit().Label20.metin, u"Çorba, Et Sote");
            EXPECT_EQ(Kayit().Kayam10.baslik, u"3.500");
            VELORA_BAS(Prog().FormKayit, Command4);
            SatiraTikla(Kayit().Liste, 0, [this] { Kayit().Liste_ItemClick(); });
            kullanici.ortam.Bekle(kutu);
            VELORA_BAS(Prog().FormKayit, Command7);
            VELORA_BAS(Prog().FormKayit, Command1);
        });
        kullanici.CiftTikla(kGun);
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
    }
    std::string Bayt(const Metin& ek) { return agac.Bayt(u"Gül Salonu/2012/20.06.2012 - Gece" + ek); }

    GeciciAgac agac;
    Kullanici kullanici{agac, Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
};

TEST_F(IlkGun, A_new_firm_gets_a_hall_a_menu_and_a_reservation_whose_payment_goes_only_with_the_right) {
    const std::string kIkiOdeme = "\"15.06.2012\",\"1000\",\"1 - ali veli\"\r\n"
                                  "\"15.06.2012\",\"500\",\"1 - ali veli\"\r\n";
    kullanici.ProgramiAc();
    SalonuTanimla();
    MenuyuTanimla();
    RezervasyonuGir();
    EXPECT_EQ(kullanici.Goz(20, 6, kGece).tag, u"|20:00|Düğün|Gece|5000|1500|3500|Ali Veli|1|1");
    EXPECT_EQ(Bayt(u"-Odeme"), kIkiOdeme);
    kullanici.ProgramiKapat();

    kullanici.ProgramiAc();
    kullanici.Tablo().TutarDegistir = 0;
    IlkOdemeyiSil({u"Velora", u"Alınan ödemeleri silmeye yetkiniz yok!"});
    EXPECT_EQ(Bayt(u"-Odeme"), kIkiOdeme);
    kullanici.Tablo().TutarDegistir = 1;
    IlkOdemeyiSil(
        {u"Velora", u"Ödeme kaydını silmek istediğinizden emin misiniz?", Simge::Soru, Cevap::Evet});
    kullanici.ProgramiKapat();

    EXPECT_EQ(Bayt({}),
              "\"Ali Veli\",\"\",\"\",\"D\xFC\xF0\xFCn\",\"\",\"\",\"\",\"5000\",\"500\",\"4500\",\"\","
              "\"20:00\",\"15.06.2012\",\"1\",\"23:30\",\"\",\"\",\"__.__.____\",1,0\r\n");
    EXPECT_EQ(Bayt(u"-Odeme"), "\"15.06.2012\",\"500\",\"1 - ali veli\"\r\n");
    EXPECT_EQ(Bayt(u"-Detay"),
              "0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n"
              "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"200 ki\xFEilik\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
              "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
              "\"1\",\"0\"\r\n\"Klasik\"\r\n\"\xC7orba, Et Sote\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"G\xFCl Salonu\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"Klasik\",\"\xC7orba, Et Sote\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"1\"\r\n");
}

} // namespace velora::test
