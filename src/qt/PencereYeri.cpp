#include "qt/PencereYeri.h"

#include <algorithm>

#include <QApplication>
#include <QBoxLayout>
#include <QScreen>
#include <QScrollArea>

namespace velora {

namespace {

// What the system puts about a window, both sides together: known only once the window is there.
constexpr int kCerceveEni = 16;
constexpr int kCerceveBoyu = 40; // its title too

QSize EkranBoyu(const QScreen& ekran) {
    return ekran.availableSize() - QSize(kCerceveEni, kCerceveBoyu);
}

bool Sigar(const QSize& boy, const QSize& yer) {
    return boy.boundedTo(yer) == boy;
}

void Tasi(QBoxLayout& nereden, QBoxLayout& nereye) {
    const int pay = nereden.stretch(0);
    QLayoutItem* oge = nereden.takeAt(0);
    if (QWidget* parca = oge->widget()) {
        nereye.addWidget(parca, pay);
        delete oge;
    } else if (QLayout* yerlesim = oge->layout()) {
        nereye.addLayout(yerlesim, pay);
    } else {
        nereye.addItem(oge);
    }
}

void KaydirilirYap(QWidget& pencere, QBoxLayout& sutun) {
    // In the window from the start: Tab keeps its order.
    auto* alan = new QScrollArea(&pencere);
    auto* icerik = new QWidget(alan);
    alan->setFrameShape(QFrame::NoFrame);
    alan->setFocusPolicy(Qt::NoFocus);
    alan->setWidgetResizable(true);
    auto* icSutun = new QVBoxLayout(icerik);
    icSutun->setContentsMargins({});
    icSutun->setSpacing(sutun.spacing());
    // What moves to another parent loses it.
    QWidget* odaktaki = pencere.focusWidget();
    while (sutun.count() > 1)
        Tasi(sutun, *icSutun);
    alan->setWidget(icerik);
    sutun.insertWidget(0, alan, 1);
    if (odaktaki != nullptr)
        odaktaki->setFocus();
    // By whatever way the focus comes, also from the buttons outside.
    QObject::connect(qApp, &QApplication::focusChanged, alan, [alan](const QWidget*, QWidget* odak) {
        if (odak != nullptr && alan->widget()->isAncestorOf(odak))
            alan->ensureWidgetVisible(odak);
    });
}

} // namespace

QSize EkrandaYer(const QWidget& pencere) {
    return EkranBoyu(*pencere.screen());
}

void EkranaSigdir(QWidget& pencere) {
    const QSize yer = EkrandaYer(pencere);
    pencere.ensurePolished();
    if (!pencere.testAttribute(Qt::WA_Resized))
        pencere.adjustSize();
    auto* sutun = qobject_cast<QBoxLayout*>(pencere.layout());
    if (sutun != nullptr && sutun->count() > 1 && !Sigar(sutun->totalMinimumSize(), yer)) {
        const QSize istenen = pencere.size();
        KaydirilirYap(pencere, *sutun);
        // A window that keeps to its layout's size would keep to it here too.
        sutun->setSizeConstraint(QLayout::SetDefaultConstraint);
        pencere.setMinimumSize(0, 0);
        pencere.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        sutun->activate();
        pencere.resize(istenen.boundedTo(yer));
    } else if (!Sigar(pencere.size(), yer)) {
        pencere.resize(pencere.size().boundedTo(yer));
    }
}

QRect EkranaAl(const QRect& yer) {
    const QScreen* ekran = QGuiApplication::screenAt(yer.center());
    if (ekran == nullptr)
        ekran = QGuiApplication::primaryScreen();
    // The place is that of the window without its frame.
    const QRect sinir = ekran->availableGeometry().adjusted(kCerceveEni / 2, kCerceveBoyu - kCerceveEni / 2,
                                                            -kCerceveEni / 2, -kCerceveEni / 2);
    QRect icte(yer.topLeft(), yer.size().boundedTo(sinir.size()));
    icte.moveRight(std::min(icte.right(), sinir.right()));
    icte.moveBottom(std::min(icte.bottom(), sinir.bottom()));
    icte.moveLeft(std::max(icte.left(), sinir.left()));
    icte.moveTop(std::max(icte.top(), sinir.top()));
    return icte;
}

} // namespace velora
