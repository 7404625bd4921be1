#include "qt/table/MesgulCubugu.h"

#include <QPainter>
#include <QPalette>

#include "qt/Gorunum.h"
#include "qt/Nefes.h"
#include "qt/Yerlesimler.h"

namespace velora {

namespace {

constexpr int kHarf = 12;      // letters that it is as wide as
constexpr int kAdimSayisi = 8; // from one end to the other
constexpr int kBlok = 4;       // the block is so many times smaller

} // namespace

MesgulCubugu::MesgulCubugu() {
    setObjectName(QStringLiteral("Mesgul"));
    setAccessibleName(QStringLiteral("Program meşgul"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    hide();
    Nefes::Izle(*this, [this](int adim) {
        adim_ = adim;
        setVisible(adim > 0);
        update();
    });
}

QSize MesgulCubugu::sizeHint() const {
    return {kHarf * fontMetrics().averageCharWidth(), fontMetrics().height()};
}

void MesgulCubugu::paintEvent(QPaintEvent* /*olay*/) {
    QPainter cizici(this);
    cizici.setRenderHint(QPainter::Antialiasing);
    cizici.setPen(Qt::NoPen);
    const qreal kalinlik = height() / 3.0;
    QRectF oluk(kAralik, (height() - kalinlik) / 2, width() - 2 * kAralik, kalinlik);
    cizici.setBrush(palette().color(QPalette::Mid));
    cizici.drawRoundedRect(oluk, kalinlik / 2, kalinlik / 2);
    const qreal boy = oluk.width() / kBlok;
    const qreal yer = (oluk.width() - boy) * ((adim_ - 1) % kAdimSayisi) / (kAdimSayisi - 1);
    cizici.setBrush(palette().color(QPalette::Highlight));
    cizici.drawRoundedRect(QRectF(oluk.x() + yer, oluk.y(), boy, kalinlik), kalinlik / 2, kalinlik / 2);
}

} // namespace velora
