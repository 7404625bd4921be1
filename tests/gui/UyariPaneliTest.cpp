#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

#include "destek/Kayitlar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"
#include "reservation/FormKayit.h"

using namespace velora;
using namespace velora::test;

/// The panel of warnings over the real table. Today is 21 May 2026.
class UyariPaneliTest : public QObject {
    Q_OBJECT

    static QRect PaneldeYeri(GuiFirma& firma) { return firma.Bul<QWidget>("Picture1").geometry(); }

  private slots:
    void it_stands_over_the_table_at_the_start_when_something_is_near() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Ac();
        auto& panel = firma.Bul<QWidget>("Picture1");
        QVERIFY(panel.isVisible());
        QVERIFY(firma.Tablo().rect().contains(panel.geometry()));
        auto& liste = firma.Bul<QTreeWidget>("Liste");
        QCOMPARE(liste.topLevelItemCount(), 1);
        QCOMPARE(liste.topLevelItem(0)->text(0), QStringLiteral("23.05.2026 - Gece"));
        QCOMPARE(liste.topLevelItem(0)->text(6), QStringLiteral("Kesin"));
        QCOMPARE(firma.Bul<QLabel>("UyariBaslik").text(), QStringLiteral("YAKLAŞAN REZERVASYON UYARILARI"));
        QCOMPARE(panel.palette().color(QPalette::Window), QColor(192, 0, 0));
    }

    void it_stands_in_the_very_middle_of_the_table_and_in_the_half_without_todays_month() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Ac();
        for (const QSize boy : {QSize(1280, 720), QSize(1601, 903), QSize(1911, 1011)}) {
            firma.Pencere().resize(boy);
            QTRY_COMPARE(firma.Pencere().size(), boy);
            const QRect panel = PaneldeYeri(firma);
            const int sagda = firma.Tablo().width() - panel.x() - panel.width();
            QVERIFY2(std::abs(panel.x() - sagda) <= 1, qPrintable(QString::number(panel.x() - sagda)));
            const TabloDuzeni& duzen = firma.Tablo().Duzen();
            QVERIFY(!panel.intersects(firma.Tablo().Mantiksal(duzen.AyHucreleri(5))));
            QVERIFY(panel.intersects(firma.Tablo().Mantiksal(duzen.AyHucreleri(9))));
        }
    }

    void it_is_as_wide_as_its_rows_need_and_no_wider_than_the_table() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonB, u"23.05.2026 - Gece", true);
        KayitKoy(firma.agac, Metin(kSalonB) + u"/2026/24.05.2026 - Gece",
                 {.ad = u"Abdurrahman Kaya Tekinalp Yıldırımoğlu Karaosmanoğlu"}, true);
        firma.Ac();
        const auto& liste = firma.Bul<QTreeWidget>("Liste");
        firma.Pencere().resize(1800, 900);
        QTRY_VERIFY(liste.topLevelItemCount() == 2 && firma.Pencere().width() == 1800);
        QTRY_VERIFY(!liste.horizontalScrollBar()->isVisible());
        firma.Pencere().resize(1000, 600);
        QTRY_VERIFY(firma.Tablo().rect().contains(firma.Bul<QWidget>("Picture1").geometry()));
    }

    void each_column_is_as_wide_as_its_widest_text_also_when_other_rows_are_listed() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Ac({1800, 900});
        auto& liste = firma.Bul<QTreeWidget>("Liste");
        const QAbstractItemView& gorunum = liste;
        const auto satirlar = [](int adet, int genis, MetinBakis ad, bool kalin) {
            std::vector<ListeSatiri> yeni;
            for (int i = 0; i < adet; ++i)
                yeni.push_back({{u"23.05.2026 - Gece", u"Salon", i == genis ? Metin(ad) : Metin(u"iiii"),
                                 u"çift", u"0212", u"0532", u"Kesin"},
                                u"yol",
                                0,
                                i == genis && kalin});
            return yeni;
        };
        const auto sigiyor = [&] {
            Baglayici::HepsiniTazele();
            for (int sutun = 0; sutun < liste.columnCount() - 1; ++sutun) {
                int en = liste.header()->sectionSizeHint(sutun);
                for (int satir = 0; satir < liste.topLevelItemCount(); ++satir)
                    en = std::max(en, gorunum.sizeHintForIndex(liste.model()->index(satir, sutun)).width());
                if (liste.columnWidth(sutun) != en)
                    return false;
            }
            return true;
        };
        firma.Model().Liste.satirlar = satirlar(60, 43, u"Abdurrahman Yıldırımoğlu", false);
        QVERIFY(sigiyor());
        const int genis = liste.columnWidth(2);
        firma.Model().Liste.satirlar = satirlar(60, 43, u"Abdurrahman Yıldırımoğlu", false);
        QVERIFY2(sigiyor() && liste.columnWidth(2) == genis, "the same again");
        firma.Model().Liste.satirlar = satirlar(60, 43, u"Abdurrahman Yıldırımoğlu", true);
        QVERIFY2(sigiyor() && liste.columnWidth(2) > genis, "in bold");
        firma.Model().Liste.satirlar = satirlar(3, 1, u"Can", false);
        QVERIFY2(sigiyor() && liste.columnWidth(2) < genis, "narrower ones");
    }

    void a_pre_reservation_is_bold_and_a_firm_one_is_not() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", true);
        firma.Rezervasyon(kSalonA, u"24.05.2026 - Gece", false);
        firma.Ac();
        const auto& liste = firma.Bul<QTreeWidget>("Liste");
        for (int sutun = 0; sutun < 7; ++sutun) {
            QVERIFY(liste.topLevelItem(0)->font(sutun).bold());
            QVERIFY(!liste.topLevelItem(1)->font(sutun).bold());
        }
    }

    void with_nothing_near_it_is_not_there() {
        GuiFirma firma;
        firma.Ac();
        QVERIFY(!firma.Bul<QWidget>("Picture1").isVisible());
    }

    void a_pre_reservation_is_green_in_all_columns() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", true);
        firma.Ac();
        for (int sutun = 0; sutun < 7; ++sutun)
            QCOMPARE(firma.Bul<QTreeWidget>("Liste").topLevelItem(0)->foreground(sutun).color(),
                     QColor(0, 192, 0));
    }

    void kapat_and_esc_hide_it_and_presses_on_it_never_reach_the_table() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Ac();
        auto& panel = firma.Bul<QWidget>("Picture1");
        QTest::mouseClick(&panel, Qt::RightButton, {}, {2, 2});
        QCOMPARE(firma.Model().SeciliTarih2, Metin());
        QTest::keyClick(&firma.Bul<QTreeWidget>("Liste"), Qt::Key_Escape);
        QVERIFY(!panel.isVisible());
        firma.Model().Picture1.gorunur = true;
        firma.Model().UyariGoster();
        Baglayici::HepsiniTazele();
        QVERIFY(panel.isVisible());
        QTest::mouseClick(&firma.Bul<QPushButton>("Command2"), Qt::LeftButton);
        QVERIFY(!panel.isVisible());
    }

    void its_list_has_the_focus_while_it_is_up_and_the_table_when_it_is_closed() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonB, u"23.05.2026 - Gece", false);
        firma.Ac();
        auto& panel = firma.Bul<QWidget>("Picture1");
        auto& kapat = firma.Bul<QPushButton>("Command2");
        const std::vector<std::function<void()>> kapatmalar{
            [] { Tusla(Qt::Key_Escape); },
            [&] { QTest::mouseClick(&kapat, Qt::LeftButton); },
            [&] {
                kapat.setFocus();
                Tusla(Qt::Key_Return);
            },
        };
        for (const auto& kapatma : kapatmalar) {
            QCOMPARE(Odaktaki(), QStringLiteral("Liste"));
            kapatma();
            QVERIFY(!panel.isVisible());
            QCOMPARE(Odaktaki(), QStringLiteral("Picture4"));
            Tusla(Qt::Key_Down);
            QCOMPARE(firma.Model().Salon.Metni(), Metin(kSalonA));
            firma.Model().Picture1.gorunur = true;
            Baglayici::HepsiniTazele();
        }
    }

    void a_panel_that_closes_beside_the_focus_leaves_it_where_it_is() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonB, u"23.05.2026 - Gece", false);
        firma.Ac();
        firma.Bul<QWidget>("Sene").setFocus();
        firma.Model().Command2_Click();
        Baglayici::HepsiniTazele();
        QCOMPARE(Odaktaki(), QStringLiteral("Sene"));
    }

    void its_keys_never_work_the_table_under_it_and_enter_opens_the_marked_row() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonB, u"23.05.2026 - Gece", false);
        firma.Rezervasyon(kSalonB, u"25.05.2026 - Gündüz", false);
        firma.Ac();
        const auto enter = [] { Tusla(Qt::Key_Return); };
        Pencerede(enter, {}); // no row is marked yet
        for (const auto tus : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Menu})
            Tusla(tus);
        QCOMPARE(firma.Model().SeciliTarih, Metin());
        QVERIFY(!firma.Bul<QMenu>("Sagtus").isVisible());
        Pencerede(enter, {[&](QDialog& pencere) {
                      QCOMPARE(firma.program.FormKayit->Tarih, Metin(u"25.05.2026 - Gündüz"));
                      QTest::keyClick(&pencere, Qt::Key_Escape);
                  }});
        QCOMPARE(Odaktaki(), QStringLiteral("Liste"));
    }

    void a_clicked_row_opens_by_its_button_and_by_a_double_click() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonB, u"23.05.2026 - Gece", false);
        firma.Ac();
        auto& liste = firma.Bul<QTreeWidget>("Liste");
        auto& detaylar = firma.Bul<QPushButton>("Command8");
        QVERIFY(!detaylar.isEnabled());
        const Is kayitta = [&](QDialog& pencere) {
            QCOMPARE(firma.program.FormKayit->Tarih, Metin(u"23.05.2026 - Gece"));
            QTest::keyClick(&pencere, Qt::Key_Escape);
        };
        const auto enter = [&] { QTest::keyClick(&liste, Qt::Key_Return); };
        SatiraTikla(liste, 0);
        QVERIFY(detaylar.isEnabled());
        Pencerede([&] { QTest::mouseClick(&detaylar, Qt::LeftButton); }, {kayitta});
        QVERIFY(!detaylar.isEnabled());
        SatiraTikla(liste, 0);
        Pencerede([&] { SatiraCiftTikla(liste, 0); }, {kayitta});
        Pencerede(enter, {}); // no row was chosen since
        QTest::keyClick(&liste, Qt::Key_Space);
        Pencerede(enter, {kayitta});
        QCOMPARE(firma.Model().Salon.Metni(), Metin(kSalonB));
    }

    void it_stays_within_a_small_table() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Ac({1000, 560});
        QVERIFY(firma.Tablo().rect().contains(PaneldeYeri(firma)));
    }
};

VELORA_GUI_TEST(UyariPaneliTest)

#include "UyariPaneliTest.moc"
