// Folders that are listed ahead on a second thread: what is handed over is what a listing finds.
#include <chrono>
#include <set>

#include <gtest/gtest.h>

#include "destek/YasliBellek.h"
#include "storage/DosyaAgaci.h"
#include "storage/dosya/OndenListe.h"

namespace velora {
namespace {

using test::BellekBeklemesin;
using test::DosyaAgaci;

using Yol = std::filesystem::path;
using Adlar = std::set<Yol::string_type>;

Adlar AdKumesi(const AdListesi& liste) {
    Adlar adlar;
    for (std::size_t i = 0; i < liste.Sayi(); ++i)
        adlar.emplace(liste.GelenAd(i));
    return adlar;
}

/// Folders "k0" to "k199", some with one file and some with more; each seventh isn't there, and k5 is a file.
struct KlasorAgaci : DosyaAgaci {
    static constexpr int kAdet = 200;

    KlasorAgaci() {
        for (int i = 0; i < kAdet; ++i) {
            const Metin ad = u"k" + SayiMetni(i);
            if (i == 5)
                Koy(ad, "no folder");
            else if (i % 7 != 6)
                Koy(ad + u"/" + SayiMetni(i) + u" a", "içerik " + std::to_string(i));
            for (int j = 0; j < i % 20 && i % 7 == 2; ++j)
                Koy(ad + u"/" + SayiMetni(j), "x");
            metinler.push_back(TamYol(ad));
            yollar.push_back(this->Yol(ad));
        }
        BellekBeklemesin(dosyalar);
        dosyalar.Bellek().enCokIzlenen = 0;
    }
    Adlar Bakinca(std::size_t i) const { return AdKumesi(ListelenenKlasor(yollar[i]).adlar); }
    /// All names of a folder, each with its bytes, as one without a memory and without help reads them.
    std::vector<std::string> Icerik(const Dosyalar& okuyan, std::size_t i) const {
        std::vector<std::string> icerik;
        okuyan.KlasoruOku(metinler[i], [&](const Dosyalar::OkunanDosya& dosya) {
            icerik.push_back(std::filesystem::path(dosya.ad).string() + " = " + std::string(dosya.bayt));
        });
        return icerik;
    }
    void HepsiOkunur(std::size_t ilk = 0) const {
        const Dosyalar yardimsiz(Kok());
        for (std::size_t i = ilk; i < yollar.size(); ++i)
            EXPECT_EQ(Icerik(dosyalar, i), Icerik(yardimsiz, i)) << i;
    }
    /// Waits until all that may stand listed ahead does so.
    bool OndeBekle() const { return dosyalar.Ondekiler()->Hazir() == OndenListe::kEnCokOnde; }

    std::vector<Metin> metinler;
    std::vector<std::filesystem::path> yollar;
};

} // namespace

TEST(OndenListe, Hands_over_each_folder_open_with_the_names_that_a_listing_finds) {
    const KlasorAgaci kok;
    for (int tur = 0; tur < 5; ++tur) {
        OndenListe onden(kok.yollar);
        std::string tampon;
        for (std::size_t i = 0; i < kok.yollar.size(); ++i) {
            const auto klasor = onden.Al(kok.yollar[i]);
            ASSERT_TRUE(klasor) << i;
            EXPECT_EQ(AdKumesi(klasor->adlar), kok.Bakinca(i)) << i;
            EXPECT_EQ(klasor->acik->Acildi(), std::filesystem::is_directory(kok.yollar[i])) << i;
            EXPECT_TRUE(klasor->acik->Tam()) << i;
            EXPECT_EQ(klasor->kimlik, klasor->acik->Sor()) << i;
            const Yol ad(SayiMetni(static_cast<int>(i)) + u" a");
            EXPECT_EQ(klasor->acik->Oku(ad.c_str(), 100, tampon),
                      klasor->adlar.Sayi() > 0 ? std::optional("içerik " + std::to_string(i)) : std::nullopt);
        }
        EXPECT_FALSE(onden.Al(kok.yollar.back())) << "it was taken";
    }
}

TEST(OndenListe, Stays_a_few_folders_ahead_and_passes_over_what_nobody_takes) {
    const KlasorAgaci kok;
    OndenListe onden(kok.yollar);
    EXPECT_EQ(onden.Hazir(), OndenListe::kEnCokOnde);
    EXPECT_FALSE(onden.Al(kok.Kok() / "yabanci"));
    EXPECT_EQ(onden.Hazir(), OndenListe::kEnCokOnde) << "a foreign one moves nothing on";
    EXPECT_TRUE(onden.Al(kok.yollar[100]));
    for (const std::size_t gecen : {0U, 99U, 100U})
        EXPECT_FALSE(onden.Al(kok.yollar[gecen])) << gecen;
    EXPECT_EQ(onden.Hazir(), OndenListe::kEnCokOnde);
    EXPECT_EQ(AdKumesi(onden.Al(kok.yollar[107])->adlar), kok.Bakinca(107));
    EXPECT_TRUE(onden.Al(kok.yollar[199]));
    EXPECT_EQ(onden.Hazir(), 0U);
}

TEST(
    OndenListe,
    Of_another_programs_change_a_folder_listed_a_moment_ago_may_know_nothing_and_an_older_one_is_listed_again) {
    const KlasorAgaci kok;
    const auto alinan = [&](const Metin& yeni, std::chrono::milliseconds enCokYas) {
        OndenListe onden(kok.yollar, enCokYas);
        EXPECT_EQ(onden.Hazir(), OndenListe::kEnCokOnde);
        kok.Koy(u"k1/" + yeni, "y");
        return AdKumesi(onden.Al(kok.yollar[1])->adlar);
    };
    const Adlar once = kok.Bakinca(1);
    EXPECT_EQ(alinan(u"bir", std::chrono::hours(1)), once);
    const Adlar yeniden = alinan(u"iki", std::chrono::milliseconds(0));
    EXPECT_EQ(yeniden, kok.Bakinca(1));
    EXPECT_EQ(yeniden.size(), once.size() + 2);
}

TEST(OndenListe, After_a_change_from_here_all_is_listed_again) {
    const KlasorAgaci kok;
    for (int tur = 0; tur < 50; ++tur) {
        OndenListe onden(kok.yollar);
        // Now all are listed, now the first ones are under way.
        ASSERT_TRUE(tur % 2 == 0 || onden.Hazir() == OndenListe::kEnCokOnde);
        for (const int i : {0, 1, 3, 4, 7})
            kok.Koy(u"k" + SayiMetni(i) + u"/yeni" + SayiMetni(tur), "y");
        onden.Birak();
        for (const std::size_t i : {0U, 1U, 3U, 4U, 7U})
            EXPECT_EQ(AdKumesi(onden.Al(kok.yollar[i])->adlar), kok.Bakinca(i)) << i;
    }
}

TEST(OndenListe, May_be_given_up_at_any_time_also_before_its_first_folder_and_with_none) {
    const KlasorAgaci kok;
    for (std::size_t alinan = 0; alinan < 40; ++alinan) {
        OndenListe onden(kok.yollar);
        for (std::size_t i = 0; i < alinan; ++i)
            EXPECT_TRUE(onden.Al(kok.yollar[i]));
    }
    OndenListe bos({});
    EXPECT_FALSE(bos.Al(kok.Kok()));
}

TEST(Onden, A_walk_through_many_folders_reads_the_same_with_help_as_without) {
    const KlasorAgaci kok;
    {
        const Dosyalar::Onden onden(kok.dosyalar, kok.metinler);
        ASSERT_NE(kok.dosyalar.Ondekiler(), nullptr);
        kok.HepsiOkunur();
        kok.HepsiOkunur(); // behind its end
    }
    EXPECT_EQ(kok.dosyalar.Ondekiler(), nullptr);
    kok.HepsiOkunur();
}

TEST(Onden, What_was_read_once_is_known_whoever_has_listed_its_folder) {
    const KlasorAgaci kok;
    const auto oku = [&] {
        const Dosyalar::Onden onden(kok.dosyalar, kok.metinler);
        const std::size_t once = kok.dosyalar.Okunan();
        for (std::size_t i = 0; i < kok.metinler.size(); ++i)
            kok.Icerik(kok.dosyalar, i);
        return kok.dosyalar.Okunan() - once;
    };
    EXPECT_GT(oku(), 200U);
    EXPECT_EQ(oku(), 0U);
}

TEST(Onden, A_few_folders_are_worth_no_thread) {
    const KlasorAgaci kok;
    std::vector<Metin> az(kok.metinler.begin(), kok.metinler.begin() + Dosyalar::Onden::kEnAz - 1);
    {
        const Dosyalar::Onden onden(kok.dosyalar, az);
        EXPECT_EQ(kok.dosyalar.Ondekiler(), nullptr);
    }
    az.push_back(kok.metinler.back());
    const Dosyalar::Onden onden(kok.dosyalar, az);
    EXPECT_NE(kok.dosyalar.Ondekiler(), nullptr);
}

TEST(Onden, What_is_written_or_deleted_here_in_between_is_seen) {
    const KlasorAgaci kok;
    const Dosyalar::Onden onden(kok.dosyalar, kok.metinler);
    ASSERT_TRUE(kok.OndeBekle());
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"k1\\yeni"), "y"));
    EXPECT_EQ(kok.Icerik(kok.dosyalar, 1), (std::vector<std::string>{"1 a = içerik 1", "yeni = y"}));
    ASSERT_TRUE(kok.OndeBekle());
    EXPECT_TRUE(kok.dosyalar.Sil(kok.TamYol(u"k3\\3 a")));
    EXPECT_TRUE(kok.Icerik(kok.dosyalar, 3).empty());
    kok.HepsiOkunur(4);
}

TEST(Onden, A_walk_within_a_walk_takes_nothing_from_it_that_is_wrong) {
    const KlasorAgaci kok;
    const Dosyalar::Onden onden(kok.dosyalar, kok.metinler);
    EXPECT_EQ(kok.Icerik(kok.dosyalar, 0), kok.Icerik(Dosyalar(kok.Kok()), 0));
    {
        const Dosyalar::Onden icteki(kok.dosyalar, kok.metinler);
        kok.HepsiOkunur();
    }
    ASSERT_NE(kok.dosyalar.Ondekiler(), nullptr) << "the outer one goes on";
    kok.HepsiOkunur(1);
}

TEST(Onden, A_folder_that_is_watched_is_listed_when_the_watch_has_begun) {
    KlasorAgaci kok;
    kok.dosyalar.Bellek().enCokIzlenen = 8;
    kok.metinler[2] = kok.metinler[1]; // twice: from the second time on it is watched
    const Dosyalar::Onden onden(kok.dosyalar, kok.metinler);
    EXPECT_EQ(kok.Icerik(kok.dosyalar, 1), (std::vector<std::string>{"1 a = içerik 1"}));
    ASSERT_TRUE(kok.OndeBekle());
    kok.Koy(u"k1/yeni", "y");
    EXPECT_EQ(kok.Icerik(kok.dosyalar, 2), (std::vector<std::string>{"1 a = içerik 1", "yeni = y"}));
    kok.HepsiOkunur(3);
}

TEST(Onden, A_folder_that_the_disk_calls_otherwise_or_that_cannot_be_listed_is_as_without) {
    KlasorAgaci kok;
    kok.Koy(u"Baska/dosya", "b");
    kok.metinler[50] = kok.TamYol(u"BASKA");
    kok.metinler[60] = u"refused";
    kok.metinler[61] = kok.dosyalar.Kok();
    kok.dosyalar.ariza = [&](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Listele && yol == kok.metinler[70];
    };
    const Dosyalar::Onden onden(kok.dosyalar, kok.metinler);
    const Dosyalar yardimsiz(kok.Kok());
    for (std::size_t i = 0; i < kok.metinler.size(); ++i)
        EXPECT_EQ(kok.Icerik(kok.dosyalar, i),
                  i == 70 ? std::vector<std::string>() : kok.Icerik(yardimsiz, i))
            << i;
    EXPECT_EQ(kok.Icerik(yardimsiz, 50), (std::vector<std::string>{"dosya = b"}));
}

} // namespace velora
