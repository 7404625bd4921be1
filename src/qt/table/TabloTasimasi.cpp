#include "qt/table/TabloTasimasi.h"

#include <utility>

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QTimer>

#include "qt/Baglayici.h"
#include "qt/Simgeler.h"
#include "qt/table/TabloGorunumu.h"
#include "screen/Program.h"

namespace velora {

namespace {

constexpr int kElBoyu = 24;
constexpr QColor kElTonu(32, 33, 36);

QString SuruklemeBicimi() {
    return QStringLiteral("application/x-velora-gun");
}

/// A cell of this very program.
bool BizimMi(const QDropEvent& olay) {
    return olay.mimeData()->data(SuruklemeBicimi()) == QByteArray::number(QCoreApplication::applicationPid());
}

/// The pointer of a drag: a closed hand, dark with a light edge, so that it stands out on any cell.
QPixmap KapaliEl(double olcek) {
    const int boy = qRound(kElBoyu * olcek);
    QPixmap resim(boy, boy);
    resim.fill(Qt::transparent);
    QPainter boyaci(&resim);
    const QPixmap kenar = SimgeCiz(QStringLiteral("el-kapali"), Qt::white, boy);
    const int pay = qRound(olcek);
    for (const int x : {-pay, 0, pay})
        for (const int y : {-pay, 0, pay})
            boyaci.drawPixmap(x, y, kenar);
    boyaci.drawPixmap(0, 0, SimgeCiz(QStringLiteral("el-kapali"), kElTonu, boy));
    boyaci.end();
    resim.setDevicePixelRatio(olcek);
    return resim;
}

} // namespace

TabloTasimasi::TabloTasimasi(Program& program, Baglayici& baglayici, TabloGorunumu& gorunum,
                             std::function<void()> degisti)
    : QObject(&gorunum), program_(program), baglayici_(baglayici), ekran_(program.FormTablo.Tut()),
      gorunum_(gorunum), degisti_(std::move(degisti)) {}

bool TabloTasimasi::Suruklenir(const TabloIsabeti& isabet) const {
    const auto tablo = ekran_.lock();
    return tablo && isabet.HucreMi() && tablo->Gozu(isabet.satir, isabet.gun).otomatikSurukleme;
}

std::vector<TabloIsabeti> TabloTasimasi::Isaretliler() const {
    std::vector<TabloIsabeti> gozler;
    if ((tutuluyor_ || soruda_) && kaynak_.HucreMi())
        gozler.push_back(kaynak_);
    if (hedef_.HucreMi())
        gozler.push_back(hedef_);
    return gozler;
}

void TabloTasimasi::HedefAta(const TabloIsabeti& goz) {
    hedef_ = goz;
    degisti_();
}

bool TabloTasimasi::Basili() const {
    return basilan_.HucreMi();
}

void TabloTasimasi::Bas(const TabloIsabeti& goz, QPoint yer) {
    basilan_ = goz;
    basYeri_ = yer;
}

void TabloTasimasi::Cek(QPoint yer) {
    if (Basili() && (yer - basYeri_).manhattanLength() >= QApplication::startDragDistance())
        Surukle();
}

std::unique_ptr<QMimeData> TabloTasimasi::SuruklemeVerisi() {
    auto veri = std::make_unique<QMimeData>();
    veri->setData(SuruklemeBicimi(), QByteArray::number(QCoreApplication::applicationPid()));
    return veri;
}

void TabloTasimasi::Surukle() {
    kaynak_ = std::exchange(basilan_, {});
    suruklemede_ = true;
    const QRect yer = gorunum_.Mantiksal(gorunum_.Duzen().Hucre(kaynak_.satir, kaynak_.gun));
    auto* surukleme = new QDrag(&gorunum_); // the toolkit deletes it
    surukleme->setMimeData(SuruklemeVerisi().release());
    surukleme->setPixmap(gorunum_.grab(yer));
    surukleme->setHotSpot(basYeri_ - yer.topLeft());
    surukleme->setDragCursor(KapaliEl(gorunum_.devicePixelRatioF()), Qt::MoveAction);
    const QPointer<TabloTasimasi> ben(this);
    surukleme->exec(Qt::MoveAction);
    if (!ben)
        return;
    suruklemede_ = false;
    if (!birakildi_)
        HedefAta({});
    BirakilaniIsle();
}

bool TabloTasimasi::Olay(QEvent& olay) {
    switch (olay.type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        UzerindenGecir(static_cast<QDropEvent&>(olay));
        return true;
    case QEvent::DragLeave:
        HedefAta({});
        return true;
    case QEvent::Drop:
        Birak(static_cast<QDropEvent&>(olay));
        return true;
    default:
        return false;
    }
}

void TabloTasimasi::UzerindenGecir(QDropEvent& olay) {
    const TabloIsabeti goz = gorunum_.Isabet(olay.position());
    const bool yerinde = BizimMi(olay) && goz.HucreMi();
    // Entering is accepted anywhere: only then do the movements over the cells arrive.
    if (yerinde || (BizimMi(olay) && olay.type() == QEvent::DragEnter))
        olay.acceptProposedAction();
    else
        olay.ignore();
    HedefAta(yerinde ? goz : TabloIsabeti());
}

void TabloTasimasi::Birak(QDropEvent& olay) {
    UzerindenGecir(olay);
    if (!olay.isAccepted())
        return;
    birakildi_ = true;
    // The boxes of a drop wait until the toolkit has left its drag.
    QTimer::singleShot(0, this, [this] { BirakilaniIsle(); });
}

void TabloTasimasi::BirakilaniIsle() {
    if (suruklemede_ || !std::exchange(birakildi_, false))
        return;
    soruda_ = true;
    degisti_();
    const QPointer<TabloTasimasi> ben(this);
    baglayici_.Calistir(
        [this, hedef = hedef_] { program_.FormTablo->Hucre_DragDrop(hedef.satir, hedef.gun); });
    if (!ben)
        return;
    soruda_ = false;
    kaynak_ = {};
    HedefAta({});
}

void TabloTasimasi::Tut(const TabloIsabeti& goz) {
    tutuluyor_ = true;
    kaynak_ = goz;
    HedefAta(goz);
}

void TabloTasimasi::Gotur(const TabloIsabeti& goz) {
    HedefAta(goz);
}

void TabloTasimasi::TutulaniBirak() {
    // Move mode may have ended since.
    if (!Suruklenir(kaynak_))
        return Vazgec();
    tutuluyor_ = false;
    birakildi_ = true;
    BirakilaniIsle();
}

void TabloTasimasi::Vazgec() {
    if (!std::exchange(tutuluyor_, false))
        return;
    kaynak_ = {};
    HedefAta({});
}

} // namespace velora
