// The library that is preloaded (CagriKaydi.h). Each call of the program lands in the function of its name
// below, which hands it to the kernel itself; so no name of the C library is needed here but those of
// folders.
#include <algorithm>
#include <cstdarg>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "dayanim/Gecit.h"

namespace velora::dayanim {
namespace {

int No(long sonuc) {
    return static_cast<int>(sonuc);
}

int Ac(int klasor, const char* ad, int bayrak, mode_t hak) {
    return No(Gecir({.cagri = Cagri::Ac, .konu = Bul(klasor, ad), .ek = static_cast<std::uint64_t>(bayrak)},
                    [&](std::size_t) { return ::syscall(SYS_openat, klasor, ad, bayrak, hak); }));
}

/// The mode of a call that may make a file.
mode_t Hak(int bayrak, va_list kalan) {
    return (bayrak & O_CREAT) != 0 || (bayrak & O_TMPFILE) == O_TMPFILE ? va_arg(kalan, mode_t) : 0;
}

ssize_t Oku(int no, void* hedef, std::size_t adet, std::int64_t konum, bool yerinde) {
    return Gecir(
        {.cagri = Cagri::Oku, .konu = Bul(no), .konum = static_cast<std::uint64_t>(konum), .ek = adet},
        [&](std::size_t enCok) {
            const std::size_t boy = std::min(adet, enCok);
            return yerinde ? ::syscall(SYS_pread64, no, hedef, boy, konum)
                           : ::syscall(SYS_read, no, hedef, boy);
        });
}

ssize_t Yaz(int no, const void* kaynak, std::size_t adet, std::int64_t konum, bool yerinde) {
    constexpr std::size_t kYavasBoyu = 1500;
    constexpr useconds_t kYavasBekleme = 300;
    if (D().yavas && Altinda(Bul(no).yol, D().agac)) {
        adet = std::min(adet, kYavasBoyu);
        ::usleep(kYavasBekleme);
    }
    const std::lock_guard kilit(D().kilit);
    const Acik konu = Bul(no);
    if (!yerinde && !konu.yol.empty())
        konum = ::syscall(SYS_lseek, no, 0, SEEK_CUR);
    // What is put at the end goes there whatever the place is.
    if (!konu.yol.empty() && (::syscall(SYS_fcntl, no, F_GETFL) & O_APPEND) != 0)
        konum = ::syscall(SYS_lseek, no, 0, SEEK_END);
    return Gecir({.cagri = Cagri::Yaz,
                  .konu = konu,
                  .konum = static_cast<std::uint64_t>(konum),
                  .ek = adet,
                  .veri = kaynak},
                 [&](std::size_t enCok) {
                     const std::size_t boy = std::min(adet, enCok);
                     return yerinde ? ::syscall(SYS_pwrite64, no, kaynak, boy, konum)
                                    : ::syscall(SYS_write, no, kaynak, boy);
                 });
}

/// A call on a path, with what it does in the words of the kernel.
template <class... Degerler>
int Yolda(Is is, long cagri, Degerler... degerler) {
    return No(Gecir(std::move(is), [&](std::size_t) { return ::syscall(cagri, degerler...); }));
}

int Sil(int klasor, const char* ad, int bayrak) {
    return Yolda(
        {.cagri = (bayrak & AT_REMOVEDIR) != 0 ? Cagri::KlasorSil : Cagri::Sil, .konu = Bul(klasor, ad)},
        SYS_unlinkat, klasor, ad, bayrak);
}

int Tasi(int k1, const char* ad, int k2, const char* yeni, unsigned bayrak) {
    return Yolda({.cagri = Cagri::Tasi, .konu = Bul(k1, ad), .hedef = Bul(k2, yeni).yol, .ek = bayrak},
                 SYS_renameat2, k1, ad, k2, yeni, bayrak);
}

int Bagla(int k1, const char* ad, int k2, const char* yeni, int bayrak) {
    return Yolda({.cagri = Cagri::Bagla, .konu = Bul(k1, ad), .hedef = Bul(k2, yeni).yol}, SYS_linkat, k1, ad,
                 k2, yeni, bayrak);
}

int Sor(int klasor, const char* ad, struct stat* bilgi, int bayrak) {
    return Yolda({.cagri = Cagri::Sor, .konu = Bul(klasor, ad)}, SYS_newfstatat, klasor, ad, bilgi, bayrak);
}

template <class Tur>
Tur Asil(const char* ad) {
    return reinterpret_cast<Tur>(::dlsym(RTLD_NEXT, ad));
}

} // namespace
} // namespace velora::dayanim

// Names of the C library. They are given by label: the headers declare some of them otherwise than they are
// called.
#define VELORA_CAGRI(sonuc, etiket, isim, ...)                                                               \
    extern "C" __attribute__((visibility("default"))) sonuc isim(__VA_ARGS__) __asm__(etiket);               \
    sonuc isim(__VA_ARGS__)
#define VELORA_IKI_ADLI(sonuc, bir, iki, isim, ...)                                                          \
    extern "C" __attribute__((visibility("default"), alias(bir))) sonuc isim##_2(__VA_ARGS__) __asm__(iki)

// NOLINTBEGIN(readability-identifier-naming)
using namespace velora::dayanim;
using Isim = const char*;

VELORA_CAGRI(void, "velora_kayit_basla", kayit_basla, void) {
    const std::lock_guard kilit(D().kilit);
    D().sayar = true;
}
VELORA_CAGRI(void, "velora_kayit_bitir", kayit_bitir, void) {
    const std::lock_guard kilit(D().kilit);
    D().sayar = false;
}

VELORA_CAGRI(int, "open", kayit_open, Isim yol, int bayrak, ...) {
    va_list kalan;
    va_start(kalan, bayrak);
    const mode_t hak = Hak(bayrak, kalan);
    va_end(kalan);
    return Ac(AT_FDCWD, yol, bayrak, hak);
}
VELORA_CAGRI(int, "openat", kayit_openat, int klasor, Isim yol, int bayrak, ...) {
    va_list kalan;
    va_start(kalan, bayrak);
    const mode_t hak = Hak(bayrak, kalan);
    va_end(kalan);
    return Ac(klasor, yol, bayrak, hak);
}
VELORA_IKI_ADLI(int, "open", "open64", kayit_open, Isim yol, int bayrak, ...);
VELORA_IKI_ADLI(int, "openat", "openat64", kayit_openat, int klasor, Isim yol, int bayrak, ...);
VELORA_CAGRI(int, "creat", kayit_creat, Isim yol, mode_t hak) {
    return Ac(AT_FDCWD, yol, O_WRONLY | O_CREAT | O_TRUNC, hak);
}
VELORA_IKI_ADLI(int, "creat", "creat64", kayit_creat, Isim yol, mode_t hak);
VELORA_CAGRI(ssize_t, "read", kayit_read, int no, void* hedef, std::size_t adet) {
    return Oku(no, hedef, adet, 0, false);
}
VELORA_CAGRI(ssize_t, "pread64", kayit_pread, int no, void* hedef, std::size_t adet, off_t konum) {
    return Oku(no, hedef, adet, konum, true);
}
VELORA_IKI_ADLI(ssize_t, "pread64", "pread", kayit_pread, int no, void* hedef, std::size_t adet, off_t konum);
VELORA_CAGRI(ssize_t, "write", kayit_write, int no, const void* kaynak, std::size_t adet) {
    return Yaz(no, kaynak, adet, 0, false);
}
VELORA_CAGRI(ssize_t, "pwrite64", kayit_pwrite, int no, const void* kaynak, std::size_t adet, off_t konum) {
    return Yaz(no, kaynak, adet, konum, true);
}
VELORA_IKI_ADLI(ssize_t, "pwrite64", "pwrite", kayit_pwrite, int no, const void* kaynak, std::size_t adet,
                off_t konum);
VELORA_CAGRI(int, "ftruncate64", kayit_ftruncate, int no, off_t boy) {
    return Yolda({.cagri = Cagri::Kes, .konu = Bul(no), .konum = static_cast<std::uint64_t>(boy)},
                 SYS_ftruncate, no, boy);
}
VELORA_IKI_ADLI(int, "ftruncate64", "ftruncate", kayit_ftruncate, int no, off_t boy);
VELORA_CAGRI(int, "fallocate64", kayit_fallocate, int no, int kip, off_t bas, off_t boy) {
    return Yolda({.cagri = Cagri::YerAyir, .konu = Bul(no), .konum = static_cast<std::uint64_t>(bas + boy)},
                 SYS_fallocate, no, kip, bas, boy);
}
VELORA_IKI_ADLI(int, "fallocate64", "fallocate", kayit_fallocate, int no, int kip, off_t bas, off_t boy);
VELORA_CAGRI(int, "unlink", kayit_unlink, Isim yol) {
    return Sil(AT_FDCWD, yol, 0);
}
VELORA_CAGRI(int, "unlinkat", kayit_unlinkat, int klasor, Isim yol, int bayrak) {
    return Sil(klasor, yol, bayrak);
}
VELORA_CAGRI(int, "rmdir", kayit_rmdir, Isim yol) {
    return Sil(AT_FDCWD, yol, AT_REMOVEDIR);
}
VELORA_CAGRI(int, "mkdirat", kayit_mkdirat, int klasor, Isim yol, mode_t hak) {
    return Yolda({.cagri = Cagri::KlasorYap, .konu = Bul(klasor, yol)}, SYS_mkdirat, klasor, yol, hak);
}
VELORA_CAGRI(int, "mkdir", kayit_mkdir, Isim yol, mode_t hak) {
    return Yolda({.cagri = Cagri::KlasorYap, .konu = Bul(AT_FDCWD, yol)}, SYS_mkdirat, AT_FDCWD, yol, hak);
}
VELORA_CAGRI(int, "rename", kayit_rename, Isim yol, Isim yeni) {
    return Tasi(AT_FDCWD, yol, AT_FDCWD, yeni, 0);
}
VELORA_CAGRI(int, "renameat", kayit_renameat, int k1, Isim yol, int k2, Isim yeni) {
    return Tasi(k1, yol, k2, yeni, 0);
}
VELORA_CAGRI(int, "renameat2", kayit_renameat2, int k1, Isim yol, int k2, Isim yeni, unsigned bayrak) {
    return Tasi(k1, yol, k2, yeni, bayrak);
}
VELORA_CAGRI(int, "link", kayit_link, Isim yol, Isim yeni) {
    return Bagla(AT_FDCWD, yol, AT_FDCWD, yeni, 0);
}
VELORA_CAGRI(int, "linkat", kayit_linkat, int k1, Isim yol, int k2, Isim yeni, int bayrak) {
    return Bagla(k1, yol, k2, yeni, bayrak);
}
VELORA_CAGRI(int, "fsync", kayit_fsync, int no) {
    return Yolda({.cagri = Cagri::Esle, .konu = Bul(no)}, SYS_fsync, no);
}
VELORA_CAGRI(int, "fdatasync", kayit_fdatasync, int no) {
    return Yolda({.cagri = Cagri::Esle, .konu = Bul(no)}, SYS_fdatasync, no);
}
VELORA_CAGRI(int, "syncfs", kayit_syncfs, int no) {
    return Yolda({.cagri = Cagri::HepsiniEsle, .konu = Bul(no)}, SYS_syncfs, no);
}
VELORA_CAGRI(int, "flock", kayit_flock, int no, int is) {
    return Yolda({.cagri = Cagri::Kilitle, .konu = Bul(no), .ek = static_cast<std::uint64_t>(is)}, SYS_flock,
                 no, is);
}
VELORA_CAGRI(int, "close", kayit_close, int no) {
    const std::lock_guard kilit(D().kilit);
    const Acik konu = Bul(no);
    if (!konu.yol.empty())
        D().Bagla(no, {});
    return Yolda({.cagri = Cagri::Kapat, .konu = konu}, SYS_close, no);
}
VELORA_CAGRI(int, "stat", kayit_stat, Isim yol, struct stat* bilgi) {
    return Sor(AT_FDCWD, yol, bilgi, 0);
}
VELORA_IKI_ADLI(int, "stat", "stat64", kayit_stat, Isim yol, struct stat* bilgi);
VELORA_CAGRI(int, "lstat", kayit_lstat, Isim yol, struct stat* bilgi) {
    return Sor(AT_FDCWD, yol, bilgi, AT_SYMLINK_NOFOLLOW);
}
VELORA_IKI_ADLI(int, "lstat", "lstat64", kayit_lstat, Isim yol, struct stat* bilgi);
VELORA_CAGRI(int, "fstat", kayit_fstat, int no, struct stat* bilgi) {
    return Sor(no, "", bilgi, AT_EMPTY_PATH);
}
VELORA_IKI_ADLI(int, "fstat", "fstat64", kayit_fstat, int no, struct stat* bilgi);
VELORA_CAGRI(int, "fstatat", kayit_fstatat, int klasor, Isim yol, struct stat* bilgi, int bayrak) {
    return Sor(klasor, yol, bilgi, bayrak);
}
VELORA_IKI_ADLI(int, "fstatat", "fstatat64", kayit_fstatat, int klasor, Isim yol, struct stat* bilgi,
                int bayrak);
VELORA_CAGRI(int, "access", kayit_access, Isim yol, int kip) {
    return Yolda({.cagri = Cagri::Sor, .konu = Bul(AT_FDCWD, yol)}, SYS_faccessat, AT_FDCWD, yol, kip);
}

VELORA_CAGRI(DIR*, "opendir", kayit_opendir, Isim yol) {
    DIR* akis = nullptr;
    Gecir({.cagri = Cagri::KlasorAc, .konu = Bul(AT_FDCWD, yol)}, [&](std::size_t) {
        akis = Asil<DIR* (*)(Isim)>("opendir")(yol);
        return akis != nullptr ? 0L : kHata;
    });
    // Entries are asked about, and files opened, below it.
    const std::lock_guard kilit(D().kilit);
    D().Bagla(akis == nullptr ? -1 : ::dirfd(akis), {Bul(AT_FDCWD, yol).yol, 0});
    return akis;
}
VELORA_CAGRI(int, "closedir", kayit_closedir, DIR* akis) {
    const std::lock_guard kilit(D().kilit);
    D().Bagla(::dirfd(akis), {});
    return Asil<int (*)(DIR*)>("closedir")(akis);
}
VELORA_CAGRI(dirent*, "readdir", kayit_readdir, DIR* akis) {
    dirent* oge = nullptr;
    Gecir({.cagri = Cagri::KlasorOku, .konu = Bul(::dirfd(akis))}, [&](std::size_t) {
        oge = Asil<dirent* (*)(DIR*)>("readdir")(akis);
        return 0L;
    });
    return oge;
}
VELORA_IKI_ADLI(dirent*, "readdir", "readdir64", kayit_readdir, DIR* akis);
// NOLINTEND(readability-identifier-naming)
