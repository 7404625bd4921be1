#include <filesystem>

#include <QComboBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "access/FormSifre.h"
#include "access/Splash.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"

using namespace velora;
using namespace velora::test;

namespace {

/// What the mark of a step shows, as a picture.
QImage Isik(const QDialog& acilis, int adim) {
    return Parcasi<QLabel>(acilis, qPrintable(QStringLiteral("Loading%1").arg(adim))).pixmap().toImage();
}

} // namespace

/// The window of the start, and what the network does to the windows behind it.
class AcilisPenceresiTest : public QObject {
    Q_OBJECT

    static void DosyalariKoy(const GuiFirma& firma) {
        firma.agac.Koy(u"Firma.dll", "\"G\"\r\n");
        firma.agac.Koy(u"Menuler.dat", "\"K\",\"e\"\r\n");
        firma.agac.Koy(u"Sozlesme.dat", "\"S\",\"1\"\r\n");
        firma.agac.Koy(u"User.dll",
                       "\"admin\",\"g5\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\"\r\n");
        firma.agac.Koy(u"Adresler.dat", "\"http://servis.test\",\"http://site.test\",\"\",\"\"\r\n");
    }
    static QDialog& Baslat(GuiFirma& firma) {
        DosyalariKoy(firma);
        firma.program.Splash->Baslat();
        auto& acilis = dynamic_cast<QDialog&>(*firma.disDunya.Pencere(EkranAdi::Splash));
        if (!QTest::qWaitForWindowExposed(&acilis))
            qFatal("The window of the start doesn't come up.");
        return acilis;
    }
    /// The window of a screen that is shown beside the others, once it has the keyboard.
    static QDialog& Gelen(const GuiFirma& firma, EkranAdi ekran) {
        auto& pencere = dynamic_cast<QDialog&>(*firma.disDunya.Pencere(ekran));
        if (!QTest::qWaitForWindowActive(&pencere))
            qFatal("The window doesn't come up.");
        return pencere;
    }
    /// A network that answers nothing, and does this instead; each request counts.
    static void AgKoy(GuiFirma& firma, int& istekler, std::function<void()> is) {
        Ortam::Ag& ag = firma.program.ortam.ag;
        ag.baglantiVar = [] { return true; };
        ag.getir = [&istekler, is = std::move(is)](const AgIstegi&) {
            ++istekler;
            is();
            return Metin();
        };
        BeklerkenGoster(firma.program.ortam);
    }

  private slots:
    void it_tells_its_version_and_lights_a_mark_at_each_step() {
        GuiFirma firma;
        QDialog& acilis = Baslat(firma);
        QCOMPARE(Parcasi<QLabel>(acilis, "Label2").text(), QStringLiteral("Sürüm 2.0.5"));
        QCOMPARE(Parcasi<QLabel>(acilis, "Label3").text(), QStringLiteral("Yüklemeye başlanıyor"));
        QVERIFY(Isik(acilis, 1) != Isik(acilis, 2));
        QTRY_COMPARE(Parcasi<QLabel>(acilis, "Label3").text(),
                     QStringLiteral("Veri tabanı kontrol ediliyor..."));
        QCOMPARE(Isik(acilis, 2), Isik(acilis, 1));
        QVERIFY(Isik(acilis, 3) != Isik(acilis, 1));
        QCOMPARE(Parcasi<QLabel>(acilis, "Label3").accessibleName(),
                 QStringLiteral("Veri tabanı kontrol ediliyor..."));
    }

    void behind_its_last_tick_the_login_has_the_keyboard_and_its_own_window_is_gone() {
        GuiFirma firma;
        Baslat(firma);
        firma.program.Splash->Tag = u"67";
        QTRY_VERIFY(firma.disDunya.Pencere(EkranAdi::FormSifre) != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(firma.disDunya.Pencere(EkranAdi::FormSifre)));
        QCOMPARE(firma.disDunya.Pencere(EkranAdi::Splash), nullptr);
        QVERIFY(firma.program.Splash.Yuklu());
        QCOMPARE(firma.bitisler, 0);
    }

    void no_key_closes_it_but_closing_its_window_ends_the_program() {
        GuiFirma firma;
        QDialog& acilis = Baslat(firma);
        for (const Qt::Key tus : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space})
            QTest::keyClick(&acilis, tus);
        QVERIFY(acilis.isVisible());
        QCOMPARE(firma.bitisler, 0);
        acilis.close();
        QCOMPARE(firma.bitisler, 1);
        QVERIFY(!firma.program.Splash.Yuklu());
    }

    void a_window_closed_while_the_service_is_asked_leaves_nothing_behind() {
        GuiFirma firma;
        int istekler = 0;
        QPointer<QWidget> acilis;
        AgKoy(firma, istekler, [&] {
            if (acilis != nullptr)
                acilis->close();
            QCoreApplication::processEvents();
            QVERIFY(acilis != nullptr); // the handler that waits here is still its own
        });
        acilis = &Baslat(firma);
        QTRY_COMPARE(firma.bitisler, 1);
        QTRY_VERIFY(acilis == nullptr); // and with it the timer of the ladder
        QCOMPARE(istekler, 1);
        QVERIFY(!firma.program.Splash.Yuklu());
        QVERIFY(!firma.program.FormSifre.Yuklu());
    }

    void the_first_run_leads_through_its_windows_by_keys_to_a_hall_and_the_program_goes_on_running() {
        GuiFirma firma;
        std::filesystem::remove(firma.agac.Yol(u"Salon.dat"));
        firma.gercektenBiter = true;
        firma.program.Splash->Baslat();
        QDialog& profil = Gelen(firma, EkranAdi::FormFirma);
        for (const char* ad : {"t1", "t2", "t3", "t4", "t5", "t6", "t7"})
            AlanaYaz(profil, ad, QStringLiteral("deneme %1").arg(QString::fromLatin1(ad)));
        for (const char* ad : {"t13", "t8"}) {
            Parcasi<QComboBox>(profil, ad).setFocus();
            Tusla(Qt::Key_Down);
        }
        Parcasi<QComboBox>(profil, "t9").setFocus();
        Tusla(Qt::Key_Down);
        Tusla(Qt::Key_Return);
        QDialog& parola = Gelen(firma, EkranAdi::FormSifreDegistir);
        QCOMPARE(firma.disDunya.Pencere(EkranAdi::FormFirma), nullptr);
        AlanaYaz(parola, "Text1", QStringLiteral("p7"));
        AlanaYaz(parola, "Text2", QStringLiteral("p7"));
        Pencerede([] { Tusla(Qt::Key_Return); },
                  {Mesaj(QStringLiteral("Önce salon tanımı yapmalısınız!\nŞimdi salon tanımı yapmak ister "
                                        "misiniz?"),
                         QStringLiteral("Hayır")),
                   Mesaj(QStringLiteral("Salon tanımı yapmadan rezervasyon kaydı oluşturamazsınız!\n"
                                        "Lütfen önce salon tanımı yapınız!")),
                   [](QDialog& salonlar) {
                       QVERIFY(!Parcasi<QPushButton>(salonlar, "Command3").isEnabled());
                       salonlar.close();
                       QVERIFY(salonlar.isVisible());
                       Pencerede([&] { Tikla(salonlar, "Command1"); }, {Girdi(QStringLiteral("gül"))});
                       Tikla(salonlar, "Command3");
                   }});
        QCOMPARE(firma.Model().Salon.Metni(), Metin(u"Gül"));
        QVERIFY(QTest::qWaitForWindowActive(&firma.Pencere()));
        QCOMPARE(firma.bitisler, 0);
    }

    void while_the_table_asks_for_the_service_again_its_keys_and_its_cells_go_on_working() {
        GuiFirma firma;
        DosyalariKoy(firma);
        int istekler = 0;
        bool arandi = false;
        bool boyandi = false;
        const auto bekleyis = [&] {
            if (istekler > 1)
                return;
            firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
            firma.Model().Command1();
            const RenkDegeri dolu = firma.Model().Gozu(9, GunduzGece::Gece, 10).zemin;
            const QRect yer = firma.Tablo().Duzen().Hucre(EylulGece, 10);
            QTRY_COMPARE(firma.Tablo().grab().toImage().pixelColor(yer.topLeft() + QPoint(4, 4)),
                         QRenk(dolu));
            boyandi = true;
            Pencerede([&] { QTest::keyClick(&firma.Tablo(), Qt::Key_F2); }, {[&](QDialog& arama) {
                          arandi = true;
                          QTest::keyClick(&arama, Qt::Key_Escape);
                      }});
        };
        firma.Ac();
        AgKoy(firma, istekler, bekleyis);
        // The menu's handler is one that drops other presses as long as it runs: nothing may wait within it.
        QAction& ayarlar = firma.Bul<QAction>("Progrset");
        Pencerede([&] { ayarlar.trigger(); }, {TusBas(Qt::Key_Escape)});
        QVERIFY(firma.Model().InternetTimer.aralik > 0);
        Pencerede([&] { ayarlar.trigger(); }, {[&](QDialog& pencere) {
                      QTest::qWait(3 * firma.Model().InternetTimer.aralik);
                      QCOMPARE(istekler, 0);
                      QTest::keyClick(&pencere, Qt::Key_Escape);
                  }});
        QTRY_VERIFY(arandi);
        QVERIFY(boyandi);
    }
};

VELORA_GUI_TEST(AcilisPenceresiTest)
#include "AcilisPenceresiTest.moc"
