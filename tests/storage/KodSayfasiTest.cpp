#include "storage/KodSayfasi.h"

#include <gtest/gtest.h>

#include <set>

#include "storage/DosyaAgaci.h"
#include "storage/YazimBicimi.h"

namespace velora {
namespace {

std::string TumBaytlar() {
    std::string bayt;
    for (int i = 0; i < 256; ++i)
        bayt += static_cast<char>(i);
    return bayt;
}

} // namespace

TEST(KodSayfasi, All_256_bytes_survive_decoding_and_encoding) {
    const Metin metin = KodCoz(TumBaytlar());
    ASSERT_EQ(metin.size(), 256U);
    EXPECT_EQ(std::set<char16_t>(metin.begin(), metin.end()).size(), 256U);
    EXPECT_EQ(KodYaz(metin), TumBaytlar());
    for (const char16_t harf : metin)
        EXPECT_TRUE(KodVar(harf)) << static_cast<int>(harf);
}

TEST(KodSayfasi, All_bytes_but_the_quote_survive_a_file_that_is_written_and_read) {
    std::string bayt = TumBaytlar();
    std::erase(bayt, '"');
    test::DosyaAgaci kok;
    DegerYazici yazici;
    yazici.Yaz(KodCoz(bayt), u"son");
    ASSERT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"a"), yazici.Bayt()));
    EXPECT_EQ(kok.Oku(u"a"), "\"" + bayt + "\",\"son\"\r\n");

    const auto okunan = kok.dosyalar.Oku(kok.TamYol(u"a"));
    ASSERT_TRUE(okunan);
    DegerOkuyucu okuyucu(*okunan);
    Metin deger;
    Metin son;
    EXPECT_EQ(okuyucu.Oku(deger, son), 2);
    EXPECT_EQ(KodYaz(deger), bayt);
    EXPECT_EQ(son, u"son");
}

TEST(KodSayfasi, The_Turkish_letters_have_the_bytes_of_Windows_1254) {
    EXPECT_EQ(KodYaz(u"çğıİöşüÇĞIÖŞÜ"), "\xE7\xF0\xFD\xDD\xF6\xFE\xFC\xC7\xD0\x49\xD6\xDE\xDC");
    EXPECT_EQ(KodCoz("\xE7\xF0\xFD\xDD\xF6\xFE\xFC\xC7\xD0\x49\xD6\xDE\xDC"), u"çğıİöşüÇĞIÖŞÜ");
    EXPECT_EQ(KodCoz("\x80\x85\x8A\x92\x99\x9F"), u"€…Š’™Ÿ");
}

TEST(KodSayfasi, The_seven_undefined_bytes_stand_for_the_control_characters_of_their_number) {
    EXPECT_EQ(KodCoz("\x81\x8D\x8E\x8F\x90\x9D\x9E"), u"\u0081\u008D\u008E\u008F\u0090\u009D\u009E");
}

TEST(KodSayfasi, A_character_outside_the_code_page_becomes_a_question_mark) {
    EXPECT_EQ(KodYaz(u"a\u0416b\u00D0\u00FE\u0080"), "a?b???");
    EXPECT_FALSE(KodVar(u'\u0416'));
    EXPECT_FALSE(KodVar(u'\u0080'));
}

TEST(KodSayfasi, A_text_fitted_to_the_code_page_is_what_a_file_gives_back) {
    EXPECT_EQ(KodaSigdir(u"Şişli \u0416\U0001F600 €"), u"Şişli ?? €");
    EXPECT_EQ(KodaSigdir(u""), u"");
}

TEST(KodSayfasi, A_surrogate_pair_becomes_one_question_mark) {
    EXPECT_EQ(KodYaz(u"a\U0001F600b"), "a?b");
    const Metin yalniz{u'a', char16_t{0xD83D}, u'b', char16_t{0xDE00}};
    EXPECT_EQ(KodYaz(yalniz), "a?b?");
    EXPECT_EQ(KodYaz(Metin{char16_t{0xD83D}}), "?");
}

TEST(KodSayfasi, Decoding_into_a_text_replaces_what_it_held) {
    Metin metin = u"eski ve uzun";
    KodCoz("\xFE", metin);
    EXPECT_EQ(metin, u"ş");
}

} // namespace velora
