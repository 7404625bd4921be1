#include "access/FormSifre.h"

#include "access/AccessTest.h"
#include "destek/Kayitlar.h"
#include "table/FormTablo.h"

namespace velora::test {

class FormSifreTest : public AccessTest {
  protected:
    FormSifreTest() {
        agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n");
        KullaniciKoy(admin + ayse + can);
    }

    void HataBekle() {
        KutuBekle(u"Hatalı parola girdiniz!\nLütfen bilgilerinizi kontrol ediniz!", Simge::Kritik);
    }
    bool Gorunur(Komut komut) { return program.FormTablo->Girdi(komut).gorunur; }
    std::set<Metin> Kapalilar() const { return program.oturum.kapaliGirdiler; }

    const std::string admin = Satir("admin", "g5", "11111111101");
    const std::string ayse = Satir("ay\xFE\x65", "\xE7\x61y", "01111111111"); // no report
    const std::string can = Satir("can", "c9", "11111110011");                // moves nothing, no amounts
};

TEST_F(FormSifreTest, Captions_stand_as_the_user_reads_them) {
    EXPECT_EQ(Sifre().baslik, u"Kullanıcı Girişi");
    EXPECT_EQ(Sifre().Label8.baslik, u"Kullanıcı Girişi");
    EXPECT_EQ(Sifre().Label1.baslik, u"Programa giriş için kullanıcı adınızı seçip parolanızı giriniz.");
    EXPECT_EQ(Sifre().Text1.baslik, u"Kullanıcı Adı");
    EXPECT_EQ(Sifre().Text2.baslik, u"Parola");
    EXPECT_TRUE(Sifre().Text2.yildizli);
    EXPECT_FALSE(Sifre().Text1.yildizli);
    EXPECT_EQ(Sifre().Command1.baslik, u"Giriş");
    EXPECT_EQ(Sifre().Command2.baslik, u"İptal");
}

TEST_F(FormSifreTest, Users_are_offered_in_the_order_of_the_file_and_the_first_stands_there) {
    KullaniciKoy(can + Satir(" ", "x", "11111111111") + admin);
    EXPECT_EQ(Sifre().Text1.ogeler, (std::vector<Metin>{u"can", u"admin"}));
    EXPECT_EQ(Sifre().Text1.metin, u"can");
    EXPECT_EQ(Sifre().Liste.satirlar.size(), 2U);
    EXPECT_EQ(Sifre().Liste.satirlar[1].sutun.at(1), u"g5");
}

TEST_F(FormSifreTest, Right_password_shows_the_table_of_that_user_which_was_not_loaded_before) {
    Sifre();
    EXPECT_FALSE(program.FormTablo.Yuklu());
    Gir(u"can", u"c9");
    EXPECT_FALSE(program.FormSifre.Yuklu());
    EXPECT_EQ(ortam.acilanlar, std::vector<EkranAdi>{EkranAdi::FormTablo});
    EXPECT_EQ(program.FormTablo->UserNamem, u"can");
    EXPECT_EQ(program.FormTablo->StatusBar1, u"Velora - Aktif Kullanıcı : can");
    EXPECT_EQ(program.FormTablo->TutarDegistir, 0);
    EXPECT_FALSE(Gorunur(Komut::TasimaModuAc));
    EXPECT_FALSE(Gorunur(Komut::aline11));
    EXPECT_TRUE(Gorunur(Komut::BakiyeRaporss));
}

TEST_F(FormSifreTest, The_login_stands_until_the_table_is_loaded) {
    Sifre();
    std::vector<bool> duruyor; // at each folder that the table makes while it is loaded
    program.dosyalar.ariza = [&](DosyaIsi is, const Metin&) {
        if (is == DosyaIsi::KlasorYap)
            duruyor.push_back(program.FormSifre.Yuklu());
        return false;
    };
    Gir(u"can", u"c9");
    program.dosyalar.ariza = nullptr;
    EXPECT_EQ(duruyor, (std::vector<bool>{true, true}));
    EXPECT_FALSE(program.FormSifre.Yuklu());
}

TEST_F(FormSifreTest, A_login_that_is_closed_while_the_table_is_loaded_ends_the_program_and_shows_none) {
    Sifre();
    bool kapandi = false;
    ortam.olayda = [&](int) {
        if (!std::exchange(kapandi, true))
            program.FormSifre->Command2_Click();
    };
    Gir(u"can", u"c9");
    ortam.olayda = {};
    EXPECT_TRUE(kapandi);
    EXPECT_TRUE(ortam.bitti);
    EXPECT_TRUE(ortam.acilanlar.empty());
}

TEST_F(FormSifreTest, Name_of_the_user_leads_every_tag_of_the_first_scan) {
    for (const MetinBakis gun : {u"20.06.2012 - Gece", u"02.03.2012 - Gündüz"})
        KayitKoy(agac, u"Salon A/2012/" + Metin(gun), {}, false);
    Gir(u"ayşe", u"çay");
    int dolu = 0;
    for (const TabloSatiri& satir : program.FormTablo->satirlar)
        for (const Hucre& hucre : satir.gun)
            if (!hucre.tag.empty()) {
                EXPECT_TRUE(hucre.tag.starts_with(u"ayşe|")) << ::testing::PrintToString(hucre.tag);
                ++dolu;
            }
    EXPECT_EQ(dolu, 2);
}

TEST_F(FormSifreTest, Admin_sees_the_users_and_the_security_and_no_other_does_whatever_his_rights) {
    KullaniciKoy(admin + Satir("ali", "a1", "11111111111"));
    Gir(u"ali", u"a1");
    EXPECT_FALSE(Gorunur(Komut::Guvenliksss));
    EXPECT_FALSE(Gorunur(Komut::KulTanimssss));
    EXPECT_FALSE(Gorunur(Komut::aline4));
    EXPECT_EQ(Kapalilar(), (std::set<Metin>{u"Guvenliksss", u"firmcizgi", u"KulTanimssss", u"aline4"}));
}

TEST_F(FormSifreTest, From_admin_nothing_is_hidden) {
    Gir(u"admin", u"g5");
    EXPECT_TRUE(Gorunur(Komut::Guvenliksss));
    EXPECT_TRUE(Gorunur(Komut::KulTanimssss));
    EXPECT_TRUE(Gorunur(Komut::aline4));
    EXPECT_EQ(Kapalilar(), std::set<Metin>{});
    EXPECT_EQ(program.FormTablo->UserNamem, u"admin");
}

TEST_F(FormSifreTest, Rights_that_a_file_takes_from_admin_are_missing_as_those_of_any_other) {
    KullaniciKoy(Satir("admin", "g5", "11110111101"));
    Gir(u"admin", u"g5");
    EXPECT_FALSE(Gorunur(Komut::Progrset));
    EXPECT_TRUE(Gorunur(Komut::Guvenliksss));
}

TEST_F(FormSifreTest, Security_stays_hidden_from_admin_after_a_wrong_attempt_of_another_as_is_meant) {
    HataBekle();
    Gir(u"can", u"yanlış");
    Gir(u"admin", u"g5");
    EXPECT_FALSE(Gorunur(Komut::Guvenliksss));
    EXPECT_TRUE(Gorunur(Komut::KulTanimssss)) << "hidden on a login alone";
    EXPECT_TRUE(Gorunur(Komut::TasimaModuAc)) << "rights of a wrong attempt are not taken";
}

TEST_F(FormSifreTest, Empty_name_after_a_wrong_password_of_admin_hides_security_too_as_is_meant) {
    HataBekle();
    Gir(u"admin", u"yanlış");
    EXPECT_EQ(Sifre().Text1.metin, u"");
    EXPECT_EQ(Kapalilar(), std::set<Metin>{}) << "it was the name of admin";
    KutuBekle(u"Lütfen parola giriniz!");
    VELORA_BAS(program.FormSifre, Command1);
    HataBekle();
    Gir(u"", u"g5"); // a password and no name is a wrong password
    Gir(u"admin", u"g5");
    EXPECT_FALSE(Gorunur(Komut::Guvenliksss));
}

TEST_F(FormSifreTest, Wrong_password_is_told_and_both_fields_are_emptied) {
    HataBekle();
    Gir(u"can", u"C9");
    EXPECT_EQ(Sifre().Text1.metin, u"");
    EXPECT_EQ(Sifre().Text2.metin, u"");
    EXPECT_EQ(ortam.odaklar, std::vector<Metin>{u"Text2"});
    EXPECT_EQ(ortam.odakEkranlari, std::vector{EkranAdi::FormSifre});
    EXPECT_FALSE(program.FormTablo.Yuklu());
    EXPECT_EQ(program.oturum.UserNamem, u"");
    for (int kez = 0; kez < 20; ++kez) { // there is no limit
        HataBekle();
        Gir(u"can", u"x");
    }
    Gir(u"can", u"c9");
    EXPECT_TRUE(program.FormTablo.Yuklu());
}

TEST_F(FormSifreTest, Without_a_password_it_is_asked_for_and_the_name_stays) {
    KutuBekle(u"Lütfen parola giriniz!");
    Gir(u"can", u"");
    EXPECT_EQ(Sifre().Text1.metin, u"can");
    EXPECT_EQ(ortam.odaklar, std::vector<Metin>{u"Text2"});
    EXPECT_EQ(ortam.odakEkranlari, std::vector{EkranAdi::FormSifre});
}

TEST_F(FormSifreTest, Case_of_a_name_counts_and_another_admin_is_no_admin) {
    KullaniciKoy(admin + Satir("Admin", "x", "11111111111"));
    HataBekle();
    Gir(u"Admin", u"g5");
    Gir(u"Admin", u"x");
    EXPECT_FALSE(Gorunur(Komut::KulTanimssss));
    EXPECT_EQ(program.FormTablo->UserNamem, u"Admin");
}

TEST_F(FormSifreTest, Blanks_of_a_password_count) {
    KullaniciKoy(admin + Satir("ali", " a ", "11111111111"));
    HataBekle();
    Gir(u"ali", u"a");
    Gir(u"ali", u" a ");
    EXPECT_TRUE(program.FormTablo.Yuklu());
}

TEST_F(FormSifreTest, Two_users_of_one_name_and_password_lose_what_either_lacks_as_is_meant) {
    KullaniciKoy(admin + Satir("ali", "a1", "01111111011") + Satir("ali", "a1", "10111111111") +
                 Satir("ali", "a2", "11111110011"));
    Gir(u"ali", u"a1");
    EXPECT_FALSE(Gorunur(Komut::BakiyeRaporss));
    EXPECT_FALSE(Gorunur(Komut::iptals));
    EXPECT_TRUE(Gorunur(Komut::TasimaModuAc)) << "another password is another user";
    EXPECT_EQ(program.FormTablo->TutarDegistir, 1) << "the last of them decides";
}

TEST_F(FormSifreTest, Last_of_two_equal_users_takes_amounts_away_as_is_meant) {
    KullaniciKoy(admin + Satir("ali", "a1", "11111111111") + Satir("ali", "a1", "11111111011"));
    Gir(u"ali", u"a1");
    EXPECT_EQ(program.FormTablo->TutarDegistir, 0);
}

TEST_F(FormSifreTest, Single_user_without_a_password_gets_a_new_one_whatever_was_typed_as_is_meant) {
    KullaniciKoy(Satir("admin", "", "11111111101"));
    Gir(u"ali", u"yanlış");
    EXPECT_FALSE(program.FormSifre.Yuklu());
    EXPECT_EQ(ortam.acilanlar, std::vector<EkranAdi>{EkranAdi::FormSifreDegistir});
    EXPECT_FALSE(program.FormTablo.Yuklu());
    EXPECT_EQ(program.oturum.StatusBar1, u"Velora - Aktif Kullanıcı : ali");
    AlanaYaz(Degistir().Text1, u"yeni");
    AlanaYaz(Degistir().Text2, u"yeni");
    VELORA_BAS(program.FormSifreDegistir, Command1);
    EXPECT_EQ(program.FormTablo->UserNamem, u"admin");
    EXPECT_EQ(program.FormTablo->TutarDegistir, 1);
    EXPECT_FALSE(Gorunur(Komut::Guvenliksss)) << "another name was typed";
    EXPECT_EQ(Dosya(), Satir("admin", "yeni", "11111111111"));
}

TEST_F(FormSifreTest, Giving_up_the_new_password_of_a_single_user_ends_the_program) {
    KullaniciKoy(Satir("admin", "", "11111111101"));
    program.FormSifre.Goster();
    VELORA_BAS(program.FormSifre, Command1);
    EXPECT_FALSE(ortam.bitti);
    VELORA_BAS(program.FormSifreDegistir, Command2);
    EXPECT_TRUE(ortam.bitti);
}

TEST_F(FormSifreTest, Of_two_users_one_without_a_password_logs_in_without_one) {
    KullaniciKoy(admin + Satir("ali", "", "11111111111"));
    Gir(u"ali", u"");
    EXPECT_EQ(program.FormTablo->UserNamem, u"ali");
}

TEST_F(FormSifreTest, Cancel_ends_the_program) {
    program.FormSifre.Goster();
    VELORA_BAS(program.FormSifre, Command2);
    EXPECT_TRUE(ortam.bitti);
    EXPECT_FALSE(program.FormSifre.Yuklu());
}

TEST_F(FormSifreTest, Missing_empty_or_unreadable_file_locks_everybody_out_as_is_meant) {
    for (const int durum : {0, 1, 2}) {
        program.FormSifre.Bosalt();
        program.dosyalar.ariza = nullptr;
        KullaniciKoy(durum == 1 ? std::string() : admin);
        if (durum == 0)
            std::filesystem::remove(agac.Yol(u"User.dll"));
        if (durum == 2)
            program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Oku; };
        EXPECT_TRUE(Sifre().Text1.ogeler.empty());
        EXPECT_EQ(Sifre().Text1.metin, u"");
        KutuBekle(u"Lütfen parola giriniz!");
        Gir(u"admin", u"");
        HataBekle();
        Gir(u"admin", u"g5");
    }
    EXPECT_FALSE(program.FormTablo.Yuklu());
}

TEST_F(FormSifreTest, List_is_that_of_the_files_moment_at_loading) {
    Sifre();
    KullaniciKoy("");
    Gir(u"can", u"c9");
    EXPECT_TRUE(program.FormTablo.Yuklu());
}

TEST_F(FormSifreTest, User_slid_by_a_quote_has_the_rights_of_where_his_values_lie_now_as_is_meant) {
    // The password a"b of ali ends at its quote: all values behind it stand one place further.
    KullaniciKoy(admin + Satir("ali", "a\"b", "10000000000") + Satir("can", "c9", "00000000000"));
    Gir(u"ali", u"a");
    EXPECT_EQ(program.FormTablo->UserNamem, u"ali");
    EXPECT_FALSE(Gorunur(Komut::BakiyeRaporss)) << "the one that he was given";
    EXPECT_TRUE(Gorunur(Komut::iptals)) << "one that nobody gave him";
}

} // namespace velora::test
