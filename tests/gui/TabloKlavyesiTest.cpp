#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QWindow>

#include "destek/Kayitlar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"
#include "reservation/FormKayit.h"
#include "setup/FormAyarlar.h"

using namespace velora;
using namespace velora::test;

namespace {

void Tus(GuiFirma& firma, Qt::Key tus, int kez = 1) {
    for (int i = 0; i < kez; ++i)
        QTest::keyClick(&firma.Tablo(), tus);
}

QColor Renk(GuiFirma& firma, SatirAdi satir, int gun, QPoint kaydir) {
    const QRect yer = firma.Tablo().Duzen().Hucre(satir, gun);
    return firma.Tablo().grab().toImage().pixelColor(yer.topLeft() + kaydir);
}

} // namespace

class TabloKlavyesiTest : public QObject {
    Q_OBJECT

  private slots:
    void the_first_key_starts_at_today_and_its_label_and_day_follow() {
        GuiFirma firma;
        firma.Ac();
        Tus(firma, Qt::Key_Right);
        QCOMPARE(firma.Model().SeciliTarih.substr(0, 10), Metin(u"21.05.2026"));
        QVERIFY(firma.Bul<QLabel>("Ekran").isVisible());
        QVERIFY(firma.Bul<QLabel>("Ekran").text().startsWith(QStringLiteral("21.05.2026\n Perşembe - ")));
    }

    void arrows_go_by_days_and_rows_as_they_stand_on_the_screen() {
        GuiFirma firma;
        firma.agac.KoyMetin(u"Settings.dll", AyarMetni(30, u"\"Gündüz / Gece\""));
        firma.agac.KoyMetin(u"Visible.dll", u"1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
        firma.Ac();
        Tus(firma, Qt::Key_Right);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"21.05.2026 - Gündüz"));
        Tus(firma, Qt::Key_Right);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"22.05.2026 - Gündüz"));
        Tus(firma, Qt::Key_Left, 3);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"19.05.2026 - Gündüz"));
        Tus(firma, Qt::Key_Down);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"19.05.2026 - Gece"));
        Tus(firma, Qt::Key_Down);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"19.06.2026 - Gündüz"));
        Tus(firma, Qt::Key_Up, 3);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"19.04.2026 - Gece"));
    }

    void up_goes_from_the_day_row_to_the_evening_row_when_that_stands_on_top() {
        GuiFirma firma;
        firma.Ac();
        Tus(firma, Qt::Key_Right);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"21.05.2026 - Gece"));
        Tus(firma, Qt::Key_Down);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"21.05.2026 - Gündüz"));
        Tus(firma, Qt::Key_Up);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"21.05.2026 - Gece"));
    }

    void home_and_end_go_to_the_ends_of_the_month_and_page_keys_by_months_with_the_slot_kept() {
        GuiFirma firma;
        firma.Ac();
        Tus(firma, Qt::Key_Right);
        Tus(firma, Qt::Key_End);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"31.05.2026 - Gece"));
        Tus(firma, Qt::Key_PageDown);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"30.06.2026 - Gece"));
        Tus(firma, Qt::Key_Home);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"01.06.2026 - Gece"));
        Tus(firma, Qt::Key_Left);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"01.06.2026 - Gece"));
        Tus(firma, Qt::Key_PageUp, 20);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"01.01.2026 - Gece"));
        Tus(firma, Qt::Key_PageDown, 20);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"01.12.2026 - Gece"));
    }

    void a_month_that_is_switched_off_is_passed_over() {
        GuiFirma firma;
        firma.agac.KoyMetin(u"Settings.dll", AyarMetni());
        firma.agac.KoyMetin(u"Visible.dll", u"1,1,1,1,1,0,1,1,1,1,1,1,1\r\n");
        firma.Ac();
        Tus(firma, Qt::Key_Right);
        Tus(firma, Qt::Key_PageDown);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"21.07.2026 - Gece"));
    }

    void with_all_months_off_the_keys_do_nothing() {
        GuiFirma firma;
        firma.agac.KoyMetin(u"Settings.dll", AyarMetni());
        firma.agac.KoyMetin(u"Visible.dll", u"0,0,0,0,0,0,0,0,0,0,0,0,0\r\n");
        firma.Ac();
        for (const auto tus : {Qt::Key_Right, Qt::Key_Return, Qt::Key_Menu, Qt::Key_End})
            Tus(firma, tus);
        QCOMPARE(firma.Model().SeciliTarih, Metin());
        QVERIFY(!firma.Bul<QMenu>("Sagtus").isVisible());
    }

    void keys_go_on_from_where_the_mouse_was() {
        GuiFirma firma;
        firma.Ac();
        const QPoint yer = firma.Orta(firma.Tablo().Duzen().Hucre(MartGunduz, 3));
        QTest::mouseMove(&firma.Tablo(), yer);
        QTRY_COMPARE(firma.Model().SeciliTarih, Metin(u"03.03.2026 - Gündüz"));
        Tus(firma, Qt::Key_Right);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"04.03.2026 - Gündüz"));
    }

    void enter_opens_the_reservation_and_in_move_mode_a_draggable_cell_does_not_open() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"21.05.2026 - Gece", false);
        firma.Ac();
        const auto bas = [&](Qt::Key tus) { return [&firma, tus] { Tus(firma, tus); }; };
        const Is kayitta = [&](QDialog&) {
            QCOMPARE(firma.program.FormKayit->Tarih, Metin(u"21.05.2026 - Gece"));
        };
        Tus(firma, Qt::Key_Right);
        Pencerede(bas(Qt::Key_Return), {kayitta});
        Pencerede(bas(Qt::Key_Enter), {kayitta});
        firma.Model().TasimaModuAc_Click();
        Pencerede(bas(Qt::Key_Return), {});
        Pencerede(bas(Qt::Key_Menu), {});
        QVERIFY(!firma.Bul<QMenu>("Sagtus").isVisible());
    }

    void the_menu_key_is_a_press_with_the_menu() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"21.05.2026 - Gece", false);
        firma.Ac();
        Tus(firma, Qt::Key_Right);
        Tus(firma, Qt::Key_Menu);
        auto& menu = firma.Bul<QMenu>("Sagtus");
        QTRY_VERIFY(menu.isVisible());
        QCOMPARE(firma.Model().SeciliTarih2, Metin(u"21.05.2026 - Gece"));
        QVERIFY(firma.Model().Girdi(Komut::iptals).etkin);
        menu.close();
        QContextMenuEvent olay(QContextMenuEvent::Keyboard, {5, 5}, firma.Tablo().mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&firma.Tablo(), &olay);
        QTRY_VERIFY(menu.isVisible());
        menu.close();
        QTest::keyClick(firma.Pencere().windowHandle(), Qt::Key_F10, Qt::ShiftModifier);
        QTRY_VERIFY(menu.isVisible());
        menu.close();
        QTest::keyClick(firma.Pencere().windowHandle(), Qt::Key_F10, Qt::ControlModifier);
        QVERIFY(!menu.isVisible());
    }

    void no_key_works_a_day_that_the_panel_of_warnings_covers() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Rezervasyon(kSalonA, u"21.09.2026 - Gece", false);
        firma.Ac();
        const auto& panel = firma.Bul<QWidget>("Picture1");
        const auto orta = [&](SatirAdi satir, int gun) {
            return firma.Orta(firma.Tablo().Duzen().Hucre(satir, gun));
        };
        const auto ortulu = [&](SatirAdi satir) { return panel.geometry().contains(orta(satir, 21)); };
        QVERIFY(ortulu(EylulGece));
        QVERIFY(!ortulu(MayisGece) && !ortulu(HaziranGece));
        // The pointer was there before the panel came.
        firma.Model().Command2_Click();
        Baglayici::HepsiniTazele();
        QTest::mouseMove(&firma.Tablo(), orta(EylulGece, 21));
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"21.09.2026 - Gece"));
        firma.Model().UyariGoster();
        Baglayici::HepsiniTazele();
        QVERIFY(panel.isVisible());
        firma.Tablo().setFocus();
        const auto tuslar = [&] {
            for (const auto tus : {Qt::Key_Return, Qt::Key_Menu})
                Tus(firma, tus);
        };
        Pencerede(tuslar, {});
        QVERIFY(!firma.Bul<QMenu>("Sagtus").isVisible());
        SatirAdi ust = EylulGece;
        while (ortulu(ust))
            ust = static_cast<SatirAdi>(ust - 2);
        Tus(firma, Qt::Key_PageUp);
        QCOMPARE(firma.Model().SeciliTarih,
                 Metin(u"21.") + IkiHane(static_cast<unsigned>(SatirAyi(ust))) + u".2026 - Gece");
    }

    void the_mark_of_the_pointer_cell_shows_for_the_keys_only_and_leaves_its_colour_to_be_seen() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"21.05.2026 - Gece", false);
        firma.Ac();
        const QColor dolu(192, 0, 0);
        const QPoint kenar(0, 0);
        const QPoint icerisi(4, 4);
        firma.Model().BuGun.gorunur = false;
        Baglayici::HepsiniTazele();
        QCOMPARE(Renk(firma, MayisGece, 21, kenar), dolu);
        Tus(firma, Qt::Key_Right);
        QCOMPARE(Renk(firma, MayisGece, 21, kenar), QColor(32, 33, 36));
        QCOMPARE(Renk(firma, MayisGece, 21, icerisi), dolu);
        Tus(firma, Qt::Key_Right);
        QCOMPARE(Renk(firma, MayisGece, 21, kenar), dolu);
        QCOMPARE(Renk(firma, MayisGece, 22, kenar), QColor(32, 33, 36));
        QTest::mouseMove(&firma.Tablo(), firma.Orta(firma.Tablo().Duzen().Hucre(EkimGece, 8)));
        QTRY_VERIFY(Renk(firma, MayisGece, 22, kenar) != QColor(32, 33, 36));
    }
};

VELORA_GUI_TEST(TabloKlavyesiTest)
#include "TabloKlavyesiTest.moc"
