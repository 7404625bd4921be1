#include <gtest/gtest.h>

#include "tools/OrnekIstek.h"

namespace velora::ornek {
namespace {

using namespace std::chrono;

constexpr Gun kBugun = year(2026) / 6 / 17;

std::optional<Komut> Coz(std::vector<std::string_view> parcalar) {
    return KomutCoz(parcalar, kBugun);
}

TEST(OrnekIstek, Takes_the_defaults_when_only_the_folder_is_given) {
    const std::optional<Komut> komut = Coz({"/bir/yer"});
    ASSERT_TRUE(komut.has_value());
    EXPECT_EQ(komut->klasor, "/bir/yer");
    EXPECT_EQ(komut->istek.salon, 2U);
    EXPECT_EQ(komut->istek.yil, 2U);
    EXPECT_EQ(komut->istek.rezervasyon, 120U);
    EXPECT_EQ(komut->istek.bugun, kBugun);
    EXPECT_FALSE(komut->istek.tumAdlar);
}

TEST(OrnekIstek, Takes_every_option_before_and_after_the_folder) {
    const std::optional<Komut> komut = Coz({"--salon", "3", "--yil", "4", "yer", "--rezervasyon", "744",
                                            "--tohum", "7", "--bugun", "05.01.2012", "--tum-adlar"});
    ASSERT_TRUE(komut.has_value());
    EXPECT_EQ(komut->klasor, "yer");
    EXPECT_EQ(komut->istek.salon, 3U);
    EXPECT_EQ(komut->istek.yil, 4U);
    EXPECT_EQ(komut->istek.rezervasyon, 744U);
    EXPECT_EQ(komut->istek.tohum, 7U);
    EXPECT_EQ(komut->istek.bugun, year(2012) / 1 / 5);
    EXPECT_TRUE(komut->istek.tumAdlar);
}

TEST(OrnekIstek, Refuses_what_it_does_not_understand) {
    const std::vector<std::vector<std::string_view>> yanlislar = {
        {},
        {"bir", "iki"},
        {"--salon", "3"},
        {"yer", "--salon"},
        {"yer", "--salon", "0"},
        {"yer", "--salon", "101"},
        {"yer", "--salon", "-1"},
        {"yer", "--salon", "3x"},
        {"yer", "--salon", ""},
        {"yer", "--yil", "22"},
        {"yer", "--rezervasyon", "745"},
        {"yer", "--tohum", "4294967296"},
        {"yer", "--bugun", "31.02.2026"},
        {"yer", "--bugun", "yarın"},
        {"yer", "--baska", "1"},
    };
    for (std::size_t i = 0; i < yanlislar.size(); ++i)
        EXPECT_FALSE(Coz(yanlislar[i]).has_value()) << "number " << i;
}

} // namespace
} // namespace velora::ornek
