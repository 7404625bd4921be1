#include "storage/dosya/Utf8.h"

#include <gtest/gtest.h>

#include <random>

namespace velora {
namespace {

Metin Coz(std::string_view bayt) {
    Metin metin = u"önceki";
    Utf8Coz(bayt, metin);
    return metin;
}

std::string Baytlari(MetinBakis metin) {
    std::string bayt;
    EXPECT_TRUE(Utf8Ekle(metin, bayt));
    return bayt;
}

/// The text in which ASCII stands for itself and each other byte for a byte that is no UTF-8.
Metin Yedek(std::initializer_list<int> baytlar) {
    Metin metin;
    for (const int bayt : baytlar)
        metin += static_cast<char16_t>(bayt < 0x80 ? bayt : 0xDC00 + bayt);
    return metin;
}

} // namespace

TEST(Utf8, Names_of_all_lengths_are_read_and_written) {
    EXPECT_EQ(Coz("05.01.2012 - G\xC3\xBCnd\xC3\xBCz"), u"05.01.2012 - Gündüz");
    EXPECT_EQ(Coz("\xE2\x82\xAC \xF0\x9F\x98\x80"), u"€ \U0001F600");
    EXPECT_EQ(Coz(""), u"");
    EXPECT_EQ(Baytlari(u"G\u00FCnd\u00FCz"), "G\xC3\xBCnd\xC3\xBCz");
    EXPECT_EQ(Baytlari(u"€ \U0001F600"), "\xE2\x82\xAC \xF0\x9F\x98\x80");
    EXPECT_EQ(Baytlari(u"\u007F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"),
              "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
}

TEST(Utf8, A_name_in_the_old_code_page_survives_as_lone_surrogates) {
    EXPECT_EQ(Coz("G\xFCnd\xFCz"), Yedek({'G', 0xFC, 'n', 'd', 0xFC, 'z'}));
    EXPECT_EQ(Baytlari(Coz("G\xFCnd\xFCz")), "G\xFCnd\xFCz");
}

TEST(Utf8, Overlong_surrogate_and_too_high_forms_count_as_single_bytes) {
    EXPECT_EQ(Coz("\xC0\xAF"), Yedek({0xC0, 0xAF}));
    EXPECT_EQ(Coz("\xE0\x80\xAF"), Yedek({0xE0, 0x80, 0xAF}));
    EXPECT_EQ(Coz("\xED\xB3\xBC"), Yedek({0xED, 0xB3, 0xBC}));
    EXPECT_EQ(Coz("\xF4\x90\x80\x80"), Yedek({0xF4, 0x90, 0x80, 0x80}));
    EXPECT_EQ(Coz("\xE2\x82"), Yedek({0xE2, 0x82}));
}

TEST(Utf8, A_lone_surrogate_that_stands_for_no_byte_is_refused) {
    for (const int kod : {0xD800, 0xDBFF, 0xDC00, 0xDC2F, 0xDC7F, 0xDD00, 0xDFFF}) {
        std::string bayt;
        EXPECT_FALSE(Utf8Ekle(Metin{static_cast<char16_t>(kod), u'a'}, bayt)) << kod;
    }
}

TEST(Utf8, Random_bytes_come_back_as_they_were) {
    std::mt19937 rastgele(8);
    std::uniform_int_distribution<int> uzunluk(0, 12);
    std::uniform_int_distribution<int> bayt(0, 255);
    std::uniform_int_distribution<int> ust(0x80, 0xF8);
    for (int tur = 0; tur < 50000; ++tur) {
        std::string ad;
        for (int i = uzunluk(rastgele); i > 0; --i)
            ad += static_cast<char>(tur % 2 == 0 ? bayt(rastgele) : ust(rastgele));
        ASSERT_EQ(Baytlari(Coz(ad)), ad);
    }
}

} // namespace velora
