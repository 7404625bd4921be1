#include "qt/table/TabloGirisi.h"

#include <utility>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QTimer>

#include "qt/Baglayici.h"
#include "qt/table/EkranEtiketi.h"
#include "qt/table/KomutMenuleri.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloKlavyesi.h"
#include "screen/Program.h"

namespace velora {

namespace {

bool HucreMi(const TabloIsabeti& isabet) {
    return isabet.tur == TabloIsabeti::Tur::Hucre;
}

QString SuruklemeBicimi() {
    return QStringLiteral("application/x-velora-gun");
}

/// A cell of this very program.
bool BizimMi(const QDropEvent& olay) {
    return olay.mimeData()->data(SuruklemeBicimi()) == QByteArray::number(QCoreApplication::applicationPid());
}

} // namespace

TabloGirisi::TabloGirisi(Program& program, Baglayici& baglayici, TabloGorunumu& gorunum)
    : QObject(&gorunum), program_(program), baglayici_(baglayici), gorunum_(gorunum),
      etiket_(new EkranEtiketi(&gorunum)), menu_(new QMenu(&gorunum)) {
    const auto tablo = program.FormTablo.Tut();
    ekran_ = tablo;
    menu_->setObjectName(QStringLiteral("Sagtus"));
    MenuyuDoldur(*menu_, Menu::Sagtus, program, baglayici, Komutlar());
    gorunum.setAcceptDrops(true);
    gorunum.installEventFilter(this);
    baglayici.Izle([this, t = tablo.get()] {
        const QRect goz = gorunum_.Mantiksal(gorunum_.Duzen().Hucre(imlec_.satir, std::max(1, imlec_.gun)));
        etiket_->Goster(t->Ekran, goz, imlecYeri_);
        OdakTazele();
    });
}

bool TabloGirisi::HoverKapali() const {
    return suruklemede_ || menu_->isVisible() || QApplication::activeModalWidget() != nullptr;
}

bool TabloGirisi::Suruklenir(const TabloIsabeti& isabet) const {
    const auto tablo = ekran_.lock();
    return tablo && HucreMi(isabet) && tablo->Gozu(isabet.satir, isabet.gun).otomatikSurukleme;
}

QPoint TabloGirisi::GozOrtasi(const TabloIsabeti& goz) const {
    return gorunum_.Mantiksal(gorunum_.Duzen().Hucre(goz.satir, goz.gun)).center();
}

bool TabloGirisi::eventFilter(QObject* nesne, QEvent* olay) {
    if (FareOlayi(*olay))
        return true;
    switch (olay->type()) {
    case QEvent::Leave:
        Ayril();
        break;
    case QEvent::DragEnter:
    case QEvent::DragMove:
        UzerindenGecir(*static_cast<QDropEvent*>(olay));
        return true;
    case QEvent::Drop:
        Birak(*static_cast<QDropEvent*>(olay));
        return true;
    case QEvent::KeyPress:
        return TusBas(*static_cast<QKeyEvent*>(olay));
    case QEvent::ContextMenu:
        // By the mouse it was opened at the press.
        if (static_cast<QContextMenuEvent*>(olay)->reason() == QContextMenuEvent::Keyboard)
            KlavyedenMenu();
        return true;
    case QEvent::FocusIn: {
        const auto neden = static_cast<QFocusEvent*>(olay)->reason();
        KlavyeAta(klavye_ || neden == Qt::TabFocusReason || neden == Qt::BacktabFocusReason);
        break;
    }
    case QEvent::FocusOut:
        OdakTazele();
        break;
    default:
        break;
    }
    return QObject::eventFilter(nesne, olay);
}

bool TabloGirisi::FareOlayi(QEvent& olay) {
    void (TabloGirisi::*is)(const QMouseEvent&) = nullptr;
    switch (olay.type()) {
    case QEvent::MouseButtonPress:
        is = &TabloGirisi::Bas;
        break;
    case QEvent::MouseButtonDblClick:
        is = &TabloGirisi::CiftTikla;
        break;
    case QEvent::MouseButtonRelease:
        is = &TabloGirisi::Kaldir;
        break;
    case QEvent::MouseMove:
        is = &TabloGirisi::Kimilda;
        break;
    default:
        return false;
    }
    (this->*is)(static_cast<QMouseEvent&>(olay));
    return true;
}

void TabloGirisi::Bas(const QMouseEvent& olay) {
    KlavyeAta(false);
    imlecYeri_ = olay.position().toPoint();
    const TabloIsabeti isabet = gorunum_.Isabet(olay.position());
    basilan_ = kaynak_ = {};
    if (HucreMi(isabet))
        Uzerine(isabet);
    if (Suruklenir(isabet)) {
        kaynak_ = isabet;
        basYeri_ = imlecYeri_;
        return;
    }
    if (olay.button() == Qt::LeftButton)
        basilan_ = isabet;
    if (HucreMi(isabet))
        MenuAc(isabet, olay.button() == Qt::RightButton, olay.globalPosition().toPoint());
}

void TabloGirisi::CiftTikla(const QMouseEvent& olay) {
    const TabloIsabeti isabet = gorunum_.Isabet(olay.position());
    // A quick second click on a head is a click of its own.
    if (!HucreMi(isabet) || Suruklenir(isabet) || olay.button() != Qt::LeftButton)
        return Bas(olay);
    KlavyeAta(false);
    imlecYeri_ = olay.position().toPoint();
    Ac(isabet);
}

void TabloGirisi::Kaldir(const QMouseEvent& olay) {
    kaynak_ = {};
    if (olay.button() != Qt::LeftButton)
        return;
    const TabloIsabeti basilan = std::exchange(basilan_, {});
    if (basilan == gorunum_.Isabet(olay.position()))
        Tikla(basilan);
}

void TabloGirisi::Tikla(const TabloIsabeti& isabet) {
    baglayici_.Calistir([this, isabet] {
        const auto tablo = program_.FormTablo.Tut();
        switch (isabet.tur) {
        case TabloIsabeti::Tur::GunBasligi:
            return tablo->ALabel_Click(isabet.gun);
        case TabloIsabeti::Tur::AyBasligi:
            return tablo->AyAdi_Click(isabet.ay);
        case TabloIsabeti::Tur::Hucre:
            return tablo->Hucre_Click();
        case TabloIsabeti::Tur::Bos:
            break;
        }
    });
}

void TabloGirisi::Kimilda(const QMouseEvent& olay) {
    imlecYeri_ = olay.position().toPoint();
    if (olay.buttons() != Qt::NoButton) {
        // What was pressed keeps the pointer until it is let go.
        if (HucreMi(kaynak_) &&
            (imlecYeri_ - basYeri_).manhattanLength() >= QApplication::startDragDistance())
            Surukle();
        return;
    }
    const TabloIsabeti isabet = gorunum_.Isabet(olay.position());
    ImlecSekli(isabet.tur);
    if (HoverKapali())
        return;
    KlavyeAta(false);
    if (HucreMi(isabet))
        Uzerine(isabet);
    else
        Bosa();
}

void TabloGirisi::ImlecSekli(TabloIsabeti::Tur tur) {
    const bool baslik = tur == TabloIsabeti::Tur::GunBasligi || tur == TabloIsabeti::Tur::AyBasligi;
    const Qt::CursorShape imlec = baslik ? Qt::PointingHandCursor : Qt::ArrowCursor;
    if (gorunum_.cursor().shape() != imlec)
        gorunum_.setCursor(imlec);
}

void TabloGirisi::Ayril() {
    if (!HoverKapali())
        Bosa();
}

void TabloGirisi::Bosa() {
    uzerinde_ = {};
    baglayici_.Calistir([this] { program_.FormTablo->MouseMove(); });
}

void TabloGirisi::Uzerine(const TabloIsabeti& goz) {
    imlec_ = uzerinde_ = goz;
    baglayici_.Calistir([this, goz] { program_.FormTablo->Hucre_MouseMove(goz.satir, goz.gun); });
}

void TabloGirisi::MenuAc(const TabloIsabeti& goz, bool sagDugme, QPoint yer) {
    bool ac = false;
    baglayici_.Calistir([&] { ac = program_.FormTablo->Hucre_MouseDown(goz.satir, goz.gun, sagDugme); });
    if (ac)
        menu_->popup(yer);
}

void TabloGirisi::Ac(const TabloIsabeti& goz) {
    Uzerine(goz);
    baglayici_.Calistir([this, goz] { program_.FormTablo->Hucre_DblClick(goz.satir, goz.gun); });
}

std::unique_ptr<QMimeData> TabloGirisi::SuruklemeVerisi() {
    auto veri = std::make_unique<QMimeData>();
    veri->setData(SuruklemeBicimi(), QByteArray::number(QCoreApplication::applicationPid()));
    return veri;
}

void TabloGirisi::Surukle() {
    const TabloIsabeti kaynak = std::exchange(kaynak_, {});
    const QRect yer = gorunum_.Mantiksal(gorunum_.Duzen().Hucre(kaynak.satir, kaynak.gun));
    auto* surukleme = new QDrag(&gorunum_); // the toolkit deletes it
    surukleme->setMimeData(SuruklemeVerisi().release());
    surukleme->setPixmap(gorunum_.grab(yer));
    surukleme->setHotSpot(basYeri_ - yer.topLeft());
    const QPointer<TabloGirisi> ben(this);
    suruklemede_ = true;
    surukleme->exec(Qt::MoveAction);
    if (!ben)
        return;
    suruklemede_ = false;
    BirakilaniIsle();
}

void TabloGirisi::UzerindenGecir(QDropEvent& olay) const {
    // Entering is accepted anywhere: only then do the movements over the cells arrive.
    if (BizimMi(olay) && (olay.type() == QEvent::DragEnter || HucreMi(gorunum_.Isabet(olay.position()))))
        olay.acceptProposedAction();
    else
        olay.ignore();
}

void TabloGirisi::Birak(QDropEvent& olay) {
    UzerindenGecir(olay);
    if (!olay.isAccepted())
        return;
    birakilan_ = gorunum_.Isabet(olay.position());
    // The boxes of a drop wait until the toolkit has left its drag.
    QTimer::singleShot(0, this, [this] { BirakilaniIsle(); });
}

void TabloGirisi::BirakilaniIsle() {
    if (suruklemede_)
        return;
    if (const TabloIsabeti hedef = std::exchange(birakilan_, {}); HucreMi(hedef))
        baglayici_.Calistir([this, hedef] { program_.FormTablo->Hucre_DragDrop(hedef.satir, hedef.gun); });
}

bool TabloGirisi::TusBas(const QKeyEvent& olay) {
    const int tus = olay.key();
    const bool ac = tus == Qt::Key_Return || tus == Qt::Key_Enter;
    if ((olay.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    if (tus == Qt::Key_Menu) {
        KlavyedenMenu();
        return true;
    }
    if (!ac && !GezinmeTusu(tus))
        return false;
    const bool ilk = !HucreMi(imlec_);
    const auto tablo = ekran_.lock();
    if (!tablo || !ImlecHazirla(*tablo))
        return true;
    if (ac && !Suruklenir(imlec_)) {
        Ac(imlec_);
    } else if (!ac) {
        // The first key only brings the pointer cell to where it starts.
        const TabloIsabeti hedef = ilk ? imlec_ : TusunGozu(*tablo, imlec_, tus);
        imlecYeri_ = GozOrtasi(hedef);
        Uzerine(hedef);
    }
    return true;
}

bool TabloGirisi::ImlecHazirla(const FormTablo& tablo) {
    if (!HucreMi(imlec_) || !tablo.Gozu(imlec_.satir, imlec_.gun).gorunur)
        imlec_ = IlkGoz(tablo, program_.Bugun());
    if (!HucreMi(imlec_))
        return false;
    imlecYeri_ = GozOrtasi(imlec_);
    KlavyeAta(true);
    return true;
}

void TabloGirisi::KlavyedenMenu() {
    const auto tablo = ekran_.lock();
    if (!tablo || menu_->isVisible() || !ImlecHazirla(*tablo))
        return;
    Uzerine(imlec_);
    if (!Suruklenir(imlec_))
        MenuAc(imlec_, true, gorunum_.mapToGlobal(GozOrtasi(imlec_)));
}

void TabloGirisi::KlavyeAta(bool klavye) {
    klavye_ = klavye;
    OdakTazele();
}

TabloIsabeti TabloGirisi::OdakGozu() const {
    return !ekran_.expired() && klavye_ && gorunum_.hasFocus() ? imlec_ : TabloIsabeti();
}

void TabloGirisi::OdakTazele() {
    const TabloIsabeti goz = OdakGozu();
    const QRect yer = HucreMi(goz) ? gorunum_.Mantiksal(gorunum_.Duzen().Hucre(goz.satir, goz.gun)) : QRect();
    if (yer == odakYeri_)
        return;
    gorunum_.update(odakYeri_);
    gorunum_.update(yer);
    odakYeri_ = yer;
}

} // namespace velora
