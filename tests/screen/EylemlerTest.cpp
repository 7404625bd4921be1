// The verbs of the tests must refuse what no user can do.
#include "destek/Eylemler.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"
#include "screen/TusSuzgeci.h"
#include "setup/FormMenuEkle.h"

namespace velora::test {

class EylemlerTest : public ::testing::Test {
  protected:
    static Metin Yazilmis(MetinKutusu alan, MetinBakis tuslar) {
        AlanaYaz(alan, tuslar);
        return alan.metin;
    }

    MetinKutusu alan;
    OnayKutusu kutu;
    AcilirListe liste;
    ListeKutusu satirlar{{u"bir", u"iki"}};
};

TEST_F(EylemlerTest, Typing_takes_the_place_of_what_stood_there_and_passes_filter_and_limit) {
    alan.metin = u"eski";
    EXPECT_EQ(Yazilmis(alan, u"ş語x"), u"şx");
    EXPECT_EQ(Yazilmis(alan, u""), u"");
    alan.suzgec = YalnizRakam;
    alan.enUzun = 3;
    EXPECT_EQ(Yazilmis(alan, u"1a2,345"), u"123");
}

TEST_F(EylemlerTest, Typing_into_a_mask_fills_its_places_from_the_first_on) {
    alan.maske = u"##:##";
    alan.metin = u"11:00";
    EXPECT_EQ(Yazilmis(alan, u"23:45"), u"23:45");
    EXPECT_EQ(Yazilmis(alan, u"2345678"), u"23:45");
    EXPECT_EQ(Yazilmis(alan, u"9:3"), u"9_:3_");
    EXPECT_EQ(Yazilmis(alan, u"a1½2"), u"12:__");
    EXPECT_EQ(Yazilmis(alan, u"2_:__"), u"2_:__");
    EXPECT_EQ(Yazilmis(alan, u":75"), u"__:75");
    EXPECT_EQ(Yazilmis(alan, u""), u"__:__");
}

TEST_F(EylemlerTest, Screen_hears_of_each_key_that_changes_the_text_and_then_of_the_leaving) {
    std::vector<Metin> gunluk;
    alan.metin = u"eski";
    alan.enUzun = 2;
    AlanaYaz(
        alan, u"a語bc",
        {.degisti = [&] { gunluk.push_back(alan.metin); }, .odakGitti = [&] { gunluk.push_back(u"gitti"); }});
    EXPECT_EQ(gunluk, (std::vector<Metin>{u"", u"a", u"ab", u"gitti"}));
}

TEST_F(EylemlerTest, Enter_makes_a_line_break_in_many_lines_and_counts_twice) {
    alan.enUzun = 4;
    SatirlaraYaz(alan, u"a\r\nbc");
    EXPECT_EQ(alan.metin, u"a\r\nb");
    SatirlaraYaz(alan, u"x\ny");
    EXPECT_EQ(alan.metin, u"x\r\ny");
    SatirlaraYapistir(alan, u"語\r\n1\t2");
    EXPECT_EQ(alan.metin, u"?\r\n1");
}

TEST_F(EylemlerTest, Line_break_typed_into_one_line_fails) {
    EXPECT_NONFATAL_FAILURE(AlanaYaz(alan, u"a\nb"), "no key writes this into one line");
    EXPECT_EQ(alan.metin, u"");
}

TEST_F(EylemlerTest, Field_that_is_off_or_locked_fails_and_keeps_its_text) {
    alan.metin = u"eski";
    alan.etkin = false;
    EXPECT_NONFATAL_FAILURE(AlanaYaz(alan, u"yeni"), "the field is off");
    EXPECT_NONFATAL_FAILURE(SatirlaraYaz(alan, u"yeni"), "the field is off");
    alan.etkin = true;
    alan.kilitli = true;
    EXPECT_NONFATAL_FAILURE(AlanaYaz(alan, u"yeni"), "the field is locked");
    EXPECT_NONFATAL_FAILURE(SatirlaraYapistir(alan, u"yeni"), "the field is locked");
    EXPECT_EQ(alan.metin, u"eski");
}

TEST_F(EylemlerTest, Box_turns_by_a_click_and_one_that_is_off_fails) {
    Tikla(kutu);
    EXPECT_EQ(kutu.deger, 1);
    Tikla(kutu);
    EXPECT_EQ(kutu.deger, 0);
    Isaretle(kutu);
    Isaretle(kutu);
    EXPECT_EQ(kutu.deger, 1);
    kutu.etkin = false;
    EXPECT_NONFATAL_FAILURE(Tikla(kutu), "the box is off");
    kutu.deger = 0;
    EXPECT_NONFATAL_FAILURE(Isaretle(kutu), "the mark is off");
    EXPECT_EQ(kutu.deger, 0);
}

TEST_F(EylemlerTest, List_gives_only_what_it_has_while_it_is_on) {
    liste.ogeler = {u"bir", u"iki"};
    ListedenSec(liste, u"iki");
    EXPECT_EQ(liste.secili, 1);
    EXPECT_NONFATAL_FAILURE(ListedenSec(liste, u"üç"), "the list has no");
    liste.etkin = false;
    EXPECT_NONFATAL_FAILURE(ListedenSec(liste, u"bir"), "the list is off");
    EXPECT_EQ(liste.secili, 1);
}

TEST_F(EylemlerTest, Day_outside_the_limits_can_not_be_picked) {
    const auto gun = [](unsigned no) {
        return Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{no}};
    };
    TarihSecici secici{gun(9), {}, {}};
    TarihSec(secici, gun(30));
    EXPECT_EQ(secici.deger, gun(30));
    secici.Sinirla(gun(10), gun(20));
    TarihSec(secici, gun(10));
    EXPECT_NONFATAL_FAILURE(TarihSec(secici, gun(9)), "the day can't be picked");
    EXPECT_NONFATAL_FAILURE(TarihSec(secici, gun(21)), "the day can't be picked");
    EXPECT_EQ(secici.deger, gun(10));
}

TEST_F(EylemlerTest, Row_that_is_not_there_can_not_be_clicked_on) {
    int tik = 0;
    SatiraTikla(satirlar, 1, [&] { ++tik; });
    EXPECT_EQ(satirlar.secili, 1);
    EXPECT_NONFATAL_FAILURE(SatiraTikla(satirlar, 2, [&] { ++tik; }), "there is no row 2");
    EXPECT_NONFATAL_FAILURE(SatiraTikla(satirlar, -1, [&] { ++tik; }), "there is no row -1");
    EXPECT_EQ(satirlar.secili, 1);
    EXPECT_EQ(tik, 1);
}

TEST_F(EylemlerTest, Button_that_is_off_or_hidden_or_on_no_screen_fails_and_runs_nothing) {
    const GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
    EXPECT_NONFATAL_FAILURE(VELORA_BAS(program.FormMenuEkle, Command3), "program.FormMenuEkle doesn't stand");
    EXPECT_FALSE(program.FormMenuEkle.Yuklu());
    program.FormMenuEkle->Command3.etkin = false;
    EXPECT_NONFATAL_FAILURE(VELORA_BAS(program.FormMenuEkle, Command3), "Command3 is off");
    program.FormMenuEkle->Command3 = {.baslik = u"İptal", .ipucu = {}, .gorunur = false};
    EXPECT_NONFATAL_FAILURE(VELORA_BAS(program.FormMenuEkle, Command3), "Command3 is hidden");
    EXPECT_TRUE(program.FormMenuEkle.Yuklu());
    program.FormMenuEkle->Command3.gorunur = true;
    VELORA_BAS(program.FormMenuEkle, Command3);
    EXPECT_FALSE(program.FormMenuEkle.Yuklu());
}

TEST_F(EylemlerTest, Entry_of_a_menu_that_is_off_or_hidden_can_not_be_chosen) {
    MenuGirdisi girdi{u"x"};
    EXPECT_TRUE(Basilabilir(girdi, "x"));
    girdi.etkin = false;
    EXPECT_NONFATAL_FAILURE(EXPECT_FALSE(Basilabilir(girdi, "x")), "x is off");
    girdi = {.baslik = u"x", .gorunur = false};
    EXPECT_NONFATAL_FAILURE(EXPECT_FALSE(Basilabilir(girdi, "x")), "x is hidden");
}

} // namespace velora::test
