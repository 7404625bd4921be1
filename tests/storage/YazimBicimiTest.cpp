#include "storage/YazimBicimi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace velora {
namespace {

std::vector<std::string> Hepsi(std::string_view bayt) {
    std::vector<std::string> degerler;
    DegerOkuyucu okuyucu(bayt);
    std::string_view deger;
    while (okuyucu.Oku(deger))
        degerler.emplace_back(deger);
    EXPECT_TRUE(okuyucu.Sonda());
    return degerler;
}

using Degerler = std::vector<std::string>;

} // namespace

TEST(DegerOkuyucu, Finds_values_by_position_in_lines_and_between_commas_alike) {
    EXPECT_EQ(Hepsi("\"a\",\"b\",1,0\r\n"), (Degerler{"a", "b", "1", "0"}));
    EXPECT_EQ(Hepsi("\"a\"\r\n\"b\"\r\n1\r\n0\r\n"), (Degerler{"a", "b", "1", "0"}));
}

TEST(DegerOkuyucu, Twenty_values_read_the_same_one_in_a_line_or_all_in_one) {
    std::string satir;
    std::string satirlar;
    for (char harf = 'a'; harf < 'a' + 20; ++harf) {
        satir += std::string(satir.empty() ? "" : ",") + "\"" + harf + "\"";
        satirlar += std::string("\"") + harf + "\"\r\n";
    }
    ASSERT_EQ(Hepsi(satir).size(), 20U);
    EXPECT_EQ(Hepsi(satir), Hepsi(satirlar));
}

TEST(DegerYazici, Writes_a_day_as_a_literal_and_the_reader_takes_it_as_it_stands) {
    DegerYazici yazici;
    yazici.Yaz(Gun{std::chrono::year{2012}, std::chrono::month{5}, std::chrono::day{3}}, u"150");
    EXPECT_EQ(yazici.Bayt(), "#2012-05-03#,\"150\"\r\n");
    DegerOkuyucu okuyucu(yazici.Bayt());
    Metin deger;
    EXPECT_TRUE(okuyucu.Oku(deger));
    EXPECT_EQ(deger, u"#2012-05-03#");
}

TEST(DegerOkuyucu, Skips_blanks_tabs_and_line_ends_before_a_value) {
    EXPECT_EQ(Hepsi(" \t\r\n\n\r  \"a\" ,\t 5"), (Degerler{"a", "5"}));
}

TEST(DegerOkuyucu, A_quoted_value_keeps_its_blanks_commas_and_line_breaks) {
    EXPECT_EQ(Hepsi("\" a,b\r\nc \",1\r\n"), (Degerler{" a,b\r\nc ", "1"}));
}

TEST(DegerOkuyucu, An_empty_text_read_back_is_the_empty_text) {
    EXPECT_EQ(Hepsi("\"\",\"\"\r\n\"\""), (Degerler{"", "", ""}));
}

TEST(DegerOkuyucu, Blanks_and_tabs_behind_a_closing_quote_are_skipped_up_to_the_comma) {
    EXPECT_EQ(Hepsi("\"a\" \t ,\"b\"\t\r\n\"c\""), (Degerler{"a", "b", "c"}));
}

TEST(DegerOkuyucu, Another_sign_behind_a_closing_quote_begins_the_next_value) {
    EXPECT_EQ(Hepsi("\"ab\"c\",\"d\"\r\n"), (Degerler{"ab", "c\"", "d"}));
    EXPECT_EQ(Hepsi("\"a\"  b,c"), (Degerler{"a", "b", "c"}));
    EXPECT_EQ(Hepsi("\"a\"\"b\",c"), (Degerler{"a", "b", "c"}));
    EXPECT_EQ(Hepsi("\"a\" \"b\""), (Degerler{"a", "b"}));
}

TEST(DegerOkuyucu, A_quote_that_is_never_closed_takes_all_to_the_end_of_the_file) {
    EXPECT_EQ(Hepsi("1,\"abc,2\r\n3\r\n"), (Degerler{"1", "abc,2\r\n3\r\n"}));
    EXPECT_EQ(Hepsi("\""), (Degerler{""}));
    EXPECT_EQ(Hepsi("\"a\",\""), (Degerler{"a", ""}));
}

TEST(DegerOkuyucu, Commas_with_nothing_between_them_give_empty_values) {
    EXPECT_EQ(Hepsi("a,,b"), (Degerler{"a", "", "b"}));
    EXPECT_EQ(Hepsi(",a"), (Degerler{"", "a"}));
    EXPECT_EQ(Hepsi(",,"), (Degerler{"", ""}));
    EXPECT_EQ(Hepsi("a\r\n,b"), (Degerler{"a", "", "b"}));
    EXPECT_EQ(Hepsi("\"a\",,\"b\""), (Degerler{"a", "", "b"}));
}

TEST(DegerOkuyucu, CR_LF_and_LF_and_CR_are_all_line_ends) {
    EXPECT_EQ(Hepsi("a\r\nb\nc\rd"), (Degerler{"a", "b", "c", "d"}));
    EXPECT_EQ(Hepsi("\"a\"\r\n\"b\"\n\"c\"\r\"d\""), (Degerler{"a", "b", "c", "d"}));
}

TEST(DegerOkuyucu, A_bare_value_loses_the_blanks_at_its_end_and_nothing_else) {
    EXPECT_EQ(Hepsi("a b  ,c\t \r\nd \t,e\x0C"), (Degerler{"a b", "c\t", "d \t", "e\x0C"}));
}

TEST(DegerOkuyucu, A_quote_inside_a_bare_value_is_a_sign_like_any_other) {
    EXPECT_EQ(Hepsi("a\"b\",c"), (Degerler{"a\"b\"", "c"}));
}

TEST(DegerOkuyucu, A_date_literal_is_one_bare_value) {
    EXPECT_EQ(Hepsi("#2012-05-03#,\"Elektrik\",\"150\"\r\n"), (Degerler{"#2012-05-03#", "Elektrik", "150"}));
}

TEST(DegerOkuyucu, Every_byte_may_stand_in_a_value) {
    const std::string bayt("\"a\0\x1A\xFF\",b\0c", 10);
    EXPECT_EQ(Hepsi(bayt), (Degerler{std::string("a\0\x1A\xFF", 4), std::string("b\0c", 3)}));
}

TEST(DegerOkuyucu, Comparing_with_1_holds_for_the_bare_and_for_the_quoted_form) {
    DegerOkuyucu okuyucu("1,\"1\"");
    Metin ciplak;
    Metin tirnakli;
    ASSERT_EQ(okuyucu.Oku(ciplak, tirnakli), 2);
    EXPECT_EQ(ciplak, u"1");
    EXPECT_EQ(tirnakli, u"1");
}

TEST(DegerOkuyucu, Blank_lines_at_the_end_count_as_the_end) {
    EXPECT_EQ(Hepsi("\"A\"\r\n\r\n"), (Degerler{"A"}));
    EXPECT_EQ(Hepsi("\"A\"\r\n \t\n\n\n\n"), (Degerler{"A"}));
    DegerOkuyucu okuyucu("\"A\"\r\n\r\n");
    EXPECT_FALSE(okuyucu.Sonda());
    EXPECT_EQ(okuyucu.Atla(1), 1);
    EXPECT_TRUE(okuyucu.Sonda());
}

TEST(DegerOkuyucu, A_file_without_values_is_at_its_end_at_once) {
    for (const std::string_view bayt : {"", " ", "\r\n", "\n\n\n", " \t\r\n "}) {
        DegerOkuyucu okuyucu(bayt);
        EXPECT_TRUE(okuyucu.Sonda());
        Metin deger = u"önceki";
        EXPECT_FALSE(okuyucu.Oku(deger));
        EXPECT_EQ(deger, u"önceki");
    }
}

TEST(DegerOkuyucu, Reading_5_values_from_a_file_of_3_leaves_two_untouched) {
    DegerOkuyucu okuyucu("\"a\",\"b\",3\r\n");
    Metin a = u"1";
    Metin b = u"2";
    Metin c = u"3";
    Metin d = u"4";
    Metin e = u"5";
    EXPECT_EQ(okuyucu.Oku(a, b, c, d, e), 3);
    EXPECT_EQ(a + b + c + d + e, u"ab345");
}

TEST(DegerOkuyucu, A_failed_read_leaves_the_position_at_the_end) {
    DegerOkuyucu okuyucu("a  \r\n  ");
    std::string_view deger;
    EXPECT_TRUE(okuyucu.Oku(deger));
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(okuyucu.Oku(deger));
        EXPECT_EQ(deger, "a");
        EXPECT_TRUE(okuyucu.Sonda());
    }
}

TEST(DegerOkuyucu, Passing_over_values_tells_how_many_there_were) {
    DegerOkuyucu okuyucu("1,\"2,2\",3");
    std::string_view deger;
    EXPECT_EQ(okuyucu.Atla(2), 2);
    EXPECT_TRUE(okuyucu.Oku(deger));
    EXPECT_EQ(deger, "3");
    EXPECT_EQ(okuyucu.Atla(5), 0);
    EXPECT_EQ(okuyucu.Atla(-1), 0);
}

TEST(DegerOkuyucu, Passing_over_values_ends_where_reading_them_does) {
    std::mt19937 rastgele(56);
    const std::vector<std::string_view> parcalar{"\r\n",  "\r\n", "\n", "\r",    "\"\"", "\"\"",
                                                 "\"a\"", "\"",   "0",  "1",     "a",    "12",
                                                 ",",     " ",    "\t", "\"1\" "};
    std::uniform_int_distribution<std::size_t> parca(0, parcalar.size() - 1);
    int enCok = 0;
    for (int tur = 0; tur < 5000; ++tur) {
        std::string bayt;
        for (int i = 0; i < 12; ++i)
            bayt += parcalar[parca(rastgele)];
        DegerOkuyucu okuyan(bayt);
        std::string_view deger;
        for (int adet = 0;; ++adet) {
            DegerOkuyucu gecen(bayt);
            ASSERT_EQ(gecen.Atla(adet), adet);
            std::string_view siradaki;
            const bool var = gecen.Oku(siradaki);
            ASSERT_EQ(okuyan.Oku(deger), var) << bayt;
            enCok = std::max(enCok, adet);
            if (!var)
                break;
            ASSERT_EQ(static_cast<const void*>(siradaki.data()), deger.data()) << bayt;
            ASSERT_EQ(siradaki, deger) << bayt;
        }
    }
    EXPECT_GT(enCok, 8);
}

TEST(DegerYazici, Two_texts_and_two_checks_yield_one_line) {
    DegerYazici yazici;
    yazici.Yaz(u"x", Metin(u"y"), 1, 0);
    EXPECT_EQ(yazici.Bayt(), "\"x\",\"y\",1,0\r\n");
}

TEST(DegerYazici, Each_statement_ends_its_own_line) {
    DegerYazici yazici;
    yazici.Yaz(MetinBakis(u""));
    yazici.Yaz(-7, 16777215L, std::int64_t{-9223372036854775807LL - 1});
    yazici.Yaz(u"ş");
    EXPECT_EQ(yazici.Bayt(), "\"\"\r\n-7,16777215,-9223372036854775808\r\n\"\xFE\"\r\n");
}

TEST(DegerYazici, A_statement_of_parts_is_one_line_as_well) {
    DegerYazici yazici;
    yazici.Parca(u"a");
    yazici.Parca(1);
    yazici.SatirSonu();
    yazici.Parca(2);
    yazici.SatirSonu();
    yazici.Yaz(3);
    EXPECT_EQ(yazici.Bayt(), "\"a\",1\r\n2\r\n3\r\n");
}

TEST(DegerYazici, A_quote_in_a_text_is_neither_doubled_nor_escaped_on_purpose) {
    DegerYazici yazici;
    yazici.Yaz(u"a\"b", u"c");
    EXPECT_EQ(yazici.Bayt(), "\"a\"b\",\"c\"\r\n");
    EXPECT_EQ(Hepsi(yazici.Bayt()), (Degerler{"a", "b\"", "c"}));
}

TEST(DegerYazici, Line_breaks_stand_in_the_file_as_they_are) {
    DegerYazici yazici;
    yazici.Yaz(u"a\r\nb\nc", 1);
    EXPECT_EQ(yazici.Bayt(), "\"a\r\nb\nc\",1\r\n");
    EXPECT_EQ(Hepsi(yazici.Bayt()), (Degerler{"a\r\nb\nc", "1"}));
}

} // namespace velora
