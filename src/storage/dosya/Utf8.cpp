#include "storage/dosya/Utf8.h"

#include <algorithm>
#include <array>

namespace velora {
namespace {

constexpr char32_t kYedekIlk = 0xD800;
constexpr char32_t kYedekSon = 0xDFFF;
constexpr char32_t kBaytTabani = 0xDC00;
constexpr char32_t kUstDuzlem = 0x10000;
constexpr unsigned kIlkCokBaytli = 0x80;

/// How a character of this many bytes begins, and the smallest number that may be written so.
struct Uzunluk {
    unsigned maske;
    unsigned bas;
    char32_t enAz;
};
constexpr std::array<Uzunluk, 3> kUzunluklar{
    {{0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, kUstDuzlem}}};

unsigned Bayt(char c) {
    return static_cast<unsigned char>(c);
}

/// The character at the start of the bytes and how many bytes it takes; 0 when there is none.
std::size_t Coz(std::string_view bayt, char32_t& kod) {
    for (std::size_t ek = 1; ek <= kUzunluklar.size() && ek < bayt.size(); ++ek) {
        const Uzunluk& u = kUzunluklar[ek - 1];
        if ((Bayt(bayt[0]) & u.maske) != u.bas)
            continue;
        kod = Bayt(bayt[0]) & ~u.maske;
        for (std::size_t i = 1; i <= ek; ++i) {
            if ((Bayt(bayt[i]) & 0xC0U) != 0x80U)
                return 0;
            kod = kod << 6U | (Bayt(bayt[i]) & 0x3FU);
        }
        const bool gecerli = kod >= u.enAz && kod <= 0x10FFFF && (kod < kYedekIlk || kod > kYedekSon);
        return gecerli ? ek + 1 : 0;
    }
    return 0;
}

/// The character that begins at `yer`; a surrogate pair is one, and `yer` then moves to its second half.
char32_t KodAl(MetinBakis metin, std::size_t& yer) {
    const char32_t kod = metin[yer];
    const bool ust = (kod & 0xFC00U) == kYedekIlk && yer + 1 < metin.size();
    if (!ust || (metin[yer + 1] & 0xFC00U) != kBaytTabani)
        return kod;
    ++yer;
    return kUstDuzlem + ((kod & 0x3FFU) << 10U | (metin[yer] & 0x3FFU));
}

void Yaz(char32_t kod, std::string& hedef) {
    std::size_t ek = 1;
    while (ek < kUzunluklar.size() && kod >= kUzunluklar[ek].enAz)
        ++ek;
    hedef += static_cast<char>(kUzunluklar[ek - 1].bas | kod >> (6 * ek));
    while (ek-- > 0)
        hedef += static_cast<char>(0x80U | (kod >> (6 * ek) & 0x3FU));
}

} // namespace

void Utf8Coz(std::string_view bayt, Metin& hedef) {
    hedef.resize(bayt.size()); // no character takes fewer bytes than letters
    // Names are many and mostly short letters: a plain loop, so that the machine does several at once.
    unsigned hepsi = 0;
    for (std::size_t i = 0; i < bayt.size(); ++i) {
        hedef[i] = Bayt(bayt[i]);
        hepsi |= Bayt(bayt[i]);
    }
    if (hepsi < kIlkCokBaytli)
        return;
    std::size_t dolu = 0; // the short letters at the beginning stand where they belong
    while (Bayt(bayt[dolu]) < kIlkCokBaytli)
        ++dolu;
    bayt.remove_prefix(dolu);
    while (!bayt.empty()) {
        char32_t kod = Bayt(bayt[0]);
        const std::size_t uzunluk = kod < kIlkCokBaytli ? 1 : Coz(bayt, kod);
        if (uzunluk == 0)
            kod = kBaytTabani + Bayt(bayt[0]);
        if (kod >= kUstDuzlem) {
            hedef[dolu++] = static_cast<char16_t>(kYedekIlk + ((kod - kUstDuzlem) >> 10U));
            kod = kBaytTabani + ((kod - kUstDuzlem) & 0x3FFU);
        }
        hedef[dolu++] = static_cast<char16_t>(kod);
        bayt.remove_prefix(std::max<std::size_t>(uzunluk, 1));
    }
    hedef.resize(dolu);
}

bool Utf8Ekle(MetinBakis metin, std::string& hedef) {
    for (std::size_t i = 0; i < metin.size(); ++i) {
        const char32_t kod = KodAl(metin, i);
        if (kod < kIlkCokBaytli)
            hedef += static_cast<char>(kod);
        else if (kod < kYedekIlk || kod > kYedekSon)
            Yaz(kod, hedef);
        else if (kod >= kBaytTabani + 0x80 && kod <= kBaytTabani + 0xFF)
            hedef += static_cast<char>(kod - kBaytTabani);
        else
            return false;
    }
    return true;
}

} // namespace velora
