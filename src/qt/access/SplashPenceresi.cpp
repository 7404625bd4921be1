#include "qt/access/SplashPenceresi.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "access/Splash.h"
#include "qt/Gorunum.h"
#include "qt/Simgeler.h"
#include "qt/Yerlesimler.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kPencereEni = 460;
constexpr int kSimgeBoyu = 88;
constexpr int kSusBoyu = 88;
constexpr int kAdimBoyu = 20;
constexpr double kAdBuyumesi = 2.2; // of the name, beside the other texts
constexpr int kCizgi = 2;           // about the window, which has no frame of its own

const QString kYanik = QStringLiteral("adim-yanik");
const QString kSonuk = QStringLiteral("adim-sonuk");

void ResimKoy(QLabel& parca, const QString& cizim, int boy) {
    const double olcek = parca.devicePixelRatioF();
    QPixmap resim = ResimCiz(cizim, qRound(boy * olcek));
    resim.setDevicePixelRatio(olcek);
    parca.setPixmap(resim);
}

} // namespace

SplashPenceresi::SplashPenceresi(Program& program) : EkranPenceresi(program.Splash.Tut()) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    auto* dis = new QVBoxLayout(this);
    dis->setContentsMargins(0, 0, 0, 0);
    auto* cerceve = new QFrame;
    cerceve->setFrameStyle(QFrame::Box | QFrame::Plain);
    cerceve->setLineWidth(kCizgi);
    cerceve->setMinimumWidth(kPencereEni);
    RenkVer(*cerceve, QPalette::WindowText, palette().color(QPalette::Highlight));
    dis->addWidget(cerceve);
    auto* sutun = new QVBoxLayout(cerceve);
    sutun->setContentsMargins(3 * kAralik, 3 * kAralik, 3 * kAralik, 2 * kAralik);
    sutun->setSpacing(kAralik);
    sutun->addLayout(Baslik());
    sutun->addSpacing(2 * kAralik);
    sutun->addLayout(Adimlar());
    auto* yazilar = new QHBoxLayout;
    for (auto [ad, model, pay] : {std::tuple{"Label3", &Model().Label3, 1}, {"Label5", &Model().Label5, 0}}) {
        QLabel* yazi = DegerYap(QString::fromLatin1(ad), *model);
        // Its own ground shows through.
        yazi->setAutoFillBackground(false);
        yazilar->addWidget(yazi, pay);
    }
    sutun->addLayout(yazilar);
    dis->setSizeConstraint(QLayout::SetFixedSize);
    Bag().Bagla(Model().Timer1, QStringLiteral("Timer1"));
}

QLabel* SplashPenceresi::ResimYap(const char* ad, const QString& cizim, int boy) {
    auto* parca = new QLabel;
    parca->setObjectName(QString::fromLatin1(ad));
    ResimKoy(*parca, cizim, boy);
    return parca;
}

QLayout* SplashPenceresi::Baslik() {
    auto* ad = new QLabel(QMetin(Model().baslik));
    QFont buyuk = ad->font();
    buyuk.setPointSizeF(buyuk.pointSizeF() * kAdBuyumesi);
    buyuk.setBold(true);
    ad->setFont(buyuk);
    auto* yazilar = new QVBoxLayout;
    yazilar->setSpacing(0);
    yazilar->addStretch(1);
    yazilar->addWidget(ad);
    yazilar->addWidget(YaziYap(QStringLiteral("Label2"), Model().Label2));
    yazilar->addStretch(1);
    auto* serit = new QHBoxLayout;
    serit->setSpacing(2 * kAralik);
    serit->addWidget(ResimYap("Image1", QStringLiteral("velora"), kSimgeBoyu));
    serit->addLayout(yazilar, 1);
    serit->addWidget(ResimYap("Image2", QStringLiteral("kadeh"), kSusBoyu));
    return serit;
}

QLayout* SplashPenceresi::Adimlar() {
    auto* serit = new QHBoxLayout;
    serit->setSpacing(2 * kAralik);
    for (int adim = 1; adim <= kAdimSayisi; ++adim) {
        if (adim > 1)
            serit->addStretch(1);
        QLabel* parca = ResimYap(qPrintable(QStringLiteral("Loading%1").arg(adim)), kSonuk, kAdimBoyu);
        serit->addWidget(parca);
        Bag().Izle([parca, &yanik = Model().Loading[adim], eski = false]() mutable {
            if (yanik != eski)
                ResimKoy(*parca, yanik ? kYanik : kSonuk, kAdimBoyu);
            eski = yanik;
        });
    }
    return serit;
}

void SplashPenceresi::reject() {
    Bag().Bas([this] { Model().Kapat(); });
}

void SplashPenceresi::keyPressEvent(QKeyEvent* olay) {
    olay->accept();
}

} // namespace velora
