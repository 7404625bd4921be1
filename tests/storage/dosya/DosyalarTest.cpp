#include "storage/dosya/Dosyalar.h"

#include <gtest/gtest.h>

#include "storage/GeciciKok.h"

// Asking, listing and reading.
namespace velora {

using test::GeciciKok;

TEST(DosyalarVarMi, Is_true_for_a_plain_file_of_exactly_this_name) {
    const GeciciKok kok;
    kok.HamYaz(u"05.01.2012 - Gündüz", "");
    kok.KlasorYap(u"k");
    EXPECT_TRUE(kok.dosyalar.VarMi(kok.Yol(u"05.01.2012 - Gündüz")));
    EXPECT_FALSE(kok.dosyalar.VarMi(kok.Yol(u"05.01.2012 - Gece")));
    EXPECT_FALSE(kok.dosyalar.VarMi(kok.Yol(u"05.01.2012")));
    EXPECT_FALSE(kok.dosyalar.VarMi(kok.Yol(u"k")));
    EXPECT_FALSE(kok.dosyalar.VarMi(kok.Yol(u"05.01.2012 - *")));
}

TEST(DosyalarListele, Puts_Gider_after_the_day_files_and_Detay_before_Odeme) {
    const GeciciKok kok;
    for (const MetinBakis ad : {u"Gider.dat", u"05.01.2012 - Gündüz-Odeme", u"05.01.2012 - gece",
                                u"05.01.2012 - Gündüz", u"31.12.2012 - Gece", u"05.01.2012 - Gündüz-Detay"})
        kok.HamYaz(ad, "");
    EXPECT_EQ(kok.dosyalar.Listele(kok.dosyalar.Kok()),
              (std::vector<Metin>{u"05.01.2012 - gece", u"05.01.2012 - Gündüz", u"05.01.2012 - Gündüz-Detay",
                                  u"05.01.2012 - Gündüz-Odeme", u"31.12.2012 - Gece", u"Gider.dat"}));
}

TEST(DosyalarListele, Names_files_only) {
    const GeciciKok kok;
    kok.KlasorYap(u"A/2012");
    kok.HamYaz(u"Salon.dat", "");
    kok.HamYaz(u"A/x", "");
    EXPECT_EQ(kok.dosyalar.Listele(kok.dosyalar.Kok()), (std::vector<Metin>{u"Salon.dat"}));
    EXPECT_EQ(kok.dosyalar.Listele(kok.Yol(u"A")), (std::vector<Metin>{u"x"}));
    EXPECT_TRUE(kok.dosyalar.Listele(kok.Yol(u"A\\2012")).empty());
}

TEST(DosyalarListele, A_folder_that_is_not_there_lists_nothing) {
    const GeciciKok kok;
    kok.HamYaz(u"a", "");
    EXPECT_TRUE(kok.dosyalar.Listele(kok.Yol(u"yok")).empty());
    EXPECT_TRUE(kok.dosyalar.Listele(kok.Yol(u"a")).empty());
}

TEST(DosyalarOku, Gives_the_whole_file) {
    const GeciciKok kok;
    const std::string buyuk(300'001, 'x');
    kok.HamYaz(u"a", std::string("a\0\r\n\xFF", 5));
    kok.HamYaz(u"bos", "");
    kok.HamYaz(u"buyuk", buyuk);
    EXPECT_EQ(kok.dosyalar.Oku(kok.Yol(u"a")), std::string("a\0\r\n\xFF", 5));
    EXPECT_EQ(kok.dosyalar.Oku(kok.Yol(u"bos")), "");
    EXPECT_EQ(kok.dosyalar.Oku(kok.Yol(u"buyuk")), buyuk);
}

TEST(DosyalarOku, Gives_nothing_for_a_missing_file_or_a_folder) {
    const GeciciKok kok;
    kok.KlasorYap(u"k");
    EXPECT_FALSE(kok.dosyalar.Oku(kok.Yol(u"yok")));
    EXPECT_FALSE(kok.dosyalar.Oku(kok.Yol(u"k")));
    EXPECT_FALSE(kok.dosyalar.Oku(kok.Yol(u"k\\yok")));
}

TEST(DosyalarOku, A_file_too_large_for_the_memory_is_not_read) {
    const GeciciKok kok;
    kok.HamYaz(u"a", "x");
    std::filesystem::resize_file(kok.Ham(u"a"), 64ULL << 30U);
    EXPECT_FALSE(kok.dosyalar.Oku(kok.Yol(u"a")));
}

TEST(Dosyalar, A_root_that_is_not_there_fails_in_silence) {
    const GeciciKok kok;
    const Dosyalar yok(kok.yol / "yok" / "daha");
    EXPECT_TRUE(yok.Listele(yok.Kok()).empty());
    EXPECT_FALSE(yok.VarMi(yok.Kok() + u"\\a"));
    EXPECT_FALSE(yok.Yaz(yok.Kok() + u"\\a", "x"));
    EXPECT_FALSE(yok.KlasorYap(yok.Kok() + u"\\a"));
}

} // namespace velora
