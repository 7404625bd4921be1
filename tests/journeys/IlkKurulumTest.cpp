// The first run of a new firm, from the empty folder over the profile and the password to the hall; and the
// second start, which mends what the first one left.
#include <gtest/gtest.h>

#include "access/FormSifre.h"
#include "access/FormSifreDegistir.h"
#include "access/Splash.h"
#include "destek/Eylemler.h"
#include "destek/Kayitlar.h"
#include "destek/Kullanici.h"
#include "online/FormFirma.h"
#include "setup/FormSalonTanim.h"

namespace velora::test {

class IlkKurulum : public ::testing::Test {
  protected:
    Program& Prog() { return kullanici.Prog(); }

    void ProfiliDoldur() {
        const auto firma = Prog().FormFirma.Tut();
        AlanaYaz(firma->t1, u"gül düğün");
        AlanaYaz(firma->t2, u"ayşe ır");
        AlanaYaz(firma->t3, u"0212 1");
        AlanaYaz(firma->t4, u"0532 2");
        AlanaYaz(firma->t5, u"yok");
        AlanaYaz(firma->t6, u"a@gul.test");
        AlanaYaz(firma->t7, u"çay sk. 3");
        ListedenSec(firma->t8, u"YALOVA");
        AlanaYaz(firma->t9, u"Termal");
        ListedenSec(firma->t13, u"4");
    }
    /// The table has come without a hall: it asks for one, and for nothing less.
    void SalonSorulur(const std::function<void()>& is) {
        kullanici.ortam.Bekle(BeklenenKutu{
            u"Salon Tanımı", u"Önce salon tanımı yapmalısınız!\nŞimdi salon tanımı yapmak ister misiniz?",
            Simge::Soru, Cevap::Evet});
        kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormSalonTanim, is});
    }
    void ParolaYap(const Metin& parola) {
        const auto degistir = Prog().FormSifreDegistir.Tut();
        AlanaYaz(degistir->Text1, parola);
        AlanaYaz(degistir->Text2, parola);
        VELORA_BAS(Prog().FormSifreDegistir, Command1);
    }

    GeciciAgac agac;
    Kullanici kullanici{agac, Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
};

TEST_F(IlkKurulum, Goes_from_an_empty_folder_over_profile_and_password_to_a_hall_which_cannot_be_left_out) {
    kullanici.Baslat();
    EXPECT_EQ(kullanici.ortam.acilanlar, (std::vector{EkranAdi::FormFirma}));
    ProfiliDoldur();
    VELORA_BAS(Prog().FormFirma, Command1);
    EXPECT_FALSE(kullanici.ortam.bitti) << "no screen stood for a moment";
    EXPECT_FALSE(Prog().FormFirma.Yuklu());
    EXPECT_FALSE(Prog().FormSifreDegistir->Command2.etkin);
    bool salonda = false;
    SalonSorulur([this, &salonda] {
        salonda = true;
        EXPECT_FALSE(Prog().FormSalonTanim->Command3.etkin) << "there is no way out but a hall";
        kullanici.ortam.Bekle(
            BeklenenGirdi{u"Salon Tanımları", u"Lütfen salon adını giriniz!", u"gül SALONU"});
        VELORA_BAS(Prog().FormSalonTanim, Command1);
        VELORA_BAS(Prog().FormSalonTanim, Command3);
    });
    ParolaYap(u"g5");
    EXPECT_TRUE(salonda);
    EXPECT_EQ(kullanici.ortam.acilanlar, (std::vector{EkranAdi::FormFirma, EkranAdi::FormSifreDegistir,
                                                      EkranAdi::FormTablo, EkranAdi::FormSalonTanim}));
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Gül Salonu");
    EXPECT_EQ(kullanici.Tablo().UserNamem, u"admin");
    EXPECT_EQ(kullanici.Tablo().TutarDegistir, 1);
    EXPECT_EQ(Prog().Splash->Check2, 0) << "nothing is published by itself in the first run";
    EXPECT_FALSE(kullanici.ortam.bitti);
    EXPECT_EQ(agac.Bayt(u"User.dll"),
              "\"admin\",\"g5\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"G\xFCl Salonu\"\r\n");
    EXPECT_FALSE(agac.DosyaVar(u"Menuler.dat")) << "nobody has looked at it yet";
}

TEST_F(IlkKurulum, The_second_start_mends_the_menus_the_third_the_contract_and_both_end_at_the_login) {
    agac.Koy(u"Firma.dll", "\"G\"\r\n");
    agac.Koy(u"Salon.dat", "\"G\xFCl\"\r\n");
    agac.Koy(u"User.dll",
             "\"admin\",\"g5\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\"\r\n");
    for (const Metin ad : {u"Menuler.dat", u"Sozlesme.dat"}) {
        kullanici.ortam.Bekle(
            BeklenenKutu{u"Sistem Hatası",
                         u"Programın çalışması için gereken (" + ad +
                             u") dosyası kayıp.\nProgram otomatik olarak kayıp dosyayı geri "
                             u"yüklemeye çalışacak.",
                         Simge::Kritik});
        kullanici.ortam.Bekle(
            BeklenenKutu{u"Sistem Onarımı", u"Kayıp dosya (" + ad + u") başarıyla geri yüklendi."});
        EXPECT_FALSE(agac.DosyaVar(ad));
        kullanici.Baslat();
        EXPECT_TRUE(agac.DosyaVar(ad));
        EXPECT_TRUE(kullanici.GirisYap(u"admin", u"g5"));
        EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Gül");
        kullanici.ProgramiKapat();
    }
}

TEST_F(IlkKurulum, One_left_at_the_password_asks_for_it_at_the_next_login_and_then_knows_it) {
    for (const MetinBakis ad : {u"Menuler.dat", u"Sozlesme.dat"})
        agac.Koy(ad, "\"Klasik\",\"et\"\r\n");
    kullanici.Baslat();
    ProfiliDoldur();
    VELORA_BAS(Prog().FormFirma, Command1);
    EXPECT_FALSE(agac.Var(u"User.dll"));
    kullanici.ortam.baglanti = false;
    kullanici.Baslat();
    EXPECT_EQ(Prog().FormSifre->Text1.metin, u"admin");
    EXPECT_FALSE(kullanici.GirisYap(u"admin", u"ne olursa"));
    SalonSorulur([this] { Prog().FormSalonTanim.Bosalt(); });
    ParolaYap(u"g5");
    kullanici.Baslat();
    EXPECT_TRUE(kullanici.GirisYap(u"admin", u"g5"));
}

TEST_F(IlkKurulum, A_firm_whose_profile_has_gone_keeps_its_users_until_there_is_a_new_password) {
    const std::string biri =
        "\"can\",\"c9\",\"1\",\"0\",\"1\",\"0\",\"1\",\"1\",\"0\",\"0\",\"1\",\"0\",\"1\"\r\n";
    for (const MetinBakis ad : {u"Menuler.dat", u"Sozlesme.dat"})
        agac.Koy(ad, "\"Klasik\",\"et\"\r\n");
    agac.Koy(u"User.dll", biri);
    kullanici.Baslat();
    ProfiliDoldur();
    VELORA_BAS(Prog().FormFirma, Command1);
    kullanici.ortam.baglanti = false;
    kullanici.Baslat();
    EXPECT_EQ(agac.Bayt(u"User.dll"), biri);
    EXPECT_TRUE(kullanici.GirisYap(u"can", u"c9"));
}

TEST_F(IlkKurulum, A_firm_with_reservations_but_no_profile_keeps_all_it_has) {
    agac.Koy(u"Salon.dat", "\"G\xFCl\"\r\n");
    agac.Koy(u"Menuler.dat", "\"Klasik\",\"et\"\r\n");
    agac.Koy(u"Count.dat", "\"41\"\r\n");
    KayitKoy(agac, u"Gül/2012/20.06.2012 - Gece", {}, false, u"\"01.01.2012\",\"1000\",\"x\"\r\n");
    kullanici.Baslat();
    ProfiliDoldur();
    VELORA_BAS(Prog().FormFirma, Command1);
    ParolaYap(u"p7");
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Gül");
    EXPECT_FALSE(kullanici.Goz(20, 6, velora::GunduzGece::Gece).tag.empty());
    EXPECT_EQ(agac.Bayt(u"Salon.dat"), "\"G\xFCl\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Menuler.dat"), "\"Klasik\",\"et\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"41\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Gül/2012/20.06.2012 - Gece-Odeme"), "\"01.01.2012\",\"1000\",\"x\"\r\n");
}

} // namespace velora::test
