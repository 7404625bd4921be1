#include "storage/AlanDosyasi.h"

#include <vector>

#include <gtest/gtest.h>

#include "storage/DosyaAgaci.h"

namespace velora::test {

namespace {

/// Two numbers with a text between them.
struct UcAlan {
    std::int32_t ilk = 11;
    Metin orta = u"on iki";
    std::int32_t son = 13;
    std::vector<Alan> alanlar{SayiAlani(ilk), MetinAlani(orta), SayiAlani(son)};
};

} // namespace

TEST(AlanDosyasi, A_file_is_read_into_its_fields_in_their_order) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "7, \"\xDEi\xFE, iki\" ,\" -8 \"\r\n99");
    UcAlan uc;
    EXPECT_TRUE(AlanlariOku(kok.dosyalar, kok.TamYol(u"a"), uc.alanlar));
    EXPECT_EQ(uc.ilk, 7);
    EXPECT_EQ(uc.orta, u"Şiş, iki");
    EXPECT_EQ(uc.son, -8);
}

TEST(AlanDosyasi, A_missing_and_a_short_file_change_no_field) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "7,\"iki\"\r\n");
    for (const MetinBakis ad : {u"a", u"b"}) {
        UcAlan uc;
        EXPECT_FALSE(AlanlariOku(kok.dosyalar, kok.TamYol(ad), uc.alanlar));
        EXPECT_EQ(uc.ilk, 11);
        EXPECT_EQ(uc.orta, u"on iki");
    }
}

TEST(AlanDosyasi, A_value_that_is_none_for_its_field_ends_the_reading_and_leaves_it) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "7,\"iki\",8x\r\n");
    UcAlan uc;
    EXPECT_FALSE(AlanlariOku(kok.dosyalar, kok.TamYol(u"a"), uc.alanlar));
    EXPECT_EQ(uc.ilk, 7) << "what stands before it is read";
    EXPECT_EQ(uc.son, 13);
}

TEST(AlanDosyasi, The_fields_are_written_in_one_line_numbers_bare_and_texts_in_quotes) {
    UcAlan uc;
    uc.orta = u"Şiş, \"iki\"";
    uc.son = -4;
    EXPECT_EQ(AlanBaytlari(uc.alanlar), "11,\"\xDEi\xFE, \"iki\"\",-4\r\n");
}

TEST(AlanDosyasi, A_whole_number_is_digits_alone_with_a_minus_or_none) {
    for (const auto& [metin, sayi] :
         {std::pair{u"0", 0}, {u" 42 ", 42}, {u"-7", -7}, {u"2147483647", 2147483647}})
        EXPECT_EQ(TamSayi(metin), sayi);
    for (const auto* metin : {u"", u" ", u"4.5", u"4 5", u"+4", u"dört", u"2147483648"})
        EXPECT_EQ(TamSayi(metin), std::nullopt);
}

} // namespace velora::test
