#include <stdexcept>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "qt/table/TabloGorunumu.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "table/HucreRenkleri.h"
#include "tools/kilavuz/Sahneler.h"

namespace velora::kilavuz {

namespace {

constexpr int kCetvelAyi = 8;
constexpr int kCetvelGunu = 23;

TabloGorunumu& Gorunum(QWidget& pencere) {
    return *dynamic_cast<TabloGorunumu*>(pencere.findChild<QWidget*>(QStringLiteral("Picture4")));
}

QPoint Orta(const TabloGorunumu& gorunum, const Goz& goz) {
    return gorunum.Mantiksal(gorunum.Duzen().Hucre(goz.satir, goz.gun)).center();
}

void FareOlayi(TabloGorunumu& gorunum, QEvent::Type tur, QPoint yer, Qt::MouseButton dugme) {
    const bool basili = tur == QEvent::MouseButtonPress;
    QMouseEvent olay(tur, yer, gorunum.mapToGlobal(yer), dugme, basili ? dugme : Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&gorunum, &olay);
}

void TusBas(TabloGorunumu& gorunum, int tus, int kez = 1) {
    for (; kez > 0; --kez) {
        QKeyEvent olay(QEvent::KeyPress, tus, Qt::NoModifier);
        QApplication::sendEvent(&gorunum, &olay);
    }
}

/// The first slot behind today that has this colour.
Goz Renkte(Program& program, RenkNo::No renk) {
    const auto tablo = program.FormTablo.Tut();
    const RenkDegeri zemin = program.FormAyarlar->Renk(renk);
    return GozBul(*tablo, program.Bugun(),
                  [&](SatirAdi satir, int gun) { return tablo->Gozu(satir, gun).zemin == zemin; });
}

} // namespace

void TabloAc(Program& program) {
    program.oturum.Goster(u"Murat");
    program.FormTablo.Goster();
}

void TabloSade(Program& program, QWidget& pencere) {
    program.FormTablo->Command2_Click(); // the panel of warnings goes
    pencere.setFocus();
}

void TabloCetvel(Program& program, QWidget& pencere) {
    TabloSade(program, pencere);
    program.FormTablo->AyAdi_Click(kCetvelAyi);
    program.FormTablo->ALabel_Click(kCetvelGunu);
}

void TabloSagTus(Program& program, QWidget& pencere) {
    TabloSade(program, pencere);
    QApplication::processEvents(); // the panel doesn't lie over the day any more
    TabloGorunumu& gorunum = Gorunum(pencere);
    const QPoint yer = Orta(gorunum, Renkte(program, RenkNo::GeceHaftaSonuZemini));
    FareOlayi(gorunum, QEvent::MouseMove, yer, Qt::NoButton);
    FareOlayi(gorunum, QEvent::MouseButtonPress, yer, Qt::RightButton);
}

void TabloTasima(Program& program, QWidget& pencere) {
    TabloSade(program, pencere);
    QApplication::processEvents();
    TabloGorunumu& gorunum = Gorunum(pencere);
    gorunum.setFocus();
    program.FormTablo->TasimaModuAc_Click();
    FareOlayi(gorunum, QEvent::MouseMove, Orta(gorunum, Renkte(program, RenkNo::GeceKesinZemini)),
              Qt::NoButton);
    TusBas(gorunum, Qt::Key_Space);
    TusBas(gorunum, Qt::Key_Right, 3);
    TusBas(gorunum, Qt::Key_Down, 4);
}

void UyariSec(Program& program, QWidget& /*pencere*/) {
    const auto tablo = program.FormTablo.Tut();
    tablo->Liste.secili = 1;
    tablo->Liste_Click();
}

void TabloBaskisiAc(Program& program) {
    program.FormTablo->rezrapor_Click();
}

} // namespace velora::kilavuz
