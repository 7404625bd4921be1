#include <gtest/gtest.h>

#include "storage/DosyaAgaci.h"

// Writing, appending, copying and removing, on a real disk.
namespace velora {
namespace {

using test::DosyaAgaci;

const std::string kOnceki = "\"eski\",1\r\n";
const std::string kSonraki = "\"yeni ve uzun\",0\r\n";

} // namespace

TEST(DosyalarYaz, Leaves_exactly_the_bytes_whatever_stood_there) {
    const DosyaAgaci kok;
    for (const std::string& bayt :
         {kOnceki, kSonraki, kOnceki, std::string("\0\n\xFF", 3), std::string(), kSonraki}) {
        EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"a"), bayt));
        EXPECT_EQ(kok.Oku(u"a"), bayt);
    }
}

TEST(DosyalarYaz, Fails_in_a_folder_that_is_not_there_and_makes_none) {
    const DosyaAgaci kok;
    EXPECT_FALSE(kok.dosyalar.Yaz(kok.TamYol(u"yok\\a"), kSonraki));
    EXPECT_FALSE(kok.Var(u"yok"));
}

TEST(DosyalarYaz, Fails_where_a_folder_has_the_name) {
    const DosyaAgaci kok;
    kok.KlasorKoy(u"a");
    EXPECT_FALSE(kok.dosyalar.Yaz(kok.TamYol(u"a"), kSonraki));
    EXPECT_TRUE(std::filesystem::is_directory(kok.Yol(u"a")));
}

TEST(DosyalarYaz, A_full_disk_leaves_the_old_record) {
    DosyaAgaci kok;
    kok.Koy(u"a", kOnceki);
    for (std::size_t yer = 0; yer < kSonraki.size() - kOnceki.size(); ++yer) {
        kok.dosyalar.bosYer = yer;
        EXPECT_FALSE(kok.dosyalar.Yaz(kok.TamYol(u"a"), kSonraki));
        EXPECT_EQ(kok.Oku(u"a"), kOnceki);
    }
    kok.dosyalar.bosYer = kSonraki.size() - kOnceki.size();
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"a"), kSonraki));
    EXPECT_EQ(kok.Oku(u"a"), kSonraki);
}

TEST(DosyalarYaz, A_full_disk_still_takes_a_shorter_record) {
    DosyaAgaci kok;
    kok.Koy(u"a", kSonraki);
    kok.dosyalar.bosYer = 0;
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"a"), kOnceki));
    EXPECT_EQ(kok.Oku(u"a"), kOnceki);
}

TEST(DosyalarYaz, A_new_file_that_cannot_be_put_down_whole_is_gone) {
    DosyaAgaci kok;
    for (std::size_t yer = 0; yer < kSonraki.size(); ++yer) {
        kok.dosyalar.bosYer = yer;
        EXPECT_FALSE(kok.dosyalar.Yaz(kok.TamYol(u"a"), kSonraki));
        EXPECT_FALSE(kok.Var(u"a")) << yer;
    }
    kok.dosyalar.bosYer = kSonraki.size();
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"a"), kSonraki));
}

TEST(DosyalarYaz, A_huge_stray_file_in_the_place_of_a_record_is_written_over) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "x");
    std::filesystem::resize_file(kok.Yol(u"a"), 3ULL << 30U);
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"a"), kSonraki));
    EXPECT_EQ(kok.Oku(u"a"), kSonraki);
}

TEST(DosyalarYaz, Keeps_the_file_itself_so_that_other_names_of_it_see_the_new_text) {
    const DosyaAgaci kok;
    kok.Koy(u"a", kOnceki);
    std::filesystem::create_hard_link(kok.Yol(u"a"), kok.Yol(u"b"));
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"a"), kSonraki));
    EXPECT_EQ(kok.Oku(u"b"), kSonraki);
}

TEST(DosyalarYaz, Leaves_no_other_file_beside_the_one_it_writes) {
    const DosyaAgaci kok;
    kok.dosyalar.Yaz(kok.TamYol(u"a"), kOnceki);
    kok.dosyalar.Yaz(kok.TamYol(u"a"), kSonraki);
    EXPECT_EQ(kok.dosyalar.Listele(kok.dosyalar.Kok()), (std::vector<Metin>{u"a"}));
}

TEST(DosyalarEkle, Makes_the_file_and_then_puts_records_behind) {
    const DosyaAgaci kok;
    EXPECT_TRUE(kok.dosyalar.Ekle(kok.TamYol(u"a"), kOnceki));
    EXPECT_TRUE(kok.dosyalar.Ekle(kok.TamYol(u"a"), kSonraki));
    EXPECT_EQ(kok.Oku(u"a"), kOnceki + kSonraki);
}

TEST(DosyalarEkle, Nothing_to_append_makes_an_empty_file) {
    const DosyaAgaci kok;
    EXPECT_TRUE(kok.dosyalar.Ekle(kok.TamYol(u"a-Odeme"), ""));
    EXPECT_EQ(kok.Oku(u"a-Odeme"), "");
}

TEST(DosyalarEkle, A_full_disk_leaves_the_old_length) {
    DosyaAgaci kok;
    kok.Koy(u"a", kOnceki);
    for (std::size_t yer = 0; yer < kSonraki.size(); ++yer) {
        kok.dosyalar.bosYer = yer;
        EXPECT_FALSE(kok.dosyalar.Ekle(kok.TamYol(u"a"), kSonraki));
        EXPECT_EQ(kok.Oku(u"a"), kOnceki);
        EXPECT_FALSE(kok.dosyalar.Ekle(kok.TamYol(u"b"), kSonraki));
        EXPECT_FALSE(kok.Var(u"b"));
    }
}

TEST(DosyalarKopyala, Makes_the_target_hold_the_bytes_of_the_source) {
    const DosyaAgaci kok;
    kok.Koy(u"a", kSonraki);
    kok.Koy(u"b", std::string(500, 'x'));
    EXPECT_EQ(kok.dosyalar.Kopyala(kok.TamYol(u"a"), kok.TamYol(u"b")), Kopyalanis::Oldu);
    EXPECT_EQ(kok.dosyalar.Kopyala(kok.TamYol(u"a"), kok.TamYol(u"c")), Kopyalanis::Oldu);
    EXPECT_EQ(kok.dosyalar.Kopyala(kok.TamYol(u"a"), kok.TamYol(u"a")), Kopyalanis::Oldu);
    for (const MetinBakis ad : {u"a", u"b", u"c"})
        EXPECT_EQ(kok.Oku(ad), kSonraki);
}

TEST(DosyalarKopyala, A_missing_source_leaves_the_target_as_it_was) {
    const DosyaAgaci kok;
    kok.Koy(u"b", kOnceki);
    EXPECT_EQ(kok.dosyalar.Kopyala(kok.TamYol(u"yok"), kok.TamYol(u"b")), Kopyalanis::KaynakYok);
    EXPECT_EQ(kok.dosyalar.Kopyala(kok.TamYol(u"yok"), kok.TamYol(u"c")), Kopyalanis::KaynakYok);
    EXPECT_EQ(kok.Oku(u"b"), kOnceki);
    EXPECT_FALSE(kok.Var(u"c"));
}

TEST(DosyalarSil, Removes_a_file_and_never_a_folder) {
    const DosyaAgaci kok;
    kok.Koy(u"a", kOnceki);
    kok.KlasorKoy(u"k");
    EXPECT_TRUE(kok.dosyalar.Sil(kok.TamYol(u"a")));
    EXPECT_FALSE(kok.dosyalar.Sil(kok.TamYol(u"a")));
    EXPECT_FALSE(kok.dosyalar.Sil(kok.TamYol(u"k")));
    EXPECT_FALSE(kok.Var(u"a"));
    EXPECT_TRUE(kok.Var(u"k"));
}

TEST(DosyalarKlasorYap, Makes_one_folder_and_not_the_one_above_it) {
    const DosyaAgaci kok;
    EXPECT_FALSE(kok.dosyalar.KlasorYap(kok.TamYol(u"A\\2012")));
    EXPECT_TRUE(kok.dosyalar.KlasorYap(kok.TamYol(u"A")));
    EXPECT_FALSE(kok.dosyalar.KlasorYap(kok.TamYol(u"A")));
    EXPECT_TRUE(kok.dosyalar.KlasorYap(kok.TamYol(u"A\\2012")));
    EXPECT_TRUE(kok.Var(u"A/2012"));
}

TEST(DosyalarAriza, Each_piece_of_work_can_be_made_to_fail) {
    DosyaAgaci kok;
    kok.Koy(u"a", kOnceki);
    DosyaIsi bozuk = DosyaIsi::VarMi;
    kok.dosyalar.ariza = [&](DosyaIsi is, const Metin&) { return is == bozuk; };
    EXPECT_FALSE(kok.dosyalar.VarMi(kok.TamYol(u"a")));
    bozuk = DosyaIsi::Listele;
    EXPECT_TRUE(kok.dosyalar.Listele(kok.dosyalar.Kok()).empty());
    bozuk = DosyaIsi::Oku;
    EXPECT_FALSE(kok.dosyalar.Oku(kok.TamYol(u"a")));
    EXPECT_EQ(kok.dosyalar.Kopyala(kok.TamYol(u"a"), kok.TamYol(u"b")), Kopyalanis::Olmadi);
    bozuk = DosyaIsi::Yaz;
    EXPECT_FALSE(kok.dosyalar.Yaz(kok.TamYol(u"a"), kSonraki));
    bozuk = DosyaIsi::Ekle;
    EXPECT_FALSE(kok.dosyalar.Ekle(kok.TamYol(u"a"), kSonraki));
    bozuk = DosyaIsi::Kopyala;
    EXPECT_EQ(kok.dosyalar.Kopyala(kok.TamYol(u"a"), kok.TamYol(u"b")), Kopyalanis::Olmadi);
    bozuk = DosyaIsi::Sil;
    EXPECT_FALSE(kok.dosyalar.Sil(kok.TamYol(u"a")));
    bozuk = DosyaIsi::KlasorYap;
    EXPECT_FALSE(kok.dosyalar.KlasorYap(kok.TamYol(u"k")));
    EXPECT_EQ(kok.Oku(u"a"), kOnceki);
    EXPECT_FALSE(kok.Var(u"b"));
    EXPECT_FALSE(kok.Var(u"k"));
}

} // namespace velora
