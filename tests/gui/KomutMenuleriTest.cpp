#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/table/KomutMenuleri.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"

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
        QCOMPARE(basliklar, (QStringList{"&Dosya", "&Raporlar", "&Ayarlar"}));
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

    /// By a made-up table: buttons stand by their places, whatever the order of the rows.
    void buttons_of_a_tool_bar_stand_by_their_places_and_take_the_ruler_away_first() {
        GuiFirma firma;
        firma.Ac();
        std::array komutlar{Komutlar()[static_cast<std::size_t>(Komut::Progrset)],
                            Komutlar()[static_cast<std::size_t>(Komut::Arasss)]};
        komutlar[0].arac = {.yer = 13, .baslik = u" Ayar ", .ipucu = u"Ayarlar (F7)"};
        komutlar[1].arac = {.yer = 1, .baslik = u"Bul", .ipucu = u"Bul (F2)"};
        QToolBar serit;
        Baglayici baglayici(firma.program.FormTablo.Tut(), &serit);
        AraclariKur(serit, firma.program, baglayici, komutlar);
        QStringList adlar;
        for (const QAction* girdi : serit.actions())
            adlar << (girdi->isSeparator() ? QStringLiteral("-") : girdi->text());
        QCOMPARE(adlar, (QStringList{"Bul", "-", " Ayar ", "-"}));
        QCOMPARE(serit.actions()[0]->toolTip(), QStringLiteral("Bul (F2)"));
        firma.Model().ALabel_Click(8);
        firma.Model().AyAdi_Click(3);
        QVERIFY(firma.Model().HizliSecim.gorunur);
        serit.show();
        auto* dugme = qobject_cast<QToolButton*>(serit.widgetForAction(serit.actions()[0]));
        Pencerede([&] { QTest::mouseClick(dugme, Qt::LeftButton); }, {[&](QDialog& pencere) {
                      QCOMPARE(pencere.windowTitle(), QStringLiteral("Kayıt Arama"));
                      QVERIFY(!firma.Model().HizliSecim.gorunur);
                      Tikla(pencere, "Command2");
                  }});
        firma.Model().Toolbar1[13].gorunur = false;
        Baglayici::HepsiniTazele();
        QVERIFY(!serit.actions()[2]->isVisible());
        QVERIFY(serit.actions()[3]->isVisible());
    }
};

VELORA_GUI_TEST(KomutMenuleriTest)
#include "KomutMenuleriTest.moc"
