#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

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
