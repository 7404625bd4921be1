#pragma once

#include <cerrno>
#include <cstddef>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include "storage/dosya/Sistem.h"

/// What the files for POSIX systems have in common.
namespace velora::sistem {

inline constexpr mode_t kDosyaHakki = 0666;

// A pipe must not stop us, nor a terminal become ours.
inline constexpr int kHerAcilis = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
inline constexpr int kOkumaAcilisi = O_RDONLY | kHerAcilis;
inline constexpr int kYeniDosya = O_WRONLY | O_CREAT | O_EXCL | kHerAcilis;

/// Repeats a call that a signal broke off.
template <class Cagri>
auto Sabirla(Cagri cagri) {
    auto sonuc = cagri();
    while (sonuc < 0 && errno == EINTR)
        sonuc = cagri();
    return sonuc;
}

inline bool BuTur(Tur tur, const struct stat& bilgi) {
    return tur == Tur::Dosya ? S_ISREG(bilgi.st_mode) : S_ISDIR(bilgi.st_mode);
}

/// Closes on every way out, also when a buffer can't grow.
struct Tanitici {
    int no;
    explicit Tanitici(int acilan) : no(acilan) {}
    Tanitici(const Tanitici&) = delete;
    Tanitici& operator=(const Tanitici&) = delete;
    ~Tanitici() {
        if (no >= 0)
            ::close(no);
    }
};

inline std::optional<std::size_t> Adet(ssize_t sonuc) {
    return sonuc < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(sonuc));
}

} // namespace velora::sistem
