#include "qt/Simgeler.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>

// Stands outside all namespaces because the resource's own function does.
static void KaynaklariYukle() {
    Q_INIT_RESOURCE(simgeler);
}

namespace velora {

namespace {

class CizilenSimge : public QIconEngine {
  public:
    explicit CizilenSimge(std::function<QPixmap(int boy)> ciz) : ciz_(std::move(ciz)) {}

    QIconEngine* clone() const override { return std::make_unique<CizilenSimge>(*this).release(); }

    void paint(QPainter* boyaci, const QRect& yer, QIcon::Mode hal, QIcon::State durum) override {
        const double olcek = boyaci->device()->devicePixelRatioF();
        QPixmap resim = pixmap((QSizeF(yer.size()) * olcek).toSize(), hal, durum);
        resim.setDevicePixelRatio(olcek);
        boyaci->drawPixmap(yer.topLeft(), resim);
    }

    QPixmap pixmap(const QSize& boy, QIcon::Mode hal, QIcon::State /*durum*/) override {
        const int kenar = std::min(boy.width(), boy.height());
        if (kenar <= 0)
            return {};
        const auto [yer, yeni] = resimler_.try_emplace({kenar, hal});
        if (yeni)
            yer->second = Cizdir(kenar, hal);
        return yer->second;
    }

  private:
    QPixmap Cizdir(int kenar, QIcon::Mode hal) const {
        const QPixmap resim = ciz_(kenar);
        if (hal == QIcon::Normal)
            return resim;
        QStyleOption secenek;
        secenek.palette = QApplication::palette();
        return QApplication::style()->generatedIconPixmap(hal, resim, &secenek);
    }

    std::function<QPixmap(int boy)> ciz_;
    std::map<std::pair<int, QIcon::Mode>, QPixmap> resimler_;
};

} // namespace

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

QIcon HerBoydaSimge(std::function<QPixmap(int boy)> ciz) {
    // The icon takes the engine.
    return QIcon(std::make_unique<CizilenSimge>(std::move(ciz)).release());
}

} // namespace velora
