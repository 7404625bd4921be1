// What is kept of a folder while a handler runs: what it hands over is always what the disk holds.
#include <fstream>
#include <random>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "storage/DosyaAgaci.h"

namespace velora {
namespace {

using test::DosyaAgaci;

using Icerik = std::vector<std::pair<Metin, std::string>>;

Icerik HatirlananiOku(const Dosyalar& dosyalar, const Metin& klasor) {
    Icerik icerik;
    dosyalar.KlasoruOku(klasor, [&](const Dosyalar::OkunanDosya& dosya) {
        icerik.emplace_back(dosya.ad, dosya.acildi ? std::string(dosya.bayt) : "-");
    });
    return icerik;
}

/// A folder of its own with some files, and what reading it costs.
struct HatirlamaAgaci : DosyaAgaci {
    explicit HatirlamaAgaci(int adet = 20) {
        for (int i = 10; i < 10 + adet; ++i)
            Koy(u"salon/yıl/" + SayiMetni(i), "içerik " + std::to_string(i));
    }
    Metin Klasor() const { return TamYol(u"salon\\yıl"); }
    /// Reads the folder, which must give what one without a memory gives. How many files came from the disk.
    std::size_t Oku() const {
        const std::size_t once = dosyalar.Okunan();
        EXPECT_EQ(HatirlananiOku(dosyalar, Klasor()), HatirlananiOku(Dosyalar(Kok()), Klasor()));
        return dosyalar.Okunan() - once;
    }
    void YerindeYaz(MetinBakis ad, std::string_view bayt) const {
        std::fstream dosya(Yol(u"salon/yıl/" + Metin(ad)), std::ios::in | std::ios::out | std::ios::binary);
        dosya << bayt;
    }
};

} // namespace

class Hatirlama : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!test::KlasorIzlenir(test::GeciciAgac().Kok()))
            GTEST_SKIP() << "changes are not told of on this file system: nothing is kept";
    }
};

TEST_F(Hatirlama, A_second_reading_takes_nothing_from_the_disk_and_without_it_all_is_read_again) {
    const HatirlamaAgaci kok;
    EXPECT_EQ(kok.Oku(), 20U);
    EXPECT_EQ(kok.Oku(), 20U);
    {
        const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
        EXPECT_EQ(kok.Oku(), 20U);
        EXPECT_EQ(kok.Oku(), 0U);
        const Dosyalar::Hatirlama icteki(kok.dosyalar);
        EXPECT_EQ(kok.Oku(), 0U);
    }
    EXPECT_EQ(kok.Oku(), 20U) << "nothing is kept";
    const Dosyalar::Hatirlama yine(kok.dosyalar);
    EXPECT_EQ(kok.Oku(), 20U);
}

TEST_F(Hatirlama, An_inner_one_that_goes_leaves_the_outer_ones_memory) {
    const HatirlamaAgaci kok;
    const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
    {
        const Dosyalar::Hatirlama icteki(kok.dosyalar);
        kok.Oku();
    }
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_F(Hatirlama, A_file_written_over_in_its_place_to_the_same_length_is_read_again_and_no_other) {
    const HatirlamaAgaci kok;
    const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
    kok.Oku();
    const auto zaman = std::filesystem::last_write_time(kok.Yol(u"salon/yıl/15"));
    kok.YerindeYaz(u"15", "DIŞARI");
    std::filesystem::last_write_time(kok.Yol(u"salon/yıl/15"), zaman); // a tool that keeps the times
    EXPECT_EQ(kok.Oku(), 1U);
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"salon\\yıl\\16"), "kendisi"));
    EXPECT_EQ(kok.Oku(), 1U);
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_F(Hatirlama, Files_that_come_go_and_are_put_in_the_place_of_others_are_seen) {
    const HatirlamaAgaci kok;
    const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
    kok.Oku();
    kok.Koy(u"salon/yıl/09", "önde");
    kok.Koy(u"salon/yıl/99", "sonda");
    std::filesystem::remove(kok.Yol(u"salon/yıl/12"));
    EXPECT_EQ(kok.Oku(), 2U);
    kok.Koy(u"yan", "yandan");
    std::filesystem::rename(kok.Yol(u"yan"), kok.Yol(u"salon/yıl/20"));
    std::filesystem::rename(kok.Yol(u"salon/yıl/21"), kok.Yol(u"salon/yıl/22"));
    EXPECT_EQ(kok.Oku(), 2U);
    std::filesystem::remove(kok.Yol(u"salon/yıl/23"));
    kok.Koy(u"salon/yıl/23", "yeniden");
    std::filesystem::remove(kok.Yol(u"salon/yıl/24"));
    kok.KlasorKoy(u"salon/yıl/24");
    EXPECT_EQ(kok.Oku(), 1U);
}

TEST_F(Hatirlama, Another_folder_in_its_place_or_in_the_place_of_the_one_above_is_another) {
    const HatirlamaAgaci kok;
    const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
    kok.Oku();
    std::filesystem::rename(kok.Yol(u"salon/yıl"), kok.Yol(u"salon/eski"));
    kok.Koy(u"salon/yıl/15", "başka klasör");
    EXPECT_EQ(kok.Oku(), 1U);
    std::filesystem::rename(kok.Yol(u"salon"), kok.Yol(u"eski salon"));
    EXPECT_EQ(kok.Oku(), 0U);
    kok.Koy(u"salon/yıl/15", "başka salon");
    EXPECT_EQ(kok.Oku(), 1U);
    std::filesystem::remove_all(kok.Yol(u"salon"));
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_F(Hatirlama, A_folder_with_a_link_is_read_each_time_for_what_it_leads_to_lies_elsewhere) {
    const HatirlamaAgaci kok;
    kok.Koy(u"uzak", "uzaktaki");
    std::filesystem::create_symlink(kok.Yol(u"uzak"), kok.Yol(u"salon/yıl/30"));
    const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
    EXPECT_EQ(kok.Oku(), 21U);
    kok.Koy(u"uzak", "değişmiş");
    EXPECT_EQ(kok.Oku(), 21U);
}

TEST_F(Hatirlama, So_many_changes_that_the_system_loses_count_have_all_read_again) {
    const HatirlamaAgaci kok;
    const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
    kok.Oku();
    for (int i = 0; i < 12'000; ++i)
        for (const MetinBakis ad : {u"11", u"12"}) // equal changes in a row would count as one
            kok.dosyalar.Yaz(kok.TamYol(u"salon\\yıl\\" + Metin(ad)), std::to_string(i));
    EXPECT_EQ(kok.Oku(), 20U);
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_F(Hatirlama, Only_what_is_asked_for_is_read_and_the_rest_when_it_is_asked_for) {
    const HatirlamaAgaci kok;
    const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
    const std::size_t once = kok.dosyalar.Okunan();
    kok.dosyalar.KlasoruOku(
        kok.Klasor(), [](const Dosyalar::OkunanDosya&) {},
        [](MetinBakis ad) { return ad.starts_with(u"1"); });
    EXPECT_EQ(kok.dosyalar.Okunan() - once, 10U);
    EXPECT_EQ(kok.Oku(), 10U);
}

TEST_F(Hatirlama, What_can_not_be_read_is_tried_again_and_a_bad_disk_stays_bad) {
    HatirlamaAgaci kok;
    const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
    kok.Oku();
    kok.dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Oku && yol.ends_with(u"15");
    };
    EXPECT_EQ(HatirlananiOku(kok.dosyalar, kok.Klasor()).at(5), (std::pair<Metin, std::string>{u"15", "-"}));
    kok.dosyalar.ariza = nullptr;
    EXPECT_EQ(kok.Oku(), 0U);
}

TEST_F(Hatirlama, May_be_read_from_inside_a_reading_and_changed_there) {
    const HatirlamaAgaci kok(3);
    const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
    std::string gorulen;
    kok.dosyalar.KlasoruOku(kok.Klasor(), [&](const Dosyalar::OkunanDosya& dosya) {
        kok.Koy(u"salon/yıl/05", "yeni");
        gorulen +=
            std::to_string(HatirlananiOku(kok.dosyalar, kok.Klasor()).size()) + std::string(dosya.bayt) + ";";
    });
    EXPECT_EQ(gorulen, "4içerik 10;4içerik 11;4içerik 12;");
    EXPECT_EQ(kok.Oku(), 1U);
}

TEST_F(Hatirlama, More_folders_than_are_kept_are_all_read_right) {
    const DosyaAgaci kok;
    const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
    for (int kez = 0; kez < 3; ++kez)
        for (int i = 0; i < 7; ++i) {
            const Metin ad = u"k" + SayiMetni(i);
            kok.Koy(ad + u"/a", std::to_string(10 * kez + i));
            EXPECT_EQ(HatirlananiOku(kok.dosyalar, kok.TamYol(ad)),
                      (Icerik{{u"a", std::to_string(10 * kez + i)}}));
        }
}

class HatirlamaKarsilastirma : public Hatirlama, public ::testing::WithParamInterface<unsigned> {};

TEST_P(HatirlamaKarsilastirma, Hands_over_what_a_fresh_reading_does_whatever_happens_in_the_folder) {
    const HatirlamaAgaci kok(12);
    std::mt19937 rastgele(GetParam());
    const auto sec = [&](unsigned adet) {
        return std::uniform_int_distribution<unsigned>(0, adet - 1)(rastgele);
    };
    const auto yol = [&] { return kok.Yol(u"salon/yıl/" + SayiMetni(static_cast<int>(5 + sec(25)))); };
    const Dosyalar::Hatirlama hatirlama(kok.dosyalar);
    std::size_t okunan = 0;
    for (int adim = 0; adim < 200; ++adim) {
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
    }
    EXPECT_LT(okunan, 400U) << "most of it was kept";
}

INSTANTIATE_TEST_SUITE_P(RandomTrees, HatirlamaKarsilastirma, ::testing::Range(1U, 31U));

} // namespace velora
