#include "qt/documents/SayfaGorunumu.h"

#include <algorithm>
#include <cmath>

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "qt/Ceviri.h"
#include "qt/Gorunum.h"
#include "qt/SayfaCizimi.h"

namespace velora {

namespace {

// Logical pixels of a millimetre: letters of ten points aren't lower than nine pixels, and a sheet isn't
// blown up to the width of a large display.
constexpr double kEnKucukOlcek = 2.6;
constexpr double kEnBuyukOlcek = 5;

constexpr QColor kMasa(190, 193, 197); // what the sheets lie on
constexpr QColor kSayfaKenari(120, 124, 130);

double EnGenis(const std::vector<Sayfa>& sayfalar) {
    double en = 0;
    for (const Sayfa& sayfa : sayfalar)
        en = std::max(en, sayfa.En());
    return en;
}

} // namespace

SayfaGorunumu::SayfaGorunumu(QWidget* ust) : QAbstractScrollArea(ust) {
    setAccessibleName(QStringLiteral("Sayfa önizlemesi"));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    verticalScrollBar()->setSingleStep(5 * kAralik);
    horizontalScrollBar()->setSingleStep(5 * kAralik);
}

void SayfaGorunumu::Goster(std::vector<Sayfa> sayfalar) {
    if (sayfalar == sayfalar_)
        return;
    sayfalar_ = std::move(sayfalar);
    setAccessibleDescription(QMetin(OkunanMetin(sayfalar_)));
    Diz();
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
    viewport()->update();
}

QSize SayfaGorunumu::sizeHint() const {
    return {720, 560};
}

QSize SayfaGorunumu::minimumSizeHint() const {
    return {320, 200};
}

/// Chooses the scale, and how far is scrolled.
void SayfaGorunumu::Diz() {
    const double en = EnGenis(sayfalar_);
    if (en <= 0) {
        verticalScrollBar()->setRange(0, 0);
        horizontalScrollBar()->setRange(0, 0);
        return;
    }
    // As if both bars were there: a bar that comes and goes would change the scale that brought it.
    const QSize alan = maximumViewportSize() - QSize(verticalScrollBar()->sizeHint().width(), 0);
    const double enineGore = (alan.width() - 2 * kAralik) / en;
    const double boyunaGore = (alan.height() - 2 * kAralik) / sayfalar_.front().Boy();
    const bool tamSigar = sayfalar_.size() == 1 && boyunaGore >= kEnKucukOlcek;
    olcek_ = std::clamp(tamSigar ? std::min(enineGore, boyunaGore) : enineGore, kEnKucukOlcek, kEnBuyukOlcek);
    double alt = kAralik;
    for (const Sayfa& sayfa : sayfalar_)
        alt += std::ceil(sayfa.Boy() * olcek_) + kAralik;
    tumu_ = {static_cast<int>(std::ceil(en * olcek_)) + 2 * kAralik, static_cast<int>(alt)};
    const QSize gorunen = viewport()->size();
    verticalScrollBar()->setPageStep(gorunen.height());
    horizontalScrollBar()->setPageStep(gorunen.width());
    verticalScrollBar()->setRange(0, std::max(0, tumu_.height() - gorunen.height()));
    horizontalScrollBar()->setRange(0, std::max(0, tumu_.width() - gorunen.width()));
}

QRectF SayfaGorunumu::SayfaninYeri(int sira) const {
    const Sayfa& sayfa = sayfalar_[static_cast<std::size_t>(sira)];
    double ust = kAralik;
    for (int i = 0; i < sira; ++i)
        ust += std::ceil(sayfalar_[static_cast<std::size_t>(i)].Boy() * olcek_) + kAralik;
    const QSizeF boy = QSizeF(sayfa.En(), sayfa.Boy()) * olcek_;
    const double sol = std::floor((std::max(tumu_.width(), viewport()->width()) - boy.width()) / 2);
    return {QPointF(sol - horizontalScrollBar()->value(), ust - verticalScrollBar()->value()), boy};
}

void SayfaGorunumu::paintEvent(QPaintEvent* olay) {
    QPainter boyaci(viewport());
    boyaci.fillRect(olay->rect(), kMasa);
    for (int sira = 0; sira < static_cast<int>(sayfalar_.size()); ++sira) {
        const QRectF yer = SayfaninYeri(sira);
        if (!yer.intersects(olay->rect()))
            continue;
        boyaci.save();
        boyaci.fillRect(yer, Qt::white);
        boyaci.setPen(kSayfaKenari);
        boyaci.drawRect(yer);
        boyaci.setClipRect(yer, Qt::IntersectClip);
        boyaci.translate(yer.topLeft());
        SayfayiCiz(boyaci, sayfalar_[static_cast<std::size_t>(sira)], olcek_);
        boyaci.restore();
    }
}

void SayfaGorunumu::resizeEvent(QResizeEvent* /*olay*/) {
    Diz();
}

void SayfaGorunumu::keyPressEvent(QKeyEvent* olay) {
    if (olay->matches(QKeySequence::MoveToStartOfLine) || olay->matches(QKeySequence::MoveToStartOfDocument))
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
    else if (olay->matches(QKeySequence::MoveToEndOfLine) || olay->matches(QKeySequence::MoveToEndOfDocument))
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
    else
        QAbstractScrollArea::keyPressEvent(olay);
}

} // namespace velora
