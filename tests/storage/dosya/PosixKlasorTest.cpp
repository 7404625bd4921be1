#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <semaphore>

#include <gtest/gtest.h>

#include <cerrno>
#include <dirent.h>
#include <dlfcn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "destek/YasliBellek.h"
#include "storage/DosyaAgaci.h"
#include "storage/dosya/OkumaBellegi.h"
#include "storage/dosya/OndenListe.h"

namespace {

// What the listing of a folder fails with; 0: it works.
std::atomic<int> acmaHatasi = 0;
std::atomic<int> okumaHatasi = 0;
std::atomic<int> hatasizOge = 0; // so many entries come before that

// The next listing stands still behind its first entry, with all the names of a short folder taken.
std::atomic<bool> dursun = false;
std::binary_semaphore durdu{0};
std::binary_semaphore surdur{0};

template <class Cagri>
Cagri* Asil(const char* ad) {
    return reinterpret_cast<Cagri*>(::dlsym(RTLD_NEXT, ad));
}

} // namespace

// These take the place of the system's own in this program: a disk that fails at listing, and at nothing
// else.
extern "C" DIR* opendir(const char* yol) {
    static const auto asil = Asil<DIR*(const char*)>("opendir");
    if (acmaHatasi == 0)
        return asil(yol);
    errno = acmaHatasi;
    return nullptr;
}

extern "C" dirent* readdir(DIR* akis) {
    static const auto asil = Asil<dirent*(DIR*)>("readdir");
    if (okumaHatasi == 0 || hatasizOge-- > 0) {
        dirent* const oge = asil(akis);
        if (dursun.exchange(false)) {
            durdu.release();
            surdur.acquire();
        }
        return oge;
    }
    errno = okumaHatasi;
    return nullptr;
}

// What only a POSIX folder can hold: pipes, links, names that are no UTF-8.
namespace velora {
namespace {

using test::DosyaAgaci;

std::vector<Metin> Okunanlar(const DosyaAgaci& kok) {
    std::vector<Metin> adlar;
    kok.dosyalar.KlasoruOku(kok.dosyalar.Kok(), [&](const Dosyalar::OkunanDosya& dosya) {
        if (dosya.acildi)
            adlar.emplace_back(dosya.ad);
    });
    return adlar;
}

/// As long as it stands, this process can open no more files.
class DosyaKalmadi {
  public:
    DosyaKalmadi() {
        EXPECT_EQ(::getrlimit(RLIMIT_NOFILE, &eski_), 0);
        const rlimit hic{0, eski_.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &hic), 0);
    }
    DosyaKalmadi(const DosyaKalmadi&) = delete;
    DosyaKalmadi& operator=(const DosyaKalmadi&) = delete;
    ~DosyaKalmadi() { ::setrlimit(RLIMIT_NOFILE, &eski_); }

  private:
    rlimit eski_{};
};

/// A folder with twenty files, of which all but the last have been read, and which is watched.
void IzlenenKlasorKoy(const DosyaAgaci& kok) {
    test::BellekBeklemesin(kok.dosyalar);
    for (int i = 10; i < 30; ++i)
        kok.Koy(u"k/" + SayiMetni(i), std::to_string(i));
    for (int kez = 0; kez < 3; ++kez) {
        KlasorOkumasi okuma = kok.dosyalar.KlasorAc(kok.TamYol(u"k"));
        for (std::size_t i = 0; i < 19; ++i)
            EXPECT_TRUE(okuma.Oku(i));
    }
}

Okunus Durumu(const DosyaAgaci& kok, MetinBakis ad) {
    return kok.dosyalar.SonucluOku(kok.TamYol(ad)).okunus;
}

} // namespace

TEST(PosixKlasor, A_pipe_in_the_folder_neither_hangs_nor_counts_as_a_file) {
    const DosyaAgaci kok;
    ASSERT_EQ(::mkfifo(kok.Yol(u"boru").c_str(), 0600), 0);
    kok.Koy(u"a", "x");
    EXPECT_EQ(kok.dosyalar.Listele(kok.dosyalar.Kok()), (std::vector<Metin>{u"a"}));
    EXPECT_EQ(Okunanlar(kok), (std::vector<Metin>{u"a"}));
    const Metin boru = kok.TamYol(u"boru");
    EXPECT_FALSE(kok.dosyalar.VarMi(boru));
    EXPECT_FALSE(kok.dosyalar.Oku(boru));
    EXPECT_FALSE(kok.dosyalar.Yaz(boru, "x"));
    EXPECT_FALSE(kok.dosyalar.Ekle(boru, "x"));
    EXPECT_EQ(kok.dosyalar.Kopyala(kok.TamYol(u"a"), boru), Kopyalanis::Olmadi);
}

TEST(PosixKlasor, A_link_to_a_plain_file_is_one_and_a_link_to_anything_else_is_none) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "x");
    kok.KlasorKoy(u"k");
    std::filesystem::create_symlink("a", kok.Yol(u"b"));
    std::filesystem::create_symlink("k", kok.Yol(u"c"));
    std::filesystem::create_symlink("yok", kok.Yol(u"d"));
    std::filesystem::create_symlink("/dev/zero", kok.Yol(u"e"));
    std::filesystem::create_symlink("f", kok.Yol(u"f"));
    EXPECT_EQ(kok.dosyalar.Listele(kok.dosyalar.Kok()), (std::vector<Metin>{u"a", u"b"}));
    EXPECT_EQ(Okunanlar(kok), (std::vector<Metin>{u"a", u"b"}));
    EXPECT_TRUE(kok.dosyalar.VarMi(kok.TamYol(u"b")));
    for (const MetinBakis ad : {u"c", u"d", u"e", u"f"}) {
        EXPECT_FALSE(kok.dosyalar.VarMi(kok.TamYol(ad)));
        EXPECT_FALSE(kok.dosyalar.Oku(kok.TamYol(ad)));
        EXPECT_FALSE(kok.dosyalar.Yaz(kok.TamYol(ad), "x"));
    }
}

TEST(PosixKlasor, A_name_that_is_no_UTF_8_is_listed_and_can_be_opened_again) {
    const DosyaAgaci kok;
    // As a machine with the Turkish code page would have left it.
    std::ofstream(kok.Kok() / "05.01.2012 - G\xFCnd\xFCz") << "x";
    const auto adlar = kok.dosyalar.Listele(kok.dosyalar.Kok());
    ASSERT_EQ(adlar.size(), 1U);
    EXPECT_EQ(kok.dosyalar.Oku(kok.TamYol(adlar[0])), "x");
    EXPECT_TRUE(kok.dosyalar.VarMi(kok.TamYol(adlar[0])));
    EXPECT_EQ(adlar[0], u"05.01.2012 - Gündüz");
    EXPECT_EQ(Okunanlar(kok), adlar);
    EXPECT_TRUE(kok.dosyalar.Sil(kok.TamYol(adlar[0])));
    EXPECT_TRUE(std::filesystem::is_empty(kok.Kok()));
}

TEST(PosixKlasor, Bytes_of_a_name_cannot_smuggle_a_separator_or_a_step_upwards) {
    const DosyaAgaci kok;
    for (const char kod : {'/', '.', '\\', '\0'})
        EXPECT_FALSE(kok.dosyalar.KlasorYap(kok.TamYol(Metin(2, static_cast<char16_t>(0xDC00 + kod)))));
    EXPECT_TRUE(std::filesystem::is_empty(kok.Kok()));
}

TEST(PosixKlasor, Names_that_differ_only_in_case_are_two_files) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "1");
    kok.Koy(u"A", "2");
    EXPECT_EQ(kok.dosyalar.Listele(kok.dosyalar.Kok()), (std::vector<Metin>{u"A", u"a"}));
    EXPECT_EQ(kok.dosyalar.Oku(kok.TamYol(u"a")), "1");
    EXPECT_EQ(kok.dosyalar.Oku(kok.TamYol(u"A")), "2");
}

TEST(PosixKlasor, A_file_without_rights_is_told_as_one_that_cannot_be_opened) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "root may read everything";
    const DosyaAgaci kok;
    kok.Koy(u"a", "x");
    ASSERT_EQ(::chmod(kok.Yol(u"a").c_str(), 0), 0);
    EXPECT_TRUE(kok.dosyalar.VarMi(kok.TamYol(u"a")));
    EXPECT_FALSE(kok.dosyalar.Oku(kok.TamYol(u"a")));
    EXPECT_FALSE(kok.dosyalar.Yaz(kok.TamYol(u"a"), "y"));
    EXPECT_TRUE(Okunanlar(kok).empty());
}

TEST(PosixKlasor, What_is_no_plain_file_or_may_not_be_opened_could_not_be_read_and_a_dead_link_is_not_there) {
    const DosyaAgaci kok;
    ASSERT_EQ(::mkfifo(kok.Yol(u"boru").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", kok.Yol(u"aygit"));
    std::filesystem::create_symlink("dongu", kok.Yol(u"dongu"));
    std::filesystem::create_symlink("yok", kok.Yol(u"bos"));
    for (const MetinBakis ad : {u"boru", u"aygit", u"dongu"})
        EXPECT_EQ(Durumu(kok, ad), Okunus::Okunamadi) << std::filesystem::path(Metin(ad));
    EXPECT_EQ(Durumu(kok, Metin(300, u'a')), Okunus::Okunamadi) << "a name too long";
    EXPECT_EQ(Durumu(kok, u"bos"), Okunus::Yok);
}

TEST(PosixKlasor, A_process_that_can_open_no_more_files_has_found_none_missing) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "x");
    {
        const DosyaKalmadi dar;
        EXPECT_EQ(Durumu(kok, u"a"), Okunus::Okunamadi);
    }
    EXPECT_EQ(Durumu(kok, u"a"), Okunus::Okundu);
}

TEST(PosixKlasor, A_listing_that_failed_is_neither_believed_nor_kept) {
    DosyaAgaci kok;
    kok.Koy(u"SALON.DAT", "x");
    std::filesystem::last_write_time(kok.Kok(),
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    for (std::atomic<int>* hata : {&acmaHatasi, &okumaHatasi}) {
        *hata = EIO;
        EXPECT_EQ(Durumu(kok, u"Salon.dat"), Okunus::Okunamadi) << "it may lie there in another spelling";
        *hata = 0;
    }
    EXPECT_EQ(kok.dosyalar.Oku(kok.TamYol(u"Salon.dat")), "x");
    EXPECT_EQ(Durumu(kok, u"Menuler.dat"), Okunus::Yok);
}

TEST(PosixKlasor, A_listing_that_broke_off_is_not_the_folder_for_who_watches_it) {
    const DosyaAgaci kok;
    IzlenenKlasorKoy(kok);
    kok.Koy(u"k/30", "yeni");
    okumaHatasi = EIO;
    hatasizOge = 12;
    EXPECT_LT(kok.dosyalar.Listele(kok.TamYol(u"k")).size(), 20U);
    EXPECT_LT(hatasizOge, 0) << "it broke off";
    okumaHatasi = 0;
    EXPECT_EQ(kok.dosyalar.Listele(kok.TamYol(u"k")).size(), 21U) << "though nothing has changed since";
}

TEST(PosixKlasor, A_folder_known_by_its_names_that_cannot_be_opened_gives_its_files_once_it_can) {
    const DosyaAgaci kok;
    IzlenenKlasorKoy(kok);
    acmaHatasi = EMFILE;
    KlasorOkumasi okuma = kok.dosyalar.KlasorAc(kok.TamYol(u"k"));
    ASSERT_EQ(okuma.Sayi(), 20U) << "nobody had to open it";
    EXPECT_EQ(okuma.Oku(18), "28");
    EXPECT_FALSE(okuma.Oku(19));
    acmaHatasi = 0;
    EXPECT_EQ(okuma.Oku(19), "29");
}

TEST(PosixKlasor, A_listing_ahead_that_failed_is_made_anew_when_its_folder_is_opened) {
    const DosyaAgaci kok;
    std::vector<Metin> klasorler;
    for (std::size_t i = 0; i < Dosyalar::Onden::kEnAz; ++i) {
        kok.Koy(SayiMetni(static_cast<int>(i)) + u"/dosya", std::to_string(i));
        klasorler.push_back(kok.TamYol(SayiMetni(static_cast<int>(i))));
    }
    for (std::atomic<int>* hata : {&acmaHatasi, &okumaHatasi}) {
        *hata = EMFILE;
        const Dosyalar::Onden onden(kok.dosyalar, klasorler);
        ASSERT_EQ(kok.dosyalar.Ondekiler()->Hazir(), OndenListe::kEnCokOnde);
        *hata = 0;
        for (std::size_t i = 0; i < OndenListe::kEnCokOnde; ++i)
            EXPECT_EQ(kok.dosyalar.KlasorAc(klasorler[i]).Sayi(), 1U) << i;
    }
}

TEST(PosixKlasor, A_change_from_here_in_the_middle_of_a_listing_ahead_has_the_folder_listed_again) {
    const DosyaAgaci kok;
    kok.Koy(u"k/kalan", "");
    kok.Koy(u"k/giden", "");
    dursun = true;
    OndenListe onden({kok.Yol(u"k")});
    durdu.acquire();
    std::filesystem::remove(kok.Yol(u"k/giden"));
    onden.Birak();
    surdur.release();
    const auto klasor = onden.Al(kok.Yol(u"k"));
    ASSERT_TRUE(klasor);
    ASSERT_EQ(klasor->adlar.Sayi(), 1U);
    EXPECT_EQ(klasor->adlar.GelenAd(0), "kalan");
}

TEST(PosixKlasor, Where_nobody_may_list_a_name_has_no_other_spelling) {
    const DosyaAgaci kok;
    kok.Koy(u"SALON.DAT", "x");
    acmaHatasi = EACCES;
    EXPECT_EQ(Durumu(kok, u"Salon.dat"), Okunus::Yok);
    EXPECT_EQ(Durumu(kok, u"SALON.DAT"), Okunus::Okundu);
    acmaHatasi = 0;
}

TEST(PosixKlasor, No_file_stays_open_behind_any_call) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "x");
    const auto acik = [] {
        return std::distance(std::filesystem::directory_iterator("/dev/fd"),
                             std::filesystem::directory_iterator());
    };
    kok.dosyalar.Bellek().enCokIzlenen = 0; // who watches holds one open, as long as his folder is kept
    const auto once = acik();
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(Okunanlar(kok), (std::vector<Metin>{u"a"}));
        kok.dosyalar.Oku(kok.TamYol(u"a"));
        kok.dosyalar.Oku(kok.dosyalar.Kok() + u"\\yok");
        kok.dosyalar.Yaz(kok.TamYol(u"a"), "y");
        kok.dosyalar.Ekle(kok.TamYol(u"a"), "x");
        kok.dosyalar.Yaz(kok.dosyalar.Kok(), "y");
    }
    EXPECT_EQ(acik(), once);
}

} // namespace velora
