#include "storage/dosya/YazmaAkisi.h"

#include <gtest/gtest.h>

#include "storage/DosyaAgaci.h"

// A file that is written piece by piece, on a real disk.
namespace velora {

using test::DosyaAgaci;

TEST(YazmaAkisi, The_pieces_stand_behind_each_other_and_nothing_of_a_longer_old_file_is_left) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "what stood here before is longer");
    for (const MetinBakis ad : {u"a", u"yeni"}) {
        const auto akis = kok.dosyalar.AkisAc(kok.TamYol(ad));
        ASSERT_TRUE(akis);
        EXPECT_EQ(kok.Bayt(ad), "") << "emptied when it is opened";
        EXPECT_TRUE(akis->Yaz("bir,"));
        EXPECT_EQ(kok.Bayt(ad), "bir,") << "it holds what has come";
        EXPECT_TRUE(akis->Yaz(std::string_view("\0iki", 4)));
        EXPECT_TRUE(akis->Kapat());
        EXPECT_EQ(kok.Bayt(ad), std::string("bir,\0iki", 8));
    }
}

TEST(YazmaAkisi, One_that_goes_on_keeps_what_stands_before_its_place_and_nothing_behind) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "0123456789");
    const auto akis = kok.dosyalar.AkisAc(kok.TamYol(u"a"), 4);
    ASSERT_TRUE(akis);
    EXPECT_TRUE(akis->Yaz("xy"));
    EXPECT_EQ(kok.Bayt(u"a"), "0123xy");
}

TEST(YazmaAkisi, One_that_would_go_on_behind_the_end_is_none_and_makes_no_file) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "012");
    EXPECT_FALSE(kok.dosyalar.AkisAc(kok.TamYol(u"a"), 4));
    EXPECT_EQ(kok.Bayt(u"a"), "012");
    EXPECT_FALSE(kok.dosyalar.AkisAc(kok.TamYol(u"yok"), 4));
    EXPECT_FALSE(kok.Var(u"yok"));
}

TEST(YazmaAkisi, There_is_none_for_a_folder_a_path_outside_and_in_a_folder_that_is_not_there) {
    const DosyaAgaci kok;
    kok.KlasorKoy(u"k");
    EXPECT_FALSE(kok.dosyalar.AkisAc(kok.TamYol(u"k")));
    EXPECT_FALSE(kok.dosyalar.AkisAc(kok.TamYol(u"yok\\a")));
    EXPECT_FALSE(kok.dosyalar.AkisAc(kok.TamYol(u"..\\a")));
    EXPECT_FALSE(kok.dosyalar.AkisAc(u"a"));
}

TEST(YazmaAkisi, A_disk_that_gets_full_takes_the_pieces_that_fit) {
    DosyaAgaci kok;
    kok.Koy(u"a", "old");
    kok.dosyalar.bosYer = 7;
    const auto akis = kok.dosyalar.AkisAc(kok.TamYol(u"a"));
    ASSERT_TRUE(akis);
    EXPECT_TRUE(akis->Yaz("12345"));
    EXPECT_FALSE(akis->Yaz("678"));
}

TEST(YazmaAkisi, A_bad_disk_fails_at_the_opening_or_at_a_piece) {
    DosyaAgaci kok;
    int is = 0;
    int bozuk = 1;
    kok.dosyalar.ariza = [&](DosyaIsi ne, const Metin& yol) {
        EXPECT_EQ(ne, DosyaIsi::Yaz);
        EXPECT_EQ(yol, kok.TamYol(u"a"));
        return ++is == bozuk;
    };
    EXPECT_FALSE(kok.dosyalar.AkisAc(kok.TamYol(u"a")));
    is = 0;
    bozuk = 3;
    const auto akis = kok.dosyalar.AkisAc(kok.TamYol(u"a"));
    ASSERT_TRUE(akis);
    EXPECT_TRUE(akis->Yaz("1"));
    EXPECT_FALSE(akis->Yaz("2"));
}

TEST(BosAlan, Is_that_of_the_disk_also_for_what_is_not_there_yet) {
    DosyaAgaci kok;
    const auto gercek = std::filesystem::space(kok.Kok()).available;
    const auto yakin = [&](const std::optional<std::uint64_t>& alan) {
        // Others write to the disk meanwhile.
        return alan && *alan > gercek / 2 && *alan < gercek * 2;
    };
    kok.Koy(u"a", "x");
    EXPECT_TRUE(yakin(kok.dosyalar.BosAlan(kok.TamYol(u"a"))));
    EXPECT_TRUE(yakin(kok.dosyalar.BosAlan(kok.TamYol(u"yok\\hic\\b"))));
    EXPECT_FALSE(kok.dosyalar.BosAlan(u"b")) << "not below the root";
    kok.dosyalar.bosYer = 12;
    EXPECT_EQ(kok.dosyalar.BosAlan(kok.TamYol(u"a")), 12U);
}

} // namespace velora
