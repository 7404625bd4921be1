#include <stdexcept>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/QtOrtam.h"

using namespace velora;
using namespace velora::test;

namespace {

/// A screen with one control of each kind, and its window.
struct Ekran {
    OnayKutusu onay;
    MetinKutusu metin;
    AcilirListe liste;
    ListeGorunumu satirlar;
    Dugme dugme;
    Etiket etiket;
};

struct Sahne {
    Sahne() : baglayici(ekran, &pencere) {
        ekran->liste.ogeler = {u"Bir", u"İki", u"Üç"};
        ekran->liste.secili = 0;
    }

    std::shared_ptr<Ekran> ekran = std::make_shared<Ekran>();
    QWidget pencere;
    int sayi = 0; // runs of handlers
    Baglayici baglayici;
};

} // namespace

class BaglayiciTest : public QObject {
    Q_OBJECT

  private slots:
    void a_click_on_a_check_box_sets_the_model_and_runs_its_handler_once() {
        Sahne sahne;
        QCheckBox kutu(&sahne.pencere);
        sahne.ekran->onay.tiklandi = [&] { ++sahne.sayi; };
        sahne.baglayici.Bagla(kutu, sahne.ekran->onay);
        QTest::mouseClick(&kutu, Qt::LeftButton, {}, {8, kutu.height() / 2});
        QCOMPARE(sahne.ekran->onay.deger, 1);
        QCOMPARE(sahne.sayi, 1);
        QTest::keyClick(&kutu, Qt::Key_Space);
        QCOMPARE(sahne.ekran->onay.deger, 0);
        QCOMPARE(sahne.sayi, 2);
    }

    void a_check_box_with_a_number_that_is_neither_shows_as_neither() {
        Sahne sahne;
        QCheckBox kutu(&sahne.pencere);
        sahne.ekran->onay.deger = 2;
        sahne.baglayici.Bagla(kutu, sahne.ekran->onay);
        QCOMPARE(kutu.checkState(), Qt::PartiallyChecked);
        kutu.click();
        QCOMPARE(sahne.ekran->onay.deger, 0);
        QCOMPARE(kutu.checkState(), Qt::Unchecked);
        kutu.click();
        QCOMPARE(kutu.checkState(), Qt::Checked);
    }

    void writes_from_models_to_widgets_raise_no_handler() {
        Sahne sahne;
        QCheckBox onay(&sahne.pencere);
        QLineEdit metin(&sahne.pencere);
        QComboBox liste(&sahne.pencere);
        QTreeWidget satirlar(&sahne.pencere);
        const auto say = [&] { ++sahne.sayi; };
        sahne.ekran->onay.tiklandi = sahne.ekran->liste.tiklandi = say;
        sahne.baglayici.Bagla(onay, sahne.ekran->onay);
        sahne.baglayici.Bagla(metin, sahne.ekran->metin, {.degisti = say, .odakGitti = {}});
        sahne.baglayici.Bagla(liste, sahne.ekran->liste);
        sahne.baglayici.Bagla(satirlar, sahne.ekran->satirlar, say, say);
        sahne.ekran->onay.deger = 1;
        sahne.ekran->metin.metin = u"yeni";
        sahne.ekran->liste.secili = 2;
        sahne.ekran->satirlar = {{u"Ad"}, {{{u"Ali"}, {}, 0}, {{u"Veli"}, {}, 0}}, 1, {}};
        Baglayici::HepsiniTazele();
        QVERIFY(onay.isChecked());
        QCOMPARE(metin.text(), QStringLiteral("yeni"));
        QCOMPARE(liste.currentText(), QStringLiteral("Üç"));
        QCOMPARE(satirlar.currentItem()->text(0), QStringLiteral("Veli"));
        QCOMPARE(sahne.sayi, 0);
    }

    void typed_text_goes_to_the_model_sign_by_sign() {
        Sahne sahne;
        QLineEdit kutu(&sahne.pencere);
        sahne.baglayici.Bagla(kutu, sahne.ekran->metin, {.degisti = [&] { ++sahne.sayi; }, .odakGitti = {}});
        QTest::keyClicks(&kutu, QStringLiteral("abc"));
        QCOMPARE(sahne.ekran->metin.metin, Metin(u"abc"));
        QCOMPARE(sahne.sayi, 3);
    }

    void a_length_limit_binds_typing_and_leaves_a_longer_text_from_the_model_whole() {
        Sahne sahne;
        QLineEdit kutu(&sahne.pencere);
        sahne.ekran->metin.enUzun = 4;
        sahne.ekran->metin.metin = u"1250.50";
        sahne.baglayici.Bagla(kutu, sahne.ekran->metin);
        QCOMPARE(kutu.text(), QStringLiteral("1250.50"));
        QTest::keyClicks(&kutu, QStringLiteral("9"));
        QCOMPARE(sahne.ekran->metin.metin, Metin(u"1250.50"));
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(&kutu, Qt::Key_Backspace);
        QTest::keyClicks(&kutu, QStringLiteral("789"));
        QCOMPARE(sahne.ekran->metin.metin, Metin(u"1257"));
    }

    void a_handler_that_changes_the_text_is_seen_in_the_field() {
        Sahne sahne;
        QLineEdit kutu(&sahne.pencere);
        sahne.baglayici.Bagla(
            kutu, sahne.ekran->metin,
            {.degisti = [&] { sahne.ekran->metin.metin = u"düzeltildi"; }, .odakGitti = {}});
        QTest::keyClicks(&kutu, QStringLiteral("x"));
        QCOMPARE(kutu.text(), QStringLiteral("düzeltildi"));
    }

    void locked_and_disabled_fields_take_no_keys() {
        Sahne sahne;
        QLineEdit kutu(&sahne.pencere);
        sahne.baglayici.Bagla(kutu, sahne.ekran->metin);
        sahne.ekran->metin.kilitli = true;
        sahne.ekran->metin.beyazZemin = false;
        Baglayici::HepsiniTazele();
        QTest::keyClicks(&kutu, QStringLiteral("x"));
        QVERIFY(sahne.ekran->metin.metin.empty());
        QVERIFY(kutu.palette().color(QPalette::Base) != QColor(Qt::white));
        sahne.ekran->metin.beyazZemin = true;
        sahne.ekran->metin.etkin = false;
        Baglayici::HepsiniTazele();
        QVERIFY(!kutu.isEnabled());
        QCOMPARE(kutu.palette().color(QPalette::Base), QColor(Qt::white));
    }

    void choosing_in_a_list_runs_the_click_once_and_so_does_the_entry_already_chosen() {
        Sahne sahne;
        QComboBox kutu(&sahne.pencere);
        sahne.ekran->liste.tiklandi = [&] { ++sahne.sayi; };
        sahne.baglayici.Bagla(kutu, sahne.ekran->liste);
        QTest::keyClick(&kutu, Qt::Key_Down);
        QCOMPARE(sahne.ekran->liste.secili, 1);
        QCOMPARE(sahne.sayi, 1);
        emit kutu.activated(1);
        QCOMPARE(sahne.ekran->liste.secili, 1);
        QCOMPARE(sahne.sayi, 2);
    }

    void a_list_shows_a_text_of_its_own_when_no_entry_is_chosen() {
        Sahne sahne;
        QComboBox kutu(&sahne.pencere);
        sahne.baglayici.Bagla(kutu, sahne.ekran->liste);
        sahne.ekran->liste.MetinAta(u"eski salon");
        Baglayici::HepsiniTazele();
        QCOMPARE(kutu.currentIndex(), -1);
        QCOMPARE(kutu.placeholderText(), QStringLiteral("eski salon"));
        QCOMPARE(kutu.palette().color(QPalette::PlaceholderText), kutu.palette().color(QPalette::Text));
    }

    void a_press_in_the_middle_of_a_press_is_dropped_also_on_another_button() {
        Sahne sahne;
        QPushButton bir(&sahne.pencere);
        QPushButton iki(&sahne.pencere);
        QAction girdi(&sahne.pencere);
        MenuGirdisi model;
        const auto say = [&] { ++sahne.sayi; };
        sahne.baglayici.Bagla(iki, sahne.ekran->dugme, say);
        sahne.baglayici.Bagla(girdi, model, say);
        sahne.baglayici.Bagla(bir, sahne.ekran->dugme, [&] {
            say();
            bir.click();
            iki.click();
            girdi.trigger();
        });
        bir.click();
        QCOMPARE(sahne.sayi, 1);
        iki.click();
        girdi.trigger();
        QCOMPARE(sahne.sayi, 3);
    }

    void a_list_view_shows_columns_and_marks_rows_both_ways() {
        Sahne sahne;
        QTreeWidget liste(&sahne.pencere);
        sahne.ekran->satirlar = {
            {u"Tarih", u"Ad"}, {{{u"01.05.2026", u"A"}, {}, 255}, {{u"x"}, {}, 0}}, -1, {}};
        sahne.baglayici.Bagla(liste, sahne.ekran->satirlar, [&] { ++sahne.sayi; });
        QCOMPARE(liste.headerItem()->text(1), QStringLiteral("Ad"));
        QCOMPARE(liste.topLevelItemCount(), 2);
        QCOMPARE(liste.topLevelItem(0)->foreground(1).color(), QColor(255, 0, 0));
        QCOMPARE(liste.topLevelItem(1)->text(1), QString());
        liste.setCurrentItem(liste.topLevelItem(1));
        QCOMPARE(sahne.ekran->satirlar.secili, 1);
        QCOMPARE(sahne.sayi, 1);
        sahne.ekran->satirlar.secili = -1;
        Baglayici::HepsiniTazele();
        QVERIFY(liste.currentItem() == nullptr);
        QCOMPARE(sahne.sayi, 1);
    }

    void columns_of_numbers_stand_to_the_right() {
        Sahne sahne;
        QTreeWidget liste(&sahne.pencere);
        sahne.ekran->satirlar = {{u"Ad", u"Tutar"}, {{{u"A", u"500"}, {}, 0}}, -1, {1}};
        sahne.baglayici.Bagla(liste, sahne.ekran->satirlar);
        QVERIFY(liste.topLevelItem(0)->textAlignment(1) & Qt::AlignRight);
        QVERIFY(liste.headerItem()->textAlignment(1) & Qt::AlignRight);
        QVERIFY(!(liste.topLevelItem(0)->textAlignment(0) & Qt::AlignRight));
    }

    void a_text_of_several_lines_is_one_line_in_a_row() {
        Sahne sahne;
        QTreeWidget liste(&sahne.pencere);
        sahne.ekran->satirlar = {{u"Not"}, {{{u"bir\r\niki\nüç"}, {}, 0}}, -1, {}};
        sahne.baglayici.Bagla(liste, sahne.ekran->satirlar);
        QCOMPARE(liste.topLevelItem(0)->text(0), QStringLiteral("bir iki üç"));
        QCOMPARE(sahne.ekran->satirlar.satirlar[0].sutun[0], Metin(u"bir\r\niki\nüç"));
    }

    void a_button_runs_its_handler_and_shows_its_model() {
        Sahne sahne;
        QPushButton dugme(&sahne.pencere);
        sahne.ekran->dugme = {u"Kapat", u"<i>", true, true};
        sahne.baglayici.Bagla(dugme, sahne.ekran->dugme, [&] {
            ++sahne.sayi;
            sahne.ekran->dugme.etkin = false;
        });
        QCOMPARE(dugme.text(), QStringLiteral("Kapat"));
        QTest::mouseClick(&dugme, Qt::LeftButton);
        QTest::mouseClick(&dugme, Qt::LeftButton);
        QCOMPARE(sahne.sayi, 1);
        QVERIFY(!dugme.isEnabled());
    }

    void a_label_takes_text_colours_and_visibility() {
        Sahne sahne;
        QLabel etiket(&sahne.pencere);
        sahne.ekran->etiket = {u"<b>düz</b>", true, 33023, kBeyaz, {}};
        sahne.baglayici.Bagla(etiket, sahne.ekran->etiket);
        QCOMPARE(etiket.text(), QStringLiteral("<b>düz</b>"));
        QCOMPARE(etiket.textFormat(), Qt::PlainText);
        QCOMPARE(etiket.palette().color(QPalette::Window), QColor(255, 128, 0));
        QCOMPARE(etiket.palette().color(QPalette::WindowText), QColor(255, 255, 255));
        sahne.ekran->etiket.gorunur = false;
        Baglayici::HepsiniTazele();
        QVERIFY(etiket.isHidden());
    }

    void an_exception_ends_its_handler_and_nothing_else() {
        Sahne sahne;
        QPushButton dugme(&sahne.pencere);
        sahne.baglayici.Bagla(dugme, sahne.ekran->dugme, [&] {
            ++sahne.sayi;
            sahne.ekran->dugme.baslik = u"yarım";
            throw std::runtime_error("broken on purpose");
        });
        QTest::ignoreMessage(QtWarningMsg, "A handler ended early: broken on purpose");
        dugme.click();
        QCOMPARE(dugme.text(), QStringLiteral("yarım"));
        QVERIFY(!Baglayici::IsSuruyor());
        QTest::ignoreMessage(QtWarningMsg, "A handler ended early: broken on purpose");
        dugme.click();
        QCOMPARE(sahne.sayi, 2);
    }

    void a_handler_of_one_window_refreshes_the_widgets_of_another() {
        Sahne bir;
        Sahne iki;
        QLineEdit kutu(&iki.pencere);
        iki.baglayici.Bagla(kutu, iki.ekran->metin);
        bir.baglayici.Calistir([&] { iki.ekran->metin.metin = u"öteki"; });
        QCOMPARE(kutu.text(), QStringLiteral("öteki"));
    }

    void widgets_are_refreshed_before_pending_events_run_inside_a_handler() {
        Sahne sahne;
        QLineEdit kutu(&sahne.pencere);
        sahne.baglayici.Bagla(kutu, sahne.ekran->metin);
        QtOrtam disDunya;
        const Ortam ortam = disDunya.Ver();
        QString icerde;
        Siraya(kutu, [&] { icerde = kutu.text(); });
        sahne.baglayici.Calistir([&] {
            sahne.ekran->metin.metin = u"ara";
            ortam.olaylar.isle();
            sahne.ekran->metin.metin = u"son";
        });
        QCOMPARE(icerde, QStringLiteral("ara"));
        QCOMPARE(kutu.text(), QStringLiteral("son"));
    }

    void a_screen_that_unloads_itself_lives_until_its_handler_has_returned() {
        Sahne sahne;
        QPushButton dugme(&sahne.pencere);
        Ekran* ham = sahne.ekran.get();
        sahne.baglayici.Bagla(dugme, sahne.ekran->dugme, [&sahne, ham] {
            sahne.ekran.reset();
            ham->dugme.baslik = u"hala burada";
            ++sahne.sayi;
        });
        dugme.click();
        QCOMPARE(sahne.sayi, 1);
        Baglayici::HepsiniTazele();
        dugme.click();
        QCOMPARE(sahne.sayi, 1);
    }
};

VELORA_GUI_TEST(BaglayiciTest)
#include "BaglayiciTest.moc"
