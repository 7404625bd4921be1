#include "storage/dosya/AdListesi.h"

#include <algorithm>
#include <array>

#include "storage/Harf.h"
#include "storage/dosya/AdBicimi.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {
namespace {

constexpr std::size_t kAnahtarBoyu = 8;
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

/// Letters beyond one byte share the highest value, and what stands behind the first of them may not count
/// any more: such names come out equal and are compared in full.
std::uint64_t Anahtar(MetinBakis ad) {
    std::uint64_t anahtar = 0;
    std::size_t yer = 0;
    while (yer < kAnahtarBoyu) {
        const char16_t harf = yer < ad.size() ? std::min(Sira(ad[yer]), kTasan) : u'\0';
        anahtar = anahtar << 8U | harf;
        ++yer;
        if (harf == kTasan)
            break;
    }
    return yer < kAnahtarBoyu ? anahtar << 8U * (kAnahtarBoyu - yer) : anahtar;
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

AdListesi::Yer AdListesi::Sakla(MetinBakis ad) {
    const Yer yer{harfler_.size(), ad.size()};
    harfler_ += ad;
    return yer;
}

void AdListesi::Ekle(MetinBakis ad) {
    const Yer diskteki = Sakla(ad);
    gecici_ = ad;
    const Yer yer = AdDuzelt(gecici_) ? Sakla(gecici_) : diskteki;
    adlar_.push_back({Anahtar(gecici_), yer, diskteki});
}

void AdListesi::Sirala() {
    std::sort(adlar_.begin(), adlar_.end(), [this](const Ad& bir, const Ad& iki) {
        if (bir.anahtar != iki.anahtar)
            return bir.anahtar < iki.anahtar;
        const MetinBakis x = Bakis(bir.ad);
        const MetinBakis y = Bakis(iki.ad);
        if (x != y)
            return AdSirasi(x, y);
        // The one that stands so on the disk comes first: a lookup takes it too.
        const MetinBakis xDisk = Bakis(bir.diskteki);
        const MetinBakis yDisk = Bakis(iki.diskteki);
        return (xDisk == x) != (yDisk == y) ? xDisk == x : xDisk < yDisk;
    });
}

} // namespace velora
