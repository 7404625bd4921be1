#include <QApplication>
#include <QLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>

#include "gui/Diyaloglar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/PencereYeri.h"
#include "qt/table/TabloPenceresi.h"

using namespace velora;
using namespace velora::test;

namespace {

/// On a screen of this size, in logical pixels, nothing but a list has to be scrolled.
constexpr QSize kYeterli(960, 540);
constexpr int kEnCokDurak = 60;

QRect EkranYeri() {
    return QGuiApplication::primaryScreen()->availableGeometry();
}

bool Kaydirilan(const QWidget& pencere) {
    return pencere.layout()->itemAt(0)->widget() != nullptr &&
           qobject_cast<QScrollArea*>(pencere.layout()->itemAt(0)->widget()) != nullptr;
}

bool Gorunuyor(const QWidget& parca) {
    return parca.visibleRegion().boundingRect() == parca.rect();
}

/// The buttons of the window itself stand on it, whole and unmoved; what Tab reaches is brought into sight.
void ParcalariGorulmeli(QDialog& pencere) {
    for (const auto* dugme : pencere.findChildren<QPushButton*>())
        if (dugme->parentWidget() == &pencere)
            QVERIFY2(Gorunuyor(*dugme), qPrintable(dugme->objectName()));
    const QWidget* ilk = pencere.focusWidget();
    int durak = 0;
    do {
        Tusla(Qt::Key_Tab);
        const QWidget* odak = QApplication::focusWidget();
        // A list may be higher than the screen, and a field wider.
        if (qobject_cast<const QAbstractScrollArea*>(odak) == nullptr)
            QVERIFY2(odak->visibleRegion().boundingRect().height() == odak->height(),
                     qPrintable(odak->objectName()));
    } while (QApplication::focusWidget() != ilk && ++durak < kEnCokDurak);
    QVERIFY(durak < kEnCokDurak);
}

} // namespace

class EkranaSigmaTest : public QObject {
    Q_OBJECT

  private slots:
    void no_window_is_larger_than_its_screen_and_all_in_it_can_be_reached() {
        GuiFirma firma;
        firma.Ac();
        for (const test::Diyalog& diyalog : kDiyaloglar)
            Pencerede([&] { diyalog.ac(firma.program); }, {[](QDialog& pencere) {
                          QVERIFY2(EkranYeri().contains(pencere.frameGeometry()),
                                   qPrintable(pencere.windowTitle()));
                          if (kYeterli.boundedTo(EkranYeri().size()) == kYeterli)
                              QVERIFY2(!Kaydirilan(pencere), qPrintable(pencere.windowTitle()));
                          auto* sayfalar = pencere.findChild<QTabWidget*>();
                          for (int sayfa = 0; sayfa < (sayfalar == nullptr ? 1 : sayfalar->count());
                               ++sayfa) {
                              if (sayfalar != nullptr)
                                  sayfalar->setCurrentIndex(sayfa);
                              ParcalariGorulmeli(pencere);
                          }
                      }});
    }

    void the_table_is_no_larger_than_its_screen() {
        GuiFirma firma;
        firma.program.FormTablo.Goster();
        QVERIFY(EkrandaYer(firma.Pencere()).boundedTo(EkranYeri().size()) == EkrandaYer(firma.Pencere()));
        QVERIFY(firma.Pencere().width() <= EkranYeri().width());
        QVERIFY(firma.Pencere().height() <= EkranYeri().height());
    }

    void a_place_outside_the_screen_is_moved_onto_it_and_a_larger_one_is_cut() {
        const QRect ekran = EkranYeri();
        QCOMPARE(EkranaAl({100, 90, 300, 200}), QRect(100, 90, 300, 200));
        for (const QPoint yer : {QPoint(5000, 60), QPoint(-900, -700), QPoint(40, 4000)}) {
            QVERIFY(ekran.contains(EkranaAl({yer, QSize(320, 210)})));
            QCOMPARE(EkranaAl({yer, QSize(320, 210)}).size(), QSize(320, 210));
        }
        QVERIFY(ekran.contains(EkranaAl({-50, -60, 9000, 8000})));
    }
};

VELORA_GUI_TEST(EkranaSigmaTest)
#include "EkranaSigmaTest.moc"
