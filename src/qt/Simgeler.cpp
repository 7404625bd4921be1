#include "qt/Simgeler.h"

#include <QPainter>
#include <QSvgRenderer>

// Stands outside all namespaces because the resource's own function does.
static void KaynaklariYukle() {
    Q_INIT_RESOURCE(simgeler);
}

namespace velora {

QPixmap ResimCiz(const QString& ad, int boy) {
    KaynaklariYukle();
    QSvgRenderer cizim(QStringLiteral(":/simgeler/%1.svg").arg(ad));
    QPixmap resim(boy, boy);
    resim.fill(Qt::transparent);
    if (!cizim.isValid())
        return resim;
    QPainter boyaci(&resim);
    cizim.render(&boyaci);
    return resim;
}

QPixmap SimgeCiz(const QString& ad, const QColor& renk, int boy) {
    QPixmap resim = ResimCiz(ad, boy);
    QPainter boyaci(&resim);
    // The drawing gives the shape alone; the colour is laid over it.
    boyaci.setCompositionMode(QPainter::CompositionMode_SourceIn);
    boyaci.fillRect(resim.rect(), renk);
    return resim;
}

} // namespace velora
