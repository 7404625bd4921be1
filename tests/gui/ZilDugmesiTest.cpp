#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "destek/Kayitlar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"
#include "reservation/FormKayit.h"
#include "reservation/FormOzelHatirlatma.h"

using namespace velora;
using namespace velora::test;

namespace {

QImage Gorunen(const QToolButton& zil) {
    return zil.icon().pixmap(zil.iconSize()).toImage();
}

/// Counts the windows that come onto the display.
class PencereSayaci : public QObject {
  public:
    PencereSayaci() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* nesne, QEvent* olay) override {
        gorulen += olay->type() == QEvent::Show && qobject_cast<QDialog*>(nesne) != nullptr ? 1 : 0;
        return false;
    }
    int gorulen = 0;
};

} // namespace

/// The bell over the real table and the list behind it. Today is 21 May 2026.
class ZilDugmesiTest : public QObject {
    Q_OBJECT

    static void HatirlatmaKoy(const GuiFirma& firma, MetinBakis gun, const Metin& ad) {
        KayitKoy(firma.agac, Metin(kSalonA) + u"/2026/" + Metin(gun),
                 {.ad = ad, .hatirlat = u"21.05.2026", .check19 = 1});
    }
    static QToolButton& Zil(GuiFirma& firma) { return firma.Bul<QToolButton>("Image3"); }

  private slots:
    void it_blinks_between_two_pictures_that_differ_and_tells_what_it_is() {
        GuiFirma firma;
        HatirlatmaKoy(firma, u"10.09.2026 - Gece", u"Nur");
        firma.Ac();
        const auto& zil = Zil(firma);
        QVERIFY(zil.isVisible());
        QCOMPARE(zil.toolTip(), QStringLiteral("Bu Tarihte Hatırlatma Var"));
        QCOMPARE(zil.accessibleName(), QStringLiteral("Özel Hatırlatma Var"));
        const QImage ilk = Gorunen(zil);
        QVERIFY(!ilk.isNull());
        QTRY_VERIFY_WITH_TIMEOUT(Gorunen(zil) != ilk, 2000);
        QTRY_COMPARE_WITH_TIMEOUT(Gorunen(zil), ilk, 2000);
    }

    void a_refresh_without_a_change_leaves_its_picture_alone() {
        GuiFirma firma;
        HatirlatmaKoy(firma, u"10.09.2026 - Gece", u"Nur");
        firma.Ac();
        firma.Model().OzelHatirlatTimer.aralik = 0;
        Baglayici::HepsiniTazele();
        const qint64 once = Zil(firma).icon().cacheKey();
        Baglayici::HepsiniTazele();
        QCOMPARE(Zil(firma).icon().cacheKey(), once);
        firma.Model().OzelHatirlatTimer_Tick();
        Baglayici::HepsiniTazele();
        QVERIFY(Zil(firma).icon().cacheKey() != once);
    }

    void a_click_lists_what_is_due_and_leaves_the_focus_on_the_table() {
        GuiFirma firma;
        HatirlatmaKoy(firma, u"10.09.2026 - Gece", u"Nur");
        firma.Ac();
        firma.Tablo().setFocus();
        Pencerede([&] { QTest::mouseClick(&Zil(firma), Qt::LeftButton); }, {[](QDialog& pencere) {
                      QCOMPARE(pencere.windowTitle(), QStringLiteral("Özel Hatırlatmalar"));
                      const auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
                      QCOMPARE(SatirYazilari(liste, 0),
                               (QStringList{"10.09.2026 - Gece", "Nur", "Düğün", "0212", "0532"}));
                      QVERIFY(!Parcasi<QPushButton>(pencere, "Command4").isEnabled());
                      QTest::keyClick(&pencere, Qt::Key_Escape);
                  }});
        QVERIFY(!firma.program.FormOzelHatirlatma.Yuklu());
        QTRY_COMPARE(Odaktaki(), QStringLiteral("Picture4"));
    }

    void tab_reaches_it_behind_the_two_lists_and_space_and_enter_open_the_list() {
        GuiFirma firma;
        HatirlatmaKoy(firma, u"10.09.2026 - Gece", u"Nur");
        firma.Ac();
        firma.Bul<QComboBox>("Salon").setFocus();
        QStringList sira;
        for (int i = 0; i < 4; ++i) {
            sira << Odaktaki();
            Tusla(Qt::Key_Tab);
        }
        QCOMPARE(sira, (QStringList{"Salon", "Sene", "Image3", "Picture4"}));
        for (const auto tus : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            Zil(firma).setFocus(Qt::TabFocusReason);
            Pencerede([&] { Tusla(tus); }, {TusBas(Qt::Key_Escape)});
            QTRY_COMPARE(Odaktaki(), QStringLiteral("Image3"));
        }
    }

    void without_it_tab_goes_from_the_lists_to_the_table() {
        GuiFirma firma;
        firma.Ac();
        QVERIFY(!Zil(firma).isVisible());
        firma.Bul<QComboBox>("Sene").setFocus();
        Tusla(Qt::Key_Tab);
        QCOMPARE(Odaktaki(), QStringLiteral("Picture4"));
    }

    void a_screen_reader_finds_a_button_and_can_press_it() {
        GuiFirma firma;
        HatirlatmaKoy(firma, u"10.09.2026 - Gece", u"Nur");
        firma.Ac();
        QAccessibleInterface* arayuz = QAccessible::queryAccessibleInterface(&Zil(firma));
        QCOMPARE(arayuz->role(), QAccessible::Button);
        QCOMPARE(arayuz->text(QAccessible::Name), QStringLiteral("Özel Hatırlatma Var"));
        QVERIFY(arayuz->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
        Pencerede([&] { arayuz->actionInterface()->doAction(QAccessibleActionInterface::pressAction()); },
                  {TusBas(Qt::Key_Escape)});
    }

    void a_record_that_is_opened_by_keys_and_silenced_closes_the_list_and_the_table_has_the_keys() {
        GuiFirma firma;
        HatirlatmaKoy(firma, u"10.09.2026 - Gece", u"Nur");
        firma.Ac();
        Zil(firma).setFocus(Qt::TabFocusReason);
        Pencerede([] { Tusla(Qt::Key_Space); }, {[&](QDialog& pencere) {
                      auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
                      QVERIFY(liste.hasFocus());
                      Tusla(Qt::Key_Return); // no row is marked yet
                      QVERIFY(!firma.program.FormKayit.Yuklu());
                      Tusla(Qt::Key_Down);
                      Pencerede([] { Tusla(Qt::Key_Return); }, {[&](QDialog& kayit) {
                                    QCOMPARE(firma.program.FormKayit->Tarih, Metin(u"10.09.2026 - Gece"));
                                    Tikla(kayit, "Check19");
                                    Tikla(kayit, "Command1");
                                }});
                      QVERIFY(!firma.program.FormOzelHatirlatma.Yuklu());
                  }});
        QVERIFY(!Zil(firma).isVisible());
        QTRY_COMPARE(Odaktaki(), QStringLiteral("Picture4"));
    }

    void a_double_click_on_a_row_opens_its_record() {
        GuiFirma firma;
        HatirlatmaKoy(firma, u"10.09.2026 - Gece", u"Nur");
        HatirlatmaKoy(firma, u"11.10.2026 - Gündüz", u"Can");
        firma.Ac();
        const auto ac = [&](QDialog& pencere) {
            const auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            SatiraTikla(liste, 1); // a double click begins with one
            Pencerede([&] { SatiraCiftTikla(liste, 1); }, {[&](QDialog& kayit) {
                          QCOMPARE(kayit.windowTitle(), QStringLiteral("Kayıt Düzenle"));
                          QCOMPARE(firma.program.FormKayit->Tarih, Metin(u"11.10.2026 - Gündüz"));
                          QTest::keyClick(&kayit, Qt::Key_Escape);
                      }});
            QTest::keyClick(&pencere, Qt::Key_Escape);
        };
        Pencerede([&] { QTest::mouseClick(&Zil(firma), Qt::LeftButton); }, {ac});
    }

    void with_nothing_due_any_more_no_window_even_flashes() {
        GuiFirma firma;
        HatirlatmaKoy(firma, u"10.09.2026 - Gece", u"Nur");
        firma.Ac();
        KayitKoy(firma.agac, Metin(kSalonA) + u"/2026/10.09.2026 - Gece", {.check19 = 0});
        const PencereSayaci sayac;
        QTest::mouseClick(&Zil(firma), Qt::LeftButton);
        QCoreApplication::processEvents();
        QCOMPARE(sayac.gorulen, 0);
        QVERIFY(!firma.program.FormOzelHatirlatma.Yuklu());
    }

    void an_activation_that_unloads_the_list_closes_its_window_and_the_program_goes_on() {
        GuiFirma firma;
        firma.Ac();
        firma.program.FormOzelHatirlatma.GosterModal();
        QVERIFY(!firma.program.FormOzelHatirlatma.Yuklu());
        QVERIFY(firma.disDunya.Pencere(EkranAdi::FormOzelHatirlatma) == nullptr);
        QTest::keyClick(&firma.Tablo(), Qt::Key_Right);
        QVERIFY(!firma.Model().SeciliTarih.empty());
    }
};

VELORA_GUI_TEST(ZilDugmesiTest)
#include "ZilDugmesiTest.moc"
