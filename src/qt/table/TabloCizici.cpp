#include "qt/table/TabloCizici.h"

#include <algorithm>
#include <cmath>
#include <set>

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>

#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/Simgeler.h"

namespace velora {

namespace {

constexpr int kYaziPayi = 4;      // logical pixels that a text leaves free in its place, both sides together
constexpr int kEnKucukYazi = 6;   // device pixels
constexpr double kCerceveEni = 3; // logical pixels, without the dark lines on both sides
constexpr double kOnBoyu = 8;     // logical pixels of the mark of a pre-reservation
constexpr double kEnAzKarsitlik = 4.5;  // of a caption to its back; a lower one gets an outline
constexpr int kPictogramBoyu = 16;      // logical pixels
constexpr double kPictogramOrani = 0.8; // of the height of its row at most

constexpr double kOdakEni = 2; // logical pixels of the dark ring
constexpr QColor kOdakTonu(32, 33, 36);

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

QStringList GunAdlari(const TabloGoruntusu& tablo) {
    QStringList adlar;
    for (const auto& satir : tablo.satirlar)
        adlar += AyriMetinler(satir);
    adlar.removeDuplicates();
    return adlar;
}

/// A month that is shown has all the weekday names.
bool GunAdiVar(const TabloGoruntusu& tablo) {
    return std::ranges::any_of(tablo.satirlar, [](const auto& satir) { return satir[1].gorunur; });
}

/// The back of a head: a lit one is lighter, or darker where it is light already.
RenkDegeri BaslikZemini(const TabloGoruntusu::Baslik& baslik) {
    constexpr int kYuzde = 35; // of the way
    if (!baslik.vurgulu)
        return baslik.zemin;
    const QColor renk = QRenk(baslik.zemin);
    const int hedef = renk.lightness() > 170 ? 0 : 255;
    const auto kar = [hedef](int bilesen) { return bilesen + (hedef - bilesen) * kYuzde / 100; };
    return kar(renk.red()) | kar(renk.green()) << 8 | kar(renk.blue()) << 16;
}

} // namespace

TabloCizici::TabloCizici(const QFont& yaziTipi, const TabloTonlari& tonlar)
    : yaziTipi_(yaziTipi), tonlar_(tonlar) {}

void TabloCizici::HazirMetinler::Kur(const QFont& tip) {
    tip_ = tip;
    metinler_.clear();
}

TabloCizici::HazirMetin& TabloCizici::HazirMetinler::Bul(MetinBakis metin) {
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

void TabloCizici::OlculeriKur(const TabloGoruntusu& tablo) {
    const TabloDuzeni& duzen = tablo.duzen;
    const Olcu yeni{duzen.Olcek(), duzen.Hucre(OcakGunduz, 1).size(), duzen.AyAdi(1).size(),
                    GunAdiVar(tablo)};
    if (yeni == olcu_)
        return;
    olcu_ = yeni;
    cizgi_ = duzen.Cizgi();
    hucreMetinleri_.Kur(SiganTip(GunAdlari(tablo), yeni.hucre, false));
    baslikMetinleri_.Kur(SiganTip(AyriMetinler(tablo.gunler), yeni.hucre, true));
    ayMetinleri_.Kur(SiganTip(AyriMetinler(tablo.aylar), yeni.ay, true));
    pictogramBoyu_ = std::min(static_cast<int>(std::lround(kPictogramBoyu * yeni.olcek)),
                              static_cast<int>(yeni.hucre.height() * kPictogramOrani));
    for (auto& pictogramlar : pictogramlar_)
        pictogramlar.clear();
}

void TabloCizici::Ciz(QPainter& boyaci, const TabloGoruntusu& tablo, const QRect& bolge) {
    const TabloDuzeni& duzen = tablo.duzen;
    OlculeriKur(tablo);
    boyaci.save();
    boyaci.scale(1 / duzen.Olcek(), 1 / duzen.Olcek());
    boyaci.fillRect(bolge, tonlar_.zemin);
    GunBasliklari(boyaci, tablo, bolge);
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        if (tablo.aylar[ay].gorunur && duzen.AyBasligi(ay).intersects(bolge))
            AyBasligi(boyaci, tablo, ay);
        if (duzen.AyHucreleri(ay).intersects(bolge))
            AyHucreleri(boyaci, tablo, ay, bolge);
    }
    Cerceve(boyaci, duzen, tablo.buGun);
    Cerceve(boyaci, duzen, tablo.cetvel);
    boyaci.restore();
}

bool TabloCizici::Konturlu(RenkDegeri yazi, RenkDegeri zemin) {
    const std::uint64_t ikisi =
        std::uint64_t{static_cast<std::uint32_t>(yazi)} << 32U | static_cast<std::uint32_t>(zemin);
    const auto [yer, yeni] = konturlular_.try_emplace(ikisi);
    if (yeni) // a dark caption would only grow by a dark outline
        yer->second = Karsitlik(QRenk(yazi), QRenk(zemin)) < kEnAzKarsitlik &&
                      Karsitlik(QRenk(yazi), tonlar_.koyu) >= kEnAzKarsitlik;
    return yer->second;
}

const QPixmap& TabloCizici::KonturluMetin(HazirMetin& hazir, const QFont& tip, RenkDegeri yazi) const {
    const auto [yer, yeni] = hazir.konturlu.try_emplace(yazi);
    if (!yeni)
        return yer->second;
    yer->second = QPixmap(hazir.metin.size().toSize() + QSize(2 * cizgi_ + 1, 2 * cizgi_ + 1));
    yer->second.fill(Qt::transparent);
    QPainter boyaci(&yer->second);
    boyaci.setFont(tip);
    boyaci.setPen(tonlar_.koyu);
    for (const int x : {0, cizgi_, 2 * cizgi_})
        for (const int y : {0, cizgi_, 2 * cizgi_})
            boyaci.drawStaticText(x, y, hazir.metin);
    boyaci.setPen(QRenk(yazi));
    boyaci.drawStaticText(cizgi_, cizgi_, hazir.metin);
    return yer->second;
}

void TabloCizici::Ortala(QPainter& boyaci, const QRect& yer, HazirMetin& hazir, RenkDegeri yazi,
                         RenkDegeri zemin) {
    const QPointF orta(yer.x() + yer.width() / 2.0, yer.y() + yer.height() / 2.0);
    const QPoint kose = (orta - hazir.pay).toPoint();
    if (Konturlu(yazi, zemin))
        return boyaci.drawPixmap(kose - QPoint(cizgi_, cizgi_), KonturluMetin(hazir, boyaci.font(), yazi));
    boyaci.setPen(QRenk(yazi));
    boyaci.drawStaticText(kose, hazir.metin);
}

void TabloCizici::GunBasliklari(QPainter& boyaci, const TabloGoruntusu& tablo, const QRect& bolge) {
    boyaci.setFont(baslikMetinleri_.Tip());
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        const QRect yer = tablo.duzen.GunBasligi(gun);
        if (!yer.intersects(bolge))
            continue;
        const TabloGoruntusu::Baslik& baslik = tablo.gunler[gun];
        const RenkDegeri zemin = BaslikZemini(baslik);
        boyaci.fillRect(yer, QRenk(zemin));
        Ortala(boyaci, yer, baslikMetinleri_.Bul(baslik.baslik), baslik.yazi, zemin);
    }
}

void TabloCizici::AyBasligi(QPainter& boyaci, const TabloGoruntusu& tablo, int ay) {
    const TabloDuzeni& duzen = tablo.duzen;
    const TabloGoruntusu::AyBasligi& baslik = tablo.aylar[ay];
    const RenkDegeri zemin = BaslikZemini(baslik);
    boyaci.fillRect(duzen.AyBasligi(ay), QRenk(zemin));
    boyaci.setFont(ayMetinleri_.Tip());
    if (baslik.adGorunur)
        Ortala(boyaci, duzen.AyAdi(ay), ayMetinleri_.Bul(baslik.baslik), baslik.yazi, zemin);
    if (!baslik.resimGorunur)
        return;
    for (const bool ust : {true, false}) {
        const QPixmap& resim =
            Pictogram(ust == baslik.gunduzUstte ? GunduzGece::Gunduz : GunduzGece::Gece, baslik.yazi);
        QRect yer = resim.rect();
        yer.moveCenter(duzen.ResimYeri(ay, ust).center());
        boyaci.drawPixmap(yer, resim);
    }
}

void TabloCizici::GozCiz(QPainter& boyaci, const QRect& yer, const TabloGoruntusu::Goz& goz) {
    boyaci.fillRect(yer, QRenk(goz.zemin));
    if (goz.on)
        OnIsareti(boyaci, yer, static_cast<int>(std::lround(kOnBoyu * olcu_.olcek)), cizgi_, tonlar_.koyu);
    Ortala(boyaci, yer, hucreMetinleri_.Bul(goz.baslik), goz.yazi, goz.zemin);
}

void TabloCizici::AyHucreleri(QPainter& boyaci, const TabloGoruntusu& tablo, int ay, const QRect& bolge) {
    const TabloDuzeni& duzen = tablo.duzen;
    boyaci.setFont(hucreMetinleri_.Tip());
    const int cizgi = duzen.Cizgi();
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        const QRect cift = duzen.HucreCifti(ay, gun);
        if (!cift.adjusted(0, 0, cizgi, 0).intersects(bolge))
            continue;
        bool gorunur = false;
        for (const auto dilim : {GunduzGece::Gunduz, GunduzGece::Gece}) {
            const SatirAdi satir = Satir(ay, dilim);
            const TabloGoruntusu::Goz& goz = tablo.Gozu(satir, gun);
            if (!goz.gorunur)
                continue;
            gorunur = true;
            GozCiz(boyaci, duzen.Hucre(satir, gun), goz);
        }
        if (!gorunur)
            continue;
        boyaci.fillRect(duzen.OrtaCizgi(ay, gun), tonlar_.cizgi);
        boyaci.fillRect(QRect(cift.x() + cift.width(), cift.y(), cizgi, cift.height()), tonlar_.cizgi);
    }
}

void TabloCizici::Cerceve(QPainter& boyaci, const TabloDuzeni& duzen,
                          const TabloGoruntusu::Cerceve& cerceve) const {
    if (!cerceve.gorunur || cerceve.ay == 0)
        return;
    const int cizgi = duzen.Cizgi();
    const int en = static_cast<int>(std::lround(kCerceveEni * duzen.Olcek()));
    QRect yer = CerceveBolgesi(duzen, duzen.HucreCifti(cerceve.ay, cerceve.gun));
    Halka(boyaci, yer, cizgi, tonlar_.koyu);
    yer.adjust(cizgi, cizgi, -cizgi, -cizgi);
    Halka(boyaci, yer, en, QRenk(cerceve.renk));
    Halka(boyaci, yer.adjusted(en, en, -en, -en), cizgi, tonlar_.koyu);
}

void OnIsareti(QPainter& boyaci, const QRect& yer, int boy, int cizgi, const QColor& koyu) {
    const int sag = yer.x() + yer.width();
    for (int sira = 0; sira < boy; ++sira) {
        const int en = boy - sira;
        boyaci.fillRect(QRect(sag - en, yer.y() + sira, en, 1), koyu);
        if (const int ic = en - 3 * cizgi; sira >= cizgi && ic > 0)
            boyaci.fillRect(QRect(sag - cizgi - ic, yer.y() + sira, ic, 1), Qt::white);
    }
}

void Halka(QPainter& boyaci, const QRect& yer, int kalinlik, const QColor& ton) {
    boyaci.fillRect(QRect(yer.x(), yer.y(), yer.width(), kalinlik), ton);
    boyaci.fillRect(QRect(yer.x(), yer.y() + yer.height() - kalinlik, yer.width(), kalinlik), ton);
    boyaci.fillRect(QRect(yer.x(), yer.y(), kalinlik, yer.height()), ton);
    boyaci.fillRect(QRect(yer.x() + yer.width() - kalinlik, yer.y(), kalinlik, yer.height()), ton);
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
