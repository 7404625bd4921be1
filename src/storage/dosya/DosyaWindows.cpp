#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <unordered_map>
#include <vector>

#include "storage/dosya/Aktarim.h"
#include "storage/dosya/Dosyalar.h"
#include "storage/dosya/Sistem.h"

namespace velora {

Metin YolMetni(const std::filesystem::path& yol) {
    return {yol.native().begin(), yol.native().end()};
}

std::optional<std::filesystem::path> MetinYolu(MetinBakis metin) {
    return std::filesystem::path(std::wstring(metin.begin(), metin.end()));
}

namespace sistem {
namespace {

// One call takes a length of 32 bits.
constexpr std::size_t kEnCokCagri = 1U << 30U;

// ERROR_DISK_QUOTA_EXCEEDED, which not every header has.
constexpr DWORD kKotaDoldu = 1295;

constexpr DWORD kHerkesle = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// The path in the form that has no limit of 260 letters and knows no device names such as "CON". That form
/// takes every name literally, so the dots and blanks at a name's end, which the other form drops, are
/// dropped here.
std::wstring UzunYol(const std::filesystem::path& yol) {
    const std::wstring kok = yol.root_name().native();
    const bool ag = kok.starts_with(L"\\\\");
    std::wstring sonuc = ag ? L"\\\\?\\UNC" + kok.substr(1) : L"\\\\?\\" + kok;
    for (const std::filesystem::path& parca : yol.relative_path()) {
        const std::wstring& ad = parca.native();
        sonuc += L'\\';
        sonuc.append(ad, 0, ad.find_last_not_of(L". ") + 1);
    }
    return yol.has_relative_path() ? sonuc : sonuc + L'\\';
}

/// Whether the last call failed because the name, or the folder that it is to be in, isn't there.
bool YokHatasi() {
    const DWORD hata = ::GetLastError();
    return hata == ERROR_FILE_NOT_FOUND || hata == ERROR_PATH_NOT_FOUND || hata == ERROR_DIRECTORY;
}

HANDLE Tutamac(std::intptr_t tutamac) {
    return reinterpret_cast<HANDLE>(tutamac);
}

DWORD Nasil(Kip kip) {
    if (kip == Kip::Ozel)
        return OPEN_ALWAYS;
    return kip == Kip::Yeni || kip == Kip::Adsiz ? CREATE_NEW : OPEN_EXISTING;
}

HANDLE BirKezAc(const std::wstring& yol, Kip kip) {
    const DWORD hak = kip == Kip::Oku ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    const DWORD paylasim = kip == Kip::Oku ? kHerkesle : FILE_SHARE_READ;
    return ::CreateFileW(yol.c_str(), hak, paylasim, nullptr, Nasil(kip), FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// Who writes shares the file with readers alone. Another program that does so is waited for.
HANDLE Ac(const std::wstring& yol, Kip kip) {
    constexpr DWORD kKilitAdimi = 5; // milliseconds
    constexpr DWORD kKilitBeklemesi = 200;
    HANDLE dosya = BirKezAc(yol, kip);
    for (DWORD beklenen = 0; dosya == INVALID_HANDLE_VALUE && kip == Kip::Guncelle &&
                             ::GetLastError() == ERROR_SHARING_VIOLATION && beklenen < kKilitBeklemesi;
         beklenen += kKilitAdimi) {
        ::Sleep(kKilitAdimi);
        dosya = BirKezAc(yol, kip);
    }
    return dosya;
}

OVERLAPPED Konum(std::uint64_t konum) {
    OVERLAPPED yer{};
    yer.Offset = static_cast<DWORD>(konum);
    yer.OffsetHigh = static_cast<DWORD>(konum >> 32U);
    return yer;
}

DWORD Adet(std::size_t adet) {
    return static_cast<DWORD>(std::min(adet, kEnCokCagri));
}

std::optional<std::size_t> KonumdanOku(HANDLE dosya, std::uint64_t konum, char* hedef, std::size_t adet) {
    OVERLAPPED yer = Konum(konum);
    DWORD gelen = 0;
    if (::ReadFile(dosya, hedef, Adet(adet), &gelen, &yer) == 0 && ::GetLastError() != ERROR_HANDLE_EOF)
        return {};
    return gelen;
}

std::uint64_t Birlestir(DWORD ust, DWORD alt) {
    return (std::uint64_t{ust} << 32U) | alt;
}

std::optional<std::uint64_t> Boyu(HANDLE dosya) {
    LARGE_INTEGER boy{};
    if (::GetFileSizeEx(dosya, &boy) == 0)
        return {};
    return static_cast<std::uint64_t>(boy.QuadPart);
}

LARGE_INTEGER Buyuk(std::uint64_t sayi) {
    LARGE_INTEGER buyuk{};
    buyuk.QuadPart = static_cast<LONGLONG>(sayi);
    return buyuk;
}

bool BuTur(Tur tur, DWORD oznitelik) {
    const bool klasor = (oznitelik & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return oznitelik != INVALID_FILE_ATTRIBUTES && klasor == (tur == Tur::Klasor);
}

} // namespace

Acilis AcikDosya::Ac(const std::filesystem::path& yol, Kip kip) {
    const HANDLE dosya = sistem::Ac(UzunYol(yol), kip);
    if (dosya == INVALID_HANDLE_VALUE)
        return YokHatasi() ? Acilis::Yok : Acilis::Olmadi;
    tutamac_ = reinterpret_cast<std::intptr_t>(dosya);
    if (::GetFileType(dosya) == FILE_TYPE_DISK)
        return Acilis::Acildi;
    Kapat();
    return Acilis::Olmadi;
}

std::optional<std::uint64_t> AcikDosya::Boy() const {
    return Boyu(Tutamac(tutamac_));
}

std::optional<std::size_t> AcikDosya::Oku(std::uint64_t konum, char* hedef, std::size_t adet) {
    return KonumdanOku(Tutamac(tutamac_), konum, hedef, adet);
}

std::size_t AcikDosya::Yaz(std::uint64_t konum, std::string_view bayt) {
    OVERLAPPED yer = Konum(konum);
    DWORD giden = 0;
    const bool oldu = ::WriteFile(Tutamac(tutamac_), bayt.data(), Adet(bayt.size()), &giden, &yer) != 0;
    return oldu ? giden : 0;
}

bool AcikDosya::YerAyir(std::uint64_t boy) {
    FILE_ALLOCATION_INFO bilgi{};
    bilgi.AllocationSize = Buyuk(boy);
    if (::SetFileInformationByHandle(Tutamac(tutamac_), FileAllocationInfo, &bilgi, sizeof bilgi) != 0)
        return true;
    const DWORD hata = ::GetLastError();
    return hata != ERROR_DISK_FULL && hata != ERROR_HANDLE_DISK_FULL && hata != kKotaDoldu;
}

bool AcikDosya::Kes(std::uint64_t boy) {
    return ::SetFilePointerEx(Tutamac(tutamac_), Buyuk(boy), nullptr, FILE_BEGIN) != 0 &&
           ::SetEndOfFile(Tutamac(tutamac_)) != 0;
}

bool AcikDosya::AdVer(const std::filesystem::path& /*yol*/) {
    return true; // it has had its name from the beginning
}

bool AcikDosya::Esitle() {
    return ::FlushFileBuffers(Tutamac(tutamac_)) != 0;
}

bool AcikDosya::Kapat() {
    if (tutamac_ == kKapali)
        return true;
    const bool oldu = ::CloseHandle(Tutamac(tutamac_)) != 0;
    tutamac_ = kKapali;
    return oldu;
}

void AdiCoz(DiskAdi ad, Metin& hedef) {
    hedef.assign(ad.begin(), ad.end());
}

namespace {

/// The system counts in steps of 100 ns from the year 1601 on.
std::int64_t Nanosaniye(const LARGE_INTEGER& zaman) {
    return (zaman.QuadPart - 116'444'736'000'000'000) * 100;
}

/// Of what a listing and an open file tell alike.
template <class Veri>
Kimlik KimligiAl(std::uint64_t no, const LARGE_INTEGER& boy, const Veri& veri) {
    return {0, no, static_cast<std::uint64_t>(boy.QuadPart), Nanosaniye(veri.LastWriteTime),
            Nanosaniye(veri.ChangeTime)};
}

std::optional<Kimlik> AcikKimlik(HANDLE dosya) {
    BY_HANDLE_FILE_INFORMATION bilgi{};
    FILE_BASIC_INFO zamanlar{};
    if (::GetFileInformationByHandle(dosya, &bilgi) == 0 ||
        ::GetFileInformationByHandleEx(dosya, FileBasicInfo, &zamanlar, sizeof zamanlar) == 0)
        return {};
    return KimligiAl(Birlestir(bilgi.nFileIndexHigh, bilgi.nFileIndexLow),
                     Buyuk(Birlestir(bilgi.nFileSizeHigh, bilgi.nFileSizeLow)), zamanlar);
}

struct KapananTutamac {
    HANDLE no;
    explicit KapananTutamac(HANDLE acilan) : no(acilan) {}
    KapananTutamac(const KapananTutamac&) = delete;
    KapananTutamac& operator=(const KapananTutamac&) = delete;
    ~KapananTutamac() {
        if (no != INVALID_HANDLE_VALUE)
            ::CloseHandle(no);
    }
};

} // namespace

/// The listing tells times and lengths of all, so that none has to be asked about. Of what another program
/// still holds open after it has written, the listing may be late.
struct Klasor::Ic {
    std::wstring yol; ///< with a separator at its end
    KapananTutamac klasor;
    std::vector<std::uint64_t> tampon = std::vector<std::uint64_t>(8192);
    const char* siradaki = nullptr;                          ///< within `tampon`; wasn't handed over yet
    std::unordered_map<std::wstring, Kimlik> kimlikler = {}; ///< but of what leads elsewhere

    /// Null behind the last, and where the folder can't be listed.
    const FILE_ID_BOTH_DIR_INFO* Al() {
        const auto boy = static_cast<DWORD>(tampon.size() * sizeof tampon[0]);
        if (siradaki == nullptr &&
            ::GetFileInformationByHandleEx(klasor.no, FileIdBothDirectoryInfo, tampon.data(), boy) == 0)
            return nullptr;
        const char* bas = siradaki != nullptr ? siradaki : reinterpret_cast<const char*>(tampon.data());
        const auto* oge = reinterpret_cast<const FILE_ID_BOTH_DIR_INFO*>(bas);
        siradaki = oge->NextEntryOffset == 0 ? nullptr : bas + oge->NextEntryOffset;
        return oge;
    }
};

Klasor::Klasor(const std::filesystem::path& yol)
    : ic_(new Ic{UzunYol(yol),
                 KapananTutamac(::CreateFileW(UzunYol(yol).c_str(), FILE_LIST_DIRECTORY, kHerkesle, nullptr,
                                              OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr))}) {
    acildi_ = ic_->klasor.no != INVALID_HANDLE_VALUE;
    tam_ = acildi_ || YokHatasi() || ::GetLastError() == ERROR_ACCESS_DENIED;
    if (ic_->yol.back() != L'\\')
        ic_->yol += L'\\';
}

Klasor::~Klasor() = default;

bool Klasor::Sonraki(ListeOgesi& siradaki, Tur tur) {
    if (!Acildi())
        return false;
    while (const FILE_ID_BOTH_DIR_INFO* oge = ic_->Al()) {
        const DiskAdi ad(static_cast<const wchar_t*>(oge->FileName), oge->FileNameLength / sizeof(wchar_t));
        if (ad == L"." || ad == L".." || !BuTur(tur, oge->FileAttributes))
            continue;
        if ((oge->FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
            ic_->kimlikler.emplace(
                ad, KimligiAl(static_cast<std::uint64_t>(oge->FileId.QuadPart), oge->EndOfFile, *oge));
        siradaki = {ad, 0}; // to be asked about costs nothing here
        return true;
    }
    tam_ = tam_ && ::GetLastError() == ERROR_NO_MORE_FILES;
    return false;
}

std::optional<Kimlik> Klasor::Sor(const AdHarfi* ad) const {
    if (const auto yer = ic_->kimlikler.find(ad); yer != ic_->kimlikler.end())
        return yer->second;
    return AcikKimlik(KapananTutamac(sistem::Ac(ic_->yol + ad, Kip::Oku)).no);
}

std::optional<Kimlik> Klasor::Sor() const {
    return AcikKimlik(ic_->klasor.no);
}

std::optional<std::string_view> Klasor::Oku(const AdHarfi* ad, std::size_t enCok, std::string& tampon) const {
    const KapananTutamac dosya(sistem::Ac(ic_->yol + ad, Kip::Oku));
    if (dosya.no == INVALID_HANDLE_VALUE)
        return {};
    std::uint64_t konum = 0;
    const auto boy = SinirliDoldur(
        tampon, enCok, [&dosya] { return Boyu(dosya.no); },
        [&](char* hedef, std::size_t adet) {
            const auto gelen = KonumdanOku(dosya.no, konum, hedef, adet);
            konum += gelen.value_or(0);
            return gelen;
        });
    if (!boy)
        return {};
    return std::string_view(tampon).substr(0, *boy);
}

namespace {

/// Of what `GetFileAttributesExW` and a listing tell alike.
template <class Veri>
OgeBilgisi Bilgi(const Veri& veri) {
    constexpr DWORD kHaklar =
        FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
    const FILETIME& an = veri.ftLastWriteTime;
    return {BuTur(Tur::Klasor, veri.dwFileAttributes) ? Tur::Klasor : Tur::Dosya,
            Birlestir(veri.nFileSizeHigh, veri.nFileSizeLow),
            Nanosaniye(Buyuk(Birlestir(an.dwHighDateTime, an.dwLowDateTime))),
            veri.dwFileAttributes & kHaklar};
}

} // namespace

std::optional<OgeBilgisi> Bilgi(const std::filesystem::path& yol) {
    WIN32_FILE_ATTRIBUTE_DATA veri{};
    if (::GetFileAttributesExW(UzunYol(yol).c_str(), GetFileExInfoStandard, &veri) == 0)
        return std::nullopt;
    return Bilgi(veri);
}

std::vector<Oge> Ogeler(const std::filesystem::path& klasor) {
    std::vector<Oge> ogeler;
    WIN32_FIND_DATAW bulunan{};
    const HANDLE arama = ::FindFirstFileExW((UzunYol(klasor / L"") + L'*').c_str(), FindExInfoBasic, &bulunan,
                                            FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    for (bool var = arama != INVALID_HANDLE_VALUE; var; var = ::FindNextFileW(arama, &bulunan) != 0) {
        const std::wstring_view ad(static_cast<const wchar_t*>(bulunan.cFileName));
        if (ad != L"." && ad != L"..")
            ogeler.push_back({std::wstring(ad), Bilgi(bulunan)});
    }
    if (arama != INVALID_HANDLE_VALUE)
        ::FindClose(arama);
    return ogeler;
}

struct Kopyaci::Ic {
    std::filesystem::path kaynak;
    std::filesystem::path hedef;
    std::wstring gecici;
};

Kopyaci::Kopyaci(const std::filesystem::path& kaynak, const std::filesystem::path& hedef,
                 std::filesystem::path gecici)
    : ic_(new Ic{kaynak, hedef, UzunYol(hedef / gecici)}) {}

Kopyaci::~Kopyaci() = default;

bool Kopyaci::Kopyala(const std::filesystem::path& ad) const {
    const wchar_t* gecici = ic_->gecici.c_str();
    const std::wstring hedef = UzunYol(ic_->hedef / ad);
    // A file of a crashed run, or a copy, may be read only; neither is to stand in the way.
    ::SetFileAttributesW(gecici, FILE_ATTRIBUTE_NORMAL);
    if (::CopyFileW(UzunYol(ic_->kaynak / ad).c_str(), gecici, FALSE) != 0) {
        if (Var(ic_->hedef / ad, Tur::Dosya))
            ::SetFileAttributesW(hedef.c_str(), FILE_ATTRIBUTE_NORMAL);
        if (::MoveFileExW(gecici, hedef.c_str(), MOVEFILE_REPLACE_EXISTING) != 0)
            return true;
        ::SetFileAttributesW(gecici, FILE_ATTRIBUTE_NORMAL);
    }
    ::DeleteFileW(gecici);
    return false;
}

bool Var(const std::filesystem::path& yol, Tur tur) {
    return BuTur(tur, ::GetFileAttributesW(UzunYol(yol).c_str()));
}

bool DosyaSil(const std::filesystem::path& yol) {
    return ::DeleteFileW(UzunYol(yol).c_str()) != 0;
}

bool KlasorYap(const std::filesystem::path& yol) {
    return ::CreateDirectoryW(UzunYol(yol).c_str(), nullptr) != 0;
}

bool OzelKlasorYap(const std::filesystem::path& yol) {
    // What lies in the user's own folders is his alone.
    return KlasorYap(yol);
}

bool DosyaEsitle(const std::filesystem::path& yol) {
    AcikDosya dosya;
    const Acilis acilis = dosya.Ac(yol, Kip::Guncelle);
    return acilis == Acilis::Yok || (acilis == Acilis::Acildi && dosya.Esitle());
}

bool AdlariEsitle(const std::filesystem::path& /*klasor*/) {
    return true;
}

bool DiskiEsitle(const std::filesystem::path& /*klasor*/) {
    return false;
}

} // namespace sistem
} // namespace velora
