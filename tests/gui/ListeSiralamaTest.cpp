#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTest>
#include <QToolTip>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"

using namespace velora;
using namespace velora::test;

namespace {

/// A list with a date, a name and an amount; no column of the model is in order. Several rows can be chosen.
struct SiralamaSahnesi {
    SiralamaSahnesi() : baglayici(ekran, &pencere) {
        (new QVBoxLayout(&pencere))->addWidget(&liste);
        ekran->basliklar = {u"Tarih", u"Ad", u"Tutar"};
        ekran->sayiSutunlari = {2};
        ekran->satirlar = {{{u"05.03.2026 - Gece", u"Zeki", u"900"}, u"a", 0},
                           {{u"05.03.2026 - Gündüz", u"Çiğdem", u"12500.50"}, u"b", 0},
                           {{u"20.01.2026 - Gece", u"Deniz", u""}, u"c", 0},
                           {{u"01.12.2025 - Gündüz", u"Cem", u"1000"}, u"d", 0}};
        liste.setSelectionMode(QAbstractItemView::ExtendedSelection);
        baglayici.Bagla(
            liste, *ekran, [this] { ++sayi; }, [this] { acilan = ekran->secili; });
        pencere.resize(640, 300);
        pencere.show();
        QVERIFY(QTest::qWaitForWindowActive(&pencere));
        liste.setFocus();
    }

    void BasligaTikla(int sutun) {
        const QHeaderView& basliklar = *liste.header();
        QTest::mouseClick(basliklar.viewport(), Qt::LeftButton, {},
                          {basliklar.sectionViewportPosition(sutun) + 20, basliklar.height() / 2});
    }
    /// A column as it is seen.
    QString Gorunen(int sutun) const {
        QStringList yazilar;
        for (int i = 0; i < liste.topLevelItemCount(); ++i)
            yazilar << liste.topLevelItem(i)->text(sutun);
        return yazilar.join(u' ');
    }
    /// The numbers of the chosen rows as they are seen.
    QList<int> Secilenler() const {
        QList<int> satirlar;
        for (int i = 0; i < liste.topLevelItemCount(); ++i)
            if (liste.topLevelItem(i)->isSelected())
                satirlar << i;
        return satirlar;
    }

    std::shared_ptr<ListeGorunumu> ekran = std::make_shared<ListeGorunumu>();
    int sayi = 0;    // runs of the handler of a mark
    int acilan = -1; // the model's row of the last double click
    QWidget pencere;
    QTreeWidget liste;
    Baglayici baglayici;
};

constexpr auto kModelSirasi = "Zeki Çiğdem Deniz Cem";

} // namespace

class ListeSiralamaTest : public QObject {
    Q_OBJECT

  private slots:
    void with_nothing_marked_End_marks_the_last_row_as_it_is_seen() {
        SiralamaSahnesi sahne;
        sahne.BasligaTikla(1);
        sahne.liste.setFocus();
        QVERIFY(!sahne.liste.currentIndex().isValid());
        QTest::keyClick(&sahne.liste, Qt::Key_End);
        QCOMPARE(sahne.Secilenler(), QList<int>{3});
        QCOMPARE(sahne.ekran->secili, 0); // Zeki
        QTest::keyClick(&sahne.liste, Qt::Key_Home);
        QTest::keyClick(&sahne.liste, Qt::Key_End);
        QCOMPARE(sahne.Secilenler(), QList<int>{3});
    }

    void a_click_on_a_head_sorts_turkish_texts_a_second_turns_them_round_and_a_third_gives_them_up() {
        SiralamaSahnesi sahne;
        QCOMPARE(sahne.Gorunen(1), QString::fromUtf8(kModelSirasi));
        sahne.BasligaTikla(1);
        QCOMPARE(sahne.Gorunen(1), QStringLiteral("Cem Çiğdem Deniz Zeki"));
        sahne.BasligaTikla(1);
        QCOMPARE(sahne.Gorunen(1), QStringLiteral("Zeki Deniz Çiğdem Cem"));
        sahne.BasligaTikla(1);
        QCOMPARE(sahne.Gorunen(1), QString::fromUtf8(kModelSirasi));
    }

    void days_are_sorted_as_days_with_the_slot_behind_them() {
        SiralamaSahnesi sahne;
        sahne.BasligaTikla(0);
        QCOMPARE(sahne.Gorunen(1), QStringLiteral("Cem Deniz Çiğdem Zeki"));
    }

    void amounts_are_sorted_as_numbers() {
        SiralamaSahnesi sahne;
        sahne.BasligaTikla(2);
        QCOMPARE(sahne.Gorunen(1), QStringLiteral("Deniz Zeki Cem Çiğdem"));
    }

    void what_is_no_date_stands_behind_the_dates_and_equal_rows_as_in_the_model() {
        SiralamaSahnesi sahne;
        sahne.ekran->satirlar = {{{u"yok", u"A"}, {}, 0},
                                 {{u"02.01.2026", u"B"}, {}, 0},
                                 {{u"01.02.2026", u"C"}, {}, 0},
                                 {{u"02.01.2026", u"D"}, {}, 0}};
        sahne.BasligaTikla(0);
        QCOMPARE(sahne.Gorunen(1), QStringLiteral("B D C A"));
        sahne.BasligaTikla(0);
        QCOMPARE(sahne.Gorunen(1), QStringLiteral("A C B D"));
    }

    void the_order_of_the_model_does_not_change() {
        SiralamaSahnesi sahne;
        sahne.BasligaTikla(1);
        Metin etiketler;
        for (const ListeSatiri& satir : sahne.ekran->satirlar)
            etiketler += satir.tag;
        QCOMPARE(QMetin(etiketler), QStringLiteral("abcd"));
    }

    void the_mark_stays_on_its_row_and_a_click_marks_the_row_that_is_seen() {
        SiralamaSahnesi sahne;
        SatiraTikla(sahne.liste, 2);
        QCOMPARE(sahne.ekran->secili, 2);
        sahne.sayi = 0;
        sahne.BasligaTikla(0);
        QCOMPARE(sahne.ekran->secili, 2);
        QCOMPARE(sahne.liste.currentItem()->text(1), QStringLiteral("Deniz"));
        QCOMPARE(sahne.Secilenler(), QList<int>{1});
        QCOMPARE(sahne.sayi, 0);
        SatiraTikla(sahne.liste, 3);
        QCOMPARE(sahne.ekran->secili, 0);
        SatiraTikla(sahne.liste, 0);
        SatiraCiftTikla(sahne.liste, 0);
        QCOMPARE(sahne.acilan, 3);
        sahne.ekran->secili = 1;
        Baglayici::HepsiniTazele();
        QCOMPARE(sahne.liste.currentItem()->text(1), QStringLiteral("Çiğdem"));
    }

    void the_arrow_keys_and_the_space_bar_follow_what_is_seen() {
        SiralamaSahnesi sahne;
        sahne.BasligaTikla(0);
        for (const int yer : {3, 2, 1}) {
            QTest::keyClick(&sahne.liste, Qt::Key_Down);
            QCOMPARE(sahne.ekran->secili, yer);
        }
        QTest::keyClick(&sahne.liste, Qt::Key_Up);
        QCOMPARE(sahne.ekran->secili, 2);
        QTest::keyClick(&sahne.liste, Qt::Key_Space);
        QCOMPARE(sahne.ekran->secili, 2);
        QCOMPARE(sahne.sayi, 5);
    }

    void rows_made_anew_stand_in_the_chosen_order() {
        SiralamaSahnesi sahne;
        sahne.BasligaTikla(1);
        sahne.BasligaTikla(1);
        sahne.ekran->satirlar.push_back({{u"09.09.2026 - Gece", u"Ece", u"5"}, u"e", 0});
        sahne.ekran->secili = 4;
        Baglayici::HepsiniTazele();
        QCOMPARE(sahne.Gorunen(1), QStringLiteral("Zeki Ece Deniz Çiğdem Cem"));
        QCOMPARE(sahne.Secilenler(), QList<int>{1});
    }

    void ctrl_c_copies_the_chosen_rows_as_they_are_seen_with_tabs_between_the_columns() {
        SiralamaSahnesi sahne;
        sahne.BasligaTikla(0);
        SatiraTikla(sahne.liste, 1);
        QTest::keyClick(&sahne.liste, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&sahne.liste, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(),
                 QStringLiteral("20.01.2026 - Gece\tDeniz\t\n05.03.2026 - Gündüz\tÇiğdem\t12500.50"));
    }

    void a_copied_row_keeps_its_columns_when_a_text_has_a_tab_in_it_and_nothing_chosen_copies_nothing() {
        SiralamaSahnesi sahne;
        QApplication::clipboard()->setText(QStringLiteral("önceki"));
        QTest::keyClick(&sahne.liste, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("önceki"));
        sahne.ekran->satirlar.Degistir(0, {{u"x", u"iki\tparça", u"3"}, {}, 0});
        Baglayici::HepsiniTazele();
        SatiraTikla(sahne.liste, 0);
        QTest::keyClick(&sahne.liste, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("x\tiki parça\t3"));
    }

    void ranges_by_keys_and_by_the_mouse_stay_through_refreshes_and_the_mark_is_their_last_row() {
        SiralamaSahnesi sahne;
        SatiraTikla(sahne.liste, 0);
        QTest::keyClick(&sahne.liste, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&sahne.liste, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(sahne.ekran->secili, 2);
        Baglayici::HepsiniTazele();
        QCOMPARE(sahne.Secilenler(), (QList<int>{0, 1, 2}));
        SatiraTikla(sahne.liste, 1);
        QCOMPARE(sahne.Secilenler(), QList<int>{1});
        QTest::mouseClick(sahne.liste.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                          SatirYeri(sahne.liste, 3));
        QCOMPARE(sahne.ekran->secili, 3);
        Baglayici::HepsiniTazele();
        QCOMPARE(sahne.Secilenler(), (QList<int>{1, 2, 3}));
    }

    void ctrl_a_chooses_all_rows_through_refreshes_and_marks_none() {
        SiralamaSahnesi sahne;
        const QList<int> hepsi{0, 1, 2, 3};
        QTest::keyClick(&sahne.liste, Qt::Key_A, Qt::ControlModifier);
        Baglayici::HepsiniTazele();
        QCOMPARE(sahne.Secilenler(), hepsi);
        QCOMPARE(sahne.ekran->secili, -1);
        QCOMPARE(sahne.sayi, 0);
        SatiraTikla(sahne.liste, 2);
        QTest::keyClick(&sahne.liste, Qt::Key_A, Qt::ControlModifier);
        Baglayici::HepsiniTazele();
        QCOMPARE(sahne.Secilenler(), hepsi);
        QCOMPARE(sahne.ekran->secili, 2);
        sahne.ekran->secili = -1;
        Baglayici::HepsiniTazele();
        QCOMPARE(sahne.Secilenler(), QList<int>());
    }

    void a_press_with_ctrl_leaves_one_marked_row_where_several_can_be_chosen_too() {
        SiralamaSahnesi sahne;
        SatiraTikla(sahne.liste, 0);
        QTest::keyClick(&sahne.liste, Qt::Key_Down, Qt::ShiftModifier);
        QTest::mouseClick(sahne.liste.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          SatirYeri(sahne.liste, 1));
        QCOMPARE(sahne.ekran->secili, 1);
        QCOMPARE(sahne.Secilenler(), QList<int>{1});
    }

    void a_cell_that_is_cut_tells_its_whole_text_in_a_tip_and_another_tells_nothing() {
        SiralamaSahnesi sahne;
        sahne.ekran->satirlar.Degistir(1, {{u"01.01.2026", u"Uzun <b>isimli</b> bir müşteri", u"1"}, {}, 0});
        Baglayici::HepsiniTazele();
        struct IpucuSayaci : QObject {
            bool eventFilter(QObject*, QEvent* olay) override {
                sayi += olay->type() == QEvent::ToolTip ? 1 : 0;
                return false;
            }
            int sayi = 0;
        } sorulan;
        sahne.liste.viewport()->installEventFilter(&sorulan);
        const auto ipucu = [&](int satir, int sutun) {
            const QRect yer = sahne.liste.visualRect(sahne.liste.model()->index(satir, sutun));
            QTest::mouseMove(sahne.liste.viewport(), {2, sahne.liste.viewport()->height() - 2});
            QToolTip::hideText();
            if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); }))
                return QStringLiteral("the tip before it stays");
            const int once = sorulan.sayi;
            QTest::mouseMove(sahne.liste.viewport(), yer.center());
            // The toolkit asks for a tip after a while, also where there is none.
            if (!QTest::qWaitFor([&] { return sorulan.sayi > once; }))
                return QStringLiteral("nobody asked for a tip");
            return QToolTip::isVisible() ? QToolTip::text() : QString();
        };
        sahne.liste.setColumnWidth(1, 60);
        QCOMPARE(ipucu(1, 1), QIpucu(u"Uzun <b>isimli</b> bir müşteri"));
        QCOMPARE(ipucu(3, 1), QString());
        sahne.liste.setColumnWidth(1, 400);
        QCOMPARE(ipucu(1, 1), QString());
    }
};

VELORA_GUI_TEST(ListeSiralamaTest)
#include "ListeSiralamaTest.moc"
