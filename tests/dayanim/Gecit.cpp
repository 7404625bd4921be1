#include "dayanim/Gecit.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <string_view>
#include <sys/syscall.h>
#include <unistd.h>

namespace velora::dayanim {
namespace {

std::string Deger(const char* ad) {
    const char* deger = ::getenv(ad);
    return deger == nullptr ? std::string() : std::string(deger);
}
std::uint32_t Sayi(const char* ad) {
    return static_cast<std::uint32_t>(std::strtoul(Deger(ad).c_str(), nullptr, 10));
}

/// The name without what says nothing: "//", and a "/" at its end.
std::string Sade(std::string_view yol) {
    std::string sade;
    for (const char harf : yol)
        if (harf != '/' || sade.empty() || sade.back() != '/')
            sade += harf;
    while (sade.size() > 1 && sade.back() == '/')
        sade.pop_back();
    return sade;
}

} // namespace

Durum::Durum() {
    agac = Deger(kAgacDegiskeni);
    durum = Deger(kDurumDegiskeni);
    oldur = Sayi(kOldurDegiskeni);
    boz = Sayi(kBozDegiskeni);
    kisa = Sayi(kKisaDegiskeni);
    hata = static_cast<int>(Sayi(kHataDegiskeni));
    sonra = Sayi(kSonraDegiskeni) != 0;
    yarim = Sayi(kYarimDegiskeni) != 0;
    yalniz = Sayi(kYalnizDegiskeni) != 0;
    yavas = Sayi(kYavasDegiskeni) != 0;
    if (const std::string dosya = Deger(kDosyaDegiskeni); !dosya.empty())
        kayit = static_cast<int>(
            ::syscall(SYS_openat, AT_FDCWD, dosya.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600));
}

void Durum::Bagla(int no_, Acik yeni) {
    if (no_ >= 0 && static_cast<std::size_t>(no_) < kEnCokAcik)
        acik[static_cast<std::size_t>(no_)] = std::move(yeni);
}

Durum& D() {
    static Durum& durum = *new Durum; // NOLINT: see above
    return durum;
}

bool Altinda(std::string_view yol, const std::string& klasor) {
    return !klasor.empty() && yol.starts_with(klasor) &&
           (yol.size() == klasor.size() || yol[klasor.size()] == '/');
}

Acik Bul(int no) {
    return no < 0 || static_cast<std::size_t>(no) >= Durum::kEnCokAcik
               ? Acik()
               : D().acik[static_cast<std::size_t>(no)];
}

Acik Bul(int klasor, const char* ad) {
    if (ad == nullptr)
        return {};
    const std::string_view bakis(ad);
    if (constexpr std::string_view kAcik = "/proc/self/fd/"; bakis.starts_with(kAcik))
        return Bul(std::atoi(ad + kAcik.size()));
    if (bakis.empty())
        return Bul(klasor);
    std::string tam = Sade(bakis);
    if (tam.front() != '/') {
        const std::string ust = Bul(klasor).yol;
        if (ust.empty())
            return {};
        tam = ust + "/" + tam;
    }
    return Altinda(tam, D().agac) || Altinda(tam, D().durum) ? Acik{std::move(tam), 0} : Acik{};
}

namespace {

void Kaydet(const Is& is, std::uint32_t no, long sonuc, int hata) {
    if (D().kayit < 0)
        return;
    KayitBasi bas{is.cagri, no, sonuc < 0 ? hata : 0, is.konu.seri, is.konum, is.ek, 0, 0, 0, 0};
    bas.yolBoyu = static_cast<std::uint32_t>(is.konu.yol.size());
    bas.hedefBoyu = static_cast<std::uint32_t>(is.hedef.size());
    bas.veriBoyu = is.veri != nullptr && sonuc > 0 ? static_cast<std::uint32_t>(sonuc) : 0;
    bas.durumda = Altinda(is.konu.yol, D().durum) ? 1 : 0;
    std::string satir(reinterpret_cast<const char*>(&bas), sizeof bas);
    satir += is.konu.yol;
    satir += is.hedef;
    satir.append(static_cast<const char*>(is.veri), bas.veriBoyu);
    ::syscall(SYS_write, D().kayit, satir.data(), satir.size());
}

constexpr std::size_t kSayfa = 4096;

/// Whether a call gets a number, where calls do.
bool Sayilir(const Is& is) {
    if (D().yarim)
        return is.cagri == Cagri::Yaz && is.ek > kSayfa;
    return !D().yalniz || Degistirir(is.cagri, is.ek);
}

/// A death in a long write leaves some of its pages.
[[noreturn]] void Ol(const Is& is, const std::function<long(std::size_t)>& yap) {
    if (D().yarim)
        yap(std::max<std::size_t>(1, is.ek / kSayfa / 2) * kSayfa);
    for (;;)
        ::kill(::getpid(), SIGKILL);
}

} // namespace

long Gecir(Is is, const std::function<long(std::size_t)>& yap) {
    constexpr std::size_t kHepsi = ~std::size_t{0};
    const std::lock_guard kilit(D().kilit);
    if (is.konu.yol.empty() && is.hedef.empty())
        return yap(kHepsi);
    const bool sayilir = D().sayar && Sayilir(is);
    const std::uint32_t no = sayilir ? ++D().no : 0;
    if (no != 0 && no == D().oldur)
        Ol(is, yap);
    const bool bozulur = no != 0 && D().boz != 0 && (no == D().boz || (D().sonra && no > D().boz));
    long sonuc = kHata;
    // A file whose closing fails is closed all the same.
    if (!bozulur || is.cagri == Cagri::Kapat)
        sonuc = yap(no != 0 && no == D().kisa ? std::max<std::size_t>(1, is.ek / 2) : kHepsi);
    int hata = errno;
    if (bozulur) {
        sonuc = kHata;
        hata = D().hata;
    }
    if (is.cagri == Cagri::Ac && sonuc >= 0) {
        is.konu.seri = ++D().seri;
        D().Bagla(static_cast<int>(sonuc), is.konu);
    }
    Kaydet(is, no, sonuc, hata);
    errno = hata;
    return sonuc;
}

} // namespace velora::dayanim
