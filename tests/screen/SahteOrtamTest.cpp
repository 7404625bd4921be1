// The scripted outside world must itself be able to fail a test.
#include "destek/SahteOrtam.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace velora::test {

namespace {
constexpr Gun kGun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}};
} // namespace

TEST(SahteOrtamTest, Unexpected_box_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Ver().sor.mesaj({u"x"});
        },
        "unexpected box");
}

TEST(SahteOrtamTest, Box_that_never_came_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenKutu{u"Velora", u"x"});
        },
        "never came");
}

TEST(SahteOrtamTest, Differently_worded_box_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenKutu{u"Velora", u"x"});
            ortam.Ver().sor.mesaj({u"y"});
        },
        "beklenen.metin");
}

TEST(SahteOrtamTest, Question_answered_like_a_message_fails) {
    EXPECT_NONFATAL_FAILURE(
        {
            SahteOrtam ortam(kGun);
            ortam.Bekle(BeklenenKutu{u"Velora", u"x", Simge::Soru, Cevap::Tamam});
            ortam.Ver().sor.mesaj({u"x", u"Velora", Simge::Soru, KutuDugmeleri::EvetHayir});
        },
        "other buttons");
}

TEST(SahteOrtamTest, Input_box_gives_its_scripted_answer) {
    SahteOrtam ortam(kGun);
    ortam.Bekle(BeklenenGirdi{u"Başlık", u"Soru", u"cevap"});
    EXPECT_EQ(ortam.Ver().sor.girdi({u"Soru", u"Başlık", u""}), u"cevap");
}

} // namespace velora::test
