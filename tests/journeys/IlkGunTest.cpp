// The first day of a new firm, from the empty folder to a changed reservation.
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
    void EkrandaYap(EkranAdi ekran, Is is) { kullanici.ortam.modalda[ekran] = std::move(is); }

    void SalonuTanimla() {
        kullanici.ortam.Bekle(BeklenenKutu{
            u"Salon Tanımı", u"Önce salon tanımı yapmalısınız!\nŞimdi salon tanımı yapmak ister misiniz?",
            Simge::Soru, Cevap::Evet});
        EkrandaYap(EkranAdi::FormSalonTanim, [this] {
            kullanici.ortam.Bekle(
                BeklenenGirdi{u"Salon Tanımları", u"Lütfen salon adını giriniz!", u"gül SALONU"});
            Prog().FormSalonTanim->Command1_Click();
            Prog().FormSalonTanim->Command3_Click();
        });
        IlkSalonuSor(Prog());
    }
    void MenuyuTanimla() {
        EkrandaYap(EkranAdi::FormMenuEkle, [this] {
            const auto ekle = Prog().FormMenuEkle.Tut();
            ekle->Text1.metin = u"klasik";
            ekle->Text1_Change();
            ekle->Text2.metin = u"çorba, et sote";
            ekle->Command4_Click();
        });
        EkrandaYap(EkranAdi::FormMenuAyar, [this] {
            Prog().FormMenuAyar->Command1_Click();
            Prog().FormMenuAyar->Command3_Click();
        });
        kullanici.Tablo().MenuAyars_Click();
    }
    void OdemeAl(const Metin& tutar) {
        EkrandaYap(EkranAdi::FormOdemeAl, [this, tutar] {
            Prog().FormOdemeAl->Text1.metin = tutar;
            Prog().FormOdemeAl->Text1_Change();
            Prog().FormOdemeAl->Command1_Click();
        });
        Kayit().Command8_Click();
    }
    void RezervasyonuGir() {
        EkrandaYap(EkranAdi::FormKayit, [this] {
            EXPECT_EQ(Kayit().Tarih, u"20.06.2012 - Gece");
            Kayit().Kay[1].metin = u"ali veli";
            Kayit().Kay[4].metin = u"Düğün";
            Kayit().Kay[8].metin = u"5000";
            Kayit().Kay8_LostFocus();
            Kayit().Kay[15].metin = u"23:30";
            Kayit().Combo1.Sec(u"Klasik");
            Kayit().Check[5].Ata(1);
            Kayit().TT[5].metin = u"200 kişilik";
            Kayit().Check[17].Ata(1);
            OdemeAl(u"1000");
            OdemeAl(u"0500");
            Kayit().Command1_Click();
        });
        EXPECT_TRUE(kullanici.SagTikla(kGun));
        EXPECT_TRUE(kullanici.Tablo().Girdi(Komut::newkay).etkin);
        kullanici.Tablo().newkay_Click();
    }
    /// The reservation is opened on its cell, its first payment is taken away, and it is saved.
    void IlkOdemeyiSil(const BeklenenKutu& kutu) {
        EkrandaYap(EkranAdi::FormKayit, [this, kutu] {
            EXPECT_EQ(Kayit().baslik, u"Kayıt Düzenle");
            EXPECT_EQ(Kayit().Label20.metin, u"Çorba, Et Sote");
            EXPECT_EQ(Kayit().Kayam10.baslik, u"3.500");
            Kayit().Liste.secili = 0;
            Kayit().Liste_ItemClick();
            kullanici.ortam.Bekle(kutu);
            Kayit().Command7_Click();
            Kayit().Command1_Click();
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
