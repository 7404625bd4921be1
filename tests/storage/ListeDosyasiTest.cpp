#include "storage/ListeDosyasi.h"

#include <gtest/gtest.h>

#include "storage/DosyaAgaci.h"

namespace velora::test {

using Satirlar = std::vector<SutunMetinleri>;

TEST(ListeDosyasi, Records_are_read_column_by_column_in_the_order_of_the_file) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "\"\xDEi\xFEli\",\"1\"\r\n\r\n\"B\",\"2\r\n3\"\r\n");
    EXPECT_EQ(SatirlariOku(kok.dosyalar, kok.TamYol(u"a"), 2),
              (Satirlar{{u"Şişli", u"1"}, {u"B", u"2\r\n3"}}));
}

TEST(ListeDosyasi, A_missing_and_an_empty_file_give_no_records) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "");
    EXPECT_TRUE(SatirlariOku(kok.dosyalar, kok.TamYol(u"a"), 2).empty());
    EXPECT_TRUE(SatirlariOku(kok.dosyalar, kok.TamYol(u"b"), 2).empty());
}

TEST(ListeDosyasi, A_cut_off_last_record_keeps_the_values_of_the_one_before_as_is_meant) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "\"A\",\"1\"\r\n\"  \",\"2\"\r\n\"C\"");
    EXPECT_EQ(SatirlariOku(kok.dosyalar, kok.TamYol(u"a"), 2), (Satirlar{{u"A", u"1"}, {u"C", u"2"}}));
}

TEST(ListeDosyasi, Records_are_written_one_on_a_line_and_uncleaned) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "an older and longer text that goes\r\n");
    EXPECT_TRUE(SatirlariYaz(kok.dosyalar, kok.TamYol(u"a"), {{u"Ş", u"a \"b\", c"}, {u"", u"x"}}));
    EXPECT_EQ(kok.Oku(u"a"), "\"\xDE\",\"a \"b\", c\"\r\n\"\",\"x\"\r\n");
    EXPECT_TRUE(SatirlariYaz(kok.dosyalar, kok.TamYol(u"a"), {}));
    EXPECT_EQ(kok.Oku(u"a"), "");
}

TEST(ListeDosyasi, A_full_disk_leaves_the_old_list) {
    DosyaAgaci kok;
    kok.Koy(u"a", "\"A\"\r\n");
    kok.dosyalar.bosYer = 3;
    EXPECT_FALSE(SatirlariYaz(kok.dosyalar, kok.TamYol(u"a"), {{u"A"}, {u"B"}}));
    EXPECT_EQ(kok.Oku(u"a"), "\"A\"\r\n");
}

} // namespace velora::test
