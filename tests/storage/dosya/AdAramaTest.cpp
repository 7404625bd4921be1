#include <gtest/gtest.h>

#include <chrono>
#include <fstream>

#include "storage/DosyaAgaci.h"
#include "storage/dosya/Gozcu.h"

// Trees that were carried over from a system that tells no case apart, or that has other bytes for its names.
namespace velora {

using test::DosyaAgaci;

namespace {

constexpr const char* kHamGunduz = "12.05.2026 - G\xFCnd\xFCz";
constexpr MetinBakis kAyriGunduz = u"12.05.2026 - Gu\u0308ndu\u0308z";

void HamKoy(const std::filesystem::path& yol, std::string_view bayt) {
    std::filesystem::create_directories(yol.parent_path());
    std::ofstream(yol, std::ios::binary) << bayt;
}

/// Makes the folder's last change so old that its listing may be kept.
void Eskit(const std::filesystem::path& klasor) {
    std::filesystem::last_write_time(klasor,
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
}

/// Whether the system surely tells of each change in this folder. Not all file systems do.
bool Izlenir(const std::filesystem::path& klasor) {
    sistem::Gozcu gozcu;
    gozcu.Izle(klasor);
    return gozcu.Degisenler([](sistem::DiskAdi) {});
}

/// A root of more halls than are simply listed again, which has been looked through twice.
struct CokSalon : DosyaAgaci {
    CokSalon() {
        for (int i = 0; i < 260; ++i)
            KlasorKoy(u"Salon " + SayiMetni(i));
        for (int i = 0; i < 2; ++i)
            EXPECT_FALSE(dosyalar.VarMi(TamYol(u"Yok\\x")));
    }
    /// How many folders were listed to make one that isn't there.
    std::size_t Yap(MetinBakis ad) const {
        const std::size_t once = dosyalar.AramadaListelenen();
        EXPECT_TRUE(dosyalar.KlasorYap(TamYol(ad)));
        return dosyalar.AramadaListelenen() - once;
    }
};

/// Where changes aren't told of, a folder of many names is listed each time.
#define IZLENMEZSE_ATLA()                                                                                    \
    if (!Izlenir(test::GeciciAgac().Kok()))                                                                  \
    GTEST_SKIP() << "changes are not told of on this file system"

} // namespace

TEST(AdArama, A_folder_in_another_case_is_taken_and_no_second_one_is_made) {
    const DosyaAgaci kok;
    kok.Koy(u"SALON ŞÖLEN/2026/x", "1");
    const Dosyalar& d = kok.dosyalar;
    EXPECT_EQ(d.Oku(kok.TamYol(u"Salon Şölen\\2026\\x")), "1");
    EXPECT_FALSE(d.KlasorYap(kok.TamYol(u"Salon Şölen")));
    EXPECT_TRUE(d.KlasorYap(kok.TamYol(u"Salon Şölen\\2027")));
    EXPECT_TRUE(d.Yaz(kok.TamYol(u"salon şölen\\2027\\y"), "2"));
    EXPECT_EQ(kok.Bayt(u"SALON ŞÖLEN/2027/y"), "2");
    EXPECT_FALSE(kok.Var(u"Salon Şölen"));
    EXPECT_FALSE(kok.Var(u"salon şölen"));
}

TEST(AdArama, Every_piece_of_work_finds_a_file_in_any_of_the_three_forms) {
    const Metin ad = u"12.05.2026 - Gündüz";
    for (const auto& diskteki : {std::filesystem::path(kHamGunduz), std::filesystem::path(Metin(kAyriGunduz)),
                                 std::filesystem::path(u"12.05.2026 - GÜNDÜZ")}) {
        const DosyaAgaci kok;
        const Dosyalar& d = kok.dosyalar;
        const auto yol = kok.Kok() / u"Gül" / diskteki;
        HamKoy(yol, "eski");
        const Metin aranan = kok.TamYol(u"Gül\\" + ad);
        EXPECT_TRUE(d.VarMi(aranan));
        EXPECT_EQ(d.Oku(aranan), "eski");
        EXPECT_TRUE(d.Yaz(aranan, "yeni"));
        EXPECT_TRUE(d.Ekle(aranan, "+"));
        EXPECT_EQ(d.Oku(aranan), "yeni+");
        EXPECT_EQ(d.SistemYolu(aranan), yol);
        EXPECT_EQ(d.Kopyala(aranan, kok.TamYol(u"Gül\\kopya")), Kopyalanis::Oldu);
        EXPECT_EQ(kok.Bayt(u"Gül/kopya"), "yeni+");
        EXPECT_TRUE(d.Sil(aranan));
        EXPECT_FALSE(std::filesystem::exists(yol));
        EXPECT_FALSE(d.VarMi(aranan));
    }
}

TEST(AdArama, Listings_and_bulk_reading_give_names_in_the_form_of_the_program) {
    const DosyaAgaci kok;
    HamKoy(kok.Kok() / "G\xFCl" / kHamGunduz, "ham");
    HamKoy(kok.Kok() / "G\xFCl" / std::filesystem::path(Metin(kAyriGunduz) + u"-Detay"), "ayri");
    const std::vector<Metin> beklenen{u"12.05.2026 - Gündüz", u"12.05.2026 - Gündüz-Detay"};
    EXPECT_EQ(kok.dosyalar.Listele(kok.TamYol(u"Gül")), beklenen);
    std::vector<Metin> adlar;
    std::string baytlar;
    kok.dosyalar.KlasoruOku(kok.TamYol(u"Gül"), [&](const Dosyalar::OkunanDosya& dosya) {
        adlar.emplace_back(dosya.ad);
        baytlar += dosya.bayt;
    });
    EXPECT_EQ(adlar, beklenen);
    EXPECT_EQ(baytlar, "hamayri");
}

TEST(AdArama, The_name_to_the_letter_wins_and_else_the_first_in_the_order_of_listings) {
    const DosyaAgaci kok;
    kok.Koy(u"salon a/x", "kucuk");
    kok.Koy(u"SALON A/x", "buyuk");
    kok.Koy(u"Salon A/x", "tam");
    const Metin yol = kok.TamYol(u"Salon A\\x");
    EXPECT_EQ(kok.dosyalar.Oku(yol), "tam");
    std::filesystem::remove_all(kok.Yol(u"Salon A"));
    EXPECT_EQ(kok.dosyalar.Oku(yol), "buyuk");
    std::filesystem::remove_all(kok.Yol(u"SALON A"));
    EXPECT_EQ(kok.dosyalar.Oku(yol), "kucuk");
}

TEST(AdArama, A_name_that_is_there_costs_no_listing) {
    const DosyaAgaci kok;
    kok.Koy(u"Gül/2026/a", "1");
    kok.dosyalar.Oku(kok.TamYol(u"Gül\\2026\\a"));
    kok.dosyalar.Yaz(kok.TamYol(u"Gül\\2026\\a"), "22");
    kok.dosyalar.Listele(kok.TamYol(u"Gül\\2026"));
    kok.dosyalar.KlasoruOku(kok.TamYol(u"Gül\\2026"), [](const auto&) {});
    EXPECT_EQ(kok.dosyalar.AramadaListelenen(), 0U);
}

TEST(AdArama, A_folder_without_changes_is_listed_once_for_many_missing_names) {
    const DosyaAgaci kok;
    kok.Koy(u"Gül/2026/a", "1");
    Eskit(kok.Yol(u"Gül/2026"));
    for (int i = 0; i < 50; ++i)
        EXPECT_FALSE(kok.dosyalar.VarMi(kok.TamYol(u"Gül\\2026\\yok" + SayiMetni(i))));
    EXPECT_EQ(kok.dosyalar.AramadaListelenen(), 1U);
}

TEST(AdArama, A_name_that_comes_after_the_listing_is_found) {
    const DosyaAgaci kok;
    kok.Koy(u"Gül/2026/a", "1");
    Eskit(kok.Yol(u"Gül/2026"));
    const Metin yol = kok.TamYol(u"Gül\\2026\\Gelen");
    EXPECT_FALSE(kok.dosyalar.VarMi(yol));
    kok.Koy(u"Gül/2026/GELEN", "2");
    EXPECT_EQ(kok.dosyalar.Oku(yol), "2");
    // Twice within one tick of the file system's clock: a listing so near to a change isn't kept.
    std::filesystem::rename(kok.Yol(u"Gül/2026/GELEN"), kok.Yol(u"Gül/2026/gelen"));
    EXPECT_EQ(kok.dosyalar.Oku(yol), "2");
}

TEST(AdArama, Halls_that_get_their_folders_one_after_the_other_dont_have_all_halls_listed_for_each) {
    IZLENMEZSE_ATLA();
    const CokSalon kok;
    for (int i = 0; i < 40; ++i)
        ASSERT_EQ(kok.Yap(u"Yeni " + SayiMetni(i)), 0U) << i;
    // More folders of their own than are kept.
    for (int i = 0; i < 260; ++i)
        ASSERT_EQ(kok.Yap(u"Salon " + SayiMetni(i) + u"\\2026"), 1U) << i;
    EXPECT_EQ(kok.Yap(u"Son"), 0U);
    EXPECT_FALSE(kok.dosyalar.KlasorYap(kok.TamYol(u"SALON 3"))) << "it is there";
}

TEST(AdArama, What_another_program_changes_among_many_names_is_seen_at_once) {
    const CokSalon kok;
    const Dosyalar& d = kok.dosyalar;
    kok.Koy(u"GÜL/x", "1");
    EXPECT_EQ(d.Oku(kok.TamYol(u"Gül\\x")), "1");
    std::filesystem::rename(kok.Yol(u"GÜL"), kok.Yol(u"gül"));
    EXPECT_EQ(d.Oku(kok.TamYol(u"Gül\\x")), "1");
    std::filesystem::rename(kok.Yol(u"gül"), kok.Yol(u"Gonca"));
    EXPECT_EQ(d.Oku(kok.TamYol(u"Gül\\x")), std::nullopt);
    EXPECT_EQ(d.Oku(kok.TamYol(u"GonCA\\x")), "1");
    // Of several the first in the order of listings, whichever came first.
    kok.Koy(u"gonca/x", "2");
    kok.Koy(u"GOnca/x", "3");
    EXPECT_EQ(d.Oku(kok.TamYol(u"GonCA\\x")), "3");
    std::filesystem::remove_all(kok.Yol(u"GOnca"));
    kok.Koy(u"GOnca", "a file is no hall");
    EXPECT_EQ(d.Oku(kok.TamYol(u"GonCA\\x")), "1");
}

TEST(AdArama, A_folder_with_a_link_among_its_many_names_is_listed_each_time) {
    const CokSalon kok;
    std::filesystem::create_directory_symlink(kok.Yol(u"Hedef"), kok.Yol(u"BAĞ"));
    const Metin yol = kok.TamYol(u"Bağ\\x");
    EXPECT_FALSE(kok.dosyalar.VarMi(yol)); // it leads nowhere
    kok.Koy(u"Hedef/x", "1");
    EXPECT_EQ(kok.dosyalar.Oku(yol), "1");
}

TEST(AdArama, Two_paths_to_one_folder_are_one_place) {
    const DosyaAgaci kok;
    kok.KlasorKoy(u"Salon A");
    EXPECT_TRUE(kok.dosyalar.AyniKlasor(kok.TamYol(u"Salon A"), kok.TamYol(u"salon a\\")));
    EXPECT_FALSE(kok.dosyalar.AyniKlasor(kok.TamYol(u"Salon A"), kok.TamYol(u"salon b")));
    kok.KlasorKoy(u"salon a");
    EXPECT_FALSE(kok.dosyalar.AyniKlasor(kok.TamYol(u"Salon A"), kok.TamYol(u"salon a")));
}

} // namespace velora
