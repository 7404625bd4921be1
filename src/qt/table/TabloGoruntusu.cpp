#include "qt/table/TabloGoruntusu.h"

#include <cmath>

#include "setup/FormAyarlar.h"
#include "table/HucreRenkleri.h"

namespace velora {

namespace {

constexpr double kCerceveDisi = 2; // logical pixels of a frame that reach beyond the lines about its cells

constexpr RenkDegeri kCetvelRengi = kBaslikIsareti; // the frame joins the two heads that were picked

/// True where the colour of pre-reservations tells nothing else of a free or a taken day too: the firm may
/// have given two states one colour.
bool OnRengiAyri(const FormAyarlar& ayarlar, GunduzGece dilim) {
    const SatirRenkleri& renkler = Renkler(dilim);
    const RenkDegeri on = ayarlar.Renk(renkler.on.zemin);
    for (const int zemin : {renkler.bos.zemin, renkler.haftaSonu.zemin, renkler.kesin.zemin})
        if (ayarlar.Renk(zemin) == on)
            return false;
    return true;
}

TabloGoruntusu::Baslik BaslikAl(const Etiket& zemin, const Etiket& ad, bool vurgulu) {
    return {ad.baslik, zemin.zemin, ad.yazi, zemin.gorunur, vurgulu};
}

} // namespace

TabloGoruntusu::TabloGoruntusu(const FormTablo& tablo, const FormAyarlar& ayarlar, double olcek,
                               const TabloIsabeti& uzerinde)
    : duzen(tablo, olcek), buGun{tablo.BuGun.gorunur, tablo.BuGun.ay, tablo.BuGun.gun,
                                 ayarlar.Renk(RenkNo::BuGunCercevesi)},
      cetvel{tablo.HizliSecim.gorunur, tablo.HizliSecim.ay, tablo.HizliSecim.gun, kCetvelRengi} {
    for (int no = 0; no < kSatirSayisi; ++no) {
        const auto satir = static_cast<SatirAdi>(no);
        const GunduzGece dilim = SatirDilimi(satir);
        const RenkDegeri on = ayarlar.Renk(Renkler(dilim).on.zemin);
        const bool isaretli = OnRengiAyri(ayarlar, dilim);
        for (int gun = 1; gun <= kGunSayisi; ++gun) {
            const Hucre& hucre = tablo.Gozu(satir, gun);
            satirlar[static_cast<std::size_t>(no)][gun] = {hucre.baslik, hucre.zemin, hucre.yazi,
                                                           hucre.gorunur, isaretli && hucre.zemin == on};
        }
    }
    for (int gun = 1; gun <= kGunSayisi; ++gun)
        gunler[gun] = BaslikAl(tablo.Gunler[gun], tablo.ALabel[gun], gun == uzerinde.gun);
    for (int ay = 1; ay <= kAySayisi; ++ay)
        aylar[ay] = {BaslikAl(tablo.AyZemin[ay], tablo.AyAdi[ay], ay == uzerinde.ay), tablo.AyAdi[ay].gorunur,
                     tablo.GunduzGece[ay].gorunur, tablo.GunduzGece[ay].resim == SiraResmi::Image1};
}

std::vector<QRect> TabloGoruntusu::Farki(const TabloGoruntusu& eski) const {
    std::vector<QRect> parcalar;
    for (int gun = 1; gun <= kGunSayisi; ++gun)
        if (gunler[gun] != eski.gunler[gun])
            parcalar.push_back(duzen.GunBasligi(gun));
    for (int ay = 1; ay <= kAySayisi; ++ay)
        if (aylar[ay] != eski.aylar[ay])
            parcalar.push_back(duzen.AyBasligi(ay));
    for (const auto cerceve : {&TabloGoruntusu::buGun, &TabloGoruntusu::cetvel}) {
        if (this->*cerceve == eski.*cerceve)
            continue;
        for (const Cerceve& yer : {this->*cerceve, eski.*cerceve})
            if (yer.gorunur && yer.ay > 0)
                parcalar.push_back(CerceveBolgesi(duzen, duzen.HucreCifti(yer.ay, yer.gun)));
    }
    return parcalar;
}

QRect CerceveBolgesi(const TabloDuzeni& duzen, const QRect& cift) {
    // Mostly outside, over the thin lines, so that it leaves room for the captions.
    const int dis = duzen.Cizgi() + static_cast<int>(std::lround(kCerceveDisi * duzen.Olcek()));
    return cift.adjusted(-dis, -dis, dis, dis);
}

} // namespace velora
