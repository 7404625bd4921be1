#include "storage/dosya/Aktarim.h"

#include <gtest/gtest.h>

#include <vector>

// The way a text goes over an old one, on a file that breaks where the test wants it.
namespace velora {
namespace {

struct BozukDosya {
    std::string icerik;
    std::size_t enCokOkuma = std::string::npos;  ///< bytes that one call gives
    std::size_t enCokYazma = std::string::npos;  ///< bytes that one call takes
    std::size_t toplamYazma = std::string::npos; ///< bytes that may be written before the device fails
    std::size_t enUzun = std::string::npos;      ///< length beyond which it doesn't grow
    bool yerVar = true;
    int kesilmeyen = 0;               ///< cuts that fail before one works
    std::vector<std::string> anlar{}; ///< what a reader would have seen after each step

    std::optional<std::uint64_t> Boy() const { return icerik.size(); }
    std::optional<std::size_t> Oku(std::uint64_t konum, char* hedef, std::size_t adet) const {
        return icerik.copy(hedef, std::min(adet, enCokOkuma), konum);
    }
    bool YerAyir(std::uint64_t) const { return yerVar; }
    std::size_t Yaz(std::uint64_t konum, std::string_view bayt) {
        const std::size_t yer = enUzun > konum ? enUzun - konum : 0;
        bayt = bayt.substr(0, std::min({enCokYazma, toplamYazma, yer}));
        if (toplamYazma != std::string::npos)
            toplamYazma -= bayt.size();
        icerik.resize(std::max<std::size_t>(icerik.size(), konum + bayt.size()));
        icerik.replace(konum, bayt.size(), bayt);
        anlar.push_back(icerik);
        return bayt.size();
    }
    bool Kes(std::uint64_t boy) {
        if (kesilmeyen-- > 0)
            return false;
        icerik.resize(boy);
        anlar.push_back(icerik);
        return true;
    }
};

const std::string kEskiKayit = "\"eski\",\"kayit\",1\r\n";
const std::string kKisa = "\"y\"\r\n";
const std::string kUzun = "\"yeni ve daha uzun\",\"kayit\",0\r\n";

bool HerKisaSondur(std::size_t) {
    return true;
}

/// What `SinirliDoldur` makes of a text that comes in these pieces, and what it cost. Behind the last piece
/// the file ends, or the disk fails.
struct ParcaliOkuma {
    std::vector<std::string> parcalar;
    bool bozuk = false;
    int okumalar = 0;
    int boylar = 0;

    std::optional<std::string> Oku() {
        std::string tampon;
        std::size_t sira = 0;
        const auto boyu = [&]() -> std::optional<std::uint64_t> {
            ++boylar;
            return 100;
        };
        const auto oku = [&](char* hedef, std::size_t adet) -> std::optional<std::size_t> {
            ++okumalar;
            if (sira == parcalar.size())
                return bozuk ? std::nullopt : std::optional<std::size_t>(0);
            return parcalar[sira++].copy(hedef, adet);
        };
        const auto okunan = SinirliDoldur(tampon, 1U << 20U, boyu, oku);
        return okunan ? std::optional(tampon.substr(0, *okunan)) : std::nullopt;
    }
};

} // namespace

TEST(UzerineYaz, Leaves_exactly_the_new_text) {
    for (const std::string& eski : {std::string(), kEskiKayit, kUzun})
        for (const std::string& yeni : {std::string(), kKisa, kEskiKayit, kUzun}) {
            BozukDosya dosya{.icerik = eski};
            EXPECT_TRUE(UzerineYaz(dosya, yeni));
            EXPECT_EQ(dosya.icerik, yeni);
        }
}

TEST(UzerineYaz, At_every_moment_the_file_holds_the_old_text_or_the_new_one_with_line_ends_behind_it) {
    BozukDosya dosya{.icerik = kUzun};
    ASSERT_TRUE(UzerineYaz(dosya, kKisa));
    const std::string dolgulu = kKisa + std::string(kUzun.size() - kKisa.size(), '\n');
    EXPECT_EQ(dosya.anlar, (std::vector<std::string>{dolgulu, kKisa}));
}

TEST(UzerineYaz, A_longer_text_goes_down_in_one_single_write) {
    BozukDosya dosya{.icerik = kEskiKayit};
    ASSERT_TRUE(UzerineYaz(dosya, kUzun));
    EXPECT_EQ(dosya.anlar, (std::vector<std::string>{kUzun}));
}

TEST(UzerineYaz, A_disk_without_room_leaves_the_old_text_untouched) {
    BozukDosya dosya{.icerik = kEskiKayit, .yerVar = false};
    EXPECT_FALSE(UzerineYaz(dosya, kUzun));
    EXPECT_EQ(dosya.icerik, kEskiKayit);
    EXPECT_TRUE(dosya.anlar.empty());
}

TEST(UzerineYaz, A_full_disk_does_not_stand_in_the_way_of_a_shorter_text) {
    BozukDosya dosya{.icerik = kEskiKayit, .enUzun = kEskiKayit.size(), .yerVar = false};
    EXPECT_TRUE(UzerineYaz(dosya, kKisa));
    EXPECT_EQ(dosya.icerik, kKisa);
}

TEST(UzerineYaz, A_write_that_comes_back_short_is_finished) {
    for (const std::size_t parca : {1U, 3U, 7U}) {
        BozukDosya dosya{.icerik = kEskiKayit, .enCokYazma = parca};
        EXPECT_TRUE(UzerineYaz(dosya, kUzun));
        EXPECT_EQ(dosya.icerik, kUzun);
    }
}

TEST(UzerineYaz, A_device_that_stops_growing_in_the_middle_gets_the_old_text_back) {
    for (std::size_t sinir = kEskiKayit.size(); sinir < kUzun.size(); ++sinir) {
        BozukDosya dosya{.icerik = kEskiKayit, .enUzun = sinir};
        EXPECT_FALSE(UzerineYaz(dosya, kUzun));
        EXPECT_EQ(dosya.icerik, kEskiKayit) << sinir;
    }
}

TEST(UzerineYaz, An_old_text_that_was_read_piece_by_piece_comes_back_whole) {
    BozukDosya dosya{.icerik = kEskiKayit, .enCokOkuma = 4, .enUzun = kEskiKayit.size() + 1};
    EXPECT_FALSE(UzerineYaz(dosya, kUzun));
    EXPECT_EQ(dosya.icerik, kEskiKayit);
}

TEST(UzerineYaz, A_cut_that_fails_brings_the_old_text_back) {
    BozukDosya dosya{.icerik = kUzun, .kesilmeyen = 1};
    EXPECT_FALSE(UzerineYaz(dosya, kKisa));
    EXPECT_EQ(dosya.icerik, kUzun);
}

TEST(UzerineYaz, A_device_that_dies_for_good_ends_the_call) {
    BozukDosya dosya{.icerik = kEskiKayit, .toplamYazma = 4};
    EXPECT_FALSE(UzerineYaz(dosya, kUzun));
    EXPECT_EQ(dosya.icerik.size(), kEskiKayit.size());
}

TEST(SonunaYaz, Puts_the_bytes_behind_the_last_one) {
    BozukDosya dosya{.icerik = kEskiKayit, .enCokYazma = 5};
    EXPECT_TRUE(SonunaYaz(dosya, kUzun));
    EXPECT_EQ(dosya.icerik, kEskiKayit + kUzun);
}

TEST(SonunaYaz, A_device_that_fails_in_the_middle_leaves_the_old_length) {
    BozukDosya dosya{.icerik = kEskiKayit, .toplamYazma = 10};
    EXPECT_FALSE(SonunaYaz(dosya, kUzun));
    EXPECT_EQ(dosya.icerik, kEskiKayit);
}

TEST(Doldur, A_short_file_costs_one_call) {
    int cagri = 0;
    std::string tampon;
    const auto oku = [&](char* hedef, std::size_t adet) -> std::optional<std::size_t> {
        ++cagri;
        return kEskiKayit.copy(hedef, adet);
    };
    EXPECT_EQ(Doldur(tampon, 1U << 20U, oku, HerKisaSondur), kEskiKayit.size());
    EXPECT_EQ(cagri, 1);
    EXPECT_EQ(tampon.substr(0, kEskiKayit.size()), kEskiKayit);
}

TEST(Doldur, A_read_that_comes_short_of_a_known_length_is_not_the_end) {
    for (const std::size_t parca : {1U, 7U}) {
        BozukDosya dosya{.icerik = kUzun, .enCokOkuma = parca};
        std::string tampon(kUzun.size() + 1, ' ');
        EXPECT_EQ(OkuHepsini(dosya, 1U << 20U, tampon, kUzun.size()), kUzun.size());
        EXPECT_EQ(tampon.substr(0, kUzun.size()), kUzun);
    }
    BozukDosya kesilen{.icerik = kKisa};
    std::string tampon(kUzun.size() + 1, ' ');
    EXPECT_EQ(OkuHepsini(kesilen, 1U << 20U, tampon, kUzun.size()), kKisa.size()) << "cut meanwhile";
}

TEST(Doldur, Never_reads_beyond_the_limit) {
    for (const std::size_t sinir : {std::size_t{0}, std::size_t{1}, kOkumaTamponu, 3 * kOkumaTamponu + 1}) {
        std::size_t verilen = 0;
        std::string tampon;
        const auto sonsuz = [&](char*, std::size_t adet) -> std::optional<std::size_t> {
            verilen += adet;
            return adet;
        };
        EXPECT_EQ(Doldur(tampon, sinir, sonsuz, HerKisaSondur), sinir);
        EXPECT_EQ(verilen, sinir);
    }
}

TEST(Doldur, A_read_that_fails_fails_the_whole) {
    std::string tampon;
    const auto bozuk = [](char*, std::size_t) { return std::optional<std::size_t>(); };
    EXPECT_EQ(Doldur(tampon, 10, bozuk, HerKisaSondur), std::nullopt);
}

TEST(SinirliDoldur, A_record_costs_one_call_and_is_not_asked_for_its_length) {
    ParcaliOkuma okuma{.parcalar = {kUzun}};
    EXPECT_EQ(okuma.Oku(), kUzun);
    EXPECT_EQ(okuma.okumalar, 1);
    EXPECT_EQ(okuma.boylar, 0);
    ParcaliOkuma bos{.parcalar = {""}};
    EXPECT_EQ(bos.Oku(), "");
    EXPECT_EQ(bos.okumalar, 1);
}

TEST(SinirliDoldur, A_read_that_is_broken_off_within_a_line_is_not_the_end) {
    ParcaliOkuma okuma{.parcalar = {"\"bir\",", "\"iki\"", ",3\r\n"}};
    EXPECT_EQ(okuma.Oku(), "\"bir\",\"iki\",3\r\n");
    EXPECT_EQ(okuma.okumalar, 3);
    ParcaliOkuma satirsiz{.parcalar = {"\"elle yazilmis\""}};
    EXPECT_EQ(satirsiz.Oku(), "\"elle yazilmis\"");
    EXPECT_EQ(satirsiz.okumalar, 2) << "asked once more";
}

TEST(SinirliDoldur, A_disk_that_fails_behind_a_block_has_not_given_a_short_file) {
    const std::string blok = std::string(510, 'x') + "\r\n";
    ParcaliOkuma bozuk{.parcalar = {blok}, .bozuk = true};
    EXPECT_EQ(bozuk.Oku(), std::nullopt);
    ParcaliOkuma saglam{.parcalar = {blok}};
    EXPECT_EQ(saglam.Oku(), blok);
    EXPECT_EQ(saglam.okumalar, 2);
}

} // namespace velora
