#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "storage/dosya/Posix.h"
#include "storage/dosya/Sistem.h"

namespace velora::sistem {
namespace {

constexpr mode_t kKlasorHakki = 0777;
constexpr mode_t kOzelDosyaHakki = 0600;
constexpr mode_t kOzelKlasorHakki = 0700;

// Another program that writes over the same file has done so long before.
constexpr int kKilitBeklemesi = 200; // milliseconds
constexpr int kKilitAdimi = 5;

int Bayraklar(Kip kip) {
    switch (kip) {
    case Kip::Yeni:
    case Kip::Adsiz:
        return kYeniDosya;
    case Kip::Ozel:
        return O_RDWR | O_CREAT | O_NOFOLLOW | kHerAcilis;
    case Kip::Guncelle:
        return O_RDWR | kHerAcilis;
    case Kip::Oku:
        break;
    }
    return kOkumaAcilisi;
}

int No(std::intptr_t tutamac) {
    return static_cast<int>(tutamac);
}

/// A file that has no name yet, on the disk of the one that it is to become. Below 0 where that can't be.
int AdsizAc(const std::filesystem::path& yol) {
#ifdef O_TMPFILE
    const std::string klasor = yol.parent_path().string();
    return Sabirla([&] { return ::open(klasor.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kDosyaHakki); });
#else
    static_cast<void>(yol);
    return -1;
#endif
}

/// False when another program has it, and keeps it for that long. A disk that knows no locks has none.
bool Kilitle(int no, int enCok) {
    constexpr long kNanosaniye = 1'000'000;
    const timespec adim{0, kKilitAdimi * kNanosaniye};
    int beklenen = 0;
    while (::flock(no, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        if (beklenen >= enCok)
            return false;
        ::nanosleep(&adim, nullptr);
        beklenen += kKilitAdimi;
    }
    return true;
}

/// What fits an open file to this kind of opening. None when it has been removed since it was opened.
Acilis Uydur(int no, Kip kip) {
    if (kip == Kip::Guncelle)
        Kilitle(no, kKilitBeklemesi);
    struct stat bilgi {};
    if (::fstat(no, &bilgi) != 0 || !S_ISREG(bilgi.st_mode))
        return Acilis::Olmadi;
    if (kip == Kip::Guncelle && bilgi.st_nlink == 0)
        return Acilis::Yok;
    if (kip == Kip::Ozel && (!Kilitle(no, 0) || ::fchmod(no, kOzelDosyaHakki) != 0))
        return Acilis::Olmadi;
    return Acilis::Acildi;
}

/// Waits for what the call says. What isn't there any more needs no waiting.
template <class Cagri>
bool AcipEsitle(const std::filesystem::path& yol, int bayrak, Cagri cagri) {
    const Tanitici acik(Sabirla([&] { return ::open(yol.c_str(), bayrak | O_CLOEXEC); }));
    if (acik.no < 0)
        return errno == ENOENT || errno == ENOTDIR;
    return Sabirla([&] { return cagri(acik.no); }) == 0;
}

} // namespace

Acilis AcikDosya::Ac(const std::filesystem::path& yol, Kip kip) {
    int no = kip == Kip::Adsiz ? AdsizAc(yol) : -1;
    adsiz_ = no >= 0;
    const mode_t hak = kip == Kip::Ozel ? kOzelDosyaHakki : kDosyaHakki;
    if (no < 0)
        no = Sabirla([&] { return ::open(yol.c_str(), Bayraklar(kip), hak); });
    if (no < 0)
        return errno == ENOENT || errno == ENOTDIR ? Acilis::Yok : Acilis::Olmadi;
    tutamac_ = no;
    const Acilis sonuc = Uydur(no, kip);
    if (sonuc == Acilis::Acildi)
        return sonuc;
    Kapat();
    // Made just now, and of no use.
    if ((kip == Kip::Yeni || kip == Kip::Adsiz) && !adsiz_)
        ::unlink(yol.c_str());
    return sonuc;
}

bool AcikDosya::AdVer(const std::filesystem::path& yol) {
    if (!adsiz_)
        return true;
    const std::string kendisi = "/proc/self/fd/" + std::to_string(No(tutamac_));
    return ::linkat(AT_FDCWD, kendisi.c_str(), AT_FDCWD, yol.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

std::optional<std::uint64_t> AcikDosya::Boy() const {
    struct stat bilgi {};
    if (::fstat(No(tutamac_), &bilgi) != 0)
        return {};
    return static_cast<std::uint64_t>(bilgi.st_size);
}

std::optional<std::size_t> AcikDosya::Oku(std::uint64_t konum, char* hedef, std::size_t adet) {
    return Adet(Sabirla([&] { return ::pread(No(tutamac_), hedef, adet, static_cast<off_t>(konum)); }));
}

std::size_t AcikDosya::Yaz(std::uint64_t konum, std::string_view bayt) {
    const auto giden =
        Sabirla([&] { return ::pwrite(No(tutamac_), bayt.data(), bayt.size(), static_cast<off_t>(konum)); });
    return Adet(giden).value_or(0);
}

bool AcikDosya::YerAyir(std::uint64_t boy) {
#ifdef FALLOC_FL_KEEP_SIZE
    const auto ayir = [&] {
        return ::fallocate(No(tutamac_), FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(boy));
    };
    return Sabirla(ayir) == 0 || (errno != ENOSPC && errno != EDQUOT);
#else
    static_cast<void>(boy);
    return true;
#endif
}

bool AcikDosya::Kes(std::uint64_t boy) {
    return Sabirla([&] { return ::ftruncate(No(tutamac_), static_cast<off_t>(boy)); }) == 0;
}

bool AcikDosya::Esitle() {
    return Sabirla([&] { return ::fdatasync(No(tutamac_)); }) == 0;
}

bool AcikDosya::Kapat() {
    if (tutamac_ == kKapali)
        return true;
    const int sonuc = ::close(No(tutamac_));
    tutamac_ = kKapali;
    // After a signal the file is closed all the same.
    return sonuc == 0 || errno == EINTR;
}

bool DosyaSil(const std::filesystem::path& yol) {
    return ::unlink(yol.c_str()) == 0;
}

bool KlasorYap(const std::filesystem::path& yol) {
    return ::mkdir(yol.c_str(), kKlasorHakki) == 0;
}

bool OzelKlasorYap(const std::filesystem::path& yol) {
    return ::mkdir(yol.c_str(), kOzelKlasorHakki) == 0;
}

bool DosyaEsitle(const std::filesystem::path& yol) {
    // Of a file that was made just now its name has to come along.
    return AcipEsitle(yol, kOkumaAcilisi, ::fsync);
}

bool AdlariEsitle(const std::filesystem::path& klasor) {
    return AcipEsitle(klasor, O_RDONLY | O_DIRECTORY, ::fsync);
}

bool DiskiEsitle(const std::filesystem::path& klasor) {
#ifdef __linux__
    return AcipEsitle(klasor, O_RDONLY | O_DIRECTORY, ::syncfs);
#else
    static_cast<void>(klasor);
    return false;
#endif
}

} // namespace velora::sistem
