#include "access/FormSifreDegistir.h"

#include "access/AccessTest.h"
#include "destek/Kayitlar.h"
#include "setup/FormSalonTanim.h"
#include "table/FormTablo.h"

namespace velora::test {

class FormSifreDegistirTest : public AccessTest {
  protected:
    void SalonKoy() { agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n"); }
    void YazVeTamam(const Metin& parola, const Metin& tekrar) {
        AlanaYaz(Degistir().Text1, parola);
        AlanaYaz(Degistir().Text2, tekrar);
        VELORA_BAS(program.FormSifreDegistir, Command1);
    }
    void SalonSorusuBekle(Cevap cevap) {
        ortam.Bekle(BeklenenKutu{u"Salon Tanımı",
                                 u"Önce salon tanımı yapmalısınız!\nŞimdi salon tanımı yapmak ister misiniz?",
                                 Simge::Soru, cevap});
    }
};

TEST_F(FormSifreDegistirTest, Captions_and_limits_stand_as_the_user_meets_them) {
    EXPECT_EQ(Degistir().baslik, u"Giriş Şifresi Değiştir");
    EXPECT_EQ(Degistir().Label8.baslik, u"Admin Şifre Değiştir");
    EXPECT_EQ(Degistir().Text1.baslik, u"Yeni Parola");
    EXPECT_EQ(Degistir().Text2.baslik, u"Yeni Parola (Tekrar)");
    for (const MetinKutusu* alan : {&Degistir().Text1, &Degistir().Text2}) {
        EXPECT_EQ(alan->enUzun, 10);
        EXPECT_TRUE(alan->yildizli);
    }
    EXPECT_EQ(Degistir().Command1.baslik, u"Tamam");
    EXPECT_EQ(Degistir().Command2.baslik, u"İptal");
    EXPECT_TRUE(Degistir().Command2.etkin);
}

TEST_F(FormSifreDegistirTest, What_is_missing_is_asked_for_in_order_and_gets_the_focus) {
    KutuBekle(u"Lütfen parolanızı giriniz!");
    YazVeTamam(u"", u"y");
    KutuBekle(u"Lütfen parola tekrarını giriniz!");
    YazVeTamam(u"x", u"");
    KutuBekle(u"Lütfen parola tekrarını kontrol ediniz!");
    YazVeTamam(u"x", u"X");
    EXPECT_EQ(ortam.odaklar, (std::vector<Metin>{u"Text1", u"Text2", u"Text2"}));
    EXPECT_EQ(ortam.odakEkranlari, std::vector(3, EkranAdi::FormSifreDegistir));
    EXPECT_FALSE(agac.Var(u"User.dll"));
}

TEST_F(FormSifreDegistirTest, Blanks_are_a_password) {
    SalonKoy();
    YazVeTamam(u"  ", u"  ");
    EXPECT_EQ(Dosya(), Satir("admin", "  ", "11111111111"));
}

TEST_F(FormSifreDegistirTest, New_password_leaves_admin_alone_with_all_rights_as_is_meant) {
    SalonKoy();
    KullaniciKoy(Satir("admin", "eski", "10101010101") + Satir("ali", "a1", "11111111111"));
    YazVeTamam(u"x", u"x");
    EXPECT_EQ(Dosya(),
              "\"admin\",\"x\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\"\r\n");
}

TEST_F(FormSifreDegistirTest, Admin_works_and_the_table_comes_before_it_is_loaded) {
    SalonKoy();
    Degistir();
    EXPECT_FALSE(program.FormTablo.Yuklu());
    YazVeTamam(u"x", u"x");
    EXPECT_FALSE(program.FormSifreDegistir.Yuklu());
    EXPECT_EQ(ortam.acilanlar, std::vector<EkranAdi>{EkranAdi::FormTablo});
    EXPECT_EQ(program.FormTablo->UserNamem, u"admin");
    EXPECT_EQ(program.FormTablo->StatusBar1, u"Velora - Aktif Kullanıcı : admin");
    EXPECT_EQ(program.FormTablo->TutarDegistir, 1) << "no login has said otherwise";
    EXPECT_FALSE(ortam.bitti);
}

TEST_F(FormSifreDegistirTest, Name_of_admin_leads_every_tag_of_the_first_scan) {
    SalonKoy();
    KayitKoy(agac, u"Salon A/2012/20.06.2012 - Gece", {}, true);
    YazVeTamam(u"x", u"x");
    const Metin tag = program.FormTablo->Gozu(HaziranGece, 20).tag;
    EXPECT_TRUE(tag.starts_with(u"admin|")) << ::testing::PrintToString(tag);
}

TEST_F(FormSifreDegistirTest, Without_a_hall_a_yes_opens_the_halls_which_cannot_be_closed) {
    SalonSorusuBekle(Cevap::Evet);
    ortam.Bekle(BeklenenEkran{EkranAdi::FormSalonTanim, [&] {
                                  EXPECT_FALSE(program.FormSalonTanim->Command3.etkin);
                                  EXPECT_TRUE(program.FormTablo.Yuklu());
                              }});
    YazVeTamam(u"x", u"x");
}

TEST_F(FormSifreDegistirTest, Without_a_hall_a_no_is_answered_and_opens_the_halls_all_the_same) {
    SalonSorusuBekle(Cevap::Hayir);
    KutuBekle(u"Salon tanımı yapmadan rezervasyon kaydı oluşturamazsınız!\nLütfen önce salon tanımı yapınız!",
              Simge::Kritik);
    ortam.Bekle(BeklenenEkran{EkranAdi::FormSalonTanim,
                              [&] { EXPECT_FALSE(program.FormSalonTanim->Command3.etkin); }});
    YazVeTamam(u"x", u"x");
}

TEST_F(FormSifreDegistirTest, From_the_menu_it_changes_who_works_on_the_table_that_stands) {
    SalonKoy();
    program.oturum.UserNamem = u"ali";
    program.FormTablo.Goster();
    ortam.Bekle(BeklenenEkran{EkranAdi::FormSifreDegistir, [&] { YazVeTamam(u"x1", u"x1"); }});
    program.FormSifreDegistir.GosterModal();
    EXPECT_EQ(program.FormTablo->UserNamem, u"admin");
    EXPECT_EQ(program.FormTablo->StatusBar1, u"Velora - Aktif Kullanıcı : admin");
}

TEST_F(FormSifreDegistirTest, Cancel_goes_back_to_the_table) {
    SalonKoy();
    program.FormTablo.Goster();
    ortam.Bekle(BeklenenEkran{EkranAdi::FormSifreDegistir, [&] {
                                  AlanaYaz(Degistir().Text1, u"x");
                                  VELORA_BAS(program.FormSifreDegistir, Command2);
                              }});
    program.FormSifreDegistir.GosterModal();
    EXPECT_FALSE(program.FormSifreDegistir.Yuklu());
    EXPECT_FALSE(agac.Var(u"User.dll"));
    EXPECT_FALSE(ortam.bitti);
}

TEST_F(FormSifreDegistirTest, Cancel_of_the_last_screen_ends_the_program) {
    program.FormSifreDegistir.Goster();
    VELORA_BAS(program.FormSifreDegistir, Command2);
    EXPECT_TRUE(ortam.bitti);
}

TEST_F(FormSifreDegistirTest, A_first_run_gives_it_other_captions_and_no_cancel) {
    SalonKoy();
    program.FormSifreDegistir.Goster();
    Degistir().baslik = u"Kullanıcı Girişi";
    Degistir().Label8.baslik = u"Yeni Parola Oluşturun";
    Degistir().Command2.etkin = false;
    YazVeTamam(u"ilk", u"ilk");
    EXPECT_EQ(Degistir().baslik, u"Giriş Şifresi Değiştir") << "the next time it is as it was made";
    EXPECT_TRUE(Degistir().Command2.etkin);
    EXPECT_EQ(Dosya(), Satir("admin", "ilk", "11111111111"));
}

TEST_F(FormSifreDegistirTest, File_that_cannot_be_written_stays_and_the_table_comes_all_the_same) {
    SalonKoy();
    KullaniciKoy(Satir("admin", "eski", "11111111111"));
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    YazVeTamam(u"x", u"x");
    EXPECT_EQ(Dosya(), Satir("admin", "eski", "11111111111"));
    EXPECT_EQ(ortam.acilanlar.back(), EkranAdi::FormTablo);
}

} // namespace velora::test
