#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <optional>
#include <thread>

#include "storage/DosyaAgaci.h"

// Two programs that write over one file.
namespace velora {
namespace {

using test::DosyaAgaci;

/// Another program that writes over a file of the tree just now.
class BaskaYazan {
  public:
    BaskaYazan(const DosyaAgaci& kok, MetinBakis ad) : no_(::open(kok.Yol(ad).c_str(), O_RDWR | O_CLOEXEC)) {
        EXPECT_EQ(::flock(no_, LOCK_EX | LOCK_NB), 0);
    }
    BaskaYazan(const BaskaYazan&) = delete;
    BaskaYazan& operator=(const BaskaYazan&) = delete;
    ~BaskaYazan() { ::close(no_); }

    void Yaz(std::string_view bayt) const {
        EXPECT_EQ(::pwrite(no_, bayt.data(), bayt.size(), 0), static_cast<ssize_t>(bayt.size()));
    }
    bool Tutuyor() const { return ::flock(no_, LOCK_EX | LOCK_NB) == 0; }

  private:
    int no_;
};

constexpr int kTurSayisi = 9;

/// In how many of some rounds our text is the last one, when another program has the file as we begin to
/// write and does `is` before it lets go. A machine that stands still for long may bring the two out of their
/// order in a round.
int BizimSonKalan(const std::function<void(const DosyaAgaci&, const BaskaYazan&)>& is) {
    const DosyaAgaci kok;
    int sayi = 0;
    for (int tur = 0; tur < kTurSayisi; ++tur) {
        kok.Koy(u"a", "eski");
        std::optional<BaskaYazan> baska(std::in_place, kok, u"a");
        std::thread yazan([&] { kok.dosyalar.Yaz(kok.TamYol(u"a"), "bizim"); });
        std::this_thread::sleep_for(std::chrono::milliseconds(40));
        is(kok, *baska);
        baska.reset();
        yazan.join();
        sayi += kok.Oku(u"a") == "bizim" ? 1 : 0;
    }
    return sayi;
}

} // namespace

TEST(Kilit, A_write_waits_for_another_program_that_writes_over_the_same_file) {
    EXPECT_GT(BizimSonKalan([](const DosyaAgaci&, const BaskaYazan& baska) { baska.Yaz("onun metni"); }),
              kTurSayisi / 2);
}

TEST(Kilit, Of_a_file_that_is_removed_while_it_is_waited_for_a_new_one_is_made) {
    EXPECT_GT(BizimSonKalan(
                  [](const DosyaAgaci& kok, const BaskaYazan&) { std::filesystem::remove(kok.Yol(u"a")); }),
              kTurSayisi / 2);
}

TEST(Kilit, A_write_does_not_wait_for_ever) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "eski");
    const BaskaYazan baska(kok, u"a");
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"a"), "bizim"));
    EXPECT_EQ(kok.Bayt(u"a"), "bizim");
}

TEST(Kilit, The_file_is_free_again_behind_the_write) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "eski");
    EXPECT_TRUE(kok.dosyalar.Yaz(kok.TamYol(u"a"), "bizim"));
    const BaskaYazan baska(kok, u"a");
    EXPECT_TRUE(baska.Tutuyor());
}

} // namespace velora
