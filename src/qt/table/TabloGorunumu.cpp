#include "qt/table/TabloGorunumu.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
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

constexpr int kIpucuPayi = 4; // logical pixels between a cell and its tool tip

} // namespace

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
    return {640, 300};
}

TabloGoruntusu TabloGorunumu::GoruntuAl(const FormTablo& tablo) const {
    return {tablo, *program_.FormAyarlar.Tut(), devicePixelRatioF(),
            giris_ != nullptr ? giris_->UzerindekiGoz() : TabloIsabeti()};
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
    TabloGoruntusu yeni = GoruntuAl(*tablo);
    if (yeni == goruntu_)
        return;
    const TabloGoruntusu eski = std::exchange(goruntu_, std::move(yeni));
    if (goruntu_.GozlerFarkli(eski))
        return update();
    for (const QRect& parca : goruntu_.Farki(eski))
        update(Mantiksal(parca));
}

QRect TabloGorunumu::Mantiksal(const QRect& bolge) const {
    const double olcek = Duzen().Olcek();
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
        if (Duzen().Olcek() != devicePixelRatioF())
            goruntu_ = GoruntuAl(*tablo);
        const QRect kirli = olay->rect();
        const double olcek = Duzen().Olcek();
        const QRect bolge =
            QRectF(kirli.x() * olcek, kirli.y() * olcek, kirli.width() * olcek, kirli.height() * olcek)
                .toAlignedRect();
        cizici_.Ciz(boyaci, goruntu_, bolge);
        for (const TabloIsabeti& goz : giris_->IsaretliGozler())
            TabloCizici::OdakIsareti(boyaci, Duzen(), Duzen().Hucre(goz.satir, goz.gun));
    });
}

TabloIsabeti TabloGorunumu::Isabet(QPointF yer) const {
    const auto tablo = ekran_.lock();
    if (!tablo)
        return {};
    const TabloIsabeti isabet = Duzen().Bul(yer);
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
    const QRect goz = Mantiksal(Duzen().Hucre(isabet.satir, isabet.gun));
    QToolTip::showText(olay.globalPos(), QIpucu(hucre.ipucu), this, goz);
    // The toolkit puts it below the pointer, where the hover label mostly stands.
    for (QWidget* pencere : QApplication::topLevelWidgets())
        if (pencere->isVisible() && pencere->inherits("QTipLabel"))
            pencere->move(IpucuYeri(pencere->size(), {mapToGlobal(goz.topLeft()), goz.size()}));
}

QPoint TabloGorunumu::IpucuYeri(QSize boy, const QRect& goz) const {
    const auto* etiket = findChild<QWidget*>(QStringLiteral("Ekran"));
    const bool etiketUstte =
        etiket != nullptr && etiket->isVisible() && etiket->mapToGlobal(QPoint()).y() < goz.top();
    const QRect ekran = screen()->availableGeometry();
    const int y = etiketUstte ? goz.y() + goz.height() + kIpucuPayi : goz.y() - kIpucuPayi - boy.height();
    return {std::clamp(goz.x(), ekran.x(), std::max(ekran.x(), ekran.x() + ekran.width() - boy.width())),
            std::clamp(y, ekran.y(), std::max(ekran.y(), ekran.y() + ekran.height() - boy.height()))};
}

} // namespace velora
