#include "qt/table/TabloDuzeni.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "table/Yerlesim.h"

namespace velora {

namespace {

constexpr double kAyBoslugu = 3; // logical pixels between two months

QRect Dikdortgen(int sol, int ust, int sag, int alt) {
    return {sol, ust, sag - sol, alt - ust};
}

/// The upper and the lower of a month's two rows.
std::pair<SatirAdi, SatirAdi> Siralilar(const FormTablo& tablo, int ay) {
    const SatirAdi gunduz = Satir(ay, GunduzGece::Gunduz);
    const SatirAdi gece = Satir(ay, GunduzGece::Gece);
    if (tablo.satirlar[static_cast<std::size_t>(gunduz)].ust <
        tablo.satirlar[static_cast<std::size_t>(gece)].ust)
        return {gunduz, gece};
    return {gece, gunduz};
}

/// The upper edge of a month and its lower one, in twips.
std::pair<double, double> AyKenarlari(const FormTablo& tablo, int ay) {
    const auto [ilk, ikinci] = Siralilar(tablo, ay);
    const TabloSatiri& son = tablo.satirlar[static_cast<std::size_t>(ikinci)];
    return {tablo.satirlar[static_cast<std::size_t>(ilk)].ust, son.ust + son.yukseklik};
}

} // namespace

TabloDuzeni::TabloDuzeni(const FormTablo& tablo, double olcek)
    : olcek_(olcek), cizgi_(std::max(1, static_cast<int>(std::floor(olcek)))) {
    SutunlariYerlestir(tablo);
    AylariYerlestir(tablo);
}

int TabloDuzeni::Piksel(double twip) const {
    return static_cast<int>(std::lround(twip / kTwipPikseli * olcek_));
}

void TabloDuzeni::SutunlariYerlestir(const FormTablo& tablo) {
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        const Yer& yer = tablo.Gunler[gun].yer;
        gunler_[gun] = {Piksel(yer.sol), Piksel(yer.Sag()) - cizgi_};
    }
    const Yer& bar = tablo.AyZemin[1].yer;
    bar_ = {Piksel(bar.sol), Piksel(bar.Sag())};
    resim_ = {Piksel(tablo.GunduzGece[1].yer.sol), bar_.son};
    baslik_.bas = Piksel(tablo.Gunler[1].yer.ust);
}

void TabloDuzeni::AylariYerlestir(const FormTablo& tablo) {
    // Half of what two months overlap by: each loses it on both sides, the first and the last one too.
    const double pay = (AyKenarlari(tablo, 1).second - AyKenarlari(tablo, 2).first) / 2;
    const int bosluk = static_cast<int>(std::lround(kAyBoslugu * olcek_));
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        const auto [ust, alt] = AyKenarlari(tablo, ay);
        AyYerlestir(tablo, ay, Piksel(ust + pay), Piksel(alt - pay) - bosluk);
    }
    baslik_.son = aylar_[1].bas - bosluk;
}

void TabloDuzeni::AyYerlestir(const FormTablo& tablo, int ay, int bas, int son) {
    const auto [ilk, ikinci] = Siralilar(tablo, ay);
    const int orta = bas + (son - bas - cizgi_) / 2;
    aylar_[ay] = {bas, son};
    ortaCizgiler_[ay] = {orta, orta + cizgi_};
    satirlar_[static_cast<std::size_t>(ilk)] = {bas, orta};
    satirlar_[static_cast<std::size_t>(ikinci)] = {orta + cizgi_, son};
}

QRect TabloDuzeni::Hucre(SatirAdi satir, int gun) const {
    const Aralik& yatay = gunler_[gun];
    return Dikdortgen(yatay.bas, Dikey(satir).bas, yatay.son, Dikey(satir).son);
}

QRect TabloDuzeni::GunBasligi(int gun) const {
    return Dikdortgen(gunler_[gun].bas, baslik_.bas, gunler_[gun].son, baslik_.son);
}

QRect TabloDuzeni::AyBasligi(int ay) const {
    return Dikdortgen(bar_.bas, aylar_[ay].bas, bar_.son, aylar_[ay].son);
}

QRect TabloDuzeni::AyAdi(int ay) const {
    return Dikdortgen(bar_.bas, aylar_[ay].bas, resim_.bas, aylar_[ay].son);
}

QRect TabloDuzeni::ResimYeri(int ay, bool ust) const {
    if (ust)
        return Dikdortgen(resim_.bas, aylar_[ay].bas, resim_.son, ortaCizgiler_[ay].bas);
    return Dikdortgen(resim_.bas, ortaCizgiler_[ay].son, resim_.son, aylar_[ay].son);
}

QRect TabloDuzeni::OrtaCizgi(int ay, int gun) const {
    return Dikdortgen(gunler_[gun].bas, ortaCizgiler_[ay].bas, gunler_[gun].son, ortaCizgiler_[ay].son);
}

QRect TabloDuzeni::HucreCifti(int ay, int gun) const {
    return Dikdortgen(gunler_[gun].bas, aylar_[ay].bas, gunler_[gun].son, aylar_[ay].son);
}

QRect TabloDuzeni::AyHucreleri(int ay) const {
    return Dikdortgen(gunler_[1].bas, aylar_[ay].bas, gunler_[kGunSayisi].son, aylar_[ay].son);
}

TabloIsabeti TabloDuzeni::Bul(QPointF yer) const {
    const int x = static_cast<int>(std::floor(yer.x() * olcek_));
    const int y = static_cast<int>(std::floor(yer.y() * olcek_));
    // The thin lines belong to the part before them, so that no click falls between two cells.
    const auto bul = [this](const auto& araliklar, int nokta) {
        for (int no = 1; no <= araliklar.kAdet; ++no)
            if (nokta >= araliklar[no].bas && nokta < araliklar[no].son + cizgi_)
                return no;
        return 0;
    };
    const int gun = bul(gunler_, x);
    const int ay = bul(aylar_, y);
    if (gun > 0 && baslik_.Icinde(y))
        return {TabloIsabeti::Tur::GunBasligi, 0, gun, OcakGunduz};
    if (ay > 0 && bar_.Icinde(x))
        return {TabloIsabeti::Tur::AyBasligi, ay, 0, OcakGunduz};
    if (ay == 0 || gun == 0)
        return {};
    const SatirAdi gunduz = Satir(ay, GunduzGece::Gunduz);
    const SatirAdi gece = Satir(ay, GunduzGece::Gece);
    const bool altta = y >= ortaCizgiler_[ay].son;
    const bool gunduzAltta = Dikey(gunduz).bas > Dikey(gece).bas;
    return {TabloIsabeti::Tur::Hucre, ay, gun, altta == gunduzAltta ? gunduz : gece};
}

} // namespace velora
