#include "maintenance/FormResmiTatil.h"

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"

namespace velora::test {

class FormResmiTatilTest : public ::testing::Test {
  protected:
    std::vector<std::vector<Metin>> Satirlar() {
        std::vector<std::vector<Metin>> satirlar;
        for (const ListeSatiri& satir : program.FormResmiTatil->Liste.satirlar)
            satirlar.push_back(satir.sutun);
        return satirlar;
    }
    using Beklenen = std::vector<std::vector<Metin>>;

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
};

TEST_F(FormResmiTatilTest, First_reading_loads_the_file) {
    agac.Koy(u"Tatiller.dll",
             "\"23.04.2010\",\"Ulusal Egemenlik ve \xC7ocuk Bayram\xFD\",\"Evet\",\"Genel\"\r\n"
             "\"05.06.2012\",\"Kurulu\xFE\",\"Hay\xFDr\",\"\xD6zel\"\r\n");
    EXPECT_EQ(Satirlar(), (Beklenen{{u"23.04.2010", u"Ulusal Egemenlik ve Çocuk Bayramı", u"Evet", u"Genel"},
                                    {u"05.06.2012", u"Kuruluş", u"Hayır", u"Özel"}}));
}

TEST_F(FormResmiTatilTest, Missing_file_gives_an_empty_list) {
    EXPECT_TRUE(Satirlar().empty());
}

TEST_F(FormResmiTatilTest, Row_with_an_empty_date_is_left_out_and_the_rest_is_read) {
    agac.Koy(u"Tatiller.dll", "\"\",\"a\",\"Evet\",\"Genel\"\r\n\" \",\"b\",\"Evet\",\"Genel\"\r\n"
                              "\"01.01.2012\",\"c\",\"Evet\",\"Genel\"\r\n");
    EXPECT_EQ(Satirlar(), (Beklenen{{u"01.01.2012", u"c", u"Evet", u"Genel"}}));
}

TEST_F(FormResmiTatilTest, Trailing_blank_line_repeats_no_row) {
    agac.Koy(u"Tatiller.dll", "\"01.01.2012\",\"c\",\"Evet\",\"Genel\"\r\n\r\n\n \r\n");
    EXPECT_EQ(Satirlar().size(), 1U);
}

// A record that is cut off keeps the values of the one before it.
TEST_F(FormResmiTatilTest, Cut_off_last_row_keeps_the_values_of_the_row_before_on_purpose) {
    agac.Koy(u"Tatiller.dll", "\"01.01.2012\",\"c\",\"Evet\",\"Genel\"\r\n\"02.01.2012\",\"d\"");
    EXPECT_EQ(Satirlar().back(), (std::vector<Metin>{u"02.01.2012", u"d", u"Evet", u"Genel"}));
}

TEST_F(FormResmiTatilTest, Garbage_ends_the_reading_and_hangs_nothing) {
    agac.Koy(u"Tatiller.dll", std::string("\0\xFF,,\"", 5) + std::string(100'000, ','));
    EXPECT_FALSE(Satirlar().empty());
}

} // namespace velora::test
