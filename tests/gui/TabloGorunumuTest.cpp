#include <algorithm>

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "qt/Baglayici.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"
#include "setup/FormAyarlar.h"

using namespace velora;
using namespace velora::test;

namespace {

/// What the screen shows, without any painting for it: at a point of the table, in its device pixels.
QColor Ekrandaki(GuiFirma& firma, QPoint nokta) {
    QCoreApplication::processEvents();
    const QPoint yer = firma.Tablo().mapTo(&firma.Pencere(), nokta);
    return firma.Pencere().screen()->grabWindow(firma.Pencere().winId()).toImage().pixelColor(yer);
}

/// A point on the left side of a frame about the two cells of a day.
QPoint CerceveKenari(GuiFirma& firma, int ay, int gun) {
    const QRect cift = firma.Tablo().Duzen().HucreCifti(ay, gun);
    return {cift.left() - 1, cift.center().y()};
}

QString IpucuMetni(GuiFirma& firma, const QRect& yer) {
    const QPoint nokta = firma.Orta(yer);
    QHelpEvent olay(QEvent::ToolTip, nokta, firma.Tablo().mapToGlobal(nokta));
    QApplication::sendEvent(&firma.Tablo(), &olay);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

} // namespace

/// What the table shows on the screen by itself: only what is asked to be painted is seen here.
class TabloGorunumuTest : public QObject {
    Q_OBJECT

  private slots:
    void the_heads_of_the_day_and_the_month_under_the_pointer_light_up() {
        GuiFirma firma;
        firma.Ac();
        const TabloDuzeni& duzen = firma.Tablo().Duzen();
        const auto renk = [&](const QRect& yer) { return Ekrandaki(firma, yer.topLeft() + QPoint(1, 1)); };
        const QColor sakin(0, 128, 0);
        QTest::mouseMove(&firma.Tablo(), firma.Orta(duzen.Hucre(EkimGece, 8)));
        QTRY_VERIFY(renk(duzen.GunBasligi(8)).lightness() > sakin.lightness() + 30);
        QVERIFY(renk(duzen.AyBasligi(10)).lightness() > sakin.lightness() + 30);
        QCOMPARE(renk(duzen.GunBasligi(9)), sakin);
        QTest::mouseMove(&firma.Tablo(), firma.Orta(duzen.Hucre(MartGunduz, 9)));
        QTRY_COMPARE(renk(duzen.GunBasligi(8)), sakin);
        QTRY_COMPARE(renk(duzen.AyBasligi(10)), sakin);
        QVERIFY(renk(duzen.GunBasligi(9)) != sakin);
        QTest::mouseMove(&firma.Tablo(), {20, 10});
        QTRY_COMPARE(renk(duzen.GunBasligi(9)), sakin);
    }

    void a_new_colour_of_todays_frame_shows_at_once() {
        GuiFirma firma;
        firma.Ac();
        const QPoint kenar = CerceveKenari(firma, 5, 21);
        QCOMPARE(Ekrandaki(firma, kenar), QColor(255, 0, 0));
        firma.program.FormAyarlar->renkler[16] = 0xC06020;
        Baglayici::HepsiniTazele();
        QTRY_COMPARE(Ekrandaki(firma, kenar), QColor(0x20, 0x60, 0xC0));
    }

    void todays_frame_blinks_on_the_screen_while_today_is_taken() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"21.05.2026 - Gece", false);
        firma.Ac();
        const QPoint kenar = CerceveKenari(firma, 5, 21);
        firma.Model().Command6();
        Baglayici::HepsiniTazele();
        QVERIFY(firma.Pencere().findChild<QTimer*>(QStringLiteral("GunTimer")) != nullptr);
        QVERIFY(firma.Bul<QTimer>("GunTimer").isActive());
        QCOMPARE(firma.Bul<QTimer>("GunTimer").interval(), 300);
        for (int kez = 0; kez < 2; ++kez) {
            QTRY_VERIFY_WITH_TIMEOUT(Ekrandaki(firma, kenar) != QColor(255, 0, 0), 2000);
            QTRY_COMPARE_WITH_TIMEOUT(Ekrandaki(firma, kenar), QColor(255, 0, 0), 2000);
        }
    }

    void the_rulers_frame_blinks_on_the_screen_and_goes_along_with_a_resize() {
        GuiFirma firma;
        firma.Ac();
        const QColor turuncu(255, 128, 0);
        QTest::mouseClick(&firma.Tablo(), Qt::LeftButton, {},
                          firma.Orta(firma.Tablo().Duzen().AyBasligi(10)));
        QTest::mouseClick(&firma.Tablo(), Qt::LeftButton, {},
                          firma.Orta(firma.Tablo().Duzen().GunBasligi(17)));
        for (const QSize boy : {QSize(1280, 720), QSize(1600, 900), QSize(1100, 640)}) {
            firma.Pencere().resize(boy);
            QTRY_COMPARE(firma.Pencere().size(), boy);
            const QPoint kenar = CerceveKenari(firma, 10, 17);
            QTRY_COMPARE_WITH_TIMEOUT(Ekrandaki(firma, kenar), turuncu, 2000);
            QTRY_VERIFY_WITH_TIMEOUT(Ekrandaki(firma, kenar) != turuncu, 2000);
        }
    }

    void a_holiday_tells_its_name_in_a_tool_tip_and_other_cells_tell_nothing() {
        GuiFirma firma;
        firma.agac.KoyMetin(u"Tatiller.dll", u"\"29.10.1923\",\"Cumhuriyet Bayramı\",\"Evet\",\"Genel\"\r\n");
        firma.Ac();
        const TabloDuzeni& duzen = firma.Tablo().Duzen();
        QCOMPARE(IpucuMetni(firma, duzen.Hucre(EkimGece, 29)), QStringLiteral("Cumhuriyet Bayramı"));
        QTRY_VERIFY(IpucuMetni(firma, duzen.Hucre(EkimGece, 28)).isEmpty());
        QVERIFY(IpucuMetni(firma, duzen.GunBasligi(29)).isEmpty());
    }

    void the_tool_tip_of_a_holiday_lies_beside_the_hover_label() {
        GuiFirma firma;
        firma.agac.KoyMetin(u"Tatiller.dll", u"\"29.10.1923\",\"Cumhuriyet Bayramı\",\"Evet\",\"Genel\"\r\n"
                                             u"\"31.12.1923\",\"Yılbaşı Gecesi\",\"Evet\",\"Genel\"\r\n"
                                             u"\"01.01.1923\",\"Yılbaşı\",\"Evet\",\"Genel\"\r\n");
        firma.Ac();
        for (const auto& [satir, gun] :
             {std::pair{EkimGece, 29}, {AralikGunduz, 31}, {AralikGece, 31}, {OcakGece, 1}}) {
            const QRect goz = firma.Tablo().Duzen().Hucre(satir, gun);
            QTest::mouseMove(&firma.Tablo(), firma.Orta(goz));
            const auto& etiket = firma.Bul<QLabel>("Ekran");
            QTRY_VERIFY(etiket.isVisible());
            QVERIFY(!IpucuMetni(firma, goz).isEmpty());
            const auto pencereler = QApplication::topLevelWidgets();
            const auto ipucu = std::ranges::find_if(
                pencereler, [](QWidget* p) { return p->isVisible() && p->inherits("QTipLabel"); });
            QVERIFY(ipucu != pencereler.end());
            const QRect etiketYeri(etiket.mapToGlobal(QPoint()), etiket.size());
            QVERIFY(!(*ipucu)->geometry().intersects(etiketYeri));
            QVERIFY(!(*ipucu)->geometry().contains(firma.Tablo().mapToGlobal(firma.Orta(goz))));
        }
    }
};

VELORA_GUI_TEST(TabloGorunumuTest)
#include "TabloGorunumuTest.moc"
