#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"

using namespace velora;
using namespace velora::test;

namespace {

/// A window with a list of three entries in both kinds, and a button that has the focus.
struct ListeSahnesi {
    ListeSahnesi() : baglayici(ekran, &pencere) {
        auto* sutun = new QVBoxLayout(&pencere);
        for (QWidget* parca : std::initializer_list<QWidget*>{&dugme, &duz, &sutunlu})
            sutun->addWidget(parca);
        ekran->duz.ogeler = {u"Bir", u"İki", u"Üç"};
        ekran->sutunlu.basliklar = {u"Ad"};
        ekran->sutunlu.satirlar = {{{u"Bir"}, {}, 0}, {{u"İki"}, {}, 0}, {{u"Üç"}, {}, 0}};
        baglayici.Bagla(duz, ekran->duz, [this] { ++sayi; });
        baglayici.Bagla(sutunlu, ekran->sutunlu, [this] { ++sayi; });
        dugme.setFocus();
        pencere.show();
        QVERIFY(QTest::qWaitForWindowActive(&pencere));
    }

    struct Ekran {
        ListeKutusu duz;
        ListeGorunumu sutunlu;
    };
    std::shared_ptr<Ekran> ekran = std::make_shared<Ekran>();
    int sayi = 0; // runs of handlers
    QWidget pencere;
    QPushButton dugme;
    QListWidget duz;
    QTreeWidget sutunlu;
    Baglayici baglayici;
};

} // namespace

class ListeBaglamaTest : public QObject {
    Q_OBJECT

    /// Runs a test on both kinds of list.
    static void Ikisinde(const std::function<void(ListeSahnesi&, QAbstractItemView&, int& secili)>& is) {
        ListeSahnesi duzde;
        is(duzde, duzde.duz, duzde.ekran->duz.secili);
        ListeSahnesi sutunluda;
        is(sutunluda, sutunluda.sutunlu, sutunluda.ekran->sutunlu.secili);
    }

  private slots:
    void the_focus_marks_no_row_by_itself_and_the_arrow_marks_the_first() {
        Ikisinde([](ListeSahnesi& sahne, QAbstractItemView& liste, const int& secili) {
            liste.setFocus(Qt::TabFocusReason);
            QVERIFY(liste.hasFocus());
            QCOMPARE(secili, -1);
            QCOMPARE(sahne.sayi, 0);
            QTest::keyClick(&liste, Qt::Key_Down);
            QCOMPARE(secili, 0);
            QCOMPARE(sahne.sayi, 1);
            QTest::keyClick(&liste, Qt::Key_Down);
            QCOMPARE(secili, 1);
            QVERIFY(liste.selectionModel()->isRowSelected(1));
        });
    }

    void a_press_on_the_row_that_is_marked_already_runs_the_handler_again() {
        Ikisinde([](ListeSahnesi& sahne, QAbstractItemView& liste, const int& secili) {
            SatiraTikla(liste, 1);
            QCOMPARE(secili, 1);
            sahne.sayi = 0;
            SatiraTikla(liste, 1);
            QCOMPARE(secili, 1);
            QCOMPARE(sahne.sayi, 1);
        });
    }

    void a_press_beside_the_rows_or_with_ctrl_leaves_the_mark() {
        Ikisinde([](ListeSahnesi& sahne, QAbstractItemView& liste, const int& secili) {
            SatiraTikla(liste, 1);
            sahne.sayi = 0;
            QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, {20, liste.viewport()->height() - 4});
            QVERIFY(liste.selectionModel()->isRowSelected(1));
            QCOMPARE(sahne.sayi, 0);
            QTest::mouseClick(liste.viewport(), Qt::LeftButton, Qt::ControlModifier, SatirYeri(liste, 1));
            QVERIFY(liste.selectionModel()->isRowSelected(1));
            QCOMPARE(secili, 1);
        });
    }

    void the_model_takes_the_mark_away() {
        Ikisinde([](ListeSahnesi&, QAbstractItemView& liste, int& secili) {
            SatiraTikla(liste, 2);
            secili = -1;
            Baglayici::HepsiniTazele();
            QVERIFY(!liste.selectionModel()->hasSelection());
            QVERIFY(!liste.currentIndex().isValid());
        });
    }

    void behind_a_row_that_was_deleted_the_arrows_go_on_at_its_place() {
        for (const auto& [tus, beklenen] : {std::pair(Qt::Key_Down, 2), std::pair(Qt::Key_Up, 1)}) {
            ListeSahnesi sahne;
            auto& model = sahne.ekran->sutunlu;
            for (const char16_t* ad : {u"Dört", u"Beş"})
                model.satirlar.push_back({{ad}, {}, 0});
            Baglayici::HepsiniTazele();
            SatiraTikla(sahne.sutunlu, 2);
            model.SeciliyiSil();
            Baglayici::HepsiniTazele();
            QVERIFY(!sahne.sutunlu.selectionModel()->hasSelection());
            QTest::keyClick(&sahne.sutunlu, tus);
            QCOMPARE(model.secili, beklenen);
        }
    }

    void in_other_rows_than_before_the_arrow_begins_at_the_first() {
        ListeSahnesi sahne;
        auto& model = sahne.ekran->sutunlu;
        SatiraTikla(sahne.sutunlu, 2);
        model.Temizle();
        model.satirlar.push_back({{u"Altı"}, {}, 0});
        for (int i = 0; i < 5; ++i)
            model.satirlar.push_back({{u"Yedi"}, {}, 0});
        Baglayici::HepsiniTazele();
        QTest::keyClick(&sahne.sutunlu, Qt::Key_Down);
        QCOMPARE(model.secili, 0);
    }

    void rows_are_made_anew_when_the_model_changed_them_and_only_then() {
        ListeSahnesi sahne;
        SatirListesi& satirlar = sahne.ekran->sutunlu.satirlar;
        const auto yeni = [&] {
            Baglayici::HepsiniTazele();
            const bool yapildi = sahne.sutunlu.topLevelItem(0)->toolTip(0) != QStringLiteral("iz");
            sahne.sutunlu.topLevelItem(0)->setToolTip(0, QStringLiteral("iz"));
            return yapildi;
        };
        yeni();
        QVERIFY(!yeni());
        satirlar.Degistir(2, {{u"Beş"}, {}, 0});
        QVERIFY(yeni());
        QCOMPARE(sahne.sutunlu.topLevelItem(2)->text(0), QStringLiteral("Beş"));
        const SatirListesi ayni = satirlar;
        satirlar = ayni;
        QVERIFY(yeni()); // nobody compares thousands of rows
        QVERIFY(!yeni());
    }
};

VELORA_GUI_TEST(ListeBaglamaTest)
#include "ListeBaglamaTest.moc"
