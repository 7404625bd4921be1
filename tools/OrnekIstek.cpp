#include "tools/OrnekIstek.h"

#include <charconv>
#include <limits>

namespace velora::ornek {

namespace {

/// A plain number within bounds, and where it goes.
struct SayiSecenegi {
    std::string_view ad;
    std::uint32_t enAz;
    std::uint32_t enCok;
    void (*koy)(Istek&, std::uint32_t);
};

constexpr SayiSecenegi kSayilar[] = {
    {"--salon", 1, kEnCokSalon, [](Istek& i, std::uint32_t n) { i.salon = n; }},
    {"--yil", 1, kEnCokYil, [](Istek& i, std::uint32_t n) { i.yil = n; }},
    {"--rezervasyon", 0, kEnCokRezervasyon, [](Istek& i, std::uint32_t n) { i.rezervasyon = n; }},
    {"--tohum", 0, std::numeric_limits<std::uint32_t>::max(), [](Istek& i, std::uint32_t n) { i.tohum = n; }},
};

bool SayiKoy(Istek& istek, std::string_view ad, std::string_view metin) {
    for (const SayiSecenegi& secenek : kSayilar) {
        if (secenek.ad != ad)
            continue;
        std::uint32_t sayi = 0;
        const char* son = metin.data() + metin.size();
        const auto [yer, hata] = std::from_chars(metin.data(), son, sayi);
        if (hata != std::errc() || yer != son || sayi < secenek.enAz || sayi > secenek.enCok)
            return false;
        secenek.koy(istek, sayi);
        return true;
    }
    return false;
}

bool BugunKoy(Istek& istek, std::string_view metin) {
    const std::optional<Gun> gun = TarihCoz(Metin(metin.begin(), metin.end()));
    if (gun)
        istek.bugun = *gun;
    return gun.has_value();
}

bool DegerKoy(Istek& istek, std::string_view ad, std::string_view metin) {
    return ad == "--bugun" ? BugunKoy(istek, metin) : SayiKoy(istek, ad, metin);
}

} // namespace

std::optional<Komut> KomutCoz(std::span<const std::string_view> parcalar, const Gun& bugun) {
    Komut komut;
    komut.istek.bugun = bugun;
    for (std::size_t i = 0; i < parcalar.size(); ++i) {
        const std::string_view parca = parcalar[i];
        if (parca == "--tum-adlar") {
            komut.istek.tumAdlar = true;
        } else if (parca.starts_with("-")) {
            ++i;
            if (i == parcalar.size() || !DegerKoy(komut.istek, parca, parcalar[i]))
                return std::nullopt;
        } else if (komut.klasor.empty()) {
            komut.klasor = parca;
        } else {
            return std::nullopt;
        }
    }
    if (komut.klasor.empty())
        return std::nullopt;
    return komut;
}

std::string_view Kullanim() {
    return "usage: OrnekVeri FOLDER [options]\n"
           "Makes a sample firm in FOLDER, which must not hold one yet.\n"
           "  --salon N          halls, 1 to 100 (2)\n"
           "  --yil N            years, 1 to 21: this one, the next, the ten before, then on (2)\n"
           "  --rezervasyon N    reservations for each hall and year, 0 to 744 (120)\n"
           "  --tohum N          seed: the same seed and day give the same firm (1)\n"
           "  --bugun dd.mm.yyyy the day that counts as today (the real one)\n"
           "  --tum-adlar        also days that a month hasn't got, so that a year has 744 slots\n";
}

} // namespace velora::ornek
