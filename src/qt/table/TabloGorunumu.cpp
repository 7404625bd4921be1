#include "qt/table/TabloGorunumu.h"

#include <functional>

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/OlayKilidi.h"
#include "qt/table/TabloGirisi.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "table/Yerlesim.h"

namespace velora {

namespace {

class Iz {
  public:
    void Ekle(std::uint64_t sayi) {
        deger_ = (deger_ ^ sayi) * std::uint64_t{0x100000001B3} + (deger_ >> 29U);
    }
    void Ekle(const Metin& metin) { Ekle(std::hash<Metin>()(metin)); }
    void EkleTwip(double sayi) { Ekle(std::hash<double>()(sayi)); }
    void Ekle(RenkDegeri zemin, RenkDegeri yazi, bool gorunur) {
        Ekle((std::uint64_t{static_cast<std::uint32_t>(zemin)} << 32U | static_cast<std::uint32_t>(yazi)) ^
             (gorunur ? std::uint64_t{1} << 63U : 0));
    }
    void Ekle(const Yer& yer) {
        for (const double sayi : {yer.sol, yer.ust, yer.genislik, yer.yukseklik})
            EkleTwip(sayi);
    }
    void Ekle(const Etiket& etiket) {
        Ekle(etiket.zemin, etiket.yazi, etiket.gorunur);
        Ekle(etiket.baslik);
        Ekle(etiket.yer);
    }
    std::uint64_t Deger() const { return deger_; }

  private:
    std::uint64_t deger_ = 0xCBF29CE484222325;
};

} // namespace

std::uint64_t TabloIzi(const FormTablo& tablo) {
    Iz iz;
    for (const TabloSatiri& satir : tablo.satirlar) {
        iz.EkleTwip(satir.ust);
        iz.EkleTwip(satir.yukseklik);
        for (const Hucre& hucre : satir.gun) {
            iz.Ekle(hucre.zemin, hucre.yazi, hucre.gorunur);
            iz.Ekle(hucre.baslik);
        }
    }
    for (const auto* basliklar : {&tablo.Gunler, &tablo.ALabel})
        for (const Etiket& etiket : *basliklar)
            iz.Ekle(etiket);
    for (const auto* basliklar : {&tablo.AyZemin, &tablo.AyAdi})
        for (const Etiket& etiket : *basliklar)
            iz.Ekle(etiket);
    for (const AyResmi& resim : tablo.GunduzGece) {
        iz.Ekle(static_cast<std::uint64_t>(resim.resim) * 2U + (resim.gorunur ? 1U : 0U));
        iz.Ekle(resim.yer);
    }
    return iz.Deger();
}

TabloGorunumu::TabloGorunumu(Program& program, Baglayici& baglayici, QWidget* ust)
    : QWidget(ust), program_(program), baglayici_(baglayici), ekran_(program.FormTablo.Tut()),
      cizici_(font(), {.zemin = palette().color(QPalette::Window)}) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    baglayici_.Izle([this] { Tazele(); });
    giris_ = new TabloGirisi(program, baglayici, *this);
}

QSize TabloGorunumu::sizeHint() const {
    return {1280, 640};
}

QSize TabloGorunumu::minimumSizeHint() const {
    return {880, 440};
}

void TabloGorunumu::DuzeniKur(const FormTablo& tablo) {
    duzen_ = TabloDuzeni(tablo, devicePixelRatioF());
}

void TabloGorunumu::Yerlestir() {
    // The toolkit is in the middle of its own layout: no events from inside.
    const OlayKilidi kilit;
    baglayici_.Calistir([this] {
        program_.FormTablo->Resize(TabloIcGenisligi(width() * kTwipPikseli),
                                   TabloIcYuksekligi(height() * kTwipPikseli));
    });
}

void TabloGorunumu::Tazele() {
    // A scan wipes the cells before it fills them: shown at once, the table would flash at every save.
    const auto tablo = ekran_.lock();
    if (!tablo || Baglayici::IsSuruyor())
        return;
    if (const std::uint64_t iz = TabloIzi(*tablo); iz != iz_) {
        iz_ = iz;
        DuzeniKur(*tablo);
        update();
    }
    CerceveTazele(buGun_, tablo->BuGun);
    CerceveTazele(cetvel_, tablo->HizliSecim);
}

void TabloGorunumu::CerceveTazele(CerceveGoruntusu& eski, const velora::Cerceve& cerceve) {
    const CerceveGoruntusu yeni{cerceve.gorunur,
                                TabloCizici::CerceveBolgesi(duzen_, duzen_.CerceveninCifti(cerceve.yer))};
    if (yeni == eski)
        return;
    update(Mantiksal(eski.bolge));
    update(Mantiksal(yeni.bolge));
    eski = yeni;
}

QRect TabloGorunumu::Mantiksal(const QRect& bolge) const {
    const double olcek = duzen_.Olcek();
    return QRectF(bolge.x() / olcek, bolge.y() / olcek, bolge.width() / olcek, bolge.height() / olcek)
        .toAlignedRect();
}

void TabloGorunumu::resizeEvent(QResizeEvent* /*olay*/) {
    Yerlestir();
}

void TabloGorunumu::paintEvent(QPaintEvent* olay) {
    QPainter boyaci(this);
    Koru([&] {
        const auto tablo = ekran_.lock();
        if (!tablo)
            return;
        if (duzen_.Olcek() != devicePixelRatioF())
            DuzeniKur(*tablo);
        const QRect kirli = olay->rect();
        const double olcek = duzen_.Olcek();
        const QRect bolge =
            QRectF(kirli.x() * olcek, kirli.y() * olcek, kirli.width() * olcek, kirli.height() * olcek)
                .toAlignedRect();
        cizici_.Ciz(boyaci, *tablo, duzen_, bolge, program_.FormAyarlar->Renk(RenkNo::BuGunCercevesi));
        for (const TabloIsabeti& goz : giris_->IsaretliGozler())
            TabloCizici::OdakIsareti(boyaci, duzen_, duzen_.Hucre(goz.satir, goz.gun));
    });
}

TabloIsabeti TabloGorunumu::Isabet(QPointF yer) const {
    const auto tablo = ekran_.lock();
    if (!tablo)
        return {};
    const TabloIsabeti isabet = duzen_.Bul(yer);
    const auto gizli = [&] {
        switch (isabet.tur) {
        case TabloIsabeti::Tur::Hucre:
            return !tablo->satirlar[static_cast<std::size_t>(isabet.satir)].gun[isabet.gun].gorunur;
        case TabloIsabeti::Tur::AyBasligi:
            return !tablo->AyAdi[isabet.ay].gorunur;
        default:
            return false;
        }
    };
    return gizli() ? TabloIsabeti{} : isabet;
}

bool TabloGorunumu::event(QEvent* olay) {
    if (olay->type() != QEvent::ToolTip)
        return QWidget::event(olay);
    IpucuGoster(*static_cast<QHelpEvent*>(olay));
    return true;
}

void TabloGorunumu::IpucuGoster(const QHelpEvent& olay) {
    const TabloIsabeti isabet = Isabet(olay.pos());
    const auto tablo = ekran_.lock();
    if (!tablo || isabet.tur != TabloIsabeti::Tur::Hucre)
        return QToolTip::hideText();
    const Hucre& hucre = tablo->satirlar[static_cast<std::size_t>(isabet.satir)].gun[isabet.gun];
    QToolTip::showText(olay.globalPos(), QIpucu(hucre.ipucu), this,
                       Mantiksal(duzen_.Hucre(isabet.satir, isabet.gun)));
}

} // namespace velora
