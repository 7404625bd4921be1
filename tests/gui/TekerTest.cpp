#include <memory>
#include <utility>

#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QTest>

#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"

using namespace velora;
using namespace velora::test;

namespace {

/// What the wheel could change, in a window.
struct TekerSahnesi {
    TekerSahnesi() : baglayici(ekran, &pencere) {
        ekran->liste.ogeler = {u"Bir", u"İki", u"Üç"};
        ekran->liste.secili = 0;
    }

    struct Ekran {
        AcilirListe liste;
        MetinKutusu metin;
        TarihSecici tarih;
    };
    std::shared_ptr<Ekran> ekran = std::make_shared<Ekran>();
    QWidget pencere;
    Baglayici baglayici;
};

} // namespace

class TekerTest : public QObject {
    Q_OBJECT

  private slots:
    void the_wheel_over_a_field_without_the_focus_changes_nothing_and_with_it_turns_it() {
        TekerSahnesi sahne;
        QLineEdit odakta(&sahne.pencere);
        QComboBox liste(&sahne.pencere);
        QComboBox yazilan(&sahne.pencere);
        QDateEdit tarih(&sahne.pencere);
        sahne.ekran->metin.ogeler = {u"Düğün", u"Nişan"};
        sahne.ekran->metin.metin = u"Düğün";
        sahne.ekran->tarih.deger = std::chrono::year(2026) / 6 / 21;
        sahne.baglayici.Bagla(liste, sahne.ekran->liste);
        sahne.baglayici.Bagla(yazilan, sahne.ekran->metin);
        sahne.baglayici.Bagla(tarih, sahne.ekran->tarih);
        int ust = 0;
        for (QWidget* parca : std::initializer_list<QWidget*>{&odakta, &liste, &yazilan, &tarih})
            parca->setGeometry(0, std::exchange(ust, ust + 40), 200, 30);
        sahne.pencere.resize(200, ust);
        sahne.pencere.show();
        QVERIFY(QTest::qWaitForWindowActive(&sahne.pencere));
        odakta.setFocus();
        const QList<QWidget*> cevrilenler{&liste, &yazilan, &tarih};
        for (QWidget* parca : cevrilenler) {
            TekeriCevir(*parca);
            QVERIFY(odakta.hasFocus());
        }
        QCOMPARE(sahne.ekran->liste.secili, 0);
        QCOMPARE(sahne.ekran->metin.metin, Metin(u"Düğün"));
        QVERIFY(sahne.ekran->tarih.deger == std::chrono::year(2026) / 6 / 21);
        for (QWidget* parca : cevrilenler) {
            parca->setFocus();
            TekeriCevir(*parca);
        }
        QCOMPARE(sahne.ekran->liste.secili, 1);
        QCOMPARE(sahne.ekran->metin.metin, Metin(u"Nişan"));
        QVERIFY(sahne.ekran->tarih.deger == std::chrono::year(2026) / 6 / 20);
    }
};

VELORA_GUI_TEST(TekerTest)
#include "TekerTest.moc"
