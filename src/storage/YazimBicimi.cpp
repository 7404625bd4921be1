#include "storage/YazimBicimi.h"

#include <cstddef>
#include <cstring>
#include <string>

#include "storage/KodSayfasi.h"

namespace velora {
namespace {

bool Bosluk(char c) {
    return c == ' ' || c == '\t';
}

bool SatirSonuMu(char c) {
    return c == '\r' || c == '\n';
}

// A scan reads tens of thousands of short values, so the steps work on bare positions within [yer, son).

const char* BasiGec(const char* yer, const char* son) {
    while (yer != son && (Bosluk(*yer) || SatirSonuMu(*yer)))
        ++yer;
    return yer;
}

/// Steps past one comma or one line end. Any other sign stays. The LF of a CR LF is left: it goes with what
/// stands before the next value.
const char* AyiriciGec(const char* yer, const char* son) {
    return yer != son && (*yer == ',' || SatirSonuMu(*yer)) ? yer + 1 : yer;
}

/// The quote that ends the value, or the end of the file.
const char* TirnakBul(const char* yer, const char* son) {
    // Most values are no longer than this: a call for each would cost more than it finds.
    constexpr int kKisa = 4;
    for (int i = 0; i < kKisa; ++i, ++yer)
        if (yer == son || *yer == '"')
            return yer;
    const auto* tirnak = static_cast<const char*>(std::memchr(yer, '"', static_cast<std::size_t>(son - yer)));
    return tirnak == nullptr ? son : tirnak;
}

/// From behind the opening quote: the value, and `yer` behind its separator.
inline std::string_view TirnakliAl(const char*& yer, const char* son) {
    const char* const bas = yer;
    const char* const bitis = TirnakBul(yer, son);
    yer = bitis == son ? son : bitis + 1;
    while (yer != son && Bosluk(*yer))
        ++yer;
    yer = AyiriciGec(yer, son);
    return {bas, static_cast<std::size_t>(bitis - bas)};
}

std::string_view CiplakAl(const char*& yer, const char* son) {
    const char* const bas = yer;
    while (yer != son && *yer != ',' && !SatirSonuMu(*yer))
        ++yer;
    const char* bitis = yer;
    while (bitis != bas && bitis[-1] == ' ')
        --bitis;
    yer = AyiriciGec(yer, son);
    return {bas, static_cast<std::size_t>(bitis - bas)};
}

/// Steps past one value that is a bare digit or nothing within quotes, on a line of its own, from the LF
/// before it to the CR behind it: so are most of those that are passed over. False, and no step, for others.
inline bool KisaSatirGec(const char*& yer, const char* son) {
    constexpr std::ptrdiff_t kEnUzun = 4;
    if (son - yer < kEnUzun || yer[0] != '\n')
        return false;
    const bool rakam = '0' <= yer[1] && yer[1] <= '9';
    const std::ptrdiff_t bitis = rakam ? 2 : 3;
    if (yer[bitis] != '\r' || (!rakam && (yer[1] != '"' || yer[2] != '"')))
        return false;
    yer += bitis + 1;
    return true;
}

/// One value from within [yer, son). False at the end.
inline bool Al(const char*& yer, const char* son, std::string_view& deger) {
    // Nearly each value begins right behind the separator of the one before, or behind the LF of its CR LF.
    if (yer != son && *yer == '\n')
        ++yer;
    if (yer == son || *yer != '"')
        yer = BasiGec(yer, son);
    if (yer == son)
        return false;
    deger = *yer == '"' ? TirnakliAl(++yer, son) : CiplakAl(yer, son);
    return true;
}

} // namespace

bool DegerOkuyucu::Sonda() const {
    return BasiGec(yer_, son_) == son_;
}

bool DegerOkuyucu::Oku(std::string_view& deger) {
    return Al(yer_, son_, deger);
}

bool DegerOkuyucu::Oku(Metin& deger) {
    std::string_view bayt;
    if (!Oku(bayt))
        return false;
    KodCoz(bayt, deger);
    return true;
}

int DegerOkuyucu::Atla(int adet) {
    // The position in a local: kept in the object it would be written back for every sign.
    const char* yer = yer_;
    std::string_view deger;
    int atlanan = 0;
    while (atlanan < adet && (KisaSatirGec(yer, son_) || Al(yer, son_, deger)))
        ++atlanan;
    yer_ = yer;
    return atlanan;
}

void DegerYazici::SatirSonu() {
    bayt_ += "\r\n";
    satirBasi_ = true;
}

void DegerYazici::Ekle(MetinBakis metin) {
    bayt_ += '"';
    bayt_ += KodYaz(metin);
    bayt_ += '"';
}

void DegerYazici::Ekle(const Gun& gun) {
    bayt_ += KodYaz(TarihDegeri(gun));
}

void DegerYazici::EkleSayi(std::int64_t sayi) {
    bayt_ += std::to_string(sayi);
}

} // namespace velora
