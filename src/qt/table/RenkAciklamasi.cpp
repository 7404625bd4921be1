#include "qt/table/RenkAciklamasi.h"

#include <algorithm>
#include <array>
#include <span>

#include <QPainter>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/table/TabloCizici.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "table/FormTablo.h"
#include "table/HucreRenkleri.h"

namespace velora {

namespace {

constexpr int kOrnekEni = 20;
constexpr int kAciklamaBoyu = 16;
constexpr int kOrnekIsareti = 6; // of the mark of a pre-reservation

struct Aciklama {
    const char16_t* ad;
    int gunduz; // slots of the colour list
    int gece;
};
constexpr std::array<Aciklama, 6> kAciklamalar{{
    {u"Kesin", kGunduzRenkleri.kesin.zemin, kGeceRenkleri.kesin.zemin},
    {u"Ön", kGunduzRenkleri.on.zemin, kGeceRenkleri.on.zemin},
    {u"Boş", kGunduzRenkleri.bos.zemin, kGeceRenkleri.bos.zemin},
    {u"Hafta sonu", kGunduzRenkleri.haftaSonu.zemin, kGeceRenkleri.haftaSonu.zemin},
    {u"Tatil", kTatilRengi.zemin, kTatilRengi.zemin},
    {u"Geçmiş", kGecmisRengi.zemin, kGecmisRengi.zemin},
}};

} // namespace

RenkAciklamasi::RenkAciklamasi(Program& program, Baglayici& baglayici, QWidget* ust) : QWidget(ust) {
    setObjectName(QStringLiteral("RenkAciklamasi"));
    baglayici.Izle([this, &program] {
        std::vector<Ornek> yeni = Ornekler(*program.FormAyarlar.Tut(), program.FormTablo->GunduzUstte());
        if (yeni == ornekler_)
            return;
        ornekler_ = std::move(yeni);
        QStringList adlar;
        for (const Ornek& ornek : ornekler_)
            adlar << ornek.ad;
        setToolTip(adlar.join(QStringLiteral(", ")));
        setAccessibleName(toolTip());
        updateGeometry();
        update();
    });
}

std::vector<RenkAciklamasi::Ornek> RenkAciklamasi::Ornekler(const FormAyarlar& ayarlar, bool gunduzUstte) {
    std::vector<Ornek> ornekler{{Ornek::Tur::Yazi, gunduzUstte ? QStringLiteral("Üst gündüz, alt gece")
                                                               : QStringLiteral("Üst gece, alt gündüz")}};
    for (const Aciklama& aciklama : kAciklamalar) {
        if (aciklama.gunduz == kGecmisRengi.zemin && ayarlar.Check1.deger != 1)
            continue;
        const RenkDegeri gunduz = ayarlar.Renk(aciklama.gunduz);
        const RenkDegeri gece = ayarlar.Renk(aciklama.gece);
        const bool on = aciklama.gunduz == kGunduzRenkleri.on.zemin;
        ornekler.push_back({on ? Ornek::Tur::OnRenkleri : Ornek::Tur::Renkler, QMetin(aciklama.ad),
                            gunduzUstte ? gunduz : gece, gunduzUstte ? gece : gunduz});
    }
    ornekler.push_back({Ornek::Tur::Cerceve, QStringLiteral("Bugün"), ayarlar.Renk(RenkNo::BuGunCercevesi)});
    return ornekler;
}

int RenkAciklamasi::Genislik(const Ornek& ornek) const {
    const int kutu = ornek.tur == Ornek::Tur::Yazi ? 0 : kOrnekEni + kAralik;
    return kutu + fontMetrics().horizontalAdvance(ornek.ad);
}

QSize RenkAciklamasi::sizeHint() const {
    int genislik = 2 * kAralik * (static_cast<int>(ornekler_.size()) - 1);
    for (const Ornek& ornek : ornekler_)
        genislik += Genislik(ornek);
    return {genislik, std::max(kAciklamaBoyu + 2, fontMetrics().height())};
}

QSize RenkAciklamasi::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void RenkAciklamasi::OrnekCiz(QPainter& boyaci, const Ornek& ornek, const QRect& kutu) const {
    const TabloTonlari tonlar;
    const QRect ic = kutu.adjusted(1, 1, -1, -1);
    if (ornek.tur == Ornek::Tur::Cerceve) {
        Halka(boyaci, kutu, 1, tonlar.koyu);
        Halka(boyaci, ic, 3, QRenk(ornek.ust));
        Halka(boyaci, ic.adjusted(3, 3, -3, -3), 1, tonlar.koyu);
        return;
    }
    boyaci.fillRect(kutu, palette().color(QPalette::Dark));
    const QRect ust(ic.x(), ic.y(), ic.width(), ic.height() / 2);
    const QRect alt = ust.translated(0, ust.height());
    boyaci.fillRect(ust, QRenk(ornek.ust));
    boyaci.fillRect(alt, QRenk(ornek.alt));
    if (ornek.tur == Ornek::Tur::OnRenkleri)
        for (const QRect& yari : {ust, alt})
            OnIsareti(boyaci, yari, kOrnekIsareti, 1, tonlar.koyu);
}

void RenkAciklamasi::paintEvent(QPaintEvent* /*olay*/) {
    QPainter boyaci(this);
    int genislik = sizeHint().width();
    std::span<const Ornek> cizilen = ornekler_;
    if (genislik > width()) {
        // The rows tell by their pictures which half is which.
        genislik -= Genislik(cizilen.front()) + 2 * kAralik;
        cizilen = cizilen.subspan(1);
    }
    int x = std::max(0, width() - genislik);
    for (const Ornek& ornek : cizilen) {
        if (x + Genislik(ornek) > width())
            break;
        if (ornek.tur != Ornek::Tur::Yazi) {
            OrnekCiz(boyaci, ornek, {x, (height() - kAciklamaBoyu) / 2, kOrnekEni, kAciklamaBoyu});
            x += kOrnekEni + kAralik;
        }
        boyaci.setPen(palette().color(QPalette::WindowText));
        boyaci.drawText(QRect(x, 0, width() - x, height()), Qt::AlignLeft | Qt::AlignVCenter, ornek.ad);
        x += fontMetrics().horizontalAdvance(ornek.ad) + 2 * kAralik;
    }
}

} // namespace velora
