#include "maintenance/FileSync.h"

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>

#include <sys/resource.h>

#include "destek/GeciciAgac.h"

#include <gtest/gtest.h>

namespace velora::test {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Satirlar = std::vector<EslemeSatiri>;

/// Two folders, "kaynak" and "hedef", in which each file says where it is from.
class FileSyncTest : public ::testing::Test {
  protected:
    FileSyncTest() {
        agac.KlasorKoy(u"kaynak");
        agac.KlasorKoy(u"hedef");
    }

    fs::path Kaynak(const fs::path& ad = {}) const {
        return ad.empty() ? agac.Yol(u"kaynak") : agac.Yol(u"kaynak") / ad;
    }
    fs::path Hedef(const fs::path& ad = {}) const {
        return ad.empty() ? agac.Yol(u"hedef") : agac.Yol(u"hedef") / ad;
    }
    static void Koy(const fs::path& yol, const std::string& bayt, fs::file_time_type zaman) {
        fs::create_directories(yol.parent_path());
        std::ofstream(yol, std::ios::binary) << bayt;
        fs::last_write_time(yol, zaman);
    }
    static std::string Oku(const fs::path& yol) {
        std::ifstream dosya(yol, std::ios::binary);
        return {std::istreambuf_iterator<char>(dosya), {}};
    }
    void Esle(bool ikiYonlu = false) {
        FileSync([this] { return ++olaylar != birak; }).SyncFolders(Kaynak(), Hedef(), ikiYonlu);
    }

    GeciciAgac agac;
    const fs::file_time_type an = fs::file_time_type::clock::now() - 48h;
    int olaylar = 0;
    int birak = 0; ///< at which of them the walk is to end; 0: never
};

} // namespace

TEST_F(FileSyncTest, Each_file_gets_its_status_and_the_bits_combine) {
    Koy(Kaynak("a"), "aa", an);
    Koy(Hedef("a"), "bb", an);
    Koy(Kaynak("b"), "b", an);
    Koy(Kaynak("c"), "cc", an + 5s);
    Koy(Hedef("c"), "c", an);
    Koy(Kaynak("d"), "d", an);
    Koy(Hedef("d"), "ddd", an + 7s);
    Koy(Kaynak("e"), "e", an);
    Koy(Hedef("e"), "f", an);
    fs::permissions(Hedef("e"), fs::perms::owner_read);
    Koy(Hedef("f"), "f", an);
    Koy(Kaynak("alt/g"), "g", an); // of a folder below nothing is said
    EXPECT_EQ(FileSync::Compare(Kaynak(), Hedef()),
              (Satirlar{{"a", 0}, {"b", -2}, {"c", 1 + 4}, {"d", 2 + 4}, {"e", 8}, {"f", -1}}));
}

TEST_F(FileSyncTest, All_of_the_source_comes_first_and_then_what_only_the_target_has) {
    for (const char* ad : {"b", "d", "f"})
        Koy(Kaynak(ad), "k", an);
    for (const char* ad : {"a", "c", "d", "e", "g"})
        Koy(Hedef(ad), "h", an);
    EXPECT_EQ(FileSync::Compare(Kaynak(), Hedef()),
              (Satirlar{{"b", -2}, {"d", 0}, {"f", -2}, {"a", -1}, {"c", -1}, {"e", -1}, {"g", -1}}));
}

TEST_F(FileSyncTest, Times_less_than_a_second_apart_are_the_same) {
    Koy(Kaynak("a"), "a", an + 999ms);
    Koy(Hedef("a"), "b", an);
    Koy(Kaynak("b"), "a", an);
    Koy(Hedef("b"), "b", an + 999ms);
    Koy(Kaynak("c"), "a", an + 1s);
    Koy(Hedef("c"), "b", an);
    Koy(Kaynak("d"), "a", an);
    Koy(Hedef("d"), "b", an + 1s);
    EXPECT_EQ(FileSync::Compare(Kaynak(), Hedef()), (Satirlar{{"a", 0}, {"b", 0}, {"c", 1}, {"d", 2}}));
}

TEST_F(FileSyncTest, One_way_copies_what_is_new_or_newer_and_keeps_the_time) {
    Koy(Kaynak("yeni"), "kaynak", an + 10s);
    Koy(Kaynak("ayni"), "kaynak", an);
    Koy(Hedef("ayni"), "hedef.", an);
    Koy(Kaynak("eski"), "kaynak", an + 3s);
    Koy(Hedef("eski"), "hedef", an);
    Koy(Kaynak("boyu"), "kaynak", an);
    Koy(Hedef("boyu"), "h", an);
    Koy(Hedef("fazla"), "hedef", an);
    Esle();
    EXPECT_EQ(Oku(Hedef("yeni")), "kaynak");
    EXPECT_EQ(fs::last_write_time(Hedef("yeni")), an + 10s);
    EXPECT_EQ(Oku(Hedef("ayni")), "hedef.");
    EXPECT_EQ(Oku(Hedef("eski")), "kaynak");
    EXPECT_EQ(fs::last_write_time(Hedef("eski")), an + 3s);
    EXPECT_EQ(Oku(Hedef("boyu")), "kaynak");
    EXPECT_EQ(Oku(Hedef("fazla")), "hedef") << "what is gone from the source stays in the backup";
    EXPECT_FALSE(fs::exists(Kaynak("fazla")));
    EXPECT_EQ(olaylar, 5);
}

TEST_F(FileSyncTest, A_newer_one_in_the_target_of_another_size_is_not_copied_on_purpose) {
    Koy(Kaynak("a"), "kaynak", an);
    Koy(Hedef("a"), "hedef", an + 60s);
    Esle();
    EXPECT_EQ(Oku(Hedef("a")), "hedef");
    EXPECT_EQ(Oku(Kaynak("a")), "kaynak");
    Esle(true);
    EXPECT_EQ(Oku(Kaynak("a")), "hedef") << "both ways it comes back";
}

TEST_F(FileSyncTest, Files_that_differ_in_attributes_alone_are_not_copied_on_purpose) {
    Koy(Kaynak("a"), "kaynak", an);
    Koy(Hedef("a"), "hedef.", an);
    fs::permissions(Kaynak("a"), fs::perms::owner_read);
    Esle(true);
    EXPECT_EQ(Oku(Hedef("a")), "hedef.");
    EXPECT_EQ(Oku(Kaynak("a")), "kaynak");
}

TEST_F(FileSyncTest, Whole_trees_go_along_and_both_ways_brings_back_what_only_the_target_has) {
    Koy(Kaynak("Gül Salonu/2012/05.01.2012 - Gündüz"), "rez", an);
    Koy(Kaynak("Gül Salonu/2013/Gider.dat"), "gider", an);
    fs::create_directories(Kaynak("boş"));
    Koy(Hedef("öteki/alt/x"), "x", an);
    Koy(Hedef("Gül Salonu/y"), "y", an);
    Esle();
    EXPECT_EQ(Oku(Hedef("Gül Salonu/2012/05.01.2012 - Gündüz")), "rez");
    EXPECT_EQ(Oku(Hedef("Gül Salonu/2013/Gider.dat")), "gider");
    EXPECT_TRUE(fs::is_directory(Hedef("boş")));
    EXPECT_FALSE(fs::exists(Kaynak("öteki")));
    Esle(true);
    EXPECT_EQ(Oku(Kaynak("öteki/alt/x")), "x");
    EXPECT_EQ(Oku(Kaynak("Gül Salonu/y")), "y");
}

TEST_F(FileSyncTest, A_second_run_copies_nothing) {
    Koy(Kaynak("alt/a"), "kaynak", an);
    Esle();
    Koy(Hedef("alt/a"), "değişti", an); // a copy would put it right: its size differs
    Koy(Hedef("alt/a"), "hedef.", an);
    Esle();
    EXPECT_EQ(Oku(Hedef("alt/a")), "hedef.");
}

TEST_F(FileSyncTest, A_missing_source_does_nothing_and_a_missing_target_is_made) {
    FileSync([] { return true; }).SyncFolders(Kaynak("yok"), Hedef("yok"), true);
    EXPECT_FALSE(fs::exists(Hedef("yok")));
    Koy(Kaynak("a"), "a", an);
    FileSync([] { return true; }).SyncFolders(Kaynak(), Hedef("bir/iki"), false);
    EXPECT_EQ(Oku(Hedef("bir/iki/a")), "a");
}

TEST_F(FileSyncTest, A_target_within_the_source_is_not_copied_into_itself) {
    Koy(Kaynak("a"), "a", an);
    Koy(Kaynak("VRYedek/21_05_2026/a"), "dün", an);
    FileSync([] { return true; }, {Kaynak("VRYedek")})
        .SyncFolders(Kaynak(), Kaynak("VRYedek/22_05_2026"), false);
    EXPECT_EQ(Oku(Kaynak("VRYedek/22_05_2026/a")), "a");
    EXPECT_FALSE(fs::exists(Kaynak("VRYedek/22_05_2026/VRYedek")));
}

TEST_F(FileSyncTest, A_target_within_the_source_ends_also_when_nobody_said_so) {
    Koy(Kaynak("a"), "a", an);
    FileSync([] { return true; }).SyncFolders(Kaynak(), Kaynak("alt/yedek"), true);
    EXPECT_EQ(Oku(Kaynak("alt/yedek/a")), "a");
    EXPECT_FALSE(fs::exists(Kaynak("alt/yedek/alt/yedek")));
}

TEST_F(FileSyncTest, A_link_that_points_in_a_circle_ends_and_other_links_are_followed) {
    Koy(Kaynak("alt/a"), "a", an);
    Koy(agac.Yol(u"dışarısı/b"), "b", an);
    fs::create_directory_symlink(Kaynak(), Kaynak("alt/daire"));
    fs::create_directory_symlink("kendisi", Kaynak("kendisi"));
    fs::create_directory_symlink(agac.Yol(u"dışarısı"), Kaynak("salon"));
    fs::create_symlink("hiç", Kaynak("kopuk"));
    Esle();
    EXPECT_EQ(Oku(Hedef("alt/a")), "a");
    EXPECT_FALSE(fs::exists(Hedef("alt/daire")));
    EXPECT_EQ(Oku(Hedef("salon/b")), "b") << "a hall on another disk is in the backup, too";
    EXPECT_FALSE(fs::is_symlink(Hedef("salon")));
}

TEST_F(FileSyncTest, It_ends_where_nobody_wants_the_rest) {
    for (const char* ad : {"a", "b", "c", "alt/d", "alt/e", "öte/f"})
        Koy(Kaynak(ad), ad, an);
    birak = 4; // a file within the first folder
    Esle();
    EXPECT_EQ(olaylar, 4);
    EXPECT_EQ(Oku(Hedef("alt/d")), "alt/d");
    EXPECT_FALSE(fs::exists(Hedef("alt/e")));
    EXPECT_FALSE(fs::exists(Hedef("öte")));
}

TEST_F(FileSyncTest, Events_run_behind_each_file_and_each_folder_also_those_that_are_not_copied) {
    Koy(Kaynak("a"), "a", an);
    Koy(Kaynak("alt/b"), "b", an);
    Koy(Kaynak("alt/iç/c"), "c", an);
    Koy(Hedef("fazla"), "x", an);
    Esle();
    EXPECT_EQ(olaylar, 4 + 2);
    Esle();
    EXPECT_EQ(olaylar, 2 * (4 + 2));
}

TEST_F(FileSyncTest, Each_status_has_its_way_one_way_and_both) {
    struct Durum {
        const char* ad;
        std::chrono::seconds kaynakFarki;
        const char* kaynak;
        const char* hedef;
        bool ozellik;
        int durum;
        const char* birYonlu; // what both hold after it
        const char* ikiYonlu;
    };
    const Durum durumlar[]{
        {"0", 0s, "kk", "hh", false, 0, "kk hh", "kk hh"},  {"1", 5s, "kk", "hh", false, 1, "kk kk", "kk kk"},
        {"2", -5s, "kk", "hh", false, 2, "kk hh", "hh hh"}, {"4", 0s, "k", "hh", false, 4, "k k", "k k"},
        {"5", 5s, "k", "hh", false, 5, "k k", "k k"},       {"6", -5s, "k", "hh", false, 6, "k hh", "hh hh"},
        {"8", 0s, "kk", "hh", true, 8, "kk hh", "kk hh"},   {"9", 5s, "kk", "hh", true, 9, "kk kk", "kk kk"},
        {"A", -5s, "kk", "hh", true, 10, "kk hh", "hh hh"}, {"C", 0s, "k", "hh", true, 12, "k k", "k k"},
        {"D", 5s, "k", "hh", true, 13, "k k", "k k"},       {"E", -5s, "k", "hh", true, 14, "k hh", "hh hh"}};
    for (const bool ikiYonlu : {false, true}) {
        Satirlar beklenen;
        for (const Durum& d : durumlar) {
            Koy(Kaynak(d.ad), d.kaynak, an + d.kaynakFarki);
            Koy(Hedef(d.ad), d.hedef, an);
            fs::permissions(Kaynak(d.ad), fs::perms(d.ozellik ? 0600 : 0640));
            fs::permissions(Hedef(d.ad), fs::perms(0640));
            beklenen.push_back({d.ad, d.durum});
        }
        EXPECT_EQ(FileSync::Compare(Kaynak(), Hedef()), beklenen);
        FileSync([] { return true; }).SyncFiles(Kaynak(), Hedef(), ikiYonlu);
        for (const Durum& d : durumlar)
            EXPECT_EQ(Oku(Kaynak(d.ad)) + ' ' + Oku(Hedef(d.ad)), ikiYonlu ? d.ikiYonlu : d.birYonlu) << d.ad;
    }
}

TEST_F(FileSyncTest, A_copy_has_the_attributes_of_its_file) {
    Koy(Kaynak("a"), "a", an);
    fs::permissions(Kaynak("a"), fs::perms(0751));
    Koy(Kaynak("b"), "kaynak", an + 5s);
    Koy(Hedef("b"), "hedef", an);
    fs::permissions(Hedef("b"), fs::perms(0400)); // not even to its owner
    Esle();
    EXPECT_EQ(fs::status(Hedef("a")).permissions(), fs::perms(0751));
    EXPECT_EQ(Oku(Hedef("b")), "kaynak");
    EXPECT_EQ(FileSync::Compare(Kaynak(), Hedef()), (Satirlar{{"a", 0}, {"b", 0}}));
}

TEST_F(FileSyncTest, Times_on_both_sides_of_a_change_of_daylight_saving_are_the_same) {
    ::setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    ::tzset();
    // Half an hour before and behind both changes of 2026, and in between.
    for (const long saat : {1774744200L, 1774747800L, 1784000000L, 1792889000L, 1792892600L, 1800000000L})
        Koy(Kaynak(std::to_string(saat)), "k",
            fs::file_time_type::clock::from_sys(std::chrono::sys_seconds(std::chrono::seconds(saat))));
    Esle();
    for (const char* dilim : {"UTC0", "EST5EDT,M3.2.0,M11.1.0"}) {
        ::setenv("TZ", dilim, 1);
        ::tzset();
        for (const EslemeSatiri& satir : FileSync::Compare(Kaynak(), Hedef()))
            EXPECT_EQ(satir.durum, 0) << satir.ad << ' ' << dilim;
    }
    ::unsetenv("TZ");
    ::tzset();
}

TEST_F(FileSyncTest, A_long_file_comes_whole) {
    std::string uzun;
    for (int i = 0; uzun.size() < 300'000; ++i)
        uzun += std::to_string(i) + ',';
    Koy(Kaynak("a"), uzun, an);
    Koy(Kaynak("b"), uzun.substr(0, 64U << 10U), an); // as long as a buffer
    Koy(Kaynak("c"), {}, an);
    Esle();
    EXPECT_EQ(Oku(Hedef("a")), uzun);
    EXPECT_EQ(Oku(Hedef("b")), uzun.substr(0, 64U << 10U));
    EXPECT_TRUE(fs::exists(Hedef("c")));
}

TEST_F(FileSyncTest, A_full_disk_leaves_what_was_there_and_the_rest_goes_on) {
    Koy(Kaynak("a"), std::string(200'000, 'k'), an + 5s);
    Koy(Hedef("a"), "hedef", an);
    Koy(Kaynak("b"), std::string(20'000, 'k'), an);
    Koy(Kaynak("c"), "kaynak", an);
    const auto eskiIsaret = std::signal(SIGXFSZ, SIG_IGN);
    rlimit eski{};
    getrlimit(RLIMIT_FSIZE, &eski);
    const rlimit dar{10'000, eski.rlim_max}; // no file gets longer: the disk takes a part and no more
    setrlimit(RLIMIT_FSIZE, &dar);
    Esle();
    setrlimit(RLIMIT_FSIZE, &eski);
    std::signal(SIGXFSZ, eskiIsaret);
    EXPECT_EQ(Oku(Hedef("a")), "hedef");
    EXPECT_FALSE(fs::exists(Hedef("b")));
    EXPECT_EQ(Oku(Hedef("c")), "kaynak");
    EXPECT_EQ(std::distance(fs::directory_iterator(Hedef()), {}), 2);
}

TEST_F(FileSyncTest, A_file_that_cannot_be_read_is_passed_over) {
    Koy(Kaynak("a"), "kaynak", an);
    fs::permissions(Kaynak("a"), fs::perms::none);
    fs::create_symlink("/proc/self/mem", Kaynak("b")); // not even its owner, nor who may do everything
    Koy(Kaynak("c"), "kaynak", an);
    const bool okunur = std::ifstream(Kaynak("a")).is_open();
    Esle();
    EXPECT_EQ(fs::exists(Hedef("a")), okunur);
    EXPECT_FALSE(fs::exists(Hedef("b")));
    EXPECT_EQ(Oku(Hedef("c")), "kaynak");
    EXPECT_EQ(olaylar, 3);
}

TEST_F(FileSyncTest, What_a_crash_left_half_is_nobodys_file_and_goes) {
    Koy(Hedef(".velora-yarim"), "yarım", an);
    Koy(Kaynak(".velora-yarim"), "yarım", an);
    EXPECT_EQ(FileSync::Compare(Kaynak(), Hedef()), Satirlar{});
    Koy(Kaynak("a"), "a", an);
    Esle(true);
    EXPECT_EQ(Oku(Hedef("a")), "a");
    EXPECT_FALSE(fs::exists(Hedef(".velora-yarim")));
}

TEST_F(FileSyncTest, What_was_left_half_and_cannot_be_written_to_stands_in_nobodys_way) {
    Koy(agac.Yol(u"dışarısı"), "başkasının", an);
    fs::create_symlink(agac.Yol(u"dışarısı"), Hedef(".velora-yarim"));
    Koy(Kaynak("a"), "a", an);
    Esle();
    EXPECT_EQ(Oku(Hedef("a")), "a");
    EXPECT_EQ(Oku(agac.Yol(u"dışarısı")), "başkasının");
}

TEST_F(FileSyncTest, A_file_here_and_a_folder_of_its_name_there_are_two) {
    Koy(Kaynak("a"), "a", an);
    fs::create_directory(Hedef("a"));
    fs::create_directory(Kaynak("b"));
    Koy(Hedef("b"), "b", an);
    EXPECT_EQ(FileSync::Compare(Kaynak(), Hedef()), (Satirlar{{"a", -2}, {"b", -1}}));
}

TEST_F(FileSyncTest, An_empty_folder_in_the_place_of_a_file_stays) {
    Koy(Kaynak("a"), "kaynak", an);
    fs::create_directory(Hedef("a"));
    Esle();
    EXPECT_TRUE(fs::is_directory(Hedef("a")));
}

TEST_F(FileSyncTest, What_cannot_be_read_or_written_is_passed_over_and_leaves_nothing_half) {
    Koy(Kaynak("a"), "kaynak", an);
    Koy(Kaynak("b"), "kaynak", an);
    fs::create_directories(Hedef("a/içi dolu")); // a folder where the file would go
    Koy(Hedef("c"), "hedef", an);
    Koy(Kaynak("c/içi"), "kaynak", an); // and the other way round
    Esle();
    EXPECT_TRUE(fs::is_directory(Hedef("a/içi dolu")));
    EXPECT_EQ(Oku(Hedef("b")), "kaynak");
    EXPECT_EQ(Oku(Hedef("c")), "hedef");
    for (const auto& oge : fs::recursive_directory_iterator(Hedef()))
        EXPECT_NE(oge.path().filename(), ".velora-yarim") << oge.path();
}

} // namespace velora::test
