#include <gtest/gtest.h>

#include "storage/gunluk/GunlukKaydi.h"

namespace velora {
namespace {

EylemKaydi OrnekEylem() {
    return {7,
            u"Rezervasyon taşıma",
            u"zeynep",
            u"2012-06-15 09:05:59",
            {{.yol = u"\\Gül\\2012\\05.01.2012 - Gece", .once = "ilk 1 son", .sonra = "ilk 22 son"},
             {.yol = u"\\yeni", .once = {}, .sonra = std::string("a\0b,\n#E", 7)},
             {.yol = u"\\giden", .once = "", .sonra = {}},
             {.yol = u"\\okunmayan", .onceBilinir = false, .once = {}, .sonra = "metin"},
             {.tur = EylemAdimi::Tur::Klasor, .yol = u"\\Gül\\2013", .once = {}, .sonra = {}}}};
}

/// The records of the bytes from their beginning on.
std::vector<GunlukKaydi> Hepsi(const std::string& bayt) {
    std::vector<GunlukKaydi> kayitlar;
    std::size_t konum = 0;
    while (auto kayit = KayitOku(bayt, konum))
        kayitlar.push_back(*kayit);
    EXPECT_EQ(konum, bayt.size());
    return kayitlar;
}

} // namespace

TEST(GunlukKaydi, The_checksum_is_the_one_that_archives_have) {
    EXPECT_EQ(Crc32(""), 0U);
    EXPECT_EQ(Crc32("123456789"), 0xCBF43926U);
}

TEST(GunlukKaydi, A_mark_stands_in_these_bytes) {
    EXPECT_EQ(KayitBaytlari(BittiKaydi{12}), "#B 0000000000000005 7854b30b\n2:12,\n");
}

TEST(GunlukKaydi, What_the_texts_before_and_after_have_in_common_stands_once) {
    const std::string bayt =
        KayitBaytlari(EkKaydi{3, {{.yol = u"\\ş", .once = "aaaa 1 bbbb", .sonra = "aaaa 234 bbbb"}}});
    EXPECT_EQ(bayt.substr(bayt.find('\n')), "\n1:3,1:1,3:D++,3:\\\xC5\x9F,5:aaaa ,1:1,3:234,5: bbbb,\n");
}

TEST(GunlukKaydi, Each_kind_of_record_comes_back_as_it_was) {
    const std::vector<GunlukKaydi> kayitlar{
        OrnekEylem(), EkKaydi{7, {{.yol = u"\\ek", .once = "aa", .sonra = "a"}}}, BittiKaydi{7},
        OnarimKaydi{8, u"2012-06-16 10:00:00", {u"+\\bir", u"-\\iki"}}};
    std::string bayt;
    for (const GunlukKaydi& kayit : kayitlar)
        bayt += KayitBaytlari(kayit);
    EXPECT_EQ(Hepsi(bayt), kayitlar);
}

TEST(GunlukKaydi, A_record_that_is_cut_off_anywhere_is_none) {
    const std::string bayt = KayitBaytlari(OrnekEylem());
    for (std::size_t boy = 0; boy < bayt.size(); ++boy) {
        std::size_t konum = 0;
        ASSERT_FALSE(KayitOku(bayt.substr(0, boy), konum)) << boy;
        ASSERT_EQ(konum, 0U);
    }
}

TEST(GunlukKaydi, A_record_of_which_any_byte_is_another_one_is_none) {
    const std::string saglam = KayitBaytlari(OrnekEylem());
    for (std::size_t yer = 0; yer < saglam.size(); ++yer) {
        std::string bayt = saglam;
        bayt[yer] = static_cast<char>(bayt[yer] ^ 1);
        std::size_t konum = 0;
        ASSERT_FALSE(KayitOku(bayt, konum)) << yer;
    }
}

} // namespace velora
