#include "qt/table/TabloGirisi.h"

#include <utility>

#include <QApplication>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QTimer>

#include "qt/Baglayici.h"
#include "qt/table/EkranEtiketi.h"
#include "qt/table/KomutMenuleri.h"
#include "qt/table/TabloErisimi.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloKlavyesi.h"
#include "qt/table/TabloTasimasi.h"
#include "screen/Program.h"

namespace velora {

TabloGirisi::TabloGirisi(Program& program, Baglayici& baglayici, TabloGorunumu& gorunum)
    : QObject(&gorunum), program_(program), baglayici_(baglayici), gorunum_(gorunum),
      etiket_(new EkranEtiketi(&gorunum)), menu_(new QMenu(&gorunum)),
      tasima_(new TabloTasimasi(program, baglayici, gorunum, [this] { OdakTazele(); })) {
    const auto tablo = program.FormTablo.Tut();
    ekran_ = tablo;
    MenuKur();
    TabloErisiminiTanit();
    gorunum.setAcceptDrops(true);
    gorunum.installEventFilter(this);
    baglayici.Izle([this, t = tablo.get()] {
        const QRect goz = gorunum_.Mantiksal(gorunum_.Duzen().Hucre(imlec_.satir, std::max(1, imlec_.gun)));
        etiket_->Goster(t->Ekran, goz, imlecYeri_);
        ImlecSekli();
        OdakTazele();
    });
}

void TabloGirisi::MenuKur() {
    menu_->setObjectName(QStringLiteral("Sagtus"));
    MenuyuDoldur(*menu_, Menu::Sagtus, program_, baglayici_, Komutlar());
    KendiBasmasiyla(*menu_);
    // An entry's work begins behind the closing of the menu, and ends before the menu tells of it.
    connect(menu_, &QMenu::aboutToHide, this,
            [this] { QTimer::singleShot(0, this, [this] { MenuBitti(); }); });
    connect(menu_, &QMenu::triggered, this, [this] { MenuBitti(); });
}

bool TabloGirisi::HoverKapali() const {
    return tasima_->Suruyor() || menu_->isVisible() || QApplication::activeModalWidget() != nullptr;
}

bool TabloGirisi::Ortulu(const TabloIsabeti& goz) const {
    return gorunum_.childAt(GozOrtasi(goz)) != nullptr;
}

QPoint TabloGirisi::GozOrtasi(const TabloIsabeti& goz) const {
    return gorunum_.Mantiksal(gorunum_.Duzen().Hucre(goz.satir, goz.gun)).center();
}

bool TabloGirisi::eventFilter(QObject* nesne, QEvent* olay) {
    if (FareOlayi(*olay) || tasima_->Olay(*olay))
        return true;
    switch (olay->type()) {
    case QEvent::Leave:
        Ayril();
        break;
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
        // The toolkit now tells the focus of the table itself; that of its cell has to come behind it.
        bildirilen_ = {};
        QTimer::singleShot(0, this, [this] { OdakTazele(); });
        break;
    }
    case QEvent::FocusOut:
        tasima_->Vazgec();
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
    imlecYeri_ = fareYeri_ = olay.position().toPoint();
    const TabloIsabeti isabet = gorunum_.Isabet(olay.position());
    basilan_ = {};
    tasima_->Kaldir();
    tasima_->Vazgec();
    if (isabet.HucreMi())
        Uzerine(isabet);
    if (tasima_->Suruklenir(isabet)) {
        tasima_->Bas(isabet, imlecYeri_);
        return ImlecSekli();
    }
    if (olay.button() == Qt::LeftButton)
        basilan_ = isabet;
    if (isabet.HucreMi())
        MenuAc(isabet, olay.button() == Qt::RightButton, olay.globalPosition().toPoint());
}

void TabloGirisi::CiftTikla(const QMouseEvent& olay) {
    const TabloIsabeti isabet = gorunum_.Isabet(olay.position());
    // A quick second click on a head is a click of its own.
    if (!isabet.HucreMi() || tasima_->Suruklenir(isabet) || olay.button() != Qt::LeftButton)
        return Bas(olay);
    KlavyeAta(false);
    imlecYeri_ = olay.position().toPoint();
    Ac(isabet);
}

void TabloGirisi::Kaldir(const QMouseEvent& olay) {
    tasima_->Kaldir();
    ImlecSekli();
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
    fareYeri_ = olay.position().toPoint();
    // What was pressed keeps the pointer until it is let go.
    if (olay.buttons() != Qt::NoButton)
        return tasima_->Cek(fareYeri_);
    ImlecSekli();
    if (HoverKapali())
        return;
    const TabloIsabeti isabet = gorunum_.Isabet(olay.position());
    imlecYeri_ = fareYeri_;
    MenuBitti();
    KlavyeAta(false);
    if (isabet.HucreMi())
        Uzerine(isabet);
    else
        Bosa();
}

void TabloGirisi::ImlecSekli() {
    const TabloIsabeti isabet = gorunum_.Isabet(fareYeri_);
    const bool baslik =
        isabet.tur == TabloIsabeti::Tur::GunBasligi || isabet.tur == TabloIsabeti::Tur::AyBasligi;
    const Qt::CursorShape imlec = tasima_->Basili()             ? Qt::ClosedHandCursor
                                  : tasima_->Suruklenir(isabet) ? Qt::OpenHandCursor
                                  : baslik                      ? Qt::PointingHandCursor
                                                                : Qt::ArrowCursor;
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
    if (!ac)
        return;
    sorulan_ = goz;
    OdakTazele();
    menu_->popup(yer);
}

void TabloGirisi::MenuBitti() {
    // The entry may be at work still, and have opened a window.
    if (menu_->isVisible() || Baglayici::IsSuruyor() || QApplication::activeModalWidget() != nullptr)
        return;
    sorulan_ = {};
    OdakTazele();
}

void TabloGirisi::Ac(const TabloIsabeti& goz) {
    Uzerine(goz);
    sorulan_ = goz;
    OdakTazele();
    const QPointer<TabloGirisi> ben(this);
    baglayici_.Calistir([this, goz] { program_.FormTablo->Hucre_DblClick(goz.satir, goz.gun); });
    if (ben)
        MenuBitti();
}

bool TabloGirisi::TusBas(const QKeyEvent& olay) {
    const int tus = olay.key();
    const auto ekTuslar = olay.modifiers() & ~Qt::KeypadModifier;
    const bool menuTusu = tus == Qt::Key_Menu || (tus == Qt::Key_F10 && ekTuslar == Qt::ShiftModifier);
    if (ekTuslar != Qt::NoModifier && !menuTusu)
        return false;
    if (tasima_->Tutuluyor())
        return TasimaTusu(tus);
    if (menuTusu) {
        KlavyedenMenu();
        return true;
    }
    const bool bilinen = tus == Qt::Key_Return || tus == Qt::Key_Enter || tus == Qt::Key_Space;
    if (!bilinen && !GezinmeTusu(tus))
        return false;
    const bool ilk = !imlec_.HucreMi();
    if (const auto tablo = ekran_.lock(); tablo && ImlecHazirla(*tablo))
        GozdeTus(*tablo, tus, ilk);
    return true;
}

void TabloGirisi::GozdeTus(const FormTablo& tablo, int tus, bool ilk) {
    if (GezinmeTusu(tus)) {
        // The first key only brings the pointer cell to where it starts.
        const TabloIsabeti hedef = ilk && !Ortulu(imlec_) ? imlec_ : Gezin(tablo, imlec_, tus);
        imlecYeri_ = GozOrtasi(hedef);
        return Uzerine(hedef);
    }
    if (Ortulu(imlec_))
        return;
    const bool suruklenir = tasima_->Suruklenir(imlec_);
    if (tus == Qt::Key_Space && suruklenir) {
        Uzerine(imlec_);
        tasima_->Tut(imlec_);
    } else if (tus != Qt::Key_Space && !suruklenir) {
        Ac(imlec_);
    }
}

bool TabloGirisi::TasimaTusu(int tus) {
    const auto tablo = ekran_.lock();
    if (tablo && GezinmeTusu(tus)) {
        tasima_->Gotur(Gezin(*tablo, tasima_->Hedef(), tus));
    } else if (tus == Qt::Key_Escape) {
        tasima_->Vazgec();
    } else if (tus == Qt::Key_Space) {
        const TabloIsabeti hedef = tasima_->Hedef();
        const QPointer<TabloGirisi> ben(this);
        tasima_->TutulaniBirak();
        if (ben) {
            imlecYeri_ = GozOrtasi(hedef);
            Uzerine(hedef);
        }
    }
    return true;
}

TabloIsabeti TabloGirisi::Gezin(const FormTablo& tablo, const TabloIsabeti& goz, int tus) const {
    TabloIsabeti hedef = TusunGozu(tablo, goz, tus);
    for (TabloIsabeti onceki = goz; Ortulu(hedef);
         onceki = std::exchange(hedef, TusunGozu(tablo, hedef, tus)))
        if (hedef == onceki)
            return goz;
    return hedef;
}

bool TabloGirisi::ImlecHazirla(const FormTablo& tablo) {
    if (!imlec_.HucreMi() || !tablo.Gozu(imlec_.satir, imlec_.gun).gorunur)
        imlec_ = IlkGoz(tablo, program_.Bugun());
    if (!imlec_.HucreMi())
        return false;
    imlecYeri_ = GozOrtasi(imlec_);
    KlavyeAta(true);
    return true;
}

void TabloGirisi::KlavyedenMenu() {
    const auto tablo = ekran_.lock();
    if (!tablo || menu_->isVisible() || tasima_->Tutuluyor() || !ImlecHazirla(*tablo) || Ortulu(imlec_))
        return;
    Uzerine(imlec_);
    if (!tasima_->Suruklenir(imlec_))
        MenuAc(imlec_, true, gorunum_.mapToGlobal(GozOrtasi(imlec_)));
}

void TabloGirisi::KlavyeAta(bool klavye) {
    klavye_ = klavye;
    OdakTazele();
}

std::vector<TabloIsabeti> TabloGirisi::IsaretliGozler() const {
    if (sorulan_.HucreMi())
        return {sorulan_};
    std::vector<TabloIsabeti> gozler = tasima_->Isaretliler();
    if (const TabloIsabeti goz = TusGozu(); gozler.empty() && goz.HucreMi())
        gozler.push_back(goz);
    return gozler;
}

TabloIsabeti TabloGirisi::TusGozu() const {
    if (!klavye_ || !gorunum_.hasFocus() || ekran_.expired())
        return {};
    return tasima_->Tutuluyor() ? tasima_->Hedef() : imlec_;
}

void TabloGirisi::OdakTazele() {
    if (const TabloIsabeti goz = TusGozu(); goz != bildirilen_) {
        bildirilen_ = goz;
        TabloOdaginiBildir(gorunum_, goz);
    }
    std::vector<QRect> yeni;
    for (const TabloIsabeti& goz : IsaretliGozler())
        yeni.push_back(gorunum_.Mantiksal(gorunum_.Duzen().Hucre(goz.satir, goz.gun)));
    if (yeni == isaretler_)
        return;
    for (const auto* yerler : {&isaretler_, &yeni})
        for (const QRect& yer : *yerler)
            gorunum_.update(yer);
    isaretler_ = std::move(yeni);
}

} // namespace velora
