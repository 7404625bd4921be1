#include "storage/dosya/Dosyalar.h"

#include <gtest/gtest.h>

#include "storage/DosyaAgaci.h"

// Asking, listing and reading.
namespace velora {

using test::DosyaAgaci;

TEST(DosyalarVarMi, Is_true_for_a_plain_file_of_exactly_this_name) {
    const DosyaAgaci kok;
    kok.Koy(u"05.01.2012 - Gündüz", "");
    kok.KlasorKoy(u"k");
    EXPECT_TRUE(kok.dosyalar.VarMi(kok.TamYol(u"05.01.2012 - Gündüz")));
    EXPECT_FALSE(kok.dosyalar.VarMi(kok.TamYol(u"05.01.2012 - Gece")));
    EXPECT_FALSE(kok.dosyalar.VarMi(kok.TamYol(u"05.01.2012")));
    EXPECT_FALSE(kok.dosyalar.VarMi(kok.TamYol(u"k")));
    EXPECT_FALSE(kok.dosyalar.VarMi(kok.TamYol(u"05.01.2012 - *")));
}

TEST(DosyalarListele, Puts_Gider_after_the_day_files_and_Detay_before_Odeme) {
    const DosyaAgaci kok;
    for (const MetinBakis ad : {u"Gider.dat", u"05.01.2012 - Gündüz-Odeme", u"05.01.2012 - gece",
                                u"05.01.2012 - Gündüz", u"31.12.2012 - Gece", u"05.01.2012 - Gündüz-Detay"})
        kok.Koy(ad, "");
    EXPECT_EQ(kok.dosyalar.Listele(kok.dosyalar.Kok()),
              (std::vector<Metin>{u"05.01.2012 - gece", u"05.01.2012 - Gündüz", u"05.01.2012 - Gündüz-Detay",
                                  u"05.01.2012 - Gündüz-Odeme", u"31.12.2012 - Gece", u"Gider.dat"}));
}

TEST(DosyalarListele, Names_files_only) {
    const DosyaAgaci kok;
    kok.KlasorKoy(u"A/2012");
    kok.Koy(u"Salon.dat", "");
    kok.Koy(u"A/x", "");
    EXPECT_EQ(kok.dosyalar.Listele(kok.dosyalar.Kok()), (std::vector<Metin>{u"Salon.dat"}));
    EXPECT_EQ(kok.dosyalar.Listele(kok.TamYol(u"A")), (std::vector<Metin>{u"x"}));
    EXPECT_TRUE(kok.dosyalar.Listele(kok.TamYol(u"A\\2012")).empty());
}

TEST(DosyalarListele, A_folder_that_is_not_there_lists_nothing) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "");
    EXPECT_TRUE(kok.dosyalar.Listele(kok.TamYol(u"yok")).empty());
    EXPECT_TRUE(kok.dosyalar.Listele(kok.TamYol(u"a")).empty());
}

TEST(DosyalarOku, Gives_the_whole_file) {
    const DosyaAgaci kok;
    const std::string buyuk(300'001, 'x');
    kok.Koy(u"a", std::string("a\0\r\n\xFF", 5));
    kok.Koy(u"bos", "");
    kok.Koy(u"buyuk", buyuk);
    EXPECT_EQ(kok.dosyalar.Oku(kok.TamYol(u"a")), std::string("a\0\r\n\xFF", 5));
    EXPECT_EQ(kok.dosyalar.Oku(kok.TamYol(u"bos")), "");
    EXPECT_EQ(kok.dosyalar.Oku(kok.TamYol(u"buyuk")), buyuk);
}

TEST(DosyalarOku, Gives_nothing_for_a_missing_file_or_a_folder) {
    const DosyaAgaci kok;
    kok.KlasorKoy(u"k");
    EXPECT_FALSE(kok.dosyalar.Oku(kok.TamYol(u"yok")));
    EXPECT_FALSE(kok.dosyalar.Oku(kok.TamYol(u"k")));
    EXPECT_FALSE(kok.dosyalar.Oku(kok.TamYol(u"k\\yok")));
}

TEST(DosyalarOku, A_file_too_large_for_the_memory_is_not_read) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "x");
    std::filesystem::resize_file(kok.Yol(u"a"), 64ULL << 30U);
    EXPECT_FALSE(kok.dosyalar.Oku(kok.TamYol(u"a")));
}

TEST(Dosyalar, A_root_that_is_not_there_fails_in_silence) {
    const DosyaAgaci kok;
    const Dosyalar yok(kok.Kok() / "yok" / "daha");
    EXPECT_TRUE(yok.Listele(yok.Kok()).empty());
    EXPECT_FALSE(yok.VarMi(yok.Kok() + u"\\a"));
    EXPECT_FALSE(yok.Yaz(yok.Kok() + u"\\a", "x"));
    EXPECT_FALSE(yok.KlasorYap(yok.Kok() + u"\\a"));
}

} // namespace velora
