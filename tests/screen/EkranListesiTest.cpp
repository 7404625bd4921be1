// The one list of all screens.
#include "screen/EkranListesi.h"

#include <set>

#include <gtest/gtest.h>

namespace velora::test {

TEST(EkranListesi, Is_found_by_the_constant_of_a_screen) {
    EXPECT_EQ(EkranBul(EkranAdi::Splash).ad, u"Splash");
    EXPECT_EQ(EkranBul(EkranAdi::FormKayit).ad, u"FormKayit");
    EXPECT_EQ(EkranBul(EkranAdi::FormWebteYayinla).ad, u"FormWebteYayinla");
    std::set<MetinBakis> adlar;
    for (const EkranKaydi& kayit : kEkranlar) {
        EXPECT_EQ(EkranBul(kayit.ekran).ad, kayit.ad);
        EXPECT_TRUE(adlar.insert(kayit.ad).second);
    }
}

TEST(EkranListesi, Tells_which_screens_have_a_window) {
    EXPECT_EQ(EkranBul(EkranAdi::FormTablo).tur, EkranTuru::Pencereli);
    EXPECT_EQ(EkranBul(EkranAdi::FormPrint).tur, EkranTuru::Penceresiz);
}

} // namespace velora::test
