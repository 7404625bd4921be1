// What is kept of the folders that were read: what is handed over is always what the disk holds.
#include <chrono>
#include <fstream>
#include <random>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include "destek/YasliBellek.h"
#include "storage/DosyaAgaci.h"

namespace velora {
namespace {

using test::BellekBeklemesin;
using test::DosyaAgaci;

using Icerik = std::vector<std::pair<Metin, std::string>>;

Icerik KlasorIcerigi(const Dosyalar& dosyalar, const Metin& klasor) {
    Icerik icerik;
    dosyalar.KlasoruOku(klasor, [&](const Dosyalar::OkunanDosya& dosya) {
        icerik.emplace_back(dosya.ad, dosya.acildi ? std::string(dosya.bayt) : "-");
    });
    return icerik;
}

/// A folder of its own with some files, and what reading it costs. All in it counts as old from the
/// beginning.
struct BellekAgaci : DosyaAgaci {
    explicit BellekAgaci(int adet = 20) {
        for (int i = 10; i < 10 + adet; ++i)
            Koy(u"salon/yıl/" + SayiMetni(i), "içerik " + std::to_string(i));
        BellekBeklemesin(dosyalar);
        dosyalar.Bellek().enCokIzlenen = izlenen;
    }
    static inline std::size_t izlenen = 0;

    Metin Klasor() const { return TamYol(u"salon\\yıl"); }
    /// Reads the folder, which must give what one without a memory gives. How many files came from the disk.
    std::size_t Oku() const {
        const std::size_t once = dosyalar.Okunan();
        EXPECT_EQ(KlasorIcerigi(dosyalar, Klasor()), KlasorIcerigi(Dosyalar(Kok()), Klasor()));
        return dosyalar.Okunan() - once;
    }
    void YerindeYaz(MetinBakis ad, std::string_view bayt) const {
        std::fstream dosya(Yol(u"salon/yıl/" + Metin(ad)), std::ios::in | std::ios::out | std::ios::binary);
        dosya << bayt;
    }
};

} // namespace

/// Where the system is asked about each file, and where folders are watched.
class Bellek : public ::testing::TestWithParam<std::size_t> {
  protected:
    void SetUp() override { BellekAgaci::izlenen = GetParam(); }
};

INSTANTIATE_TEST_SUITE_P(Asked_and_watched, Bellek, ::testing::Values(0U, 8U));

TEST_P(Bellek, A_second_reading_takes_nothing_from_the_disk) {
    const BellekAgaci kok;
    EXPECT_EQ(kok.Oku(), 20U);
    EXPECT_EQ(kok.Oku(), 0U);
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_P(Bellek, What_was_written_less_than_two_seconds_before_is_read_each_time_and_then_no_more) {
    const BellekAgaci kok;
    struct stat bilgi {};
    ASSERT_EQ(::stat(kok.Yol(u"salon/yıl/15").c_str(), &bilgi), 0);
    const SistemAni yazma(std::chrono::seconds(bilgi.st_ctim.tv_sec) +
                          std::chrono::nanoseconds(bilgi.st_ctim.tv_nsec));
    SistemAni simdi = yazma + std::chrono::milliseconds(1990);
    kok.dosyalar.Bellek().saat = [&] { return simdi; };
    kok.dosyalar.Bellek().zamanAdimi = OkumaBellegi().zamanAdimi;
    const auto onBes = [&] {
        const std::size_t once = kok.dosyalar.Okunan();
        KlasorOkumasi okuma = kok.dosyalar.KlasorAc(kok.Klasor());
        EXPECT_EQ(okuma.Oku(u"15"), "içerik 15");
        return kok.dosyalar.Okunan() - once;
    };
    EXPECT_EQ(onBes(), 1U);
    EXPECT_EQ(onBes(), 1U);
    simdi = yazma + std::chrono::seconds(2);
    EXPECT_EQ(onBes(), 1U);
    EXPECT_EQ(onBes(), 0U);
}

TEST_P(Bellek, The_same_length_within_the_same_step_of_the_clock_is_never_missed) {
    const BellekAgaci kok(3);
    kok.dosyalar.Bellek().zamanAdimi = OkumaBellegi().zamanAdimi;
    for (int i = 100; i < 500; ++i) {
        kok.YerindeYaz(u"11", std::to_string(i));
        ASSERT_EQ(KlasorIcerigi(kok.dosyalar, kok.Klasor()).at(1).second.substr(0, 3), std::to_string(i));
    }
}

TEST_P(Bellek, A_clock_that_was_set_back_has_all_forgotten) {
    const BellekAgaci kok;
    const auto saat = [&](std::chrono::minutes fark) {
        kok.dosyalar.Bellek().saat = [fark] { return std::chrono::system_clock::now() + fark; };
    };
    kok.Oku();
    saat(std::chrono::hours(1));
    EXPECT_EQ(kok.Oku(), 0U);
    saat(std::chrono::minutes(59));
    EXPECT_EQ(kok.Oku(), 20U);
    EXPECT_EQ(kok.Oku(), 0U);
    saat(std::chrono::hours(-2));
    EXPECT_EQ(kok.Oku(), 20U) << "all is of the future now";
    EXPECT_EQ(kok.Oku(), 20U);
}

TEST_P(Bellek, A_file_written_over_in_its_place_to_the_same_length_is_read_again_and_no_other) {
    const BellekAgaci kok;
    kok.Oku();
    const auto zaman = std::filesystem::last_write_time(kok.Yol(u"salon/yıl/15"));
    kok.YeniAn();
    kok.YerindeYaz(u"15", "DIŞARI");
    std::filesystem::last_write_time(kok.Yol(u"salon/yıl/15"), zaman); // a tool that keeps the times
    EXPECT_EQ(kok.Oku(), 1U);
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_P(Bellek, What_is_written_here_is_read_again_whatever_the_disk_says_of_it) {
    const BellekAgaci kok;
    kok.Oku();
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"salon\\yıl\\16"), "İÇERİK 16"));
    EXPECT_TRUE(kok.dosyalar.Ekle(kok.TamYol(u"salon\\yıl\\17"), "ve daha"));
    EXPECT_EQ(kok.dosyalar.Kopyala(kok.TamYol(u"salon\\yıl\\16"), kok.TamYol(u"salon\\yıl\\18")),
              Kopyalanis::Oldu);
    EXPECT_TRUE(kok.dosyalar.Sil(kok.TamYol(u"salon\\yıl\\19")));
    EXPECT_EQ(kok.Oku(), 3U);
    kok.dosyalar.Bellek().Unut(kok.Yol(u"salon/yıl/12"));
    EXPECT_EQ(kok.Oku(), 1U);
}

TEST_P(Bellek, Files_that_come_go_and_are_put_in_the_place_of_others_are_seen) {
    const BellekAgaci kok;
    kok.Oku();
    kok.YeniAn();
    kok.Koy(u"salon/yıl/09", "önde");
    kok.Koy(u"salon/yıl/99", "sonda");
    std::filesystem::remove(kok.Yol(u"salon/yıl/12"));
    EXPECT_EQ(kok.Oku(), 2U);
    kok.Koy(u"yan", "yandan");
    std::filesystem::rename(kok.Yol(u"yan"), kok.Yol(u"salon/yıl/20"));
    std::filesystem::rename(kok.Yol(u"salon/yıl/21"), kok.Yol(u"salon/yıl/22"));
    EXPECT_EQ(kok.Oku(), 2U);
    std::filesystem::remove(kok.Yol(u"salon/yıl/24"));
    kok.KlasorKoy(u"salon/yıl/24");
    EXPECT_EQ(kok.Oku(), 0U) << "a folder is none";
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_P(Bellek, Another_folder_in_its_place_or_in_the_place_of_the_one_above_is_another) {
    const BellekAgaci kok;
    kok.Oku();
    std::filesystem::rename(kok.Yol(u"salon/yıl"), kok.Yol(u"salon/eski"));
    kok.Koy(u"salon/yıl/15", "içerik 99");
    EXPECT_EQ(kok.Oku(), 1U);
    std::filesystem::rename(kok.Yol(u"salon"), kok.Yol(u"eski salon"));
    EXPECT_EQ(kok.Oku(), 0U);
    kok.Koy(u"salon/yıl/15", "içerik 98");
    EXPECT_EQ(kok.Oku(), 1U);
    std::filesystem::remove_all(kok.Yol(u"salon"));
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_P(Bellek, What_a_link_leads_to_is_asked_about_where_it_lies) {
    const BellekAgaci kok;
    kok.Koy(u"uzak", "uzaktaki");
    kok.Koy(u"yakin", "yakindak");
    std::filesystem::create_symlink(kok.Yol(u"uzak"), kok.Yol(u"salon/yıl/30"));
    EXPECT_EQ(kok.Oku(), 21U);
    EXPECT_EQ(kok.Oku(), 0U);
    kok.YeniAn();
    kok.Koy(u"uzak", "değişmiş");
    EXPECT_EQ(kok.Oku(), 1U);
    std::filesystem::remove(kok.Yol(u"salon/yıl/30"));
    std::filesystem::create_symlink(kok.Yol(u"yakin"), kok.Yol(u"salon/yıl/30"));
    EXPECT_EQ(kok.Oku(), 1U);
}

TEST_P(Bellek, A_file_whose_rights_were_taken_away_can_not_be_read_any_more_and_can_when_they_are_back) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "root may read everything";
    const BellekAgaci kok;
    kok.Oku();
    kok.YeniAn();
    ASSERT_EQ(::chmod(kok.Yol(u"salon/yıl/15").c_str(), 0), 0);
    EXPECT_EQ(KlasorIcerigi(kok.dosyalar, kok.Klasor()).at(5).second, "-");
    ASSERT_EQ(::chmod(kok.Yol(u"salon/yıl/15").c_str(), 0600), 0);
    EXPECT_EQ(KlasorIcerigi(kok.dosyalar, kok.Klasor()).at(5).second, "içerik 15");
    for (const mode_t hak : {mode_t{0300}, mode_t{0400}}) {
        ASSERT_EQ(::chmod(kok.Yol(u"salon/yıl").c_str(), hak), 0);
        kok.Oku();
    }
    ASSERT_EQ(::chmod(kok.Yol(u"salon/yıl").c_str(), 0700), 0);
    kok.Oku();
}

TEST_P(Bellek, Only_what_is_asked_for_is_read_and_the_rest_when_it_is_asked_for) {
    const BellekAgaci kok;
    const std::size_t once = kok.dosyalar.Okunan();
    kok.dosyalar.KlasoruOku(
        kok.Klasor(), [](const Dosyalar::OkunanDosya&) {},
        [](MetinBakis ad) { return ad.starts_with(u"1"); });
    EXPECT_EQ(kok.dosyalar.Okunan() - once, 10U);
    EXPECT_EQ(kok.Oku(), 10U);
}

TEST_P(Bellek, What_can_not_be_read_is_tried_again_and_a_bad_disk_stays_bad) {
    BellekAgaci kok;
    kok.Oku();
    kok.dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Oku && yol.ends_with(u"15");
    };
    EXPECT_EQ(KlasorIcerigi(kok.dosyalar, kok.Klasor()).at(5), (std::pair<Metin, std::string>{u"15", "-"}));
    kok.dosyalar.ariza = nullptr;
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_P(Bellek, May_be_read_from_inside_a_reading_and_changed_there) {
    const BellekAgaci kok(3);
    std::string gorulen;
    kok.dosyalar.KlasoruOku(kok.Klasor(), [&](const Dosyalar::OkunanDosya& dosya) {
        EXPECT_TRUE(kok.dosyalar.Yaz(kok.Klasor() + u"\\05", "yeni"));
        gorulen +=
            std::to_string(KlasorIcerigi(kok.dosyalar, kok.Klasor()).size()) + std::string(dosya.bayt) + ";";
    });
    EXPECT_EQ(gorulen, "4içerik 10;4içerik 11;4içerik 12;");
    EXPECT_EQ(kok.Oku(), 1U);
}

TEST_P(Bellek, Files_of_all_lengths_come_back_each_as_it_is) {
    const BellekAgaci kok;
    std::size_t boy = 0;
    for (int i = 100; i < 400; ++i, boy = boy * 7 % 9001 + 13)
        kok.Koy(u"salon/yıl/" + SayiMetni(i),
                std::string(boy, static_cast<char>('a' + i % 26)) + std::to_string(i));
    EXPECT_EQ(kok.Oku(), 320U);
    EXPECT_EQ(kok.Oku(), 0U);
    kok.YerindeYaz(u"250", "değişti");
    EXPECT_EQ(kok.Oku(), 1U);
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_P(Bellek, A_long_file_is_read_each_time_and_the_ones_beside_it_are_not) {
    const BellekAgaci kok(3);
    kok.Koy(u"salon/yıl/50", std::string((std::size_t{1} << 20U) + 1, 'u'));
    kok.Koy(u"salon/yıl/51", std::string(std::size_t{1} << 20U, 'k'));
    EXPECT_EQ(kok.Oku(), 5U);
    EXPECT_EQ(kok.Oku(), 1U);
}

TEST_P(Bellek, Holds_no_more_than_its_limit_and_lets_go_of_what_was_longest_not_read) {
    const DosyaAgaci kok;
    BellekBeklemesin(kok.dosyalar);
    constexpr int kKlasor = 10;
    const auto ad = [](int no) { return u"k" + SayiMetni(no); };
    for (int k = 0; k < kKlasor; ++k)
        for (int i = 0; i < 8; ++i)
            kok.Koy(ad(k) + u"/" + SayiMetni(i),
                    std::string(std::size_t{1} << 20U, static_cast<char>('a' + k)));
    const auto oku = [&](int no) {
        const std::size_t once = kok.dosyalar.Okunan();
        for (const auto& [dosya, bayt] : KlasorIcerigi(kok.dosyalar, kok.TamYol(ad(no))))
            EXPECT_EQ(bayt, std::string(std::size_t{1} << 20U, static_cast<char>('a' + no)));
        EXPECT_LE(kok.dosyalar.Bellek().Bayt(), OkumaBellegi::kEnCok);
        return kok.dosyalar.Okunan() - once;
    };
    for (int k = 0; k < 4; ++k)
        EXPECT_EQ(oku(k), 8U);
    EXPECT_EQ(oku(0), 0U);
    for (int k = 4; k < kKlasor; ++k)
        EXPECT_EQ(oku(k), 8U);
    EXPECT_EQ(oku(kKlasor - 1), 0U);
    EXPECT_EQ(oku(1), 8U);
}

TEST_P(Bellek, What_is_changed_again_and_again_does_not_fill_it) {
    const BellekAgaci kok(3);
    for (int i = 0; i < 40; ++i) {
        kok.YeniAn();
        kok.Koy(u"salon/yıl/11", std::string(500'000, static_cast<char>('a' + i % 26)));
        kok.Oku();
    }
    EXPECT_LT(kok.dosyalar.Bellek().Bayt(), 6'000'000U);
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_P(Bellek, A_folder_that_is_only_listed_is_not_kept) {
    const BellekAgaci kok;
    kok.dosyalar.Listele(kok.Klasor());
    EXPECT_EQ(kok.dosyalar.Bellek().Bayt(), 0U);
    kok.Oku();
    kok.dosyalar.Listele(kok.Klasor());
    EXPECT_GT(kok.dosyalar.Bellek().Bayt(), 0U);
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST(IzlenenBellek, So_many_changes_that_the_system_loses_count_have_all_asked_about_again) {
    BellekAgaci::izlenen = 8;
    const BellekAgaci kok;
    for (int i = 0; i < 3; ++i)
        kok.Oku();
    kok.YeniAn();
    for (int i = 0; i < 12'000; ++i)
        for (const MetinBakis ad : {u"11", u"12"}) // equal changes in a row would count as one
            kok.YerindeYaz(ad, std::to_string(i));
    kok.YerindeYaz(u"13", "unseen"); // the system tells of none any more
    EXPECT_EQ(kok.Oku(), 3U);
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST(IzlenenBellek, A_folder_that_nobody_watches_any_more_is_asked_about_again) {
    const BellekAgaci kok;
    const std::filesystem::path yol = kok.Yol(u"salon/yıl");
    KlasorBellegi bellek(yol);
    bellek.Izlet(std::make_unique<sistem::Gozcu>());
    sistem::Klasor acik(yol);
    bellek.Tazele([&]() -> sistem::Klasor& { return acik; });
    ASSERT_EQ(bellek.Adlar().Sayi(), 20U);
    ASSERT_TRUE(bellek.Sakla(0, "içerik 10", {}, std::chrono::system_clock::now() + std::chrono::hours(1)));
    std::optional<sistem::Kimlik> simdi;
    ASSERT_EQ(bellek.Hatirla(acik, 0, simdi), "içerik 10");
    EXPECT_EQ(bellek.Bilinen(0), "içerik 10");
    bellek.Izlet(nullptr);
    EXPECT_FALSE(bellek.Bilinen(0));
    EXPECT_EQ(bellek.Hatirla(acik, 0, simdi), "içerik 10");
}

TEST(IzlenenBellek, More_folders_than_are_watched_are_all_read_right) {
    const DosyaAgaci kok;
    kok.dosyalar.Bellek().enCokIzlenen = 3;
    BellekBeklemesin(kok.dosyalar);
    for (int kez = 0; kez < 4; ++kez)
        for (int i = 0; i < 7; ++i) {
            const Metin ad = u"k" + SayiMetni(i % 5);
            kok.YeniAn();
            kok.Koy(ad + u"/a", std::to_string(10 + 10 * kez + i));
            EXPECT_EQ(KlasorIcerigi(kok.dosyalar, kok.TamYol(ad)),
                      (Icerik{{u"a", std::to_string(10 + 10 * kez + i)}}));
        }
}

class BellekKarsilastirma : public ::testing::TestWithParam<unsigned> {};

TEST_P(BellekKarsilastirma, Hands_over_what_a_fresh_reading_does_whatever_happens_in_the_folder) {
    BellekAgaci::izlenen = GetParam() % 2 * 8;
    const BellekAgaci kok(12);
    std::mt19937 rastgele(GetParam());
    const auto sec = [&](unsigned adet) {
        return std::uniform_int_distribution<unsigned>(0, adet - 1)(rastgele);
    };
    const auto yol = [&] { return kok.Yol(u"salon/yıl/" + SayiMetni(static_cast<int>(5 + sec(25)))); };
    std::size_t okunan = 0;
    for (int adim = 100; adim < 160; ++adim) {
        std::error_code hata;
        switch (sec(6)) {
        case 0:
            std::filesystem::remove_all(yol(), hata);
            break;
        case 1:
            std::ofstream(yol(), std::ios::binary) << adim;
            break;
        case 2:
            std::fstream(yol(), std::ios::in | std::ios::out | std::ios::binary) << adim;
            break;
        case 3:
            std::filesystem::rename(yol(), yol(), hata);
            break;
        case 4:
            std::filesystem::resize_file(yol(), sec(9), hata);
            break;
        default:
            break;
        }
        if (sec(2) == 0)
            okunan += kok.Oku();
        kok.YeniAn(); // what is looked at may not change within one time
    }
    EXPECT_LT(okunan, 120U) << "most of it was kept";
}

INSTANTIATE_TEST_SUITE_P(RandomTrees, BellekKarsilastirma, ::testing::Range(1U, 21U));

} // namespace velora
