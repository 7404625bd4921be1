// The watch of a folder, on real folders.
#include "platform/KlasorIzleme.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"

namespace velora::test {

namespace {

using namespace std::chrono_literals;

} // namespace

TEST(PlatformKlasorIzlemeTest, Each_kind_of_change_is_told_once) {
    const GeciciAgac agac;
    agac.Koy(u"izlenen/a", "a");
    agac.KlasorKoy(u"izlenen/alt");
    const DegisiklikBekle bekle = KlasoruIzle(agac.Yol(u"izlenen"));
    ASSERT_TRUE(bekle);
    EXPECT_FALSE(bekle(20ms));
    const std::function<void()> degisiklikler[]{
        [&] { agac.Koy(u"izlenen/b", "b"); },
        [&] { agac.Koy(u"izlenen/a", "başka"); },
        [&] { std::filesystem::rename(agac.Yol(u"izlenen/b"), agac.Yol(u"izlenen/c")); },
        [&] { std::filesystem::permissions(agac.Yol(u"izlenen/c"), std::filesystem::perms::owner_read); },
        [&] { std::filesystem::remove(agac.Yol(u"izlenen/c")); },
        [&] { agac.KlasorKoy(u"izlenen/yeni"); },
    };
    int sira = 0;
    for (const auto& degistir : degisiklikler) {
        degistir();
        EXPECT_TRUE(bekle(2000ms)) << sira;
        EXPECT_FALSE(bekle(20ms)) << sira++;
    }
    agac.Koy(u"izlenen/alt/d", "d");
    EXPECT_FALSE(bekle(50ms)) << "below a folder of it nothing is watched";
}

TEST(PlatformKlasorIzlemeTest, What_is_no_folder_cannot_be_watched) {
    const GeciciAgac agac;
    agac.Koy(u"dosya", "a");
    EXPECT_FALSE(KlasoruIzle(agac.Yol(u"dosya")));
    EXPECT_FALSE(KlasoruIzle(agac.Yol(u"yok")));
    EXPECT_FALSE(KlasoruIzle({}));
}

TEST(PlatformKlasorIzlemeTest, Watches_come_and_go_without_end) {
    const GeciciAgac agac;
    for (int i = 0; i < 300; ++i)
        ASSERT_TRUE(KlasoruIzle(agac.Kok())) << i;
}

TEST(PlatformKlasorIzlemeTest, It_comes_into_the_world_of_a_program) {
    const GeciciAgac agac;
    Ortam ortam;
    EXPECT_FALSE(ortam.klasorler.izle(agac.Kok()));
    IzlemeyiBagla(ortam);
    EXPECT_TRUE(ortam.klasorler.izle(agac.Kok()));
}

} // namespace velora::test
