#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QWindow>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"
#include "reservation/FormKayit.h"

using namespace velora;
using namespace velora::test;

namespace {

QPoint Goz(GuiFirma& firma, SatirAdi satir, int gun) {
    return firma.Orta(firma.Tablo().Duzen().Hucre(satir, gun));
}

/// The pointer arrives at a place of the table, with no button down.
void Uzerine(GuiFirma& firma, QPoint yer) {
    QMouseEvent olay(QEvent::MouseMove, yer, firma.Tablo().mapToGlobal(yer), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&firma.Tablo(), &olay);
}

QMenu& Sagtus(GuiFirma& firma) {
    return firma.Bul<QMenu>("Sagtus");
}

/// Clicks an entry of the open context menu.
void Sec(GuiFirma& firma, const char* ad) {
    QMenu& menu = Sagtus(firma);
    QTRY_VERIFY(menu.isVisible());
    auto* girdi = menu.findChild<QAction*>(QString::fromLatin1(ad));
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(girdi).center());
    QTRY_VERIFY(!menu.isVisible());
}

/// In the record of a day, new or old.
Is Kayitta(GuiFirma& firma, const QString& baslik, MetinBakis gun) {
    return [=, &firma](QDialog& kayit) {
        QCOMPARE(kayit.windowTitle(), baslik);
        QCOMPARE(firma.program.FormKayit->Tarih, Metin(gun));
    };
}

} // namespace

class TabloGirisiTest : public QObject {
    Q_OBJECT

  private slots:
    void the_hover_label_shows_the_day_beside_the_pointer_and_goes_when_it_leaves_the_cells() {
        GuiFirma firma;
        firma.Ac();
        auto& etiket = firma.Bul<QLabel>("Ekran");
        QVERIFY(!etiket.isVisible());
        const QPoint yer = Goz(firma, EylulGece, 10);
        Uzerine(firma, yer);
        QVERIFY(etiket.isVisible());
        QCOMPARE(etiket.text(), QStringLiteral("10.09.2026\n Perşembe - Gece "));
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"10.09.2026 - Gece"));
        QVERIFY(!etiket.geometry().contains(yer));
        Uzerine(firma, {20, 10});
        QVERIFY(!etiket.isVisible());
        Uzerine(firma, yer);
        QEvent ayrilma(QEvent::Leave);
        QApplication::sendEvent(&firma.Tablo(), &ayrilma);
        QVERIFY(!etiket.isVisible());
    }

    void the_hover_label_never_leaves_the_table_nor_covers_the_pointer() {
        GuiFirma firma;
        firma.Ac();
        const auto& etiket = firma.Bul<QLabel>("Ekran");
        const TabloDuzeni& duzen = firma.Tablo().Duzen();
        for (const SatirAdi satir : {OcakGunduz, OcakGece, HaziranGece, AralikGunduz, AralikGece})
            for (const int gun : {1, 16, 27, 28, 29, 30, 31}) {
                if (!firma.Model().Gozu(satir, gun).gorunur)
                    continue;
                const QRect goz = firma.Tablo().Mantiksal(duzen.Hucre(satir, gun)).adjusted(1, 1, -1, -1);
                for (const QPoint yer :
                     {goz.topLeft(), goz.topRight(), goz.bottomLeft(), goz.bottomRight()}) {
                    Uzerine(firma, yer);
                    QVERIFY(etiket.isVisible());
                    QVERIFY(firma.Tablo().rect().contains(etiket.geometry()));
                    QVERIFY2(!etiket.geometry().contains(yer), qPrintable(etiket.text()));
                }
            }
    }

    void a_right_press_opens_the_menu_with_the_models_entries_and_lines_between_them() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gündüz", false);
        firma.Ac();
        QTest::mousePress(&firma.Tablo(), Qt::RightButton, {}, Goz(firma, EylulGunduz, 11));
        QMenu& menu = Sagtus(firma);
        QTRY_VERIFY(menu.isVisible());
        QStringList girdiler;
        for (const QAction* girdi : menu.actions())
            girdiler << (girdi->isSeparator() ? QStringLiteral("-") : Isaretsiz(girdi->text()));
        QCOMPARE(girdiler, QStringList({QStringLiteral("Yeni Organizasyon Oluştur"), QStringLiteral("-"),
                                        QStringLiteral("Taşıma Modunu Aç"), QStringLiteral("-"),
                                        QStringLiteral("Kayıt İptali")}));
        QVERIFY(menu.actions()[0]->isEnabled());
        QVERIFY(!menu.actions()[4]->isEnabled());
        menu.close();
        QTest::mousePress(&firma.Tablo(), Qt::RightButton, {}, Goz(firma, EylulGunduz, 10));
        QVERIFY(!menu.actions()[0]->isEnabled());
        QVERIFY(menu.actions()[4]->isEnabled());
        QCOMPARE(firma.Model().SeciliTarih2, Metin(u"10.09.2026 - Gündüz"));
        menu.close();
        QTest::mousePress(&firma.Tablo(), Qt::LeftButton, {}, Goz(firma, EylulGunduz, 10));
        QVERIFY(!menu.isVisible());
    }

    void a_right_press_with_a_shaking_hand_chooses_nothing_when_it_is_let_go() {
        GuiFirma firma;
        firma.Ac();
        // Through the window, so that the toolkit itself finds the menu under the pointer.
        QWindow* pencere = firma.Pencere().windowHandle();
        const QPoint yer = firma.Tablo().mapTo(&firma.Pencere(), Goz(firma, EylulGece, 11));
        const auto salla = [&] {
            QTest::mousePress(pencere, Qt::RightButton, {}, yer);
            for (int kay = 1; kay <= 8; ++kay)
                QTest::mouseMove(pencere, yer + QPoint(kay, kay));
            QVERIFY2(Sagtus(firma).activeAction() == nullptr, "an entry looks as if it were chosen");
            QTest::mouseRelease(pencere, Qt::RightButton, {}, yer + QPoint(8, 8));
            QCoreApplication::processEvents();
        };
        Pencerede(salla, {});
        QMenu& menu = Sagtus(firma);
        QVERIFY(menu.isVisible());
        QVERIFY(!firma.program.FormKayit.Yuklu());
        const auto sec = [&] {
            QTest::mouseClick(pencere, Qt::LeftButton, {}, yer + QPoint(8, 8));
            QTRY_VERIFY(!menu.isVisible());
        };
        Pencerede(sec, {Kayitta(firma, QStringLiteral("Yeni Kayıt"), u"11.09.2026 - Gece")});
    }

    void a_press_without_a_movement_before_it_names_the_pressed_day() {
        GuiFirma firma;
        firma.Ac();
        Uzerine(firma, Goz(firma, MartGece, 3));
        QTest::mousePress(&firma.Tablo(), Qt::LeftButton, {}, Goz(firma, EylulGunduz, 11));
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"11.09.2026 - Gündüz"));
        QCOMPARE(firma.Model().SeciliTarih2, Metin(u"11.09.2026 - Gündüz"));
    }

    void no_hover_reaches_the_cells_while_the_menu_is_open() {
        GuiFirma firma;
        firma.Ac();
        QTest::mousePress(&firma.Tablo(), Qt::RightButton, {}, Goz(firma, EylulGunduz, 11));
        QTRY_VERIFY(Sagtus(firma).isVisible());
        Uzerine(firma, Goz(firma, MartGece, 3));
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"11.09.2026 - Gündüz"));
        Sagtus(firma).close();
        Uzerine(firma, Goz(firma, MartGece, 3));
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"03.03.2026 - Gece"));
    }

    void no_hover_reaches_the_cells_while_a_box_is_open() {
        GuiFirma firma;
        firma.Ac();
        Uzerine(firma, Goz(firma, EylulGunduz, 11));
        Metin kutuda;
        Pencerede([&] { firma.program.ortam.sor.mesaj({u"Bir soru"}); }, {[&](QDialog&) {
                      Uzerine(firma, Goz(firma, MartGece, 3));
                      kutuda = firma.Model().SeciliTarih;
                  }});
        QCOMPARE(kutuda, Metin(u"11.09.2026 - Gündüz"));
        Uzerine(firma, Goz(firma, MartGece, 3));
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"03.03.2026 - Gece"));
    }

    void no_hover_reaches_the_cells_while_a_button_is_down() {
        GuiFirma firma;
        firma.Ac();
        const QPoint yer = Goz(firma, MartGece, 3);
        QTest::mousePress(&firma.Tablo(), Qt::LeftButton, {}, Goz(firma, EylulGunduz, 11));
        QMouseEvent olay(QEvent::MouseMove, yer, firma.Tablo().mapToGlobal(yer), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&firma.Tablo(), &olay);
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"11.09.2026 - Gündüz"));
    }

    void a_double_click_opens_the_reservation_once_and_on_a_free_cell_nothing() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gündüz", false);
        firma.Ac();
        const auto ciftTikla = [&](int gun) {
            QTest::mouseDClick(&firma.Tablo(), Qt::LeftButton, {}, Goz(firma, EylulGunduz, gun));
        };
        Pencerede([&] { ciftTikla(10); },
                  {Kayitta(firma, QStringLiteral("Kayıt Düzenle"), u"10.09.2026 - Gündüz")});
        Pencerede([&] { ciftTikla(11); }, {});
    }

    void an_entry_of_the_menu_begins_a_new_reservation_on_the_pressed_day() {
        GuiFirma firma;
        firma.Ac();
        QTest::mousePress(&firma.Tablo(), Qt::RightButton, {}, Goz(firma, EylulGece, 11));
        const auto sec = [&] {
            Sec(firma, "newkay");
            QTRY_VERIFY(firma.program.FormKayit.Yuklu()); // the entry's turn comes after the menu's
        };
        Pencerede(sec, {Kayitta(firma, QStringLiteral("Yeni Kayıt"), u"11.09.2026 - Gece")});
        QCOMPARE(firma.Model().SeciliTarih, Metin(u"11.09.2026 - Gece"));
    }

    void a_reservation_is_cancelled_through_the_menu_and_its_two_boxes() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gündüz", false);
        firma.Ac();
        QTest::mousePress(&firma.Tablo(), Qt::RightButton, {}, Goz(firma, EylulGunduz, 10));
        const auto iptal = [&] {
            Sec(firma, "iptals");
            QTRY_VERIFY(firma.agac.DosyaVar(u"IptalSebep.txt"));
        };
        Pencerede(iptal, {Mesaj(QStringLiteral("Seçili kaydı silmek istediğinizden emin misiniz?"),
                                QStringLiteral("Evet")),
                          Girdi(QStringLiteral("vazgeçti"))});
        QVERIFY(!firma.agac.DosyaVar(Metin(kSalonA) + u"/2026/10.09.2026 - Gündüz"));
        QVERIFY(firma.agac.Bayt(u"IptalSebep.txt").ends_with(" - vazge\xE7ti\r\n"));
    }
};

VELORA_GUI_TEST(TabloGirisiTest)
#include "TabloGirisiTest.moc"
