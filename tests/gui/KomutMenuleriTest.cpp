#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QWindow>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/table/KomutMenuleri.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"
#include "table/FormHakkinda.h"

using namespace velora;
using namespace velora::test;

namespace {

/// Names of the entries of a menu; a line has brackets about its name.
QStringList Girdiler(const QMenu& menu) {
    QStringList adlar;
    for (const QAction* girdi : menu.actions())
        adlar << (girdi->isSeparator() ? u'(' + girdi->objectName() + u')' : girdi->objectName());
    return adlar;
}

/// Something is drawn on it.
bool Boyali(const QIcon& resim) {
    const QImage goruntu = resim.pixmap(20).toImage();
    for (int y = 0; y < goruntu.height(); ++y)
        for (int x = 0; x < goruntu.width(); ++x)
            if (goruntu.pixelColor(x, y).alpha() > 200)
                return true;
    return false;
}

} // namespace

class KomutMenuleriTest : public QObject {
    Q_OBJECT

  private slots:
    void each_command_stands_in_its_menu_in_the_order_of_the_table() {
        GuiFirma firma;
        firma.Ac();
        for (const MenuTanimi& tanim : kMenuler) {
            const auto& menu = firma.Bul<QMenu>(qPrintable(QMetin(tanim.ad)));
            QStringList beklenen;
            for (const KomutTanimi& komut : Komutlar())
                if (komut.menu == tanim.menu)
                    beklenen << (komut.Cizgi() ? u'(' + QMetin(komut.ad) + u')' : QMetin(komut.ad));
            QCOMPARE(Girdiler(menu), beklenen);
            QCOMPARE(firma.Pencere().menuBar()->actions().contains(menu.menuAction()),
                     tanim.menu != Menu::Sagtus);
        }
        QCOMPARE(Girdiler(firma.Bul<QMenu>("Sagtus")),
                 (QStringList{"newkay", "(aline11)", "TasimaModuAc", "(aline12)", "iptals"}));
    }

    void the_bar_has_its_menus_from_left_to_right_with_the_first_letter_as_access_key() {
        GuiFirma firma;
        firma.Ac();
        QStringList basliklar;
        for (const QAction* menu : firma.Pencere().menuBar()->actions())
            basliklar << menu->text();
        QCOMPARE(basliklar, (QStringList{"&Dosya", "&Raporlar", "&Ayarlar", QStringLiteral("&Yardım")}));
    }

    void the_entries_of_a_menu_have_access_keys_each_its_own() {
        GuiFirma firma;
        firma.Ac();
        for (const MenuTanimi& tanim : kMenuler) {
            QSet<QChar> tuslar;
            int girdiler = 0;
            for (const QAction* girdi : firma.Bul<QMenu>(qPrintable(QMetin(tanim.ad))).actions()) {
                if (girdi->isSeparator()) {
                    QCOMPARE(girdi->text(), QString()); // else it stands written in the line
                    continue;
                }
                ++girdiler;
                QCOMPARE(girdi->text().count(u'&'), 1);
                tuslar << girdi->text()[girdi->text().indexOf(u'&') + 1].toUpper();
            }
            QVERIFY(girdiler > 0);
            QCOMPARE(tuslar.size(), girdiler);
            QVERIFY(!tuslar.contains(u'İ'));
        }
    }

    void an_access_key_of_the_context_menu_begins_its_entry_and_a_refresh_leaves_the_marks() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gündüz", false);
        firma.Ac();
        auto& girdi = firma.Bul<QAction>("TasimaModuAc");
        const QSignalSpy degisti(&girdi, &QAction::changed);
        Baglayici::HepsiniTazele();
        QCOMPARE(degisti.size(), 0);
        QTest::keyClick(&firma.Tablo(), Qt::Key_Right);
        QTest::keyClick(&firma.Tablo(), Qt::Key_Menu);
        auto& menu = firma.Bul<QMenu>("Sagtus");
        QTRY_VERIFY(menu.isVisible());
        QCOMPARE(girdi.text(), QStringLiteral("&Taşıma Modunu Aç"));
        QTest::keyClick(&menu, Qt::Key_T);
        QTRY_COMPARE(firma.Model().tasimamoducheck, 1);
    }

    void keys_are_those_of_the_table() {
        GuiFirma firma;
        firma.Ac();
        for (const KomutTanimi& komut : Komutlar())
            if (komut.menu != Menu::Yok)
                QCOMPARE(firma.Bul<QAction>(qPrintable(QMetin(komut.ad))).shortcut().toString(),
                         QMetin(komut.tus));
    }

    void an_entry_that_the_model_hides_goes_with_its_line() {
        GuiFirma firma;
        firma.Ac();
        firma.Model().Girdi(Komut::newkay).gorunur = firma.Model().Girdi(Komut::aline11).gorunur = false;
        Baglayici::HepsiniTazele();
        QVERIFY(!firma.Bul<QAction>("newkay").isVisible());
        QVERIFY(!firma.Bul<QAction>("aline11").isVisible());
        QVERIFY(firma.Bul<QAction>("aline12").isVisible());
        QVERIFY(firma.Bul<QAction>("iptals").isVisible());
    }

    void the_tool_bar_has_its_buttons_by_their_places_with_pictures_and_a_line_behind_each() {
        GuiFirma firma;
        firma.Ac();
        const auto& serit = firma.Bul<QToolBar>("Toolbar1");
        QStringList adlar;
        QStringList ipuclari;
        for (const QAction* girdi : serit.actions()) {
            adlar << (girdi->isSeparator() ? QStringLiteral("-") : girdi->text());
            if (girdi->isSeparator())
                continue;
            ipuclari << girdi->toolTip();
            QVERIFY2(Boyali(girdi->icon()), qPrintable(girdi->text()));
        }
        QCOMPARE(adlar, (QStringList{"Ara", "-", "Rapor", "-", "Kasa", "-", QStringLiteral("Yazdır"), "-",
                                     QStringLiteral(" Uyarılar"), "-", QStringLiteral("Yayınla"), "-",
                                     " Ayarlar ", "-"}));
        QCOMPARE(
            ipuclari,
            (QStringList{QStringLiteral("Kayıt Ara (F2)"), "Rezervasyon Raporu (F3)", "Kasa Raporu (F4)",
                         "Rezervasyon Tablosu (F5)", QStringLiteral("Yaklaşan Rezervasyonlar"),
                         QStringLiteral("Web'te Yayınla (F12)"), QStringLiteral("Program Ayarları (F7)")}));
        QCOMPARE(serit.actions()[12]->objectName(), QStringLiteral("Toolbar1_13"));
        QCOMPARE(serit.actions()[13]->objectName(), QStringLiteral("Toolbar1_14"));
    }

    void a_button_takes_the_ruler_away_and_opens_its_screen_and_a_hidden_one_goes_without_its_line() {
        GuiFirma firma;
        firma.Ac();
        auto& serit = firma.Bul<QToolBar>("Toolbar1");
        firma.Model().ALabel_Click(8);
        firma.Model().AyAdi_Click(3);
        QVERIFY(firma.Model().HizliSecim.gorunur);
        Pencerede([&] { QTest::mouseClick(&firma.Bul<QToolButton>("Toolbar1_1"), Qt::LeftButton); },
                  {[&](QDialog& pencere) {
                      QCOMPARE(pencere.windowTitle(), QStringLiteral("Kayıt Arama"));
                      QVERIFY(!firma.Model().HizliSecim.gorunur);
                      Tikla(pencere, "Command2");
                  }});
        firma.Model().Toolbar1[13].gorunur = false;
        Baglayici::HepsiniTazele();
        QVERIFY(!serit.actions()[12]->isVisible());
        QVERIFY(serit.actions()[13]->isVisible());
    }

    void the_button_of_the_warnings_lists_them_or_tells_that_there_are_none() {
        GuiFirma firma;
        firma.Ac();
        auto& dugme = firma.Bul<QToolButton>("Toolbar1_9");
        Pencerede([&] { QTest::mouseClick(&dugme, Qt::LeftButton); },
                  {Mesaj(QStringLiteral("Hatırlatmalarda yaklaşan rezervasyon yok."))});
        firma.Rezervasyon(kSalonB, u"23.05.2026 - Gece", false);
        QTest::mouseClick(&dugme, Qt::LeftButton);
        QVERIFY(firma.Bul<QWidget>("Picture1").isVisible());
    }

    void tab_reaches_each_button_and_enter_and_space_press_it_and_the_mouse_leaves_the_focus() {
        GuiFirma firma;
        firma.Ac();
        firma.Bul<QToolButton>("Toolbar1_1").setFocus(Qt::TabFocusReason);
        QStringList sira;
        for (int i = 0; i < 8; ++i) {
            sira << Odaktaki();
            Tusla(Qt::Key_Tab);
        }
        QCOMPARE(sira, (QStringList{"Toolbar1_1", "Toolbar1_3", "Toolbar1_5", "Toolbar1_7", "Toolbar1_9",
                                    "Toolbar1_11", "Toolbar1_13", "Salon"}));
        for (const auto tus : {Qt::Key_Space, Qt::Key_Return}) {
            firma.Bul<QToolButton>("Toolbar1_3").setFocus(Qt::TabFocusReason);
            Pencerede([&] { Tusla(tus); }, {[](QDialog& pencere) {
                          QCOMPARE(pencere.windowTitle(), QStringLiteral("Rezervasyon Raporu"));
                      }});
        }
        firma.Tablo().setFocus();
        Pencerede([&] { QTest::mouseClick(&firma.Bul<QToolButton>("Toolbar1_13"), Qt::LeftButton); },
                  {TusBas(Qt::Key_Escape)});
        QTRY_COMPARE(Odaktaki(), QStringLiteral("Picture4"));
    }

    void a_right_press_on_the_tool_bar_offers_no_way_to_put_it_away() {
        GuiFirma firma;
        firma.Ac();
        auto& serit = firma.Bul<QToolBar>("Toolbar1");
        // Through the window: only from there does the toolkit ask for a menu.
        QTest::mouseClick(firma.Pencere().windowHandle(), Qt::RightButton, {},
                          serit.mapTo(&firma.Pencere(), QPoint(serit.width() - 5, serit.height() / 2)));
        QCoreApplication::processEvents();
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void keys_work_while_the_panel_has_the_focus_and_not_while_a_window_is_over_the_table() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Ac();
        QCOMPARE(Odaktaki(), QStringLiteral("Liste"));
        int acilan = 0;
        for (const auto& acan : {std::pair{Qt::Key_F2, QStringLiteral("Kayıt Arama")},
                                 {Qt::Key_F3, QStringLiteral("Rezervasyon Raporu")},
                                 {Qt::Key_F5, QStringLiteral("Rezervasyon Tablosu")},
                                 {Qt::Key_F7, QStringLiteral("Genel Program Ayarları")}}) {
            Pencerede([&] { Tusla(acan.first); }, {[&](QDialog& pencere) {
                          ++acilan;
                          QCOMPARE(pencere.windowTitle(), acan.second);
                          for (const auto oteki :
                               {Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F5, Qt::Key_F7, Qt::Key_F12}) {
                              Tusla(oteki); // nothing comes over it
                              QTest::keyClick(&firma.Tablo(), oteki);
                          }
                          QCOMPARE(QApplication::activeModalWidget(), &pencere);
                          QTest::keyClick(&pencere, Qt::Key_Escape);
                      }});
        }
        QCOMPARE(acilan, 4);
    }

    void f12_does_nothing_on_purpose() {
        GuiFirma firma;
        firma.Ac();
        firma.Model().ALabel_Click(8);
        Pencerede([&] { QTest::keyClick(&firma.Tablo(), Qt::Key_F12); }, {});
        QCOMPARE(firma.Model().HizliGun, 8); // not even a button's first step
    }

    void ctrl_f1_tells_about_the_program_and_its_folder_can_be_copied() {
        GuiFirma firma;
        firma.Ac();
        Pencerede([&] { QTest::keyClick(&firma.Tablo(), Qt::Key_F1, Qt::ControlModifier); },
                  {[&](QDialog& pencere) {
                      QCOMPARE(pencere.windowTitle(), QStringLiteral("Program Hakkında"));
                      auto& klasor = Parcasi<QLineEdit>(pencere, "Klasor");
                      QCOMPARE(klasor.text(), QString::fromStdU16String(firma.agac.Kok().u16string()));
                      QVERIFY(klasor.isReadOnly());
                      QVERIFY(
                          Parcasi<QLabel>(pencere, "Surum").text().startsWith(QStringLiteral("Sürüm 2.")));
                      QVERIFY(Parcasi<QTreeWidget>(pencere, "Liste").topLevelItemCount() >= 3);
                      Tusla(Qt::Key_Return);
                      QVERIFY(!firma.program.FormHakkinda.Yuklu());
                  }});
    }
};

VELORA_GUI_TEST(KomutMenuleriTest)
#include "KomutMenuleriTest.moc"
