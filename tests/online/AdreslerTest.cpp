#include "online/Adresler.h"

#include "online/OnlineTest.h"

namespace velora::test {

using AdreslerTest = OnlineTest;

TEST_F(AdreslerTest, The_four_texts_of_the_file_come_without_blanks_about_the_addresses) {
    agac.Koy(u"Adresler.dat", "\" http://a/ \",\"http://b/c \",\" http://d\",\" \xDEirket \"\r\n");
    const Adresler adresler = AdresleriOku(program);
    EXPECT_EQ(adresler.servis, u"http://a/");
    EXPECT_EQ(adresler.site, u"http://b/c");
    EXPECT_EQ(adresler.yardim, u"http://d");
    EXPECT_EQ(adresler.satir, u" Şirket ");
}

TEST_F(AdreslerTest, Without_the_file_or_with_a_short_one_all_are_empty) {
    agac.Koy(u"Adresler.dat", "\"http://a/\",\"http://b/\",\"http://d/\"\r\n");
    for (int i = 0; i < 2; ++i) {
        const Adresler adresler = AdresleriOku(program);
        EXPECT_EQ(adresler.servis, u"");
        EXPECT_EQ(adresler.site, u"");
        EXPECT_EQ(adresler.yardim, u"");
        EXPECT_EQ(adresler.satir, u"");
        std::filesystem::remove(agac.Yol(u"Adresler.dat"));
    }
}

} // namespace velora::test
