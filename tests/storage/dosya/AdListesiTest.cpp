#include "storage/dosya/AdListesi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "storage/dosya/Dosyalar.h"

namespace velora {
namespace {

std::vector<Metin> Sirali(const std::vector<Metin>& adlar) {
    AdListesi liste;
    for (const Metin& ad : adlar)
        liste.Ekle(ad);
    liste.Sirala();
    std::vector<Metin> sonuc;
    for (std::size_t i = 0; i < liste.Sayi(); ++i)
        sonuc.emplace_back(liste[i]);
    return sonuc;
}

} // namespace

TEST(AdSirasi, Goes_by_letters_without_their_case) {
    EXPECT_TRUE(AdSirasi(u"a", u"B"));
    EXPECT_TRUE(AdSirasi(u"A", u"b"));
    EXPECT_FALSE(AdSirasi(u"b", u"A"));
    EXPECT_TRUE(AdSirasi(u"GECE", u"gecf"));
    EXPECT_TRUE(AdSirasi(u"05.01.2012 - gece", u"05.01.2012 - Gündüz"));
    EXPECT_TRUE(AdSirasi(u"Ü", u"ý"));
    EXPECT_FALSE(AdSirasi(u"ü", u"Ü")) << "the plain order decides between names that differ only in case";
    EXPECT_TRUE(AdSirasi(u"Ü", u"ü"));
}

TEST(AdSirasi, A_name_comes_before_its_own_continuation) {
    EXPECT_TRUE(AdSirasi(u"05.01.2012 - Gece", u"05.01.2012 - Gece-Detay"));
    EXPECT_TRUE(AdSirasi(u"", u"a"));
    EXPECT_FALSE(AdSirasi(u"a", u"a"));
}

TEST(AdSirasi, The_day_counts_before_the_month) {
    EXPECT_TRUE(AdSirasi(u"01.02.2012 - Gece", u"02.01.2012 - Gece"));
}

TEST(AdListesi, Puts_names_into_the_same_order_as_AdSirasi) {
    std::mt19937 rastgele(34);
    const Metin harfler = Metin(u"aAbBzZ09. -üÜğĞıİşŞÿŸ\u0411\u0431");
    std::uniform_int_distribution<std::size_t> harf(0, harfler.size() - 1);
    std::uniform_int_distribution<int> uzunluk(1, 12);
    for (int tur = 0; tur < 300; ++tur) {
        std::vector<Metin> adlar(60);
        for (Metin& ad : adlar)
            for (int i = uzunluk(rastgele); i > 0; --i)
                ad += harfler[harf(rastgele)];
        std::vector<Metin> beklenen = adlar;
        std::sort(beklenen.begin(), beklenen.end(), AdSirasi);
        ASSERT_EQ(Sirali(adlar), beklenen);
    }
}

TEST(AyniAd, Goes_by_letters_without_their_case) {
    EXPECT_TRUE(AyniAd(u"05.01.2012 - GÜNDÜZ", u"05.01.2012 - Gündüz"));
    EXPECT_FALSE(AyniAd(u"Işık", u"IŞIK")) << "ı is a letter of its own";
    EXPECT_TRUE(AyniAd(u"iş", u"IŞ"));
    EXPECT_FALSE(AyniAd(u"Gece", u"Gec"));
    EXPECT_FALSE(AyniAd(u"", u"a"));
}

TEST(AdListesi, Gives_names_in_the_form_of_the_program_and_keeps_how_they_stand_on_the_disk) {
    const Metin ham = Metin(u"G") + char16_t{0xDCFC} + u"l";
    AdListesi liste;
    for (const Metin& ad : {Metin(u"Gu\u0308m"), ham, Metin(u"Göl")})
        liste.Ekle(ad);
    liste.Sirala();
    ASSERT_EQ(liste.Sayi(), 3U);
    EXPECT_EQ(liste[0], u"Göl");
    EXPECT_EQ(liste[1], u"Gül");
    EXPECT_EQ(liste.Diskteki(1), ham);
    EXPECT_EQ(liste[2], u"Güm");
    EXPECT_EQ(liste.Diskteki(2), u"Gu\u0308m");
}

TEST(AdListesi, Letters_beyond_one_byte_do_not_let_later_letters_decide) {
    const std::vector<Metin> adlar{u"Şa", u"Ğz"};
    EXPECT_EQ(Sirali(adlar), (std::vector<Metin>{u"Ğz", u"Şa"}));
}

} // namespace velora
