#include "qt/table/RenkAciklamasi.h"

#include <array>

#include <QPainter>

#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "table/HucreRenkleri.h"

namespace velora {

namespace {

constexpr int kOrnekEni = 20;
constexpr int kAciklamaBoyu = 16;

struct Aciklama {
    const char16_t* ad;
    int gunduz; // slots of the colour list
    int gece;
};
constexpr std::array<Aciklama, 5> kAciklamalar{{
    {u"Kesin", kGunduzRenkleri.kesin.zemin, kGeceRenkleri.kesin.zemin},
    {u"Ön", kGunduzRenkleri.on.zemin, kGeceRenkleri.on.zemin},
    {u"Boş", kGunduzRenkleri.bos.zemin, kGeceRenkleri.bos.zemin},
    {u"Hafta sonu", kGunduzRenkleri.haftaSonu.zemin, kGeceRenkleri.haftaSonu.zemin},
    {u"Tatil", kTatilRengi.zemin, kTatilRengi.zemin},
}};

} // namespace

RenkAciklamasi::RenkAciklamasi(Program& program, Baglayici& baglayici, QWidget* ust) : QWidget(ust) {
    baglayici.Izle([this, &program] {
        const auto ayarlar = program.FormAyarlar.Tut();
        const bool gunduzUstte = ayarlar->GunduzUstte();
        std::vector<Ornek> yeni;
        for (const Aciklama& aciklama : kAciklamalar) {
            const RenkDegeri gunduz = ayarlar->Renk(aciklama.gunduz);
            const RenkDegeri gece = ayarlar->Renk(aciklama.gece);
            yeni.push_back({QMetin(aciklama.ad), gunduzUstte ? gunduz : gece, gunduzUstte ? gece : gunduz});
        }
        if (yeni == ornekler_)
            return;
        ornekler_ = std::move(yeni);
        update();
    });
}

int RenkAciklamasi::Genislik(const Ornek& ornek) const {
    return kOrnekEni + kAralik + fontMetrics().horizontalAdvance(ornek.ad);
}

QSize RenkAciklamasi::sizeHint() const {
    int genislik = 2 * kAralik * (static_cast<int>(kAciklamalar.size()) - 1);
    for (const Ornek& ornek : ornekler_)
        genislik += Genislik(ornek);
    return {genislik, std::max(kAciklamaBoyu + 2, fontMetrics().height())};
}

QSize RenkAciklamasi::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void RenkAciklamasi::paintEvent(QPaintEvent* /*olay*/) {
    QPainter boyaci(this);
    int x = std::max(0, width() - sizeHint().width());
    const int y = (height() - kAciklamaBoyu) / 2;
    for (const Ornek& ornek : ornekler_) {
        if (x + Genislik(ornek) > width())
            break;
        const QRect kutu(x, y, kOrnekEni, kAciklamaBoyu);
        boyaci.fillRect(kutu, palette().color(QPalette::Dark));
        const QRect ic = kutu.adjusted(1, 1, -1, -1);
        boyaci.fillRect(ic, QRenk(ornek.alt));
        boyaci.fillRect(QRect(ic.x(), ic.y(), ic.width(), ic.height() / 2), QRenk(ornek.ust));
        x += kOrnekEni + kAralik;
        boyaci.setPen(palette().color(QPalette::WindowText));
        boyaci.drawText(QRect(x, 0, width() - x, height()), Qt::AlignLeft | Qt::AlignVCenter, ornek.ad);
        x += fontMetrics().horizontalAdvance(ornek.ad) + 2 * kAralik;
    }
}

} // namespace velora
