#include <gtest/gtest.h>

#include "storage/GeciciKok.h"

// Writing, appending, copying and removing, on a real disk.
namespace velora {
namespace {

using test::GeciciKok;

const std::string kOnceki = "\"eski\",1\r\n";
const std::string kSonraki = "\"yeni ve uzun\",0\r\n";

} // namespace

TEST(DosyalarYaz, Leaves_exactly_the_bytes_whatever_stood_there) {
    const GeciciKok kok;
    for (const std::string& bayt :
         {kOnceki, kSonraki, kOnceki, std::string("\0\n\xFF", 3), std::string(), kSonraki}) {
        EXPECT_TRUE(kok.dosyalar.Yaz(kok.Yol(u"a"), bayt));
        EXPECT_EQ(kok.HamOku(u"a"), bayt);
    }
}

TEST(DosyalarYaz, Fails_in_a_folder_that_is_not_there_and_makes_none) {
    const GeciciKok kok;
    EXPECT_FALSE(kok.dosyalar.Yaz(kok.Yol(u"yok\\a"), kSonraki));
    EXPECT_FALSE(kok.HamVar(u"yok"));
}

TEST(DosyalarYaz, Fails_where_a_folder_has_the_name) {
    const GeciciKok kok;
    kok.KlasorYap(u"a");
    EXPECT_FALSE(kok.dosyalar.Yaz(kok.Yol(u"a"), kSonraki));
    EXPECT_TRUE(std::filesystem::is_directory(kok.Ham(u"a")));
}

TEST(DosyalarYaz, A_full_disk_leaves_the_old_record) {
    GeciciKok kok;
    kok.HamYaz(u"a", kOnceki);
    for (std::size_t yer = 0; yer < kSonraki.size() - kOnceki.size(); ++yer) {
        kok.dosyalar.bosYer = yer;
        EXPECT_FALSE(kok.dosyalar.Yaz(kok.Yol(u"a"), kSonraki));
        EXPECT_EQ(kok.HamOku(u"a"), kOnceki);
    }
    kok.dosyalar.bosYer = kSonraki.size() - kOnceki.size();
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.Yol(u"a"), kSonraki));
    EXPECT_EQ(kok.HamOku(u"a"), kSonraki);
}

TEST(DosyalarYaz, A_full_disk_still_takes_a_shorter_record) {
    GeciciKok kok;
    kok.HamYaz(u"a", kSonraki);
    kok.dosyalar.bosYer = 0;
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.Yol(u"a"), kOnceki));
    EXPECT_EQ(kok.HamOku(u"a"), kOnceki);
}

TEST(DosyalarYaz, A_new_file_that_cannot_be_put_down_whole_is_gone) {
    GeciciKok kok;
    for (std::size_t yer = 0; yer < kSonraki.size(); ++yer) {
        kok.dosyalar.bosYer = yer;
        EXPECT_FALSE(kok.dosyalar.Yaz(kok.Yol(u"a"), kSonraki));
        EXPECT_FALSE(kok.HamVar(u"a")) << yer;
    }
    kok.dosyalar.bosYer = kSonraki.size();
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.Yol(u"a"), kSonraki));
}

TEST(DosyalarYaz, A_huge_stray_file_in_the_place_of_a_record_is_written_over) {
    const GeciciKok kok;
    kok.HamYaz(u"a", "x");
    std::filesystem::resize_file(kok.Ham(u"a"), 3ULL << 30U);
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.Yol(u"a"), kSonraki));
    EXPECT_EQ(kok.HamOku(u"a"), kSonraki);
}

TEST(DosyalarYaz, Keeps_the_file_itself_so_that_other_names_of_it_see_the_new_text) {
    const GeciciKok kok;
    kok.HamYaz(u"a", kOnceki);
    std::filesystem::create_hard_link(kok.Ham(u"a"), kok.Ham(u"b"));
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.Yol(u"a"), kSonraki));
    EXPECT_EQ(kok.HamOku(u"b"), kSonraki);
}

TEST(DosyalarYaz, Leaves_no_other_file_beside_the_one_it_writes) {
    const GeciciKok kok;
    kok.dosyalar.Yaz(kok.Yol(u"a"), kOnceki);
    kok.dosyalar.Yaz(kok.Yol(u"a"), kSonraki);
    EXPECT_EQ(kok.dosyalar.Listele(kok.dosyalar.Kok()), (std::vector<Metin>{u"a"}));
}

TEST(DosyalarEkle, Makes_the_file_and_then_puts_records_behind) {
    const GeciciKok kok;
    EXPECT_TRUE(kok.dosyalar.Ekle(kok.Yol(u"a"), kOnceki));
    EXPECT_TRUE(kok.dosyalar.Ekle(kok.Yol(u"a"), kSonraki));
    EXPECT_EQ(kok.HamOku(u"a"), kOnceki + kSonraki);
}

TEST(DosyalarEkle, Nothing_to_append_makes_an_empty_file) {
    const GeciciKok kok;
    EXPECT_TRUE(kok.dosyalar.Ekle(kok.Yol(u"a-Odeme"), ""));
    EXPECT_EQ(kok.HamOku(u"a-Odeme"), "");
}

TEST(DosyalarEkle, A_full_disk_leaves_the_old_length) {
    GeciciKok kok;
    kok.HamYaz(u"a", kOnceki);
    for (std::size_t yer = 0; yer < kSonraki.size(); ++yer) {
        kok.dosyalar.bosYer = yer;
        EXPECT_FALSE(kok.dosyalar.Ekle(kok.Yol(u"a"), kSonraki));
        EXPECT_EQ(kok.HamOku(u"a"), kOnceki);
        EXPECT_FALSE(kok.dosyalar.Ekle(kok.Yol(u"b"), kSonraki));
        EXPECT_FALSE(kok.HamVar(u"b"));
    }
}

TEST(DosyalarKopyala, Makes_the_target_hold_the_bytes_of_the_source) {
    const GeciciKok kok;
    kok.HamYaz(u"a", kSonraki);
    kok.HamYaz(u"b", std::string(500, 'x'));
    EXPECT_TRUE(kok.dosyalar.Kopyala(kok.Yol(u"a"), kok.Yol(u"b")));
    EXPECT_TRUE(kok.dosyalar.Kopyala(kok.Yol(u"a"), kok.Yol(u"c")));
    EXPECT_TRUE(kok.dosyalar.Kopyala(kok.Yol(u"a"), kok.Yol(u"a")));
    for (const MetinBakis ad : {u"a", u"b", u"c"})
        EXPECT_EQ(kok.HamOku(ad), kSonraki);
}

TEST(DosyalarKopyala, A_missing_source_leaves_the_target_as_it_was) {
    const GeciciKok kok;
    kok.HamYaz(u"b", kOnceki);
    EXPECT_FALSE(kok.dosyalar.Kopyala(kok.Yol(u"yok"), kok.Yol(u"b")));
    EXPECT_FALSE(kok.dosyalar.Kopyala(kok.Yol(u"yok"), kok.Yol(u"c")));
    EXPECT_EQ(kok.HamOku(u"b"), kOnceki);
    EXPECT_FALSE(kok.HamVar(u"c"));
}

TEST(DosyalarSil, Removes_a_file_and_never_a_folder) {
    const GeciciKok kok;
    kok.HamYaz(u"a", kOnceki);
    kok.KlasorYap(u"k");
    EXPECT_TRUE(kok.dosyalar.Sil(kok.Yol(u"a")));
    EXPECT_FALSE(kok.dosyalar.Sil(kok.Yol(u"a")));
    EXPECT_FALSE(kok.dosyalar.Sil(kok.Yol(u"k")));
    EXPECT_FALSE(kok.HamVar(u"a"));
    EXPECT_TRUE(kok.HamVar(u"k"));
}

TEST(DosyalarKlasorYap, Makes_one_folder_and_not_the_one_above_it) {
    const GeciciKok kok;
    EXPECT_FALSE(kok.dosyalar.KlasorYap(kok.Yol(u"A\\2012")));
    EXPECT_TRUE(kok.dosyalar.KlasorYap(kok.Yol(u"A")));
    EXPECT_FALSE(kok.dosyalar.KlasorYap(kok.Yol(u"A")));
    EXPECT_TRUE(kok.dosyalar.KlasorYap(kok.Yol(u"A\\2012")));
    EXPECT_TRUE(kok.HamVar(u"A/2012"));
}

TEST(DosyalarAriza, Each_piece_of_work_can_be_made_to_fail) {
    GeciciKok kok;
    kok.HamYaz(u"a", kOnceki);
    DosyaIsi bozuk = DosyaIsi::VarMi;
    kok.dosyalar.ariza = [&](DosyaIsi is, const Metin&) { return is == bozuk; };
    EXPECT_FALSE(kok.dosyalar.VarMi(kok.Yol(u"a")));
    bozuk = DosyaIsi::Listele;
    EXPECT_TRUE(kok.dosyalar.Listele(kok.dosyalar.Kok()).empty());
    bozuk = DosyaIsi::Oku;
    EXPECT_FALSE(kok.dosyalar.Oku(kok.Yol(u"a")));
    EXPECT_FALSE(kok.dosyalar.Kopyala(kok.Yol(u"a"), kok.Yol(u"b")));
    bozuk = DosyaIsi::Yaz;
    EXPECT_FALSE(kok.dosyalar.Yaz(kok.Yol(u"a"), kSonraki));
    bozuk = DosyaIsi::Ekle;
    EXPECT_FALSE(kok.dosyalar.Ekle(kok.Yol(u"a"), kSonraki));
    bozuk = DosyaIsi::Kopyala;
    EXPECT_FALSE(kok.dosyalar.Kopyala(kok.Yol(u"a"), kok.Yol(u"b")));
    bozuk = DosyaIsi::Sil;
    EXPECT_FALSE(kok.dosyalar.Sil(kok.Yol(u"a")));
    bozuk = DosyaIsi::KlasorYap;
    EXPECT_FALSE(kok.dosyalar.KlasorYap(kok.Yol(u"k")));
    EXPECT_EQ(kok.HamOku(u"a"), kOnceki);
    EXPECT_FALSE(kok.HamVar(u"b"));
    EXPECT_FALSE(kok.HamVar(u"k"));
}

} // namespace velora
