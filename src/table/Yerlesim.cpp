#include "table/Yerlesim.h"

#include <algorithm>

#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr double kSolPay = 1400;       // what column i leaves on its left beside i column widths
constexpr double kGenislikPayi = 1300; // of the inner width
constexpr int kSutunBoleni = 33;
constexpr double kYukseklikPayi = 1150; // of the inner height
constexpr int kSatirBoleni = 23;
constexpr double kAyArasi = 20;     // by so much a month starts above the lower edge of the row before
constexpr double kBaslikArasi = 30; // between the heads and January
constexpr double kKenar = 60;       // free margin at the edges
constexpr double kResimGenisligi = 330;
constexpr double kPanelYuksekligi = 4200; // of the panel of warnings, where half of the table has room for it

/// What the slot order changes in the layout.
struct SiraOlcusu {
    double gunduzKisa;  // by so much the day slot row is lower than H
    double ikinciBinme; // by so much the second row starts above the lower edge of the first
    double buGunPayi;   // by so much `BuGun` stands below the upper edge of its row
};
constexpr SiraOlcusu kGunduzUstteOlcu{20, 90, 0};
constexpr SiraOlcusu kGeceUstteOlcu{0, 100, 10};

constexpr const SiraOlcusu& Olcu(bool gunduzUstte) {
    return gunduzUstte ? kGunduzUstteOlcu : kGeceUstteOlcu;
}

constexpr GunduzGece IlkDilim(bool gunduzUstte) {
    return gunduzUstte ? GunduzGece::Gunduz : GunduzGece::Gece;
}
constexpr GunduzGece Digeri(GunduzGece dilim) {
    return dilim == GunduzGece::Gunduz ? GunduzGece::Gece : GunduzGece::Gunduz;
}

} // namespace

double TabloIcGenisligi(double genislik) {
    const double sutun = (genislik - kKenar - kSolPay) / (kGunSayisi + 1);
    return sutun * kSutunBoleni + kGenislikPayi;
}

double TabloIcYuksekligi(double yukseklik) {
    // Heads as high as a row, then 24 rows less their overlaps, which the order with the smaller ones
    // decides.
    const double binme = kAySayisi * kGeceUstteOlcu.ikinciBinme + (kAySayisi - 1) * kAyArasi;
    const double satir = (yukseklik - kKenar - kBaslikArasi + binme) / (kSatirSayisi + 1);
    return satir * kSatirBoleni + kYukseklikPayi;
}

Yer FormTablo::HucreYeri(SatirAdi satir, int gun) const {
    const TabloSatiri& s = satirlar[static_cast<std::size_t>(satir)];
    return {Gunler[gun].yer.sol, s.ust, Gunler[gun].yer.genislik, s.yukseklik};
}

void FormTablo::Resize(double icGenislik, double icYukseklik) {
    icGenislik_ = icGenislik;
    icYukseklik_ = icYukseklik;
    for (int ay = 1; ay <= kAySayisi; ++ay)
        GunduzGece[ay].resim = GunduzUstte() ? SiraResmi::Image1 : SiraResmi::Image2;
    Picture1.yer.sol = icGenislik_ / 2 - Picture1.yer.genislik / 2;
    for (TabloSatiri& satir : satirlar)
        for (Hucre& hucre : satir.gun)
            hucre.gorunur = false;
    for (int ay = 1; ay <= kAySayisi; ++ay)
        AyAdi[ay].gorunur = AyZemin[ay].gorunur = GunduzGece[ay].gorunur = false;
    program_.OlaylariIsle();
    // Another resize may have come in between: the lengths are read from here on, so that the last one wins.
    SutunlariYerlestir();
    SatirlariYerlestir();
    BasliklariYerlestir();
    AyBasliklariniGoster();
    Command4(); // days that the months don't have
    BuGunYerlestir();
    CetvelYerlestir();
    PaneliYerlestir();
    if (!yerlesti_ && BuYil())
        BuGun.gorunur = true;
    yerlesti_ = true;
}

void FormTablo::SutunlariYerlestir() {
    const double sutun = (icGenislik_ - kGenislikPayi) / kSutunBoleni;
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        Gunler[gun].yer.sol = ALabel[gun].yer.sol = kSolPay + gun * sutun;
        Gunler[gun].yer.genislik = sutun;
        ALabel[gun].yer.genislik = sutun - 1;
    }
}

void FormTablo::SatirlariYerlestir() {
    const bool gunduzUstte = GunduzUstte();
    const SiraOlcusu& olcu = Olcu(gunduzUstte);
    const double yukseklik = (icYukseklik_ - kYukseklikPayi) / kSatirBoleni;
    double ust = yukseklik + kBaslikArasi; // the heads are as high as a row
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        TabloSatiri& ilk = satirlar[static_cast<std::size_t>(Satir(ay, IlkDilim(gunduzUstte)))];
        TabloSatiri& ikinci = satirlar[static_cast<std::size_t>(Satir(ay, Digeri(IlkDilim(gunduzUstte))))];
        satirlar[static_cast<std::size_t>(Satir(ay, GunduzGece::Gunduz))].yukseklik =
            yukseklik - olcu.gunduzKisa;
        satirlar[static_cast<std::size_t>(Satir(ay, GunduzGece::Gece))].yukseklik = yukseklik;
        ilk.ust = ust;
        ikinci.ust = ilk.ust + ilk.yukseklik - olcu.ikinciBinme;
        ust = ikinci.ust + ikinci.yukseklik - kAyArasi;
    }
}

void FormTablo::BasliklariYerlestir() {
    const bool gunduzUstte = GunduzUstte();
    const double yukseklik = satirlar[OcakGece].yukseklik;
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        Gunler[gun].yer.ust = ALabel[gun].yer.ust = 0;
        Gunler[gun].yer.yukseklik = ALabel[gun].yer.yukseklik = yukseklik;
    }
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        const TabloSatiri& ilk = satirlar[static_cast<std::size_t>(Satir(ay, IlkDilim(gunduzUstte)))];
        const TabloSatiri& son = satirlar[static_cast<std::size_t>(Satir(ay, Digeri(IlkDilim(gunduzUstte))))];
        const double alt = son.ust + son.yukseklik;
        Yer& bar = AyZemin[ay].yer;
        bar = {kKenar, ilk.ust, Gunler[1].yer.sol - 2 * kKenar, alt - ilk.ust};
        AyAdi[ay].yer = {bar.sol, bar.ust, bar.genislik - kResimGenisligi, bar.yukseklik};
        GunduzGece[ay].yer = {bar.Sag() - kResimGenisligi, bar.ust, kResimGenisligi, bar.yukseklik};
    }
}

void FormTablo::AyBasliklariniGoster() {
    const auto ayarlar = program_.FormAyarlar.Tut();
    for (int ay = 1; ay <= kAySayisi; ++ay)
        AyZemin[ay].gorunur = AyAdi[ay].gorunur = GunduzGece[ay].gorunur = ayarlar->AyGorunur(ay);
}

void FormTablo::BuGunYerlestir() {
    const bool gunduzUstte = GunduzUstte();
    const Gun bugun = program_.Bugun();
    const int ay = static_cast<int>(unsigned(bugun.month()));
    const int gun = static_cast<int>(unsigned(bugun.day()));
    const TabloSatiri& ilk = satirlar[static_cast<std::size_t>(Satir(ay, IlkDilim(gunduzUstte)))];
    BuGun.yer = {Gunler[gun].yer.sol, ilk.ust + Olcu(gunduzUstte).buGunPayi, Gunler[1].yer.genislik + 10,
                 2 * satirlar[OcakGunduz].yukseklik};
    BuGun.ay = ay;
    BuGun.gun = gun;
}

void FormTablo::PaneliYerlestir() {
    // In the half of the table that today's month doesn't stand in.
    constexpr int yarisi = kAySayisi / 2;
    const int ilk = BuGun.ay <= yarisi ? yarisi + 1 : 1;
    const double ust = AyZemin[ilk].yer.ust;
    const double alt = AyZemin[ilk + yarisi - 1].yer.Alt();
    Picture1.yer.yukseklik = std::min(kPanelYuksekligi, alt - ust);
    Picture1.yer.ust = (ust + alt - Picture1.yer.yukseklik) / 2;
}

} // namespace velora
