#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "storage/dosya/Aktarim.h"
#include "storage/dosya/Dosyalar.h"
#include "storage/dosya/Posix.h"
#include "storage/dosya/Sistem.h"
#include "storage/dosya/Utf8.h"

namespace velora {

Metin YolMetni(const std::filesystem::path& yol) {
    Metin metin;
    Utf8Coz(yol.native(), metin);
    return metin;
}

std::optional<std::filesystem::path> MetinYolu(MetinBakis metin) {
    std::string bayt;
    if (!Utf8Ekle(metin, bayt))
        return {};
    return std::filesystem::path(std::move(bayt));
}

namespace sistem {
namespace {

constexpr mode_t kHaklar = 07777;

std::int64_t Nanosaniye(const timespec& zaman) {
    constexpr std::int64_t kSaniye = 1'000'000'000;
    return zaman.tv_sec * kSaniye + zaman.tv_nsec;
}

Kimlik KimligiAl(const struct stat& bilgi) {
    return {bilgi.st_dev, bilgi.st_ino, static_cast<std::uint64_t>(bilgi.st_size), Nanosaniye(bilgi.st_mtim),
            Nanosaniye(bilgi.st_ctim)};
}

std::optional<OgeBilgisi> Bilgi(const struct stat& bilgi) {
    if (!BuTur(Tur::Dosya, bilgi) && !BuTur(Tur::Klasor, bilgi))
        return std::nullopt;
    return OgeBilgisi{BuTur(Tur::Dosya, bilgi) ? Tur::Dosya : Tur::Klasor,
                      static_cast<std::uint64_t>(bilgi.st_size), Nanosaniye(bilgi.st_mtim),
                      bilgi.st_mode & kHaklar};
}

/// A short file in one piece: what is written to as a whole is read as one. A read that comes short of the
/// length, which is known, isn't the end.
bool BaytlariTasi(int kaynak, int hedef, off_t boy) {
    static std::array<char, kOkumaTamponu> tampon;
    off_t tasinan = 0;
    ssize_t gelen = 0;
    do {
        gelen = Sabirla([&] { return ::read(kaynak, tampon.data(), tampon.size()); });
        if (gelen < 0 || ::write(hedef, tampon.data(), static_cast<std::size_t>(gelen)) != gelen)
            return false;
        tasinan += gelen;
    } while (gelen == static_cast<ssize_t>(tampon.size()) || (gelen > 0 && tasinan < boy));
    return true;
}

} // namespace

void AdiCoz(DiskAdi ad, Metin& hedef) {
    Utf8Coz(ad, hedef);
}

struct Klasor::Ic {
    DIR* akis = nullptr;

    ~Ic() {
        if (akis != nullptr)
            ::closedir(akis);
    }

    bool Bu(Tur tur, const dirent& kayit) const {
        if (kayit.d_type != DT_LNK && kayit.d_type != DT_UNKNOWN)
            return kayit.d_type == (tur == Tur::Dosya ? DT_REG : DT_DIR);
        struct stat bilgi {};
        return ::fstatat(::dirfd(akis), static_cast<const char*>(kayit.d_name), &bilgi, 0) == 0 &&
               BuTur(tur, bilgi);
    }
};

Klasor::Klasor(const std::filesystem::path& yol) : ic_(std::make_unique<Ic>()) {
    ic_->akis = ::opendir(yol.c_str());
    acildi_ = ic_->akis != nullptr;
    tam_ = acildi_ || errno == ENOENT || errno == ENOTDIR || errno == EACCES;
}

Klasor::~Klasor() = default;

bool Klasor::Sonraki(ListeOgesi& oge, Tur tur) {
    for (errno = 0; const dirent* kayit = Acildi() ? ::readdir(ic_->akis) : nullptr; errno = 0) {
        const bool baglanti = kayit->d_type == DT_LNK || kayit->d_type == DT_UNKNOWN;
        baglanti_ = baglanti_ || baglanti;
        if (!ic_->Bu(tur, *kayit))
            continue;
        // What a link leads to has another one.
        oge = {static_cast<const char*>(kayit->d_name), baglanti ? 0 : kayit->d_ino};
        return true;
    }
    tam_ = tam_ && errno == 0;
    return false;
}

std::optional<Kimlik> Klasor::Sor(const AdHarfi* ad) const {
    struct stat bilgi {};
    if (!Acildi() || ::fstatat(::dirfd(ic_->akis), ad, &bilgi, 0) != 0)
        return {};
    return KimligiAl(bilgi);
}

std::optional<Kimlik> Klasor::Sor() const {
    struct stat bilgi {};
    if (!Acildi() || ::fstat(::dirfd(ic_->akis), &bilgi) != 0)
        return {};
    return KimligiAl(bilgi);
}

std::optional<std::string_view> Klasor::Oku(const AdHarfi* ad, std::size_t enCok, std::string& tampon) const {
    if (!Acildi())
        return {};
    const Tanitici dosya(Sabirla([&] { return ::openat(::dirfd(ic_->akis), ad, kOkumaAcilisi); }));
    const int no = dosya.no;
    if (no < 0)
        return {};
    const auto boy = SinirliDoldur(
        tampon, enCok,
        [no]() -> std::optional<std::uint64_t> {
            struct stat bilgi {};
            return ::fstat(no, &bilgi) == 0 ? std::optional(static_cast<std::uint64_t>(bilgi.st_size))
                                            : std::nullopt;
        },
        [no](char* hedef, std::size_t adet) {
            return Adet(Sabirla([&] { return ::read(no, hedef, adet); }));
        });
    if (!boy)
        return {};
    return std::string_view(tampon).substr(0, *boy);
}

std::optional<OgeBilgisi> Bilgi(const std::filesystem::path& yol) {
    struct stat bilgi {};
    return ::stat(yol.c_str(), &bilgi) == 0 ? Bilgi(bilgi) : std::nullopt;
}

std::vector<Oge> Ogeler(const std::filesystem::path& klasor) {
    std::vector<Oge> ogeler;
    DIR* akis = ::opendir(klasor.c_str());
    if (akis == nullptr)
        return ogeler;
    while (const dirent* kayit = ::readdir(akis)) {
        const std::string_view ad(static_cast<const char*>(kayit->d_name));
        struct stat bilgi {};
        if (ad == "." || ad == ".." || ::fstatat(::dirfd(akis), ad.data(), &bilgi, 0) != 0)
            continue;
        if (const auto oge = Bilgi(bilgi))
            ogeler.push_back({std::string(ad), *oge});
    }
    ::closedir(akis);
    return ogeler;
}

struct Kopyaci::Ic {
    Tanitici kaynak, hedef; ///< folders
    std::filesystem::path gecici;

    /// Whether the file stayed as it was meanwhile. Nothing when it can't be copied.
    std::optional<bool> BirKez(const char* ad) const {
        const Tanitici okunan(Sabirla([&] { return ::openat(kaynak.no, ad, kOkumaAcilisi); }));
        struct stat once {};
        if (okunan.no < 0 || ::fstat(okunan.no, &once) != 0 || !S_ISREG(once.st_mode))
            return {};
        const auto ac = [this] { return ::openat(hedef.no, gecici.c_str(), kYeniDosya, kDosyaHakki); };
        const int yeni = ac();
        // A crash, or the try before, may have left one.
        const Tanitici yazilan(yeni < 0 && ::unlinkat(hedef.no, gecici.c_str(), 0) == 0 ? ac() : yeni);
        if (yazilan.no < 0 || !BaytlariTasi(okunan.no, yazilan.no, once.st_size))
            return {};
        // Not every disk keeps rights or times: the bytes come first.
        const std::array<timespec, 2> zamanlar{once.st_atim, once.st_mtim};
        static_cast<void>(::fchmod(yazilan.no, once.st_mode & kHaklar));
        static_cast<void>(::futimens(yazilan.no, zamanlar.data()));
        struct stat sonra {};
        return ::fstat(okunan.no, &sonra) == 0 && sonra.st_size == once.st_size &&
               Bilgi(sonra)->degisme == Bilgi(once)->degisme;
    }
};

Kopyaci::Kopyaci(const std::filesystem::path& kaynak, const std::filesystem::path& hedef,
                 std::filesystem::path gecici)
    : ic_(new Ic{Tanitici(::open(kaynak.c_str(), O_PATH | O_CLOEXEC)),
                 Tanitici(::open(hedef.c_str(), O_PATH | O_CLOEXEC)), std::move(gecici)}) {}

Kopyaci::~Kopyaci() = default;

bool Kopyaci::Kopyala(const std::filesystem::path& ad) const {
    constexpr int kEnCokDeneme = 3;
    std::optional<bool> kaldi = false;
    for (int deneme = 0; deneme < kEnCokDeneme && kaldi == false; ++deneme)
        kaldi = ic_->BirKez(ad.c_str());
    if (kaldi && ::renameat(ic_->hedef.no, ic_->gecici.c_str(), ic_->hedef.no, ad.c_str()) == 0)
        return true;
    ::unlinkat(ic_->hedef.no, ic_->gecici.c_str(), 0);
    return false;
}

bool Var(const std::filesystem::path& yol, Tur tur) {
    const auto bilgi = Bilgi(yol);
    return bilgi && bilgi->tur == tur;
}

} // namespace sistem
} // namespace velora
