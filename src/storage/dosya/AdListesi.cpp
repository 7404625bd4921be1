#include "storage/dosya/AdListesi.h"

#include <algorithm>
#include <array>
#include <span>

#include "storage/Harf.h"
#include "storage/dosya/AdBicimi.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {
namespace {

using sistem::AdHarfi;
using sistem::DiskAdi;

constexpr std::size_t kAnahtarBoyu = 24; // the name of a day's companion fits in
constexpr char16_t kTasan = 0xFF;

constexpr std::array<char16_t, kTasan> kSira = [] {
    std::array<char16_t, kTasan> sira{};
    for (std::size_t i = 0; i < sira.size(); ++i)
        sira[i] = SikSiraHarfi(static_cast<char16_t>(i));
    return sira;
}();

char16_t Sira(char16_t harf) {
    return harf < kSira.size() ? kSira[harf] : SiraHarfi(harf);
}

constexpr unsigned kIlkUzun = 0x80;
static_assert(std::all_of(kSira.begin(), kSira.begin() + kIlkUzun, [](char16_t s) { return s < kIlkUzun; }));

template <class Birim>
unsigned Kod(Birim harf) {
    return static_cast<std::make_unsigned_t<Birim>>(harf);
}

/// Takes the letters of seven bits from the front of a name, and says how many there were: of nearly all
/// names these are nearly all.
template <class Bakis>
std::size_t KisalariAl(Bakis& kalan, std::span<std::uint8_t> siralar) {
    const std::size_t enCok = std::min(kalan.size(), siralar.size());
    std::size_t adet = 0;
    for (; adet < enCok && Kod(kalan[adet]) < kIlkUzun; ++adet)
        siralar[adet] = static_cast<std::uint8_t>(kSira[Kod(kalan[adet])]);
    kalan.remove_prefix(adet);
    return adet;
}

/// The letters of a name on the disk, one after the other: of one in which each stands for itself, be it in
/// bytes of UTF-8, of which none takes more than two, or in letters of 16 bits.
class Harfler {
  public:
    explicit Harfler(DiskAdi ad) : kalan_(ad) {}

    bool Bitti() const { return kalan_.empty(); }
    std::size_t Kisalar(std::span<std::uint8_t> siralar) { return KisalariAl(kalan_, siralar); }
    char16_t Al() {
        constexpr unsigned kDevamBiti = 6;
        constexpr unsigned kDevam = (1U << kDevamBiti) - 1;
        constexpr unsigned kBas = 0x1F;
        unsigned harf = Kod(kalan_.front());
        if (sizeof(AdHarfi) == 1 && harf >= kIlkUzun) {
            harf = (harf & kBas) << kDevamBiti | (Kod(kalan_[1]) & kDevam);
            kalan_.remove_prefix(1);
        }
        kalan_.remove_prefix(1);
        return static_cast<char16_t>(harf);
    }

    /// Whether a name is such a one.
    static bool Sade(DiskAdi ad) {
        std::size_t adim = 0;
        for (std::size_t i = 0; i < ad.size(); i += adim)
            if (adim = Uzunluk(ad, i); adim == 0)
                return false;
        return true;
    }

  private:
    /// How many units the letter takes. 0: it may be a mark that belongs to the one before it, or none at
    /// all, and is left to the slow way.
    static std::size_t Uzunluk(DiskAdi ad, std::size_t yer) {
        constexpr unsigned kEnAz = 0xC2;
        constexpr unsigned kIsaretBayti = 0xCC;
        constexpr unsigned kDevamMaskesi = 0xC0;
        constexpr unsigned kIlkBirlesen = 0x0300;
        const unsigned bas = Kod(ad[yer]);
        if (bas < kIlkUzun || (sizeof(AdHarfi) > 1 && bas < kIlkBirlesen))
            return 1;
        const bool iki = sizeof(AdHarfi) == 1 && kEnAz <= bas && bas < kIsaretBayti && yer + 1 < ad.size() &&
                         (Kod(ad[yer + 1]) & kDevamMaskesi) == kIlkUzun;
        return iki ? 2 : 0;
    }

    DiskAdi kalan_;
};

/// The same for a text.
class MetinHarfleri {
  public:
    explicit MetinHarfleri(MetinBakis metin) : kalan_(metin) {}
    bool Bitti() const { return kalan_.empty(); }
    std::size_t Kisalar(std::span<std::uint8_t> siralar) { return KisalariAl(kalan_, siralar); }
    char16_t Al() {
        const char16_t harf = kalan_.front();
        kalan_.remove_prefix(1);
        return harf;
    }

  private:
    MetinBakis kalan_;
};

Metin Metni(DiskAdi ad) {
    Metin metin;
    sistem::AdiCoz(ad, metin);
    AdDuzelt(metin);
    return metin;
}

/// Less, equal or more than 0 as `AdSirasi` has it, but that names which differ only in case are equal.
int Karsilastir(Harfler bir, Harfler iki) {
    while (!bir.Bitti() && !iki.Bitti()) {
        const char16_t x = Sira(bir.Al());
        const char16_t y = Sira(iki.Al());
        if (x != y)
            return x < y ? -1 : 1;
    }
    return static_cast<int>(iki.Bitti()) - static_cast<int>(bir.Bitti());
}

} // namespace

bool AyniAd(MetinBakis bir, MetinBakis iki) {
    return std::equal(bir.begin(), bir.end(), iki.begin(), iki.end(),
                      [](char16_t x, char16_t y) { return x == y || Sira(x) == Sira(y); });
}

bool AdSirasi(MetinBakis bir, MetinBakis iki) {
    const auto [b, i] = std::mismatch(bir.begin(), bir.end(), iki.begin(), iki.end(),
                                      [](char16_t x, char16_t y) { return x == y || Sira(x) == Sira(y); });
    if (b != bir.end() && i != iki.end())
        return Sira(*b) < Sira(*i);
    return bir.size() != iki.size() ? bir.size() < iki.size() : bir < iki;
}

/// Letters beyond one byte share the highest value, and what stands behind the first of them may not count
/// any more. Such names come out equal and are compared in full.
template <class Okuyan>
AdListesi::Anahtar AdListesi::AnahtarYap(Okuyan harfler) {
    std::array<std::uint8_t, kAnahtarBoyu> siralar{};
    for (std::size_t i = harfler.Kisalar(siralar); i < siralar.size() && !harfler.Bitti(); ++i) {
        const char16_t harf = Sira(harfler.Al());
        siralar[i] = static_cast<std::uint8_t>(std::min(harf, kTasan));
        if (harf >= kTasan)
            break;
    }
    const auto sekizi = [&](std::size_t bas) {
        std::uint64_t sayi = 0;
        for (std::size_t i = bas; i < bas + kAnahtarBoyu / 3; ++i)
            sayi = sayi << 8U | siralar[i];
        return sayi;
    };
    return {sekizi(0), sekizi(kAnahtarBoyu / 3), sekizi(kAnahtarBoyu / 3 * 2)};
}

void AdListesi::Ekle(const sistem::ListeOgesi& oge) {
    gelenler_.push_back(
        {oge.no, static_cast<std::uint32_t>(harfler_.size()), static_cast<std::uint32_t>(oge.ad.size())});
    harfler_ += oge.ad;
    harfler_ += AdHarfi{};
}

void AdListesi::BastanEkle(const AdListesi& baska, std::size_t adet) {
    for (std::size_t i = 0; i < adet; ++i)
        Ekle({baska.Bakis(baska.gelenler_[i]), baska.gelenler_[i].no});
}

void AdListesi::Sirala() {
    if (adlar_.size() == gelenler_.size())
        return;
    okunanSira_ = kYok;
    adlar_.clear();
    adlar_.reserve(gelenler_.size());
    for (std::uint32_t i = 0; i < gelenler_.size(); ++i) {
        const DiskAdi ad = Bakis(gelenler_[i]);
        if (Harfler::Sade(ad))
            adlar_.push_back({AnahtarYap(Harfler(ad)), i, true});
        else
            adlar_.push_back({AnahtarYap(MetinHarfleri(okunan_ = Metni(ad))), i, false});
    }
    std::sort(adlar_.begin(), adlar_.end(), [this](const Ad& bir, const Ad& iki) {
        return bir.anahtar == iki.anahtar ? Once(bir, iki) : bir.anahtar < iki.anahtar;
    });
}

/// Of two whose keys are equal.
bool AdListesi::Once(const Ad& bir, const Ad& iki) const {
    const DiskAdi birinci = Bakis(bir);
    const DiskAdi ikinci = Bakis(iki);
    if (const int sira = bir.sade && iki.sade ? Karsilastir(Harfler(birinci), Harfler(ikinci)) : 0; sira != 0)
        return sira < 0;
    const Metin x = Metni(birinci);
    const Metin y = Metni(ikinci);
    if (x != y)
        return AdSirasi(x, y);
    return bir.sade != iki.sade ? bir.sade : birinci < ikinci;
}

MetinBakis AdListesi::operator[](std::size_t i) const {
    if (okunanSira_ == i)
        return okunan_;
    okunanSira_ = kYok;
    sistem::AdiCoz(Diskteki(i), okunan_);
    if (!adlar_[i].sade)
        AdDuzelt(okunan_);
    okunanSira_ = i;
    return okunan_;
}

std::optional<std::size_t> AdListesi::Bul(MetinBakis ad) const {
    // Who goes through the names asks for the companion of the one that he is at: it stands right behind it.
    if (const std::size_t sonraki = okunanSira_ + 1;
        sonraki < adlar_.size() && adlar_[sonraki].sade && (*this)[sonraki] == ad)
        return sonraki;
    const Anahtar anahtar = AnahtarYap(MetinHarfleri(ad));
    const auto yer = std::partition_point(adlar_.begin(), adlar_.end(), [&](const Ad& baska) {
        if (baska.anahtar != anahtar)
            return baska.anahtar < anahtar;
        return AdSirasi((*this)[static_cast<std::size_t>(&baska - adlar_.data())], ad);
    });
    auto sira = static_cast<std::size_t>(yer - adlar_.begin());
    const auto ayni = [&](std::size_t i) { return i < adlar_.size() && AyniAd((*this)[i], ad); };
    if (sira < adlar_.size() && (*this)[sira] == ad)
        return sira;
    // Names that differ only in case stand side by side.
    while (sira > 0 && ayni(sira - 1))
        --sira;
    return ayni(sira) ? std::optional(sira) : std::nullopt;
}

std::size_t AdListesi::Bayt() const {
    return harfler_.capacity() * sizeof(AdHarfi) + gelenler_.capacity() * sizeof(Yer) +
           adlar_.capacity() * sizeof(Ad);
}

} // namespace velora
