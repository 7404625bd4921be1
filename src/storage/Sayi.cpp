#include "storage/Sayi.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numeric>

namespace velora {
namespace {

bool Rakam(char16_t harf) {
    return u'0' <= harf && harf <= u'9';
}

// The largest double has 309 digits before the point, the smallest about 330 behind it.
constexpr std::size_t kEnUzunSayi = 512;

template <class... Hassaslik>
std::string Onluk(double sayi, Hassaslik... hassaslik) {
    std::array<char, kEnUzunSayi> yer{};
    const auto son =
        std::to_chars(yer.data(), yer.data() + yer.size(), sayi, std::chars_format::fixed, hassaslik...);
    return {yer.data(), son.ptr};
}

} // namespace

double SayisalDeger(MetinBakis metin) {
    // Most amounts are a few digits, and long lists of them are added up at each change.
    constexpr std::size_t kTamHane = 15; // a double holds any number of so many digits exactly
    if (metin.size() <= kTamHane && std::all_of(metin.begin(), metin.end(), Rakam))
        return std::accumulate(metin.begin(), metin.end(), 0.0,
                               [](double sayi, char16_t harf) { return sayi * 10 + (harf - u'0'); });
    std::string bas;
    bool nokta = false;
    for (const char16_t harf : metin) {
        const bool ilkNokta = harf == u'.' && !nokta && !bas.empty() && bas.back() != '-';
        const bool eksi = harf == u'-' && bas.empty();
        if (!Rakam(harf) && !ilkNokta && !eksi)
            break;
        nokta = nokta || ilkNokta;
        bas += static_cast<char>(harf);
    }
    double sayi = 0;
    // A lone minus, and digits that no double can hold, leave the 0.
    std::from_chars(bas.data(), bas.data() + bas.size(), sayi, std::chars_format::fixed);
    return sayi;
}

double TutarDegeri(MetinBakis metin) {
    return SayisalDeger(Kirp(metin));
}

Metin DuzMetin(double sayi) {
    if (sayi == 0 || !std::isfinite(sayi))
        return u"0";
    const std::string bayt = Onluk(sayi);
    return {bayt.begin(), bayt.end()};
}

Metin GrupluMetin(double sayi) {
    const double tam = std::round(sayi);
    if (tam == 0 || !std::isfinite(tam))
        return {};
    const std::string bayt = Onluk(std::abs(tam), 0);
    Metin metin = tam < 0 ? u"-" : u"";
    for (std::size_t i = 0; i < bayt.size(); ++i) {
        if (i > 0 && (bayt.size() - i) % 3 == 0)
            metin += u'.';
        metin += static_cast<char16_t>(bayt[i]);
    }
    return metin;
}

Metin TutarMetni(double sayi) {
    return u": " + GrupluMetin(sayi) + u" TL";
}

} // namespace velora
