#include "storage/KodSayfasi.h"

#include <algorithm>
#include <array>

namespace velora {
namespace {

struct Ayri {
    unsigned char bayt;
    char16_t harf;
};

// The bytes whose character has another number than the byte. All others stand for their own number.
constexpr std::array<Ayri, 31> kAyri{{
    {0x80, u'€'}, {0x82, u'‚'}, {0x83, u'ƒ'}, {0x84, u'„'}, {0x85, u'…'}, {0x86, u'†'}, {0x87, u'‡'},
    {0x88, u'ˆ'}, {0x89, u'‰'}, {0x8A, u'Š'}, {0x8B, u'‹'}, {0x8C, u'Œ'}, {0x91, u'‘'}, {0x92, u'’'},
    {0x93, u'“'}, {0x94, u'”'}, {0x95, u'•'}, {0x96, u'–'}, {0x97, u'—'}, {0x98, u'˜'}, {0x99, u'™'},
    {0x9A, u'š'}, {0x9B, u'›'}, {0x9C, u'œ'}, {0x9F, u'Ÿ'}, {0xD0, u'Ğ'}, {0xDD, u'İ'}, {0xDE, u'Ş'},
    {0xF0, u'ğ'}, {0xFD, u'ı'}, {0xFE, u'ş'},
}};

constexpr std::array<char16_t, 256> Tablo() {
    std::array<char16_t, 256> tablo{};
    for (std::size_t bayt = 0; bayt < tablo.size(); ++bayt)
        tablo[bayt] = static_cast<char16_t>(bayt);
    for (const Ayri& ayri : kAyri)
        tablo[ayri.bayt] = ayri.harf;
    return tablo;
}

constexpr std::array<char16_t, 256> kTablo = Tablo();

constexpr int kBaytYok = -1;

int BaytBul(char16_t harf) {
    if (harf < kTablo.size() && kTablo[harf] == harf)
        return harf;
    const auto ayri = std::find_if(kAyri.begin(), kAyri.end(), [&](const Ayri& a) { return a.harf == harf; });
    return ayri == kAyri.end() ? kBaytYok : ayri->bayt;
}

bool CiftMi(MetinBakis metin, std::size_t yer) {
    return yer + 1 < metin.size() && (metin[yer] & 0xFC00) == 0xD800 && (metin[yer + 1] & 0xFC00) == 0xDC00;
}

} // namespace

void KodCoz(std::string_view bayt, Metin& hedef) {
    hedef.resize(bayt.size());
    std::transform(bayt.begin(), bayt.end(), hedef.begin(),
                   [](char c) { return kTablo[static_cast<unsigned char>(c)]; });
}

Metin KodCoz(std::string_view bayt) {
    Metin metin;
    KodCoz(bayt, metin);
    return metin;
}

std::string KodYaz(MetinBakis metin) {
    std::string bayt;
    bayt.reserve(metin.size());
    for (std::size_t i = 0; i < metin.size(); ++i) {
        const int kod = BaytBul(metin[i]);
        bayt += kod == kBaytYok ? '?' : static_cast<char>(kod);
        if (CiftMi(metin, i))
            ++i;
    }
    return bayt;
}

Metin KodaSigdir(MetinBakis metin) {
    return KodCoz(KodYaz(metin));
}

bool KodVar(char16_t harf) {
    return BaytBul(harf) != kBaytYok;
}

} // namespace velora
