#include "screen/GirdiKurali.h"

#include <gtest/gtest.h>

#include "screen/Kontroller.h"

namespace velora::test {

namespace {

/// What comes in between two parts of a text, and the text after it.
struct GirdiOrnegi {
    MetinBakis ust;
    MetinBakis gelen;
    MetinBakis alt;
    MetinBakis sonuc;
};

bool RakamMi(char16_t harf) {
    return harf >= u'0' && harf <= u'9';
}

void OrnekleriDene(const GirdiKurali& kural, std::initializer_list<GirdiOrnegi> ornekler) {
    for (const GirdiOrnegi& ornek : ornekler)
        EXPECT_EQ(GirdiyiKoy(ornek.ust, ornek.gelen, ornek.alt, kural), ornek.sonuc)
            << ::testing::PrintToString(Metin(ornek.gelen));
}

} // namespace

TEST(GirdiKuraliTest, Character_outside_the_code_page_becomes_one_question_mark) {
    OrnekleriDene({}, {{u"a", u"語", u"b", u"a?b"},
                       {u"a", u"\U0001F600", u"b", u"a?b"},
                       {u"", u"\U0001F600ş\U0001F601", u"", u"?ş?"},
                       {u"", u"\U0001F600\U0001F600", u"", u"??"},
                       {u"", u"e\u0301", u"", u"e?"},
                       {u"語", u"Ğ€", u"語", u"語Ğ€語"}});
    const Metin yarim{0xD83D};
    EXPECT_EQ(GirdiyiKoy(u"1", yarim, u"2", {}), u"1?2");
    EXPECT_EQ(GirdiyiKoy(u"1", yarim + u'x', u"2", {}), u"1?x2");
}

TEST(GirdiKuraliTest, A_field_of_digits_lets_keys_through_that_are_no_characters) {
    for (const MetinBakis tus : {u"\r", u"\t", u"\x16", u"\x1B", u"\x7F"})
        EXPECT_EQ(TuslananMetin(tus, RakamMi), tus);
    EXPECT_EQ(TuslananMetin(u",", RakamMi), u"");
    EXPECT_EQ(TuslananMetin(u"7", RakamMi), u"7");
}

TEST(GirdiKuraliTest, An_amount_that_comes_into_a_field_of_digits_is_the_number_that_it_means) {
    const std::pair<MetinBakis, MetinBakis> tutarlar[]{
        {u"12.500,00", u"12500"}, {u"12,500.75", u"12500"},
        {u"12.500", u"12500"},    {u"1.250.000", u"1250000"},
        {u"12,5", u"12"},         {u"7,50 TL", u"7"},
        {u"₺ 9 300", u"9300"},    {u"12.500,000", u"12500"},
        {u"450", u"450"},         {u"", u""},
        {u"yüz", u"yüz"},         {u"5x00", u"5x00"},
    };
    for (const auto& [gelen, sayi] : tutarlar)
        EXPECT_EQ(TutarOlarak(gelen), sayi) << ::testing::PrintToString(Metin(gelen));
}

TEST(GirdiKuraliTest, What_is_pasted_into_a_mask_is_meant_number_by_number) {
    const MetinBakis tarih = u"##.##.####";
    const MetinBakis saat = u"##:##";
    EXPECT_EQ(MaskeyeOturt(tarih, u"5.1.2026"), u"05.01.2026");
    EXPECT_EQ(MaskeyeOturt(tarih, u" 15/7/2026\n"), u"15.07.2026");
    EXPECT_EQ(MaskeyeOturt(tarih, u"05.01.2026"), u"05.01.2026");
    EXPECT_EQ(MaskeyeOturt(saat, u"9.30"), u"09:30");
    EXPECT_EQ(MaskeyeOturt(saat, u"18:5"), u"18:05");
    for (const MetinBakis olmayan : {u"5.1", u"5.1.26", u"5.1.2026 9", u"005.1.2026", u"", u"Mayıs"})
        EXPECT_FALSE(MaskeyeOturt(tarih, olmayan)) << ::testing::PrintToString(Metin(olmayan));
    EXPECT_FALSE(MaskeyeOturt(saat, u"930"));
}

TEST(GirdiKuraliTest, Line_breaks_and_control_characters_are_blanks_in_one_line) {
    OrnekleriDene({}, {{u"", u"a\r\nb\rc\nd", u"", u"a b c d"},
                       {u"", u"a\u2028b\u2029c\td\u0001e\u007Ff\u009Dg\u001Fh", u"", u"a b c d e f g h"},
                       {u"", u"\n\r\r\n\r\n", u"", u"    "},
                       {u"\t", u"\n", u"\r\n", u"\t \r\n"}});
}

TEST(GirdiKuraliTest, Line_breaks_are_cr_lf_in_many_lines_and_tabs_stand) {
    OrnekleriDene({.cokSatirli = true},
                  {{u"", u"a\r\nb\rc\nd\u2028e\u2029", u"", u"a\r\nb\r\nc\r\nd\r\ne\r\n"},
                   {u"x", u"\t語", u"y", u"x\t?y"},
                   {u"a\r", u"1", u"\nb", u"a\r1\nb"},
                   {u"a\r", u"", u"\nb", u"a\r\n\nb"}});
}

TEST(GirdiKuraliTest, Limit_cuts_what_came_in_and_nothing_else) {
    OrnekleriDene({.enUzun = 5}, {{u"a", u"123", u"bc", u"a12bc"},
                                  {u"abcdefg", u"1", u"", u"abcdefg"},
                                  {u"abc", u"1", u"defg", u"abcdefg"},
                                  {u"ab", u"1", u"cde", u"abcde"},
                                  {u"", u"\U0001F6001234567", u"", u"?1234"}});
}

TEST(GirdiKuraliTest, Line_break_counts_as_the_two_characters_that_it_is_and_is_never_halved) {
    OrnekleriDene({.enUzun = 5, .cokSatirli = true}, {{u"", u"1\n2\n3", u"", u"1\r\n2"},
                                                      {u"a\r\nb", u"\n", u"", u"a\r\nb"},
                                                      {u"a\r\n", u"bcd", u"", u"a\r\nbc"},
                                                      {u"a", u"\n", u"bc", u"a\r\nbc"},
                                                      {u"ab", u"\n", u"cd", u"abcd"}});
}

TEST(GirdiKuraliTest, What_is_refused_does_not_count_for_the_limit) {
    OrnekleriDene(
        {.izin = RakamMi, .enUzun = 4},
        {{u"1", u"a.9\n8b7", u"2", u"1982"}, {u"1", u"語x ", u"", u"1"}, {u"x,", u"5y6", u"z", u"x,5z"}});
}

TEST(GirdiKuraliTest, Rule_of_a_field_is_its_filter_and_its_limit) {
    MetinKutusu kutu;
    kutu.enUzun = 9;
    EXPECT_EQ(GirdiyiKoy(u"", u"1\n2", u"", KutununKurali(kutu, true)), u"1\r\n2");
    EXPECT_EQ(GirdiyiKoy(u"", u"1\n2", u"", KutununKurali(kutu, false)), u"1 2");
    kutu.suzgec = RakamMi;
    kutu.enUzun = 3;
    EXPECT_EQ(GirdiyiKoy(u"", u"a1b2\n34", u"", KutununKurali(kutu, false)), u"123");
}

TEST(GirdiKuraliTest, Key_of_a_character_that_no_file_holds_or_that_is_refused_does_nothing) {
    EXPECT_EQ(TuslananMetin(u"aş€"), u"aş€");
    EXPECT_EQ(TuslananMetin(u"語"), u"");
    EXPECT_EQ(TuslananMetin(u"x語\U0001F600y"), u"xy");
    EXPECT_EQ(TuslananMetin(u"\r"), u"\r") << "keys that write nothing pass";
    EXPECT_EQ(TuslananMetin(u"1a2", RakamMi), u"12");
    EXPECT_EQ(TuslananMetin(u"", RakamMi), u"");
}

TEST(GirdiKuraliTest, Mask_gets_no_other_numbers_from_the_keys_than_0_to_9) {
    for (const char16_t harf : MetinBakis(u"0123456789:.a \b"))
        EXPECT_TRUE(MaskeTusu(harf)) << static_cast<int>(harf);
    for (const char16_t harf : MetinBakis(u"²³¹¼½¾"))
        EXPECT_FALSE(MaskeTusu(harf)) << static_cast<int>(harf);
}

TEST(GirdiKuraliTest, Place_of_a_digit_stays_empty_for_whatever_else_came_in) {
    EXPECT_EQ(MaskeyiSuz(u"##:##", u"__:__", u"2½:\u06630"), u"2_:_0");
    EXPECT_EQ(MaskeyiSuz(u"##.##.####", u"__.__.____", u"_1.\u0665_.2012"), u"_1.__.2012");
    EXPECT_EQ(MaskeyiSuz(u"##:##", u"½_:__", u"½²:__"), u"½_:__") << "what was there stands";
    EXPECT_EQ(MaskeyiSuz(u"##:##", u"", u"1a"), u"1_");
}

} // namespace velora::test
