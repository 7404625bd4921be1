#include "storage/Sayi.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace velora {

TEST(SayisalDeger, Takes_the_leading_digits) {
    EXPECT_EQ(SayisalDeger(u"1500"), 1500);
    EXPECT_EQ(SayisalDeger(u"1500 TL"), 1500);
    EXPECT_EQ(SayisalDeger(u"12a3"), 12);
    EXPECT_EQ(SayisalDeger(u"007"), 7);
}

TEST(SayisalDeger, Takes_at_most_one_full_stop_as_decimal_point) {
    EXPECT_EQ(SayisalDeger(u"1.5"), 1.5);
    EXPECT_EQ(SayisalDeger(u"1.5.2"), 1.5);
    EXPECT_EQ(SayisalDeger(u"5."), 5);
    EXPECT_EQ(SayisalDeger(u"5.."), 5);
    EXPECT_EQ(SayisalDeger(u"1,5"), 1);
}

TEST(SayisalDeger, Takes_a_minus_only_directly_before_the_first_digit) {
    EXPECT_EQ(SayisalDeger(u"-5"), -5);
    EXPECT_EQ(SayisalDeger(u"-0.25x"), -0.25);
    EXPECT_EQ(SayisalDeger(u"- 5"), 0);
    EXPECT_EQ(SayisalDeger(u"--5"), 0);
    EXPECT_EQ(SayisalDeger(u"-.5"), 0);
    EXPECT_EQ(SayisalDeger(u"5-3"), 5);
}

TEST(SayisalDeger, What_does_not_start_with_a_digit_is_0) {
    for (const MetinBakis metin :
         {u"", u" 5", u"\t5", u".5", u"+5", u"abc", u"-", u"TL 5", u"inf", u"nan", u"٣"})
        EXPECT_EQ(SayisalDeger(metin), 0) << SayisalDeger(metin);
}

TEST(SayisalDeger, Knows_no_exponent_and_no_hexadecimal) {
    EXPECT_EQ(SayisalDeger(u"1e5"), 1);
    EXPECT_EQ(SayisalDeger(u"0x10"), 0);
}

TEST(SayisalDeger, Digits_that_no_number_can_hold_count_as_0) {
    EXPECT_EQ(SayisalDeger(Metin(400, u'9')), 0);
    EXPECT_EQ(SayisalDeger(Metin(300, u'0') + u"7"), 7);
}

TEST(TutarDegeri, Skips_the_blanks_before_the_number_and_stops_at_the_first_other_sign) {
    EXPECT_EQ(TutarDegeri(u"  1250"), 1250);
    EXPECT_EQ(TutarDegeri(u"1250.50"), 1250.5);
    EXPECT_EQ(TutarDegeri(u"1.250"), 1.25);
    EXPECT_EQ(TutarDegeri(u"1,250"), 1);
    EXPECT_EQ(TutarDegeri(u"1 250"), 1);
    EXPECT_EQ(TutarDegeri(u" -250"), -250);
    EXPECT_EQ(TutarDegeri(u""), 0);
    EXPECT_EQ(TutarDegeri(u"  "), 0);
}

TEST(DuzMetin, Is_the_shortest_plain_form) {
    EXPECT_EQ(DuzMetin(0), u"0");
    EXPECT_EQ(DuzMetin(-0.0), u"0");
    EXPECT_EQ(DuzMetin(1500), u"1500");
    EXPECT_EQ(DuzMetin(-250.5), u"-250.5");
    EXPECT_EQ(DuzMetin(0.1), u"0.1");
    EXPECT_EQ(DuzMetin(0.1 + 0.2), u"0.30000000000000004");
}

TEST(DuzMetin, Has_no_exponent_at_either_end) {
    EXPECT_EQ(DuzMetin(1e21), u"1000000000000000000000");
    EXPECT_EQ(DuzMetin(1e-7), u"0.0000001");
    EXPECT_EQ(DuzMetin(std::numeric_limits<double>::max()).size(), 309U);
    EXPECT_EQ(DuzMetin(std::numeric_limits<double>::denorm_min()).substr(0, 4), u"0.00");
    EXPECT_EQ(DuzMetin(std::numeric_limits<double>::infinity()), u"0");
}

TEST(DuzMetin, Is_read_back_as_the_same_number) {
    std::mt19937 rastgele(20120105);
    std::uniform_int_distribution<long long> kurus(-99'999'999, 99'999'999);
    for (int i = 0; i < 2000; ++i) {
        const double sayi = static_cast<double>(kurus(rastgele)) / 100;
        EXPECT_EQ(SayisalDeger(DuzMetin(sayi)), sayi);
    }
}

TEST(GrupluMetin, Puts_full_stops_between_groups_of_three) {
    EXPECT_EQ(GrupluMetin(7), u"7");
    EXPECT_EQ(GrupluMetin(999), u"999");
    EXPECT_EQ(GrupluMetin(1000), u"1.000");
    EXPECT_EQ(GrupluMetin(123456), u"123.456");
    EXPECT_EQ(GrupluMetin(1234567), u"1.234.567");
    EXPECT_EQ(GrupluMetin(-1234567), u"-1.234.567");
    EXPECT_EQ(GrupluMetin(-100), u"-100");
    EXPECT_EQ(GrupluMetin(1234567890), u"1.234.567.890");
}

TEST(GrupluMetin, Rounds_half_away_from_zero) {
    EXPECT_EQ(GrupluMetin(0.5), u"1");
    EXPECT_EQ(GrupluMetin(2.5), u"3");
    EXPECT_EQ(GrupluMetin(-2.5), u"-3");
    EXPECT_EQ(GrupluMetin(2.4), u"2");
    EXPECT_EQ(GrupluMetin(999.5), u"1.000");
}

TEST(GrupluMetin, What_rounds_to_0_is_the_empty_text_on_purpose) {
    EXPECT_EQ(GrupluMetin(0), u"");
    EXPECT_EQ(GrupluMetin(0.4), u"");
    EXPECT_EQ(GrupluMetin(-0.4), u"");
    EXPECT_EQ(GrupluMetin(std::numeric_limits<double>::quiet_NaN()), u"");
}

TEST(TutarMetni, Reads_colon_value_TL_and_nothing_between_them_for_0) {
    EXPECT_EQ(TutarMetni(1500), u": 1.500 TL");
    EXPECT_EQ(TutarMetni(-1500), u": -1.500 TL");
    EXPECT_EQ(TutarMetni(0.4), u":  TL");
}

} // namespace velora
