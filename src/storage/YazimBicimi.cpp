#include "storage/YazimBicimi.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "storage/KodSayfasi.h"

namespace velora {
namespace {

bool Bosluk(char c) {
    return c == ' ' || c == '\t';
}

bool SatirSonuMu(char c) {
    return c == '\r' || c == '\n';
}

/// The next of the three signs that end a bare value.
std::size_t CiplakSonu(std::string_view metin) {
    const auto son =
        std::find_if(metin.begin(), metin.end(), [](char c) { return c == ',' || SatirSonuMu(c); });
    return static_cast<std::size_t>(son - metin.begin());
}

/// Steps past one comma or one line end. Any other sign stays. The LF of a CR LF is left: it goes with what
/// stands before the next value.
void AyiriciGec(std::string_view& kalan) {
    if (!kalan.empty() && (kalan[0] == ',' || SatirSonuMu(kalan[0])))
        kalan.remove_prefix(1);
}

void BasiGec(std::string_view& kalan) {
    std::size_t i = 0;
    while (i < kalan.size() && (Bosluk(kalan[i]) || SatirSonuMu(kalan[i])))
        ++i;
    kalan.remove_prefix(i);
}

std::string_view TirnakliAl(std::string_view& kalan) {
    kalan.remove_prefix(1);
    const auto* tirnak =
        kalan.empty() ? nullptr : static_cast<const char*>(std::memchr(kalan.data(), '"', kalan.size()));
    if (tirnak == nullptr)
        return std::exchange(kalan, kalan.substr(kalan.size()));
    const auto uzunluk = static_cast<std::size_t>(tirnak - kalan.data());
    const std::string_view deger = kalan.substr(0, uzunluk);
    kalan.remove_prefix(uzunluk + 1);
    while (!kalan.empty() && Bosluk(kalan.front()))
        kalan.remove_prefix(1);
    AyiriciGec(kalan);
    return deger;
}

std::string_view CiplakAl(std::string_view& kalan) {
    const std::size_t uzunluk = CiplakSonu(kalan);
    std::string_view deger = kalan.substr(0, uzunluk);
    kalan.remove_prefix(uzunluk);
    AyiriciGec(kalan);
    deger.remove_suffix(deger.size() - (deger.find_last_not_of(' ') + 1));
    return deger;
}

} // namespace

bool DegerOkuyucu::Sonda() const {
    std::string_view kalan = kalan_;
    BasiGec(kalan);
    return kalan.empty();
}

bool DegerOkuyucu::Oku(std::string_view& deger) {
    BasiGec(kalan_);
    if (kalan_.empty())
        return false;
    deger = kalan_.front() == '"' ? TirnakliAl(kalan_) : CiplakAl(kalan_);
    return true;
}

bool DegerOkuyucu::Oku(Metin& deger) {
    std::string_view bayt;
    if (!Oku(bayt))
        return false;
    KodCoz(bayt, deger);
    return true;
}

int DegerOkuyucu::Atla(int adet) {
    std::string_view deger;
    int atlanan = 0;
    while (atlanan < adet && Oku(deger))
        ++atlanan;
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

void DegerYazici::EkleSayi(std::int64_t sayi) {
    bayt_ += std::to_string(sayi);
}

} // namespace velora
