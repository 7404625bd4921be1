#include "storage/dosya/AdListesi.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#include "storage/Harf.h"
#include "storage/dosya/AdBicimi.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {
namespace {

using sistem::AdHarfi;
using sistem::DiskAdi;

constexpr std::array<char16_t, 0xFF> kSira = [] {
    std::array<char16_t, 0xFF> sira{};
    for (std::size_t i = 0; i < sira.size(); ++i)
        sira[i] = SikSiraHarfi(static_cast<char16_t>(i));
    return sira;
}();

char16_t Sira(char16_t harf) {
    return harf < kSira.size() ? kSira[harf] : SiraHarfi(harf);
}

constexpr unsigned kIlkUzun = 0x80;

template <class Birim>
unsigned Kod(Birim harf) {
    return static_cast<std::make_unsigned_t<Birim>>(harf);
}

constexpr std::size_t kSekizli = sizeof(std::uint64_t);

constexpr std::uint64_t Hepsinde(std::uint64_t bayt) {
    return bayt * 0x0101010101010101U;
}
constexpr std::uint64_t kHepsi = ~std::uint64_t{0};
constexpr std::uint64_t kUstBitler = Hepsinde(kIlkUzun);

/// Eight bytes as one number, the first of them the highest.
std::uint64_t SekizAl(const void* baytlar) {
    std::uint64_t sayi = 0;
    std::memcpy(&sayi, baytlar, sizeof sayi);
    if constexpr (std::endian::native == std::endian::little) {
        sayi = (sayi & 0x00FF00FF00FF00FFU) << 8U | (sayi >> 8U & 0x00FF00FF00FF00FFU);
        sayi = (sayi & 0x0000FFFF0000FFFFU) << 16U | (sayi >> 16U & 0x0000FFFF0000FFFFU);
        sayi = sayi << 32U | sayi >> 32U;
    }
    return sayi;
}

/// All bits of so many bytes, from the highest on.
constexpr std::uint64_t IlkBaytlar(std::ptrdiff_t adet) {
    const auto bos = static_cast<unsigned>(kSekizli - std::clamp<std::ptrdiff_t>(adet, 0, kSekizli));
    return bos == kSekizli ? 0 : kHepsi << 8U * bos;
}

/// The highest bit of each byte that is this one.
constexpr std::uint64_t Esitler(std::uint64_t baytlar, std::uint64_t aranan) {
    const std::uint64_t fark = baytlar ^ Hepsinde(aranan);
    return ~(((fark & ~kUstBitler) + ~kUstBitler) | fark) & kUstBitler;
}

/// Of each byte of seven bits that is at least this, the highest bit.
constexpr std::uint64_t EnAz(std::uint64_t baytlar, std::uint64_t sinir) {
    return baytlar + Hepsinde(kIlkUzun - sinir);
}

/// The letters of a name on the disk, one after the other: of one in which each stands for itself, be it in
/// bytes of UTF-8, of which none takes more than two, or in letters of 16 bits.
class Harfler {
  public:
    explicit Harfler(DiskAdi ad) : kalan_(ad) {}

    bool Bitti() const { return kalan_.empty(); }
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

/// Whether a name ends with these letters of seven bits.
bool KisaBiter(DiskAdi ad, MetinBakis son) {
    return ad.size() >= son.size() &&
           std::equal(son.begin(), son.end(), ad.end() - static_cast<std::ptrdiff_t>(son.size()),
                      [](char16_t harf, AdHarfi disk) { return harf == Kod(disk); });
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

/// The letters as UTF-8 has them, each unit of 16 bits for itself: such bytes order as the letters do. What
/// goes beyond the key doesn't count: names that come out equal are compared in full.
template <class Okuyan>
AdListesi::Anahtar AdListesi::AnahtarYap(Okuyan harfler) {
    constexpr unsigned kIkiBayt = 0xC0;
    constexpr unsigned kUcBayt = 0xE0;
    constexpr unsigned kIlkUcBaytli = 0x800;
    constexpr unsigned kDevamBiti = 6;
    std::array<std::uint8_t, 3 * kSekizli> baytlar{};
    std::size_t dolu = 0;
    const auto koy = [&](unsigned bayt) {
        if (dolu < baytlar.size())
            baytlar[dolu++] = static_cast<std::uint8_t>(bayt);
    };
    const auto devamKoy = [&](unsigned bitler) { koy(kIlkUzun | (bitler & ((1U << kDevamBiti) - 1))); };
    while (dolu < baytlar.size() && !harfler.Bitti()) {
        const unsigned harf = Sira(harfler.Al());
        if (harf < kIlkUzun) {
            koy(harf);
        } else if (harf < kIlkUcBaytli) {
            koy(kIkiBayt | harf >> kDevamBiti);
            devamKoy(harf);
        } else {
            koy(kUcBayt | harf >> 2 * kDevamBiti);
            devamKoy(harf >> kDevamBiti);
            devamKoy(harf);
        }
    }
    return {SekizAl(baytlar.data()), SekizAl(baytlar.data() + kSekizli),
            SekizAl(baytlar.data() + 2 * kSekizli)};
}

/// The same key of a name as this program makes them: letters of seven bits and those up to ÿ that UTF-8
/// begins with C3. Nothing for others, for longer ones, and for one behind which there is too little to read
/// it by eights. No byte asks for a branch: thousands of names in no order would have it guessed wrong.
std::optional<AdListesi::Anahtar> AdListesi::HizliAnahtar(const Yer& ad) const {
    constexpr std::size_t kParca = 4;
    constexpr std::uint64_t kHarfBitleri = 0xC0; // each letter has one of them
    if (sizeof(AdHarfi) > 1 || ad.uzunluk > kParca * kSekizli || harfler_.size() - ad.bas < kParca * kSekizli)
        return {};
    std::array<std::uint64_t, kParca> parcalar{};
    std::uint64_t ilkler = 0; // of the part before
    std::uint64_t yabanci = 0;
    for (std::size_t i = 0; i < kParca; ++i) {
        // Of each byte only the highest bit tells, here as in all masks.
        const std::uint64_t baytlari =
            SekizAl(harfler_.data() + ad.bas + i * kSekizli) &
            IlkBaytlar(static_cast<std::ptrdiff_t>(ad.uzunluk) - static_cast<std::ptrdiff_t>(i * kSekizli));
        // Of names of days the first part has no letters, and the last one none that matters.
        const std::uint64_t onemli = i + 1 < kParca ? Hepsinde(kHarfBitleri) : kUstBitler;
        if ((ilkler | (baytlari & onemli)) == 0) {
            parcalar[i] = baytlari;
            continue;
        }
        const std::uint64_t ilk = Esitler(baytlari, 0xC3);
        const std::uint64_t devam = ilk >> 8U | ilkler << 56U;
        ilkler = ilk;
        yabanci |= (baytlari ^ (ilk | devam)) & kUstBitler;
        yabanci |= devam & (ilk | baytlari << 1U | Esitler(baytlari, 0xBF));
        const std::uint64_t kisa = baytlari & ~kUstBitler;
        const std::uint64_t kucuk = EnAz(kisa, 'a') & ~EnAz(kisa, 'z' + 1) & ~baytlari;
        const std::uint64_t ikinci = devam & EnAz(kisa, 0x20) & ~Esitler(baytlari, 0xB7);
        // What a small letter is more than its capital.
        parcalar[i] = baytlari - (((kucuk | ikinci) & kUstBitler) >> 2U);
    }
    if (yabanci != 0 || ilkler != 0)
        return {};
    return Anahtar{parcalar[0], parcalar[1], parcalar[2]};
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

void AdListesi::Diz() {
    okunanSira_ = kYok;
    adlar_.clear();
    adlar_.reserve(gelenler_.size());
    for (std::uint32_t i = 0; i < gelenler_.size(); ++i) {
        const DiskAdi ad = Bakis(gelenler_[i]);
        if (const auto anahtar = HizliAnahtar(gelenler_[i]))
            adlar_.push_back({*anahtar, i, true});
        else if (Harfler::Sade(ad))
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

bool AdListesi::Biter(std::size_t i, MetinBakis son) const {
    return KisaBiter(Diskteki(i), son);
}

bool AdListesi::EsiArkada(std::size_t i, MetinBakis ek) const {
    if (i + 1 >= adlar_.size() || !adlar_[i].sade || !adlar_[i + 1].sade)
        return false;
    const DiskAdi ad = Diskteki(i);
    const DiskAdi sonraki = Diskteki(i + 1);
    return sonraki.size() == ad.size() + ek.size() && KisaBiter(sonraki, ek) && sonraki.starts_with(ad);
}

bool AdListesi::BasiAyni(std::size_t i, std::size_t boy) const {
    if (i == 0)
        return false;
    // A name that has no more letters stands before all that go on from it.
    const DiskAdi bas = Diskteki(i).substr(0, boy);
    return Diskteki(i - 1).starts_with(bas) &&
           std::ranges::all_of(bas, [](AdHarfi harf) { return Kod(harf) < kIlkUzun; });
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
