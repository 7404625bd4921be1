#include "storage/dosya/AdListesi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

#include "storage/dosya/Dosyalar.h"

namespace velora {
namespace {

std::vector<Metin> Sirali(const std::vector<Metin>& adlar) {
    AdListesi liste;
    for (const Metin& ad : adlar)
        liste.Ekle({std::filesystem::path(ad).native()});
    liste.Sirala();
    std::vector<Metin> sonuc;
    for (std::size_t i = 0; i < liste.Sayi(); ++i)
        sonuc.emplace_back(liste[i]);
    return sonuc;
}

/// The list has all the names, each where what it reads as belongs.
void OkunduguGibiSiralanir(std::vector<std::string> adlar) {
    AdListesi liste;
    for (const std::string& ad : adlar)
        liste.Ekle({ad});
    liste.Sirala();
    std::vector<std::string> diskte;
    for (std::size_t i = 0; i < liste.Sayi(); ++i) {
        diskte.emplace_back(liste.Diskteki(i));
        const Metin ad(liste[i]);
        ASSERT_TRUE(i + 1 == liste.Sayi() || !AdSirasi(liste[i + 1], ad)) << diskte.back();
        ASSERT_EQ(liste[*liste.Bul(ad)], ad);
    }
    std::sort(adlar.begin(), adlar.end());
    std::sort(diskte.begin(), diskte.end());
    ASSERT_EQ(diskte, adlar);
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

TEST(AdListesi, Puts_names_as_the_program_makes_them_into_the_same_order_wherever_they_differ) {
    std::mt19937 rastgele(57);
    const std::vector<Metin> parcalar{u"17.06.2012", u"02.11.2013", u" - Gündüz", u" - GÜNDÜZ", u" - Gece",
                                      u"-Detay",     u"-Odeme",     u"ü",         u"Ü",         u"÷",
                                      u"þ",          u"ß",          u"ÿ",         u"à",         u"Ş",
                                      u"`{@[z",      u"AZaz",       u"\u2013",    u"x"};
    std::uniform_int_distribution<std::size_t> parca(0, parcalar.size() - 1);
    std::uniform_int_distribution<int> uzunluk(1, 6);
    for (int tur = 0; tur < 300; ++tur) {
        std::vector<Metin> adlar(60);
        for (Metin& ad : adlar) {
            ad = tur % 2 == 0 ? Metin() : Metin(u"17.06.2012 - Gündüz");
            for (int i = uzunluk(rastgele); i > 0; --i)
                ad += parcalar[parca(rastgele)];
        }
        std::vector<Metin> beklenen = adlar;
        std::sort(beklenen.begin(), beklenen.end(), AdSirasi);
        ASSERT_EQ(Sirali(adlar), beklenen);
    }
}

TEST(AdListesi, Puts_names_of_any_bytes_into_the_order_of_what_they_read_as) {
    std::mt19937 rastgele(58);
    const std::string_view baytlar = "aAz.-\xC3\xC3\xC3\xBC\x9C\xB7\xBF\x80\xC4\xB1\xCC\x88\xE2\xFF";
    std::uniform_int_distribution<std::size_t> bayt(0, baytlar.size() - 1);
    std::uniform_int_distribution<int> uzunluk(1, 34);
    for (int tur = 0; tur < 300; ++tur) {
        std::vector<std::string> adlar(40);
        for (std::string& ad : adlar)
            for (int i = uzunluk(rastgele); i > 0; --i)
                ad += i % 3 == 0 ? "ü" : std::string(1, baytlar[bayt(rastgele)]);
        OkunduguGibiSiralanir(adlar);
    }
}

TEST(AdListesi, A_letter_of_two_bytes_with_eight_others_between_them_is_none) {
    std::vector<std::string> adlar;
    for (const std::string bas : {"aaaaaaa\xC3", "aaaaaaa\xC4", "aaaaaaa\xC3\x80", "aaaaaaab"})
        for (const std::string ara : {"11111111", "1111111\xC3"})
            for (const std::string son : {"\xBCz", "\x9Cz", "\xA7Z", "\xB7z", "az", "\xC3\xBCz"})
                adlar.push_back(bas + ara + son);
    OkunduguGibiSiralanir(adlar);
}

TEST(AdListesi, Tells_of_a_name_without_a_text_how_it_begins_and_ends) {
    AdListesi liste;
    for (const char* ad :
         {"1ü.a", "1ü.b", "17.06.2012 - Gece", "17.06.2012 - Gece-Detay", "17.06.2012 - Gece-Odeme",
          "18.06.2012 - Gece", "18.06.2012 - Gece-DETAY", "19.06.2012 - Gu\xCC\x88n",
          "19.06.2012 - Gün-Detay", "20.06.2012 - Gece", "20.06.2012 - GeceX-Detay", "kısa", "kısa-Detay"})
        liste.Ekle({ad});
    liste.Sirala();
    const auto yeri = [&](MetinBakis ad) { return *liste.Bul(ad); };
    EXPECT_FALSE(liste.BasiAyni(0, 1)) << "nothing stands before it";
    EXPECT_TRUE(liste.BasiAyni(yeri(u"17.06.2012 - Gece-Detay"), 10));
    EXPECT_TRUE(liste.BasiAyni(yeri(u"18.06.2012 - Gece-DETAY"), 17));
    EXPECT_FALSE(liste.BasiAyni(yeri(u"18.06.2012 - Gece-DETAY"), 30)) << "so many it hasn't";
    EXPECT_FALSE(liste.BasiAyni(yeri(u"18.06.2012 - Gece"), 10));
    EXPECT_FALSE(liste.BasiAyni(yeri(u"1ü.b"), 3)) << "bytes are no letters there";
    EXPECT_TRUE(liste.Biter(yeri(u"17.06.2012 - Gece-Detay"), u"Detay"));
    EXPECT_FALSE(liste.Biter(yeri(u"18.06.2012 - Gece-DETAY"), u"Detay"));
    EXPECT_FALSE(liste.Biter(yeri(u"1ü.a"), u"11ü.a"));
    EXPECT_TRUE(liste.EsiArkada(yeri(u"17.06.2012 - Gece"), u"-Detay"));
    EXPECT_TRUE(liste.EsiArkada(yeri(u"kısa"), u"-Detay"));
    EXPECT_FALSE(liste.EsiArkada(yeri(u"17.06.2012 - Gece"), u"-Odeme"));
    EXPECT_FALSE(liste.EsiArkada(yeri(u"17.06.2012 - Gece-Detay"), u"-Detay"));
    EXPECT_FALSE(liste.EsiArkada(yeri(u"18.06.2012 - Gece"), u"-Detay"));
    EXPECT_FALSE(liste.EsiArkada(yeri(u"19.06.2012 - Gün"), u"-Detay")) << "not by its bytes";
    EXPECT_FALSE(liste.EsiArkada(yeri(u"20.06.2012 - Gece"), u"-Detay")) << "of another name";
    EXPECT_FALSE(liste.EsiArkada(yeri(u"kısa-Detay"), u"-Detay")) << "nothing stands behind it";
}

TEST(AyniAd, Goes_by_letters_without_their_case) {
    EXPECT_TRUE(AyniAd(u"05.01.2012 - GÜNDÜZ", u"05.01.2012 - Gündüz"));
    EXPECT_FALSE(AyniAd(u"Işık", u"IŞIK")) << "ı is a letter of its own";
    EXPECT_TRUE(AyniAd(u"iş", u"IŞ"));
    EXPECT_FALSE(AyniAd(u"Gece", u"Gec"));
    EXPECT_FALSE(AyniAd(u"", u"a"));
}

TEST(AdListesi, Gives_names_in_the_form_of_the_program_and_keeps_how_they_stand_on_the_disk) {
    const std::vector<sistem::DiskAdi> adlar{"Gu\u0308m", "G\xFCl", "Göl"};
    AdListesi liste;
    for (const sistem::DiskAdi ad : adlar)
        liste.Ekle({ad});
    liste.Sirala();
    ASSERT_EQ(liste.Sayi(), 3U);
    EXPECT_EQ(liste[0], u"Göl");
    EXPECT_EQ(liste[1], u"Gül");
    EXPECT_EQ(liste.Diskteki(1), adlar[1]);
    EXPECT_EQ(liste[2], u"Güm");
    EXPECT_EQ(liste.Diskteki(2), adlar[0]);
    EXPECT_EQ(liste.Diskteki(2).data()[liste.Diskteki(2).size()], '\0');
    for (std::size_t i = 0; i < adlar.size(); ++i)
        EXPECT_TRUE(liste.Gelen(i, {adlar[i]}));
    EXPECT_FALSE(liste.Gelen(1, {adlar[2]}));
    EXPECT_FALSE(liste.Gelen(3, {adlar[2]}));
}

TEST(AdListesi, Of_equal_names_the_one_that_stands_so_on_the_disk_comes_first) {
    AdListesi liste;
    for (const sistem::DiskAdi ad : {"u\u0308", "\xFC", "ü", "Ü"})
        liste.Ekle({ad});
    liste.Sirala();
    EXPECT_EQ(liste[0], u"Ü");
    EXPECT_EQ(liste.Diskteki(1), sistem::DiskAdi("ü"));
    EXPECT_EQ(liste.Diskteki(2), sistem::DiskAdi("u\u0308"));
    EXPECT_EQ(liste.Diskteki(3), sistem::DiskAdi("\xFC"));
    EXPECT_EQ(liste.Bul(u"ü"), 1U);
    EXPECT_EQ(liste.Bul(u"Ü"), 0U);
    liste.Ekle({"Işık"});
    liste.Ekle({"iş"});
    liste.Ekle({"İŞ"});
    liste.Sirala();
    EXPECT_EQ(liste[*liste.Bul(u"IŞ")], u"iş") << "in another case";
    EXPECT_EQ(liste.Bul(u"û"), std::nullopt);
    EXPECT_EQ(liste.Bul(u"z"), std::nullopt);
}

TEST(AdListesi, Finds_the_same_name_whichever_was_looked_at_before) {
    AdListesi liste;
    for (const char* ad : {"15.06.2026 - Gece", "15.06.2026 - GeceDetay", "15.06.2026 - Gecedetay",
                           "15.06.2026 - Gündüz", "15.06.2026 - Gu\xCC\x88ndu\xCC\x88z",
                           "16.06.2026 - GeceOdeme", "16.06.2026 - gece", "a", "A", "Ğ", "\xD0\x91"})
        liste.Ekle({ad});
    liste.Sirala();
    std::vector<Metin> adlar{u"yok", u""};
    for (std::size_t i = 0; i < liste.Sayi(); ++i)
        adlar.emplace_back(liste[i]);
    for (const Metin& ad : adlar) {
        const auto yer = [&]() -> std::optional<std::size_t> {
            for (std::size_t i = 0; i < liste.Sayi(); ++i)
                if (liste[i] == ad)
                    return i;
            return {};
        }();
        for (std::size_t once = 0; once < liste.Sayi(); ++once) {
            const Metin bakilan(liste[once]);
            EXPECT_EQ(liste.Bul(ad), yer) << once;
            EXPECT_EQ(liste[once], bakilan);
        }
    }
}

TEST(AdListesi, Letters_beyond_one_byte_do_not_let_later_letters_decide) {
    const std::vector<Metin> adlar{u"Şa", u"Ğz"};
    EXPECT_EQ(Sirali(adlar), (std::vector<Metin>{u"Ğz", u"Şa"}));
}

} // namespace velora
