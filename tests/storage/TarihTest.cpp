#include "storage/Tarih.h"

#include <array>

#include <gtest/gtest.h>

namespace velora {
namespace {

Gun YeniGun(int yil, unsigned ay, unsigned gun) {
    return {std::chrono::year(yil), std::chrono::month(ay), std::chrono::day(gun)};
}

} // namespace

TEST(TarihCoz, Reads_a_day_of_the_calendar) {
    EXPECT_EQ(TarihCoz(u"05.01.2012"), YeniGun(2012, 1, 5));
    EXPECT_EQ(TarihCoz(u"29.02.2012"), YeniGun(2012, 2, 29));
    EXPECT_EQ(TarihCoz(u"31.12.9999"), YeniGun(9999, 12, 31));
}

TEST(TarihCoz, Takes_days_and_months_of_one_digit) {
    EXPECT_EQ(TarihCoz(u"5.1.2012"), YeniGun(2012, 1, 5));
    EXPECT_EQ(TarihCoz(u"5.01.2012"), YeniGun(2012, 1, 5));
}

TEST(TarihCoz, Refuses_days_that_the_calendar_does_not_have) {
    for (const MetinBakis metin : {u"31.02.2012", u"29.02.2011", u"31.04.2012", u"00.01.2012", u"32.01.2012",
                                   u"01.00.2012", u"01.13.2012", u"01.01.0000"})
        EXPECT_FALSE(TarihCoz(metin)) << testing::PrintToString(metin);
}

TEST(TarihCoz, Refuses_every_other_form) {
    for (const MetinBakis metin :
         {u"", u"__.__.____", u"05.01.12", u"05.01.20123", u"005.01.2012", u"05/01/2012", u"05.01.2012 ",
          u" 5.1.2012", u"05.01", u"05.01.", u"..2012", u"05.01.2012.", u"a5.01.2012", u"-5.01.2012",
          u"05.01.+012", u"05.01.2012 - Gece"})
        EXPECT_FALSE(TarihCoz(metin)) << testing::PrintToString(metin);
}

TEST(TarihDegeri, Is_written_and_read_by_year_month_and_day) {
    const Gun gun = TarihCoz(u"03.05.2012").value();
    EXPECT_EQ(TarihDegeri(gun), u"#2012-05-03#");
    EXPECT_EQ(TarihDegeriCoz(u"#2012-05-03#"), gun);
    for (const char16_t* bozuk :
         {u"2012-05-03", u"#2012-5-3#", u"#2012.05.03#", u"#2012-02-30#", u"#03-05-2012#", u"#2012-05-03",
          u"2012-05-03##", u"", u"##########", u"#2012-05-03##"})
        EXPECT_FALSE(TarihDegeriCoz(bozuk).has_value());
}

TEST(AyinSonGunu, Knows_the_length_of_each_month) {
    constexpr std::array<unsigned, 12> kUzunluklar{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (unsigned ay = 1; ay <= 12; ++ay)
        EXPECT_EQ(AyinSonGunu(YeniGun(2013, ay, 15)), kUzunluklar[ay - 1]) << ay;
}

TEST(AyinSonGunu, Any_day_of_February_gives_29_in_a_leap_year_and_28_otherwise) {
    for (unsigned gun = 1; gun <= 28; ++gun) {
        EXPECT_EQ(AyinSonGunu(YeniGun(2012, 2, gun)), 29U);
        EXPECT_EQ(AyinSonGunu(YeniGun(2013, 2, gun)), 28U);
    }
    EXPECT_EQ(AyinSonGunu(YeniGun(2012, 2, 29)), 29U);
    EXPECT_EQ(AyinSonGunu(YeniGun(2000, 2, 1)), 29U);
    EXPECT_EQ(AyinSonGunu(YeniGun(1900, 2, 1)), 28U);
}

TEST(TarihMetni, Has_two_two_and_four_digits) {
    EXPECT_EQ(TarihMetni(YeniGun(2012, 1, 5)), u"05.01.2012");
    EXPECT_EQ(TarihMetni(YeniGun(2012, 12, 31)), u"31.12.2012");
    EXPECT_EQ(TarihMetni(YeniGun(98, 1, 5)), u"05.01.0098");
}

TEST(Bicimle, Names_the_seven_days_in_Turkish) {
    const struct {
        MetinBakis tarih;
        MetinBakis kisa;
        MetinBakis uzun;
    } gunler[] = {{u"02.01.2012", u"Pzt", u"Pazartesi"}, {u"03.01.2012", u"Sal", u"Salı"},
                  {u"04.01.2012", u"Çar", u"Çarşamba"},  {u"05.01.2012", u"Per", u"Perşembe"},
                  {u"06.01.2012", u"Cum", u"Cuma"},      {u"07.01.2012", u"Cmt", u"Cumartesi"},
                  {u"08.01.2012", u"Paz", u"Pazar"}};
    for (const auto& gun : gunler) {
        EXPECT_EQ(Bicimle(gun.tarih, u"ddd"), gun.kisa);
        EXPECT_EQ(Bicimle(gun.tarih, u"dddd"), gun.uzun);
    }
}

TEST(Bicimle, Gives_the_pieces_of_a_date) {
    EXPECT_EQ(Bicimle(u"5.3.2012", u"dd.mm.yyyy"), u"05.03.2012");
    EXPECT_EQ(Bicimle(u"5.3.2012", u"yyyy"), u"2012");
    EXPECT_EQ(Bicimle(u"5.3.2012", u"mm"), u"03");
    EXPECT_EQ(Bicimle(u"5.3.2012", u"dd"), u"05");
}

TEST(Bicimle, A_text_that_is_no_real_date_comes_back_unchanged_on_purpose) {
    EXPECT_EQ(Bicimle(u"31.02.2012", u"dddd"), u"31.02.2012");
    EXPECT_EQ(Bicimle(u"__.__.____", u"dd.mm.yyyy"), u"__.__.____");
    EXPECT_EQ(Bicimle(u"", u"yyyy"), u"");
}

TEST(Bicimle, Another_pattern_gives_the_text_unchanged) {
    EXPECT_EQ(Bicimle(u"05.01.2012", u"mmmm"), u"05.01.2012");
    EXPECT_EQ(Bicimle(u"05.01.2012", u""), u"05.01.2012");
}

} // namespace velora
