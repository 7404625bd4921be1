// One running copy for each user and machine. Other copies are processes of this test's own.
#include "platform/TekKopya.h"

#include <csignal>
#include <cstdlib>
#include <functional>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "destek/GeciciAgac.h"

namespace velora::test {

namespace {

/// A process that does something, tells by its answer how it went, and lives until it is killed.
class Surec {
  public:
    explicit Surec(const std::function<char()>& is) {
        int uclar[2];
        if (::pipe(uclar) != 0)
            return;
        no_ = ::fork();
        if (no_ == 0) {
            const char cevap = is();
            [[maybe_unused]] const auto yazilan = ::write(uclar[1], &cevap, 1);
            for (;;)
                ::pause();
        }
        ::close(uclar[1]);
        if (::read(uclar[0], &cevap_, 1) != 1)
            cevap_ = '?';
        ::close(uclar[0]);
    }
    ~Surec() { Oldur(); }
    Surec(const Surec&) = delete;
    Surec& operator=(const Surec&) = delete;

    char Cevap() const { return cevap_; }
    void Oldur() {
        if (no_ <= 0)
            return;
        ::kill(no_, SIGKILL);
        ::waitpid(no_, nullptr, 0);
        no_ = -1;
    }

  private:
    pid_t no_ = -1;
    char cevap_ = '?';
};

char Sor() {
    return TekKopyaMi() ? 'e' : 'h';
}

} // namespace

class TekKopyaTest : public ::testing::Test {
  protected:
    TekKopyaTest() { ::setenv("XDG_RUNTIME_DIR", agac.Kok().c_str(), 1); }
    ~TekKopyaTest() override { ::unsetenv("XDG_RUNTIME_DIR"); }

    GeciciAgac agac;
};

TEST_F(TekKopyaTest, A_second_copy_is_refused_and_the_first_may_ask_again) {
    const Surec birinci([] {
        const char ilk = Sor();
        return ilk == 'e' ? Sor() : ilk;
    });
    EXPECT_EQ(birinci.Cevap(), 'e');
    EXPECT_EQ(Surec(Sor).Cevap(), 'h');
    EXPECT_EQ(Surec(Sor).Cevap(), 'h');
}

TEST_F(TekKopyaTest, A_copy_that_was_killed_stands_in_nobodys_way) {
    Surec birinci(Sor);
    birinci.Oldur();
    const Surec ikinci(Sor);
    EXPECT_EQ(ikinci.Cevap(), 'e');
    EXPECT_EQ(Surec(Sor).Cevap(), 'h');
}

TEST_F(TekKopyaTest, A_program_that_a_copy_has_started_does_not_stand_for_it) {
    agac.Koy(u"no", "");
    Surec birinci([this] {
        const char cevap = Sor();
        const pid_t okuyucu = ::fork();
        if (okuyucu == 0)
            ::execlp("sleep", "sleep", "20", nullptr);
        agac.Koy(u"no", std::to_string(okuyucu));
        // Until it is another program it still is this one.
        ::usleep(300'000);
        return cevap;
    });
    EXPECT_EQ(birinci.Cevap(), 'e');
    birinci.Oldur();
    const pid_t okuyucu = std::stoi(agac.Bayt(u"no"));
    EXPECT_EQ(::kill(okuyucu, 0), 0);
    EXPECT_EQ(Surec(Sor).Cevap(), 'e');
    ::kill(okuyucu, SIGKILL);
}

TEST_F(TekKopyaTest, Where_no_place_can_be_taken_everybody_may_work) {
    ::setenv("XDG_RUNTIME_DIR", (agac.Kok() / "yok").c_str(), 1);
    const Surec birinci(Sor);
    EXPECT_EQ(birinci.Cevap(), 'e');
    EXPECT_EQ(Surec(Sor).Cevap(), 'e');
}

} // namespace velora::test
