#include "documents/Karsitlik.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velora {

namespace {

// Red, green, blue, each from 0 to 1.
using Bilesenler = std::array<double, 3>;

constexpr Bilesenler kIsiklik{0.2126, 0.7152, 0.0722}; // what each adds to the light that is seen
constexpr Bilesenler kGrilik{0.299, 0.587, 0.114};     // and to the grey of paper without colour

Bilesenler Bol(RenkDegeri renk) {
    return {(renk & 0xFF) / 255.0, (renk >> 8 & 0xFF) / 255.0, (renk >> 16 & 0xFF) / 255.0};
}

double Agirlikli(const Bilesenler& renk, const Bilesenler& agirlik) {
    return renk[0] * agirlik[0] + renk[1] * agirlik[1] + renk[2] * agirlik[2];
}

/// The light of a shade as it stands in a colour.
double Isik(double ton) {
    return ton <= 0.04045 ? ton / 12.92 : std::pow((ton + 0.055) / 1.055, 2.4);
}

double Isik(const Bilesenler& renk) {
    return Agirlikli({Isik(renk[0]), Isik(renk[1]), Isik(renk[2])}, kIsiklik);
}

double IsikOrani(double bir, double iki) {
    return (std::max(bir, iki) + 0.05) / (std::min(bir, iki) + 0.05);
}

} // namespace

double KagittaKarsitlik(RenkDegeri yazi, RenkDegeri zemin) {
    const Bilesenler on = Bol(yazi);
    const Bilesenler arka = Bol(zemin);
    return std::min(IsikOrani(Isik(on), Isik(arka)),
                    IsikOrani(Isik(Agirlikli(on, kGrilik)), Isik(Agirlikli(arka, kGrilik))));
}

RenkDegeri OneCikan(RenkDegeri zemin) {
    return KagittaKarsitlik(0, zemin) >= KagittaKarsitlik(kBeyaz, zemin) ? 0 : kBeyaz;
}

std::optional<RenkDegeri> OkunurZemin(RenkDegeri yazi, RenkDegeri zemin) {
    constexpr double kYeter = 3; // of letters to their ground
    constexpr int kAdimlar = 20; // from the ground to black or white
    if (yazi == zemin || KagittaKarsitlik(yazi, zemin) >= kYeter)
        return std::nullopt;
    const RenkDegeri uc = OneCikan(yazi);
    for (int adim = 1; adim < kAdimlar; ++adim) {
        RenkDegeri ton = 0;
        for (const int yer : {0, 8, 16}) {
            const int bilesen = zemin >> yer & 0xFF;
            ton |= (bilesen + ((uc >> yer & 0xFF) - bilesen) * adim / kAdimlar) << yer;
        }
        if (KagittaKarsitlik(yazi, ton) >= kYeter)
            return ton;
    }
    return uc;
}

} // namespace velora
