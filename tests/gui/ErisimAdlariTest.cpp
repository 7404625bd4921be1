#include <QAccessible>
#include <QTabWidget>
#include <QTest>

#include "gui/Diyaloglar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/table/TabloPenceresi.h"

using namespace velora;
using namespace velora::test;

namespace {

/// What a screen reader says of a widget that the focus is on: its name, and its kind as a number.
QString Okunusu(QWidget& parca) {
    const QAccessibleInterface* arayuz = QAccessible::queryAccessibleInterface(&parca);
    const QString ad = arayuz == nullptr ? QString() : arayuz->text(QAccessible::Name).trimmed();
    return ad.isEmpty() ? QString() : ad + QStringLiteral(" / %1").arg(arayuz->role());
}

/// Of what is on the display: nothing without a name, and no two of a kind with the same.
void HepsiAyriAdli(const QWidget& pencere) {
    QMap<QString, QString> adlar;
    for (auto* parca : pencere.findChildren<QWidget*>()) {
        if (!parca->isVisible() || parca->focusPolicy() == Qt::NoFocus || parca->focusProxy() != nullptr)
            continue;
        const QString kim = pencere.windowTitle() + QStringLiteral(": ") +
                            QString::fromLatin1(parca->metaObject()->className()) + u' ' +
                            parca->objectName();
        const QString ad = Okunusu(*parca);
        QVERIFY2(!ad.isEmpty(), qPrintable(kim));
        QVERIFY2(!adlar.contains(ad), qPrintable(kim + QStringLiteral(" as ") + adlar.value(ad) + u' ' + ad));
        adlar[ad] = kim;
    }
}

} // namespace

/// Whatever the focus can come to says what it is to those who can't see it.
class ErisimAdlariTest : public QObject {
    Q_OBJECT

  private slots:
    void in_each_window_on_each_page() {
        GuiFirma firma;
        firma.Ac();
        for (const Diyalog& diyalog : kDiyaloglar) {
            const auto ac = [&] { diyalog.ac(firma.program); };
            Pencerede(ac, {[&](QDialog& pencere) {
                          auto* sayfalar = pencere.findChild<QTabWidget*>();
                          for (int sayfa = 0; sayfa < (sayfalar == nullptr ? 1 : sayfalar->count());
                               ++sayfa) {
                              if (sayfalar != nullptr)
                                  sayfalar->setCurrentIndex(sayfa);
                              HepsiAyriAdli(pencere);
                          }
                          if (firma.program.FormKayit.Yuklu())
                              firma.program.FormKayit->KayitAc = 1; // it would ask before it is dropped
                      }});
        }
    }

    void on_the_main_screen_with_its_panel() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Ac();
        QVERIFY(firma.Bul<QWidget>("Picture1").isVisible());
        HepsiAyriAdli(firma.Pencere());
    }
};

VELORA_GUI_TEST(ErisimAdlariTest)
#include "ErisimAdlariTest.moc"
