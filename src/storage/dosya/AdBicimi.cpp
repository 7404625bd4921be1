#include "storage/dosya/AdBicimi.h"

#include <algorithm>
#include <array>

#include "storage/Harf.h"
#include "storage/KodSayfasi.h"

namespace velora {
namespace {

/// A mark that stands behind its letter, and what the two make together.
struct AdIsareti {
    char16_t isaret;
    MetinBakis yalin;
    MetinBakis bilesik;
};

// The letters of Windows-1254 and Latin-1.
constexpr std::array<AdIsareti, 10> kAdIsaretleri{{
    {0x0300, u"AEIOUaeiou", u"ÀÈÌÒÙàèìòù"},
    {0x0301, u"AEIOUYaeiouy", u"ÁÉÍÓÚÝáéíóúý"},
    {0x0302, u"AEIOUaeiou", u"ÂÊÎÔÛâêîôû"},
    {0x0303, u"ANOano", u"ÃÑÕãñõ"},
    {0x0306, u"Gg", u"Ğğ"},
    {0x0307, u"I", u"İ"},
    {0x0308, u"AEIOUYaeiouy", u"ÄËÏÖÜŸäëïöüÿ"},
    {0x030A, u"Aa", u"Åå"},
    {0x030C, u"Ss", u"Šš"},
    {0x0327, u"CScs", u"ÇŞçş"},
}};
static_assert(std::all_of(kAdIsaretleri.begin(), kAdIsaretleri.end(),
                          [](const AdIsareti& i) { return i.yalin.size() == i.bilesik.size(); }));

constexpr char16_t kIlkIsaret = 0x0300;
constexpr char16_t kSonIsaret = 0x036F;
// A byte that is no UTF-8, as `Utf8Coz` hands it over.
constexpr char16_t kHamTabani = 0xDC00;
constexpr char16_t kIlkHam = kHamTabani + 0x80;
constexpr char16_t kSonHam = kHamTabani + 0xFF;

bool HamBayt(char16_t harf) {
    return kIlkHam <= harf && harf <= kSonHam;
}

/// Whether the unit at `yer` is a byte of its own, not the second half of a surrogate pair.
bool YalnizBayt(MetinBakis ad, std::size_t yer) {
    return HamBayt(ad[yer]) && (yer == 0 || (ad[yer - 1] & 0xFC00) != 0xD800);
}

/// The letter that the two make, 0 for none.
char16_t Birlestir(char16_t harf, char16_t isaret) {
    const auto tur = std::find_if(kAdIsaretleri.begin(), kAdIsaretleri.end(),
                                  [isaret](const AdIsareti& i) { return i.isaret == isaret; });
    const std::size_t yer = tur == kAdIsaretleri.end() ? MetinBakis::npos : tur->yalin.find(harf);
    return yer == MetinBakis::npos ? u'\0' : tur->bilesik[yer];
}

} // namespace

bool AdDuzelt(Metin& ad) {
    if (std::none_of(ad.begin(), ad.end(),
                     [](char16_t h) { return (kIlkIsaret <= h && h <= kSonIsaret) || HamBayt(h); }))
        return false;
    Metin duz;
    duz.reserve(ad.size());
    for (std::size_t i = 0; i < ad.size(); ++i) {
        const char16_t bilesik = duz.empty() ? u'\0' : Birlestir(duz.back(), ad[i]);
        if (bilesik != u'\0')
            duz.back() = bilesik;
        else if (YalnizBayt(ad, i))
            duz += KodCoz(std::string(1, static_cast<char>(ad[i] - kHamTabani)));
        else
            duz += ad[i];
    }
    const bool degisti = duz != ad;
    ad = std::move(duz);
    return degisti;
}

Metin AdAnahtari(MetinBakis ad) {
    Metin anahtar(ad);
    AdDuzelt(anahtar);
    anahtar.erase(anahtar.find_last_not_of(u". ") + 1);
    std::transform(anahtar.begin(), anahtar.end(), anahtar.begin(), SiraHarfi);
    return anahtar;
}

} // namespace velora
