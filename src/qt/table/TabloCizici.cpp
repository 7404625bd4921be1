#include "qt/table/TabloCizici.h"

#include <algorithm>
#include <cmath>
#include <set>

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>

#include "qt/Ceviri.h"
#include "qt/Simgeler.h"

namespace velora {

namespace {

constexpr int kYaziPayi = 4;       // logical pixels that a text leaves free in its place, both sides together
constexpr int kEnKucukYazi = 6;    // device pixels
constexpr double kCerceveEni = 3;  // logical pixels
constexpr double kCerceveDisi = 1; // of that, what reaches into the neighbours
constexpr int kPictogramBoyu = 16; // logical pixels
constexpr double kPictogramOrani = 0.8; // of the height of its row at most

constexpr double kOdakEni = 2; // logical pixels of the dark ring
constexpr QColor kOdakTonu(32, 33, 36);

void Halka(QPainter& boyaci, const QRect& r, int kalinlik, const QColor& ton) {
    boyaci.fillRect(QRect(r.x(), r.y(), r.width(), kalinlik), ton);
    boyaci.fillRect(QRect(r.x(), r.y() + r.height() - kalinlik, r.width(), kalinlik), ton);
    boyaci.fillRect(QRect(r.x(), r.y(), kalinlik, r.height()), ton);
    boyaci.fillRect(QRect(r.x() + r.width() - kalinlik, r.y(), kalinlik, r.height()), ton);
}

/// The texts of a list of labels or cells, each once.
QStringList AyriMetinler(const auto& parcalar) {
    std::set<Metin> metinler;
    for (const auto& parca : parcalar)
        metinler.insert(parca.baslik);
    QStringList liste;
    for (const Metin& metin : metinler)
        liste << QMetin(metin);
    return liste;
}

QStringList GunAdlari(const FormTablo& tablo) {
    QStringList adlar;
    for (const TabloSatiri& satir : tablo.satirlar)
        adlar += AyriMetinler(satir.gun);
    adlar.removeDuplicates();
    return adlar;
}

/// A month that is shown has all the weekday names.
bool GunAdiVar(const FormTablo& tablo) {
    return std::ranges::any_of(tablo.satirlar, [](const TabloSatiri& satir) { return satir.gun[1].gorunur; });
}

} // namespace

TabloCizici::TabloCizici(const QFont& yaziTipi, const TabloTonlari& tonlar)
    : yaziTipi_(yaziTipi), tonlar_(tonlar) {}

void TabloCizici::HazirMetinler::Kur(const QFont& tip) {
    tip_ = tip;
    metinler_.clear();
}

const TabloCizici::HazirMetin& TabloCizici::HazirMetinler::Bul(MetinBakis metin) {
    const auto [yer, yeni] = metinler_.try_emplace(Metin(metin));
    HazirMetin& hazir = yer->second;
    if (!yeni)
        return hazir;
    hazir.metin.setText(QMetin(metin));
    hazir.metin.setTextFormat(Qt::PlainText);
    hazir.metin.setPerformanceHint(QStaticText::AggressiveCaching);
    hazir.metin.prepare({}, tip_);
    const QFontMetricsF olculer(tip_);
    hazir.pay = {hazir.metin.size().width() / 2, olculer.ascent() - olculer.capHeight() / 2};
    return hazir;
}

QFont TabloCizici::SiganTip(const QStringList& metinler, QSize yer, bool kalin) const {
    QFont tip = yaziTipi_;
    tip.setBold(kalin);
    const double pay = kYaziPayi * olcu_.olcek;
    int boy = static_cast<int>(std::lround(QFontInfo(yaziTipi_).pixelSize() * olcu_.olcek));
    for (; boy > kEnKucukYazi; --boy) {
        tip.setPixelSize(boy);
        const QFontMetricsF olculer(tip);
        const auto sigar = [&](const QString& metin) {
            return olculer.horizontalAdvance(metin) <= yer.width() - pay;
        };
        if (olculer.capHeight() <= yer.height() - pay && std::ranges::all_of(metinler, sigar))
            break;
    }
    tip.setPixelSize(boy);
    return tip;
}

void TabloCizici::OlculeriKur(const FormTablo& tablo, const TabloDuzeni& duzen) {
    const Olcu yeni{duzen.Olcek(), duzen.Hucre(OcakGunduz, 1).size(), duzen.AyAdi(1).size(),
                    GunAdiVar(tablo)};
    if (yeni == olcu_)
        return;
    olcu_ = yeni;
    hucreMetinleri_.Kur(SiganTip(GunAdlari(tablo), yeni.hucre, false));
    baslikMetinleri_.Kur(SiganTip(AyriMetinler(tablo.ALabel), yeni.hucre, true));
    ayMetinleri_.Kur(SiganTip(AyriMetinler(tablo.AyAdi), yeni.ay, true));
    pictogramBoyu_ = std::min(static_cast<int>(std::lround(kPictogramBoyu * yeni.olcek)),
                              static_cast<int>(yeni.hucre.height() * kPictogramOrani));
    for (auto& pictogramlar : pictogramlar_)
        pictogramlar.clear();
}

void TabloCizici::Ciz(QPainter& boyaci, const FormTablo& tablo, const TabloDuzeni& duzen, const QRect& bolge,
                      RenkDegeri bugunRengi) {
    OlculeriKur(tablo, duzen);
    boyaci.save();
    boyaci.scale(1 / duzen.Olcek(), 1 / duzen.Olcek());
    boyaci.fillRect(bolge, tonlar_.zemin);
    GunBasliklari(boyaci, tablo, duzen, bolge);
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        if (tablo.AyZemin[ay].gorunur && duzen.AyBasligi(ay).intersects(bolge))
            AyBasligi(boyaci, tablo, duzen, ay);
        if (duzen.AyHucreleri(ay).intersects(bolge))
            AyHucreleri(boyaci, tablo, duzen, ay, bolge);
    }
    Cerceve(boyaci, duzen, tablo.BuGun, QRenk(bugunRengi));
    Cerceve(boyaci, duzen, tablo.HizliSecim, tonlar_.cetvel);
    boyaci.restore();
}

void TabloCizici::Ortala(QPainter& boyaci, const QRect& yer, const HazirMetin& hazir, RenkDegeri renk) {
    const QPointF orta(yer.x() + yer.width() / 2.0, yer.y() + yer.height() / 2.0);
    boyaci.setPen(QRenk(renk));
    boyaci.drawStaticText((orta - hazir.pay).toPoint(), hazir.metin);
}

void TabloCizici::GunBasliklari(QPainter& boyaci, const FormTablo& tablo, const TabloDuzeni& duzen,
                                const QRect& bolge) {
    boyaci.setFont(baslikMetinleri_.Tip());
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        const QRect yer = duzen.GunBasligi(gun);
        if (!yer.intersects(bolge))
            continue;
        boyaci.fillRect(yer, QRenk(tablo.Gunler[gun].zemin));
        Ortala(boyaci, yer, baslikMetinleri_.Bul(tablo.ALabel[gun].baslik), tablo.ALabel[gun].yazi);
    }
}

void TabloCizici::AyBasligi(QPainter& boyaci, const FormTablo& tablo, const TabloDuzeni& duzen, int ay) {
    const Etiket& ad = tablo.AyAdi[ay];
    boyaci.fillRect(duzen.AyBasligi(ay), QRenk(tablo.AyZemin[ay].zemin));
    boyaci.setFont(ayMetinleri_.Tip());
    if (ad.gorunur)
        Ortala(boyaci, duzen.AyAdi(ay), ayMetinleri_.Bul(ad.baslik), ad.yazi);
    if (!tablo.GunduzGece[ay].gorunur)
        return;
    const bool gunduzUstte = tablo.GunduzGece[ay].resim == SiraResmi::Image1;
    for (const bool ust : {true, false}) {
        const QPixmap& resim = Pictogram(ust == gunduzUstte ? GunduzGece::Gunduz : GunduzGece::Gece, ad.yazi);
        QRect yer = resim.rect();
        yer.moveCenter(duzen.ResimYeri(ay, ust).center());
        boyaci.drawPixmap(yer, resim);
    }
}

void TabloCizici::AyHucreleri(QPainter& boyaci, const FormTablo& tablo, const TabloDuzeni& duzen, int ay,
                              const QRect& bolge) {
    boyaci.setFont(hucreMetinleri_.Tip());
    const int cizgi = duzen.Cizgi();
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        const QRect cift = duzen.HucreCifti(ay, gun);
        if (!cift.adjusted(0, 0, cizgi, 0).intersects(bolge))
            continue;
        bool gorunur = false;
        for (const auto dilim : {GunduzGece::Gunduz, GunduzGece::Gece}) {
            const SatirAdi satir = Satir(ay, dilim);
            const Hucre& hucre = tablo.satirlar[static_cast<std::size_t>(satir)].gun[gun];
            if (!hucre.gorunur)
                continue;
            gorunur = true;
            const QRect yer = duzen.Hucre(satir, gun);
            boyaci.fillRect(yer, QRenk(hucre.zemin));
            Ortala(boyaci, yer, hucreMetinleri_.Bul(hucre.baslik), hucre.yazi);
        }
        if (!gorunur)
            continue;
        boyaci.fillRect(duzen.OrtaCizgi(ay, gun), tonlar_.cizgi);
        boyaci.fillRect(QRect(cift.x() + cift.width(), cift.y(), cizgi, cift.height()), tonlar_.cizgi);
    }
}

QRect TabloCizici::CerceveBolgesi(const TabloDuzeni& duzen, const QRect& cift) {
    // Mostly outside, over the thin lines, so that it leaves room for the captions.
    const int dis = duzen.Cizgi() + static_cast<int>(std::lround(kCerceveDisi * duzen.Olcek()));
    return cift.adjusted(-dis, -dis, dis, dis);
}

void TabloCizici::Cerceve(QPainter& boyaci, const TabloDuzeni& duzen, const velora::Cerceve& cerceve,
                          const QColor& renk) const {
    if (!cerceve.gorunur)
        return;
    const int en = static_cast<int>(std::lround(kCerceveEni * duzen.Olcek()));
    const QRect dis = CerceveBolgesi(duzen, duzen.CerceveninCifti(cerceve.yer));
    Halka(boyaci, dis, en, renk);
    Halka(boyaci, dis.adjusted(en, en, -en, -en), duzen.Cizgi(), tonlar_.cerceveIci);
}

void TabloCizici::OdakIsareti(QPainter& boyaci, const TabloDuzeni& duzen, const QRect& hucre) {
    boyaci.save();
    boyaci.scale(1 / duzen.Olcek(), 1 / duzen.Olcek());
    const int en = static_cast<int>(std::lround(kOdakEni * duzen.Olcek()));
    Halka(boyaci, hucre, en, kOdakTonu);
    Halka(boyaci, hucre.adjusted(en, en, -en, -en), duzen.Cizgi(), Qt::white);
    boyaci.restore();
}

const QPixmap& TabloCizici::Pictogram(GunduzGece dilim, RenkDegeri renk) {
    const bool gunduz = dilim == GunduzGece::Gunduz;
    const auto [yer, yeni] = pictogramlar_[gunduz ? 0 : 1].try_emplace(renk);
    if (yeni)
        yer->second =
            SimgeCiz(gunduz ? QStringLiteral("gunduz") : QStringLiteral("gece"), QRenk(renk), pictogramBoyu_);
    return yer->second;
}

} // namespace velora
