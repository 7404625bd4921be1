#include "maintenance/FormResmiTatil.h"
#include "table/TabloTest.h"

namespace velora::test {

class Tatil : public TabloTest {};

TEST_F(Tatil, Yearly_row_marks_its_day_in_every_year) {
    agac.KoyMetin(u"Tatiller.dll", u"\"23.04.2010\",\"Ulusal Egemenlik\",\"Evet\",\"Genel\"\r\n");
    kullanici.ProgramiAc();
    for (const MetinBakis yil : {u"2012", u"2005", u"2020"}) {
        kullanici.YilSec(yil);
        for (const auto dilim : {kGunduz, kGece}) {
            RenkOlmali(23, 4, dilim, 23, 24);
            EXPECT_EQ(kullanici.Goz(23, 4, dilim).ipucu, u"Ulusal Egemenlik");
        }
    }
}

TEST_F(Tatil, Row_that_is_not_yearly_marks_its_own_year_only) {
    agac.KoyMetin(u"Tatiller.dll", u"\"30.08.2012\",\"Zafer\",\"Hayır\",\"Genel\"\r\n");
    kullanici.ProgramiAc();
    RenkOlmali(30, 8, kGunduz, 23, 24);
    kullanici.YilSec(u"2013");
    RenkOlmali(30, 8, kGunduz, 2, 3);
    EXPECT_EQ(kullanici.Goz(30, 8, kGunduz).ipucu, u"");
}

// Yearly rows are painted first, whatever the order of the list.
TEST_F(Tatil, Row_of_the_year_wins_over_a_yearly_row_that_stands_behind_it_on_purpose) {
    agac.KoyMetin(u"Tatiller.dll",
                  u"\"01.05.2012\",\"B\",\"Hayır\",\"Özel\"\r\n\"01.05.2000\",\"A\",\"Evet\",\"Genel\"\r\n");
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Goz(1, 5, kGece).ipucu, u"B");
}

TEST_F(Tatil, Later_of_two_yearly_rows_names_the_day) {
    agac.KoyMetin(u"Tatiller.dll",
                  u"\"01.05.2012\",\"B\",\"Evet\",\"Özel\"\r\n\"01.05.2000\",\"A\",\"Evet\",\"Genel\"\r\n");
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Goz(1, 5, kGece).ipucu, u"A");
}

TEST_F(Tatil, Reservation_on_a_holiday_shows_its_colours_and_the_holidays_name) {
    agac.KoyMetin(u"Tatiller.dll", u"\"23.04.2010\",\"Ulusal Egemenlik\",\"Evet\",\"Genel\"\r\n");
    RezervasyonKoy(u"23.04.2012 - Gece");
    kullanici.ProgramiAc();
    RenkOlmali(23, 4, kGece, 12, 13);
    RenkOlmali(23, 4, kGunduz, 23, 24);
    EXPECT_EQ(kullanici.Goz(23, 4, kGece).ipucu, u"Ulusal Egemenlik");
}

// With the switch off nothing happens at all: earlier tool tips aren't cleared either.
TEST_F(Tatil, Switched_off_leaves_old_tool_tips_standing_without_colours_on_purpose) {
    agac.KoyMetin(u"Tatiller.dll", u"\"23.04.2010\",\"Ulusal Egemenlik\",\"Evet\",\"Genel\"\r\n");
    kullanici.ProgramiAc();
    kullanici.Prog().FormAyarlar->Check5.deger = 0;
    kullanici.Tablo().Command1();
    RenkOlmali(23, 4, kGunduz, 2, 3);
    EXPECT_EQ(kullanici.Goz(23, 4, kGunduz).ipucu, u"Ulusal Egemenlik");
}

TEST_F(Tatil, Stored_two_is_not_off_on_purpose) {
    agac.KoyMetin(u"Tatiller.dll", u"\"23.04.2010\",\"Ulusal Egemenlik\",\"Evet\",\"Genel\"\r\n");
    AyarKoy(31, u"2");
    kullanici.ProgramiAc();
    RenkOlmali(23, 4, kGunduz, 23, 24);
}

TEST_F(Tatil, Odd_dates_and_words_mark_nothing) {
    agac.KoyMetin(u"Tatiller.dll",
                  u"\"32.04.2012\",\"x\",\"Evet\",\"\"\r\n\"00.04.2012\",\"x\",\"Evet\",\"\"\r\n"
                  u"\"1\",\"x\",\"Evet\",\"\"\r\n\"01.13.2012\",\"x\",\"Evet\",\"\"\r\n"
                  u"\"01.01.2012\",\"x\",\"evet\",\"\"\r\n");
    kullanici.ProgramiAc();
    for (const TabloSatiri& satir : kullanici.Tablo().satirlar)
        for (const Hucre& hucre : satir.gun)
            EXPECT_EQ(hucre.ipucu, u"");
}

} // namespace velora::test
