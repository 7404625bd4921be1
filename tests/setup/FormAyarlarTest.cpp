#include "setup/FormAyarlar.h"

#include <gtest/gtest.h>

#include "destek/Eylemler.h"
#include "destek/GeciciAgac.h"
#include "destek/Kayitlar.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"

namespace velora::test {

namespace {

const std::string kHepsiAcik = "1,1,1,1,1,1,1,1,1,1,1,1,1\r\n";

constexpr std::array<RenkDegeri, 25> kVarsayilan{
    0x008000, 0xFFFFFF, 0x80FFFF, 0,        0xFFFFFF, 0,        0x0000FF, 0xFFFFFF, 0x5CDFF1,
    0,        0xEBEBEB, 0,        0x0000C0, 0xFFFFFF, 0x0000C0, 0xFFFFFF, 0x0000FF, 0xC0C0C0,
    0xFFFFFF, 0x00FF00, 0xFFFFFF, 0x00C000, 0xFFFFFF, 0xFFC0FF, 0};

} // namespace

class FormAyarlarTest : public ::testing::Test {
  protected:
    FormAyarlar& Ayarlar() { return *program.FormAyarlar.Tut(); }

    void VarsayilanOlmali() {
        for (int i = 0; i < kRenkSayisi; ++i)
            EXPECT_EQ(Ayarlar().Renk(i), kVarsayilan[static_cast<std::size_t>(i)]) << i;
        EXPECT_EQ(Ayarlar().UyariGun.metin, u"5");
        EXPECT_EQ(Ayarlar().UyariGun2.metin, u"10");
        EXPECT_EQ(Ayarlar().Check1.deger, 0);
        EXPECT_EQ(Ayarlar().Check2.deger, 1);
        EXPECT_TRUE(Ayarlar().Check2.etkin);
        EXPECT_EQ(Ayarlar().Check3.deger, 1);
        EXPECT_EQ(Ayarlar().Check4.deger, 0);
        EXPECT_EQ(Ayarlar().GunduzGece.Metni(), u"Gece / Gündüz");
        EXPECT_EQ(Ayarlar().Check5.deger, 1);
        EXPECT_EQ(Ayarlar().Check6.deger, 1);
        EXPECT_EQ(Ayarlar().Check7.deger, 0);
        for (int ay = 1; ay <= 12; ++ay)
            EXPECT_TRUE(Ayarlar().AyGorunur(ay)) << ay;
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
};

TEST_F(FormAyarlarTest, With_neither_file_all_defaults_stand_and_no_file_is_made) {
    VarsayilanOlmali();
    EXPECT_FALSE(agac.DosyaVar(u"Settings.dll"));
    EXPECT_FALSE(agac.DosyaVar(u"Visible.dll"));
}

TEST_F(FormAyarlarTest, Both_files_are_read_field_by_field) {
    agac.Koy(u"Settings.dll",
             "100,101,102,103,104,105,106,107,108,109,110,111,112,113,114,115,116,117,118,119,120,"
             "121,122,123,124,\"6\",\"a\xFE\",1,0,\"G\xFCnd\xFCz / Gece\",0,0,1\r\n");
    agac.Koy(u"Visible.dll", "1,0,1,0,1,0,1,0,1,0,1,0,0\r\n");
    for (int i = 0; i < kRenkSayisi; ++i)
        EXPECT_EQ(Ayarlar().Renk(i), 100 + i);
    EXPECT_EQ(Ayarlar().UyariGun.metin, u"6");
    EXPECT_EQ(Ayarlar().UyariGun2.metin, u"aş");
    EXPECT_EQ(Ayarlar().Check1.deger, 1);
    EXPECT_EQ(Ayarlar().Check2.deger, 0);
    EXPECT_TRUE(Ayarlar().GunduzUstte());
    EXPECT_EQ(Ayarlar().Check5.deger, 0);
    EXPECT_EQ(Ayarlar().Check6.deger, 0);
    EXPECT_EQ(Ayarlar().Check7.deger, 1);
    EXPECT_FALSE(Ayarlar().Check2.etkin) << "no numbers at all leave nothing to choose";
    for (int ay = 1; ay <= 12; ++ay)
        EXPECT_EQ(Ayarlar().AyGorunur(ay), ay % 2 == 1) << ay;
    EXPECT_EQ(Ayarlar().Check3.deger, 0);
    EXPECT_EQ(Ayarlar().Check4.deger, 0);
}

TEST_F(FormAyarlarTest, Missing_visible_drops_the_colours_of_a_good_settings_file_too_on_purpose) {
    agac.KoyMetin(u"Settings.dll", AyarMetni(1, u"77"));
    VarsayilanOlmali();
}

TEST_F(FormAyarlarTest, Missing_settings_drops_a_good_visible_file_too) {
    agac.Koy(u"Visible.dll", "0,0,0,0,0,0,0,0,0,0,0,0,0\r\n");
    VarsayilanOlmali();
}

TEST_F(FormAyarlarTest, Thirty_two_values_give_all_defaults_on_purpose) {
    Metin kisa = AyarMetni(1, u"77");
    kisa.erase(kisa.rfind(u','));
    agac.KoyMetin(u"Settings.dll", kisa);
    agac.Koy(u"Visible.dll", kHepsiAcik);
    VarsayilanOlmali();
}

TEST_F(FormAyarlarTest, Twelve_month_values_give_all_defaults) {
    agac.KoyMetin(u"Settings.dll", AyarMetni(1, u"77"));
    agac.Koy(u"Visible.dll", "0,0,0,0,0,0,0,0,0,0,0,0\r\n");
    VarsayilanOlmali();
}

// The first two boxes go through the numeric reader, the others through a plain conversion: the difference is
// meant.
TEST_F(FormAyarlarTest, Word_in_the_first_box_is_zero_and_no_error_on_purpose) {
    agac.KoyMetin(u"Settings.dll", AyarMetni(28, u"\"abc\""));
    agac.Koy(u"Visible.dll", kHepsiAcik);
    EXPECT_EQ(Ayarlar().Check1.deger, 0);
    program.FormAyarlar.Bosalt();
    agac.KoyMetin(u"Settings.dll", AyarMetni(29, u"\"abc\"").replace(0, 5, u"77"));
    EXPECT_EQ(Ayarlar().Check2.deger, 0);
    EXPECT_EQ(Ayarlar().Renk(0), 77);
}

TEST_F(FormAyarlarTest, Word_in_any_other_number_gives_all_defaults) {
    for (const int alan : {1, 25, 31, 32, 33}) {
        agac.KoyMetin(u"Settings.dll",
                      AyarMetni(alan, u"\"abc\"").replace(0, alan == 1 ? 0 : 5, alan == 1 ? u"" : u"77"));
        agac.Koy(u"Visible.dll", kHepsiAcik);
        program.FormAyarlar.Bosalt();
        VarsayilanOlmali();
    }
}

TEST_F(FormAyarlarTest, What_a_damaged_file_held_before_its_damage_gives_way_to_the_defaults) {
    // Every value but the last one is another than its default.
    agac.KoyMetin(u"Settings.dll",
                  u"100,101,102,103,104,105,106,107,108,109,110,111,112,113,114,115,116,117,118,119,120,"
                  u"121,122,123,124,\"6\",\"7\",1,0,\"Gündüz / Gece\",0,0,\"abc\"\r\n");
    agac.Koy(u"Visible.dll", kHepsiAcik);
    VarsayilanOlmali();
}

TEST_F(FormAyarlarTest, A_word_among_the_months_gives_all_defaults) {
    for (const char* aylar : {"abc,0,0,0,0,0,0,0,0,0,0,0,0\r\n", "0,0,0,0,0,0,0,0,0,0,0,\"x\",0\r\n",
                              "0,0,0,0,0,0,0,0,0,0,0,0,abc\r\n"}) {
        agac.KoyMetin(u"Settings.dll", AyarMetni(28, u"1"));
        agac.Koy(u"Visible.dll", aylar);
        program.FormAyarlar.Bosalt();
        VarsayilanOlmali();
    }
}

TEST_F(FormAyarlarTest, A_month_flag_of_two_is_not_on_and_no_error_on_purpose) {
    agac.KoyMetin(u"Settings.dll", AyarMetni(1, u"77"));
    agac.Koy(u"Visible.dll", "1,2,1,1,1,1,1,1,1,1,1,1,1\r\n");
    EXPECT_EQ(Ayarlar().Renk(0), 77);
    EXPECT_TRUE(Ayarlar().AyGorunur(1));
    EXPECT_FALSE(Ayarlar().AyGorunur(2));
}

TEST_F(FormAyarlarTest, Quoted_numbers_count_as_numbers) {
    agac.KoyMetin(u"Settings.dll", AyarMetni(31, u"\"0\""));
    agac.Koy(u"Visible.dll", "\"1\",0,1,1,1,1,1,1,1,1,1,1,1\r\n");
    EXPECT_EQ(Ayarlar().Check5.deger, 0);
    EXPECT_TRUE(Ayarlar().AyGorunur(1));
    EXPECT_FALSE(Ayarlar().AyGorunur(2));
}

// The master box is set first, and the stored months win over what its click made of them.
TEST_F(FormAyarlarTest, Stored_months_win_over_the_master_box) {
    agac.KoyMetin(u"Settings.dll", AyarMetni());
    agac.Koy(u"Visible.dll", "0,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
    EXPECT_FALSE(Ayarlar().AyGorunur(1));
    EXPECT_TRUE(Ayarlar().AyGorunur(2));
    program.FormAyarlar.Bosalt();
    agac.Koy(u"Visible.dll", "0,0,0,0,0,0,0,0,0,0,0,0,0\r\n");
    for (int ay = 1; ay <= 12; ++ay)
        EXPECT_FALSE(Ayarlar().AyGorunur(ay));
}

TEST_F(FormAyarlarTest, Third_text_of_the_slot_order_is_kept_and_counts_as_evening_on_top_on_purpose) {
    agac.KoyMetin(u"Settings.dll", AyarMetni(30, u"\"Akşam önce\""));
    agac.Koy(u"Visible.dll", kHepsiAcik);
    EXPECT_EQ(Ayarlar().GunduzGece.Metni(), u"Akşam önce");
    EXPECT_FALSE(Ayarlar().GunduzUstte());
    EXPECT_EQ(Ayarlar().Check4.deger, 0);
}

// Setting the order counts as a change; the flag is cleared last of all.
TEST_F(FormAyarlarTest, Loaded_day_on_top_order_is_no_change) {
    agac.KoyMetin(u"Settings.dll", AyarMetni(30, u"\"Gündüz / Gece\""));
    agac.Koy(u"Visible.dll", kHepsiAcik);
    EXPECT_TRUE(Ayarlar().GunduzUstte());
    EXPECT_EQ(Ayarlar().Check4.deger, 0);
    ListedenSec(Ayarlar().GunduzGece, u"Gece / Gündüz");
    EXPECT_EQ(Ayarlar().Check4.deger, 1);
}

TEST_F(FormAyarlarTest, Master_box_ticks_and_clears_all_months) {
    Tikla(Ayarlar().Check3);
    for (int ay = 1; ay <= 12; ++ay)
        EXPECT_FALSE(Ayarlar().AyGorunur(ay));
    Tikla(Ayarlar().Check3);
    for (int ay = 1; ay <= 12; ++ay)
        EXPECT_TRUE(Ayarlar().AyGorunur(ay));
}

TEST_F(FormAyarlarTest, No_numbers_at_all_disables_the_automatic_ones_and_keeps_their_value) {
    Tikla(Ayarlar().Check7);
    EXPECT_FALSE(Ayarlar().Check2.etkin);
    EXPECT_EQ(Ayarlar().Check2.deger, 1);
    Tikla(Ayarlar().Check7);
    EXPECT_TRUE(Ayarlar().Check2.etkin);
}

TEST_F(FormAyarlarTest, Unload_drops_edits_and_the_next_reading_loads_the_files_again) {
    Tikla(Ayarlar().Check6);
    program.FormAyarlar.Bosalt();
    EXPECT_EQ(Ayarlar().Check6.deger, 1);
}

TEST_F(FormAyarlarTest, Negative_and_huge_colours_are_kept_or_refused_as_whole_numbers) {
    agac.KoyMetin(u"Settings.dll", AyarMetni(5, u"-2147483643"));
    agac.Koy(u"Visible.dll", kHepsiAcik);
    EXPECT_EQ(Ayarlar().Renk(4), -2147483643);
    program.FormAyarlar.Bosalt();
    agac.KoyMetin(u"Settings.dll", AyarMetni(5, u"99999999999"));
    VarsayilanOlmali();
}

TEST_F(FormAyarlarTest, Garbage_gives_all_defaults) {
    agac.Koy(u"Settings.dll", std::string(200'000, '"'));
    agac.Koy(u"Visible.dll", std::string(200'000, '\xFF'));
    VarsayilanOlmali();
}

} // namespace velora::test
