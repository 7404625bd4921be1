#include <gtest/gtest.h>

#include "storage/DosyaAgaci.h"

namespace velora {
namespace {

using test::DosyaAgaci;

struct Gorulen {
    Metin ad;
    bool acildi;
    std::string bayt;
    bool operator==(const Gorulen&) const = default;
};

std::vector<Gorulen> Oku(const Dosyalar& dosyalar, const Metin& klasor) {
    std::vector<Gorulen> gorulenler;
    dosyalar.KlasoruOku(klasor, [&](const Dosyalar::OkunanDosya& dosya) {
        gorulenler.push_back({Metin(dosya.ad), dosya.acildi, std::string(dosya.bayt)});
    });
    return gorulenler;
}

} // namespace

TEST(KlasoruOku, Reads_each_file_once_in_the_order_of_the_listing) {
    const DosyaAgaci kok;
    kok.Koy(u"Gider.dat", "g");
    kok.Koy(u"b", "");
    kok.Koy(u"A", "a");
    kok.KlasorKoy(u"k");
    EXPECT_EQ(Oku(kok.dosyalar, kok.dosyalar.Kok()),
              (std::vector<Gorulen>{{u"A", true, "a"}, {u"b", true, ""}, {u"Gider.dat", true, "g"}}));
}

TEST(KlasoruOku, Sees_the_same_as_listing_and_reading_one_by_one) {
    const DosyaAgaci kok;
    for (int i = 0; i < 300; ++i)
        kok.Koy(SayiMetni(i * 7919 % 1000) + u" ğ", std::string(static_cast<std::size_t>(i) * 37, 'x'));
    std::vector<Gorulen> tekTek;
    for (const Metin& ad : kok.dosyalar.Listele(kok.dosyalar.Kok()))
        tekTek.push_back({ad, true, kok.dosyalar.Oku(kok.TamYol(ad)).value()});
    ASSERT_EQ(tekTek.size(), 300U);
    EXPECT_EQ(Oku(kok.dosyalar, kok.dosyalar.Kok()), tekTek);
}

TEST(KlasoruOku, A_long_file_among_short_ones_is_read_whole_and_leaves_nothing_in_the_next) {
    const DosyaAgaci kok;
    const std::string uzun(200'000, 'u');
    kok.Koy(u"a", "1");
    kok.Koy(u"b", uzun);
    kok.Koy(u"c", "3");
    EXPECT_EQ(Oku(kok.dosyalar, kok.dosyalar.Kok()),
              (std::vector<Gorulen>{{u"a", true, "1"}, {u"b", true, uzun}, {u"c", true, "3"}}));
}

TEST(KlasoruOku, Takes_files_up_to_the_length_that_every_reader_takes) {
    const DosyaAgaci kok;
    const auto dene = [&](std::uintmax_t boy) {
        kok.Koy(u"a", "abc");
        std::filesystem::resize_file(kok.Yol(u"a"), boy);
        const auto tek = kok.dosyalar.Oku(kok.TamYol(u"a"));
        std::optional<std::size_t> toplu;
        kok.dosyalar.KlasoruOku(kok.dosyalar.Kok(), [&](const Dosyalar::OkunanDosya& dosya) {
            if (dosya.acildi)
                toplu = dosya.bayt.size();
        });
        EXPECT_EQ(toplu.has_value(), tek.has_value());
        return toplu.value_or(0);
    };
    EXPECT_EQ(dene(kEnUzunOkuma), kEnUzunOkuma);
    EXPECT_EQ(dene(kEnUzunOkuma + 1), 0U);
    EXPECT_EQ(dene(64ULL << 30U), 0U);
}

TEST(KlasoruOku, A_file_that_cannot_be_read_is_told_and_the_others_come) {
    DosyaAgaci kok;
    for (const MetinBakis ad : {u"a", u"b", u"c"})
        kok.Koy(ad, "x");
    kok.dosyalar.ariza = [&](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Oku && yol == kok.TamYol(u"b");
    };
    EXPECT_EQ(Oku(kok.dosyalar, kok.dosyalar.Kok()),
              (std::vector<Gorulen>{{u"a", true, "x"}, {u"b", false, ""}, {u"c", true, "x"}}));
}

TEST(KlasoruOku, A_file_removed_while_the_folder_is_read_counts_as_one_that_cannot_be_opened) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "x");
    kok.Koy(u"b", "x");
    std::vector<bool> acilanlar;
    kok.dosyalar.KlasoruOku(kok.dosyalar.Kok(), [&](const Dosyalar::OkunanDosya& dosya) {
        acilanlar.push_back(dosya.acildi);
        std::filesystem::remove(kok.Yol(u"b"));
    });
    EXPECT_EQ(acilanlar, (std::vector<bool>{true, false}));
}

TEST(KlasoruOku, May_be_called_again_from_inside_itself) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "1");
    kok.Koy(u"b", "2");
    std::string gorulen;
    kok.dosyalar.KlasoruOku(kok.dosyalar.Kok(), [&](const Dosyalar::OkunanDosya& dosya) {
        for (const Gorulen& ic : Oku(kok.dosyalar, kok.dosyalar.Kok()))
            gorulen += ic.bayt;
        gorulen += dosya.bayt;
    });
    EXPECT_EQ(gorulen, "121122");
}

TEST(KlasoruOku, A_folder_that_is_not_there_or_not_below_the_root_gives_nothing) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "x");
    EXPECT_TRUE(Oku(kok.dosyalar, kok.TamYol(u"yok")).empty());
    EXPECT_TRUE(Oku(kok.dosyalar, kok.TamYol(u"..")).empty());
    EXPECT_TRUE(Oku(kok.dosyalar, u"").empty());
}

} // namespace velora
