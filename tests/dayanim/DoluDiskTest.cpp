// A disk that fills up, a real one: a small tmpfs that only this test sees.
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "dayanim/Olcum.h"

namespace velora::dayanim {
namespace {

constexpr std::uint64_t kSayfa = 4096;
constexpr int kEnCokSayfa = 120; ///< room for the longest action and its journal

/// Takes all room of a disk but so many pages; gives it back at its end.
class Dolgu {
  public:
    Dolgu(const std::filesystem::path& disk, int kalan) : yol_(disk / "dolgu") {
        struct statvfs bilgi {};
        const int no = ::open(yol_.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        ::statvfs(disk.c_str(), &bilgi);
        const auto boy = static_cast<std::int64_t>(bilgi.f_bavail) - kalan;
        oldu = boy > 0 && ::fallocate(no, 0, 0, boy * static_cast<std::int64_t>(kSayfa)) == 0;
        ::close(no);
    }
    ~Dolgu() { ::unlink(yol_.c_str()); }
    Dolgu(const Dolgu&) = delete;
    Dolgu& operator=(const Dolgu&) = delete;

    bool oldu = false;

  private:
    std::filesystem::path yol_;
};

/// A mount of our own; the reason why not.
std::string DiskKur(const std::filesystem::path& yer) {
    if (::unshare(::geteuid() == 0 ? CLONE_NEWNS : CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return std::string("no name space of its own for mounts: ") + ::strerror(errno);
    // Root needs no other user; another one becomes root in there.
    if (::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("tmpfs", yer.c_str(), "tmpfs", 0, "size=2m") != 0)
        return std::string("no small disk: ") + ::strerror(errno);
    return {};
}

struct Deneme {
    bool durumDa = false; ///< the journal is on that disk, too
    bool sigdi = false;
};

/// One run with so little room, and a fresh start behind it, with room again. What is wrong then.
std::string BirKosum(const Saha& saha, const std::filesystem::path& disk, const Beklenen& beklenen,
                     const Senaryo& senaryo, int sayfa, Deneme& deneme) {
    saha.Kur(senaryo);
    {
        const Dolgu dolgu(disk, sayfa);
        if (!dolgu.oldu)
            return "the disk can't be filled";
        const KosumSonucu sonuc = Kos(saha, senaryo.ad);
        if (!sonuc.bitti)
            return "ended by " + sonuc.sonuc;
        deneme.sigdi = saha.Oku() == beklenen.sonra;
    }
    return Kusur(beklenen, saha.Baslat(), deneme.durumDa ? Olcu::Parca : Olcu::Butun);
}

/// What is wrong over all rooms of this disk, as text.
std::string Dene(const std::filesystem::path& disk, const Senaryo& senaryo, bool durumDa,
                 bool gunluklu = true) {
    Saha saha(disk, durumDa ? disk : std::filesystem::path());
    saha.gunluklu = gunluklu;
    const Beklenen beklenen = TemizKosum(saha, senaryo);
    Deneme deneme{.durumDa = durumDa};
    std::string kusurlar;
    int sayfa = 0;
    for (; sayfa < kEnCokSayfa && !deneme.sigdi; ++sayfa)
        if (const std::string kusur = BirKosum(saha, disk, beklenen, senaryo, sayfa, deneme); !kusur.empty())
            kusurlar +=
                "\n  " + std::to_string(sayfa) + " pages" + (durumDa ? ", journal too: " : ": ") + kusur;
    if (!deneme.sigdi)
        kusurlar += "\n  it doesn't fit into " + std::to_string(sayfa) + " pages";
    return kusurlar;
}

/// Runs `is` in a child that has the disk for itself, and gives what it says.
std::string KendiDiskinde(const std::filesystem::path& yer,
                          const std::function<std::string(const std::filesystem::path&)>& is) {
    std::array<int, 2> boru{};
    if (::pipe(boru.data()) != 0)
        return "no pipe";
    const pid_t cocuk = ::fork();
    if (cocuk == 0) {
        const std::string engel = DiskKur(yer);
        const std::string sonuc = engel.empty() ? is(yer) : "skip: " + engel;
        const bool yazildi =
            ::write(boru[1], sonuc.data(), sonuc.size()) == static_cast<ssize_t>(sonuc.size());
        ::_exit(yazildi && !::testing::Test::HasFailure() ? 0 : 1);
    }
    ::close(boru[1]);
    std::string sonuc;
    std::array<char, 4096> tampon{};
    for (ssize_t gelen = 0; (gelen = ::read(boru[0], tampon.data(), tampon.size())) > 0;)
        sonuc.append(tampon.data(), static_cast<std::size_t>(gelen));
    ::close(boru[0]);
    int durum = 0;
    ::waitpid(cocuk, &durum, 0);
    return durum == 0 ? sonuc : sonuc + "\n  the child failed";
}

} // namespace

/// A folder for the disk.
class DoluDiskDeneyi : public ::testing::Test {
  public:
    DoluDiskDeneyi() { std::filesystem::create_directory(yer); }
    ~DoluDiskDeneyi() override { std::filesystem::remove(yer); }

  protected:
    std::filesystem::path yer =
        std::filesystem::temp_directory_path() / ("velora-disk-" + std::to_string(::getpid()));
};

class DoluDiskTest : public DoluDiskDeneyi, public ::testing::WithParamInterface<const Senaryo*> {
  protected:
    void HerYerde(bool durumDa) {
        const std::string sonuc = KendiDiskinde(
            yer, [&](const std::filesystem::path& disk) { return Dene(disk, *GetParam(), durumDa); });
        if (sonuc.starts_with("skip: "))
            GTEST_SKIP() << sonuc;
        EXPECT_EQ(sonuc, "") << GetParam()->ad;
    }
};

TEST_P(DoluDiskTest, An_action_that_finds_no_room_is_there_wholly_or_not_at_all_once_there_is_room_again) {
    HerYerde(false);
}

TEST_P(DoluDiskTest, Where_the_journal_finds_no_room_either_no_file_is_torn_or_lost) {
    HerYerde(true);
}

TEST_F(DoluDiskDeneyi, Without_a_journal_an_action_is_seen_to_be_there_in_part) {
    const std::string sonuc = KendiDiskinde(yer, [&](const std::filesystem::path& disk) {
        return Dene(disk, *SenaryoBul("yeni-odemeli"), false, false);
    });
    if (sonuc.starts_with("skip: "))
        GTEST_SKIP() << sonuc;
    EXPECT_NE(sonuc.find("as before:"), std::string::npos) << sonuc;
}

INSTANTIATE_TEST_SUITE_P(Her, DoluDiskTest, ::testing::ValuesIn(HerSenaryo()), SenaryoAdi);

} // namespace velora::dayanim
