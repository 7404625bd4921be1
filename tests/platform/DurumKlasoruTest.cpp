// Where the user's state lies on this system.
#include "platform/DurumKlasoru.h"

#include <cstdlib>
#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace velora::test {

namespace {

/// A variable of the environment, as it was before when this goes.
class Degisken {
  public:
    Degisken(const char* ad, const char* deger) : ad_(ad) {
        if (const char* onceki = std::getenv(ad))
            onceki_ = onceki;
        Koy(deger);
    }
    ~Degisken() { Koy(onceki_ ? onceki_->c_str() : nullptr); }
    Degisken(const Degisken&) = delete;
    Degisken& operator=(const Degisken&) = delete;

  private:
    void Koy(const char* deger) const {
        if (deger != nullptr)
            ::setenv(ad_, deger, 1);
        else
            ::unsetenv(ad_);
    }
    const char* ad_;
    std::optional<std::string> onceki_;
};

std::filesystem::path Klasor(const char* durum, const char* ev) {
    const Degisken bir("XDG_STATE_HOME", durum);
    const Degisken iki("HOME", ev);
    return DurumKlasoru();
}

} // namespace

TEST(DurumKlasoru, Lies_where_the_environment_says_or_else_in_the_users_own_folder) {
    EXPECT_EQ(Klasor("/durumlar", "/ev"), "/durumlar/velora");
    EXPECT_EQ(Klasor(nullptr, "/ev"), "/ev/.local/state/velora");
    EXPECT_EQ(Klasor("", "/ev"), "/ev/.local/state/velora");
}

TEST(DurumKlasoru, Is_never_relative_and_may_be_nowhere) {
    EXPECT_EQ(Klasor("durumlar", "/ev"), "/ev/.local/state/velora");
    EXPECT_TRUE(Klasor("durumlar", "ev").empty());
    EXPECT_TRUE(Klasor(nullptr, nullptr).empty());
}

TEST(DurumKlasoru, Comes_into_the_outside_world_of_a_program) {
    const Degisken durum("XDG_STATE_HOME", "/baska");
    Ortam ortam;
    EXPECT_TRUE(ortam.klasorler.durum().empty());
    DurumuBagla(ortam);
    EXPECT_EQ(ortam.klasorler.durum(), "/baska/velora");
}

} // namespace velora::test
