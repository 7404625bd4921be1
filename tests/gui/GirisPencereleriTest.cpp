#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "access/FormSifre.h"
#include "access/FormSifreDegistir.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/table/TabloPenceresi.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr std::string_view kKullanicilar =
    "\"admin\",\"g5\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"0\",\"1\"\r\n"
    "\"can\",\"c9\",\"0\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"0\",\"0\",\"1\"\r\n";

/// The window of a screen that was shown beside the others, once it has the keyboard.
QDialog& Penceresi(const GuiFirma& firma, EkranAdi ekran) {
    auto& pencere = dynamic_cast<QDialog&>(*firma.disDunya.Pencere(ekran));
    if (!QTest::qWaitForWindowActive(&pencere))
        qFatal("The window doesn't come up.");
    return pencere;
}

QDialog& GirisAc(GuiFirma& firma) {
    firma.agac.Koy(u"User.dll", kKullanicilar);
    firma.program.FormSifre.Goster();
    return Penceresi(firma, EkranAdi::FormSifre);
}

} // namespace

class GirisPencereleriTest : public QObject {
    Q_OBJECT

  private slots:
    void the_focus_starts_in_the_password_and_enter_logs_in() {
        GuiFirma firma;
        QDialog& giris = GirisAc(firma);
        QCOMPARE(giris.windowTitle(), QStringLiteral("Kullanıcı Girişi"));
        QCOMPARE(Parcasi<QLabel>(giris, "Label8").text(), QStringLiteral("Kullanıcı Girişi"));
        QCOMPARE(Parcasi<QLabel>(giris, "Label1").text(),
                 QStringLiteral("Programa giriş için kullanıcı adınızı seçip parolanızı giriniz."));
        QCOMPARE(Odaktaki(), QStringLiteral("Text2"));
        QCOMPARE(Parcasi<QComboBox>(giris, "Text1").currentText(), QStringLiteral("admin"));
        QCOMPARE(Parcasi<QComboBox>(giris, "Text1").width(), Parcasi<QLineEdit>(giris, "Text2").width());
        Yaz(QStringLiteral("g5"));
        Tusla(Qt::Key_Return);
        QVERIFY(!firma.program.FormSifre.Yuklu());
        QVERIFY(QTest::qWaitForWindowActive(&firma.Pencere()));
        QCOMPARE(firma.Model().UserNamem, Metin(u"admin"));
        QCOMPARE(firma.bitisler, 0);
    }

    void a_user_is_picked_from_the_list_and_does_not_see_what_he_has_no_right_to() {
        GuiFirma firma;
        QDialog& giris = GirisAc(firma);
        auto& ad = Parcasi<QComboBox>(giris, "Text1");
        QCOMPARE(ad.count(), 2);
        ad.setFocus();
        QTest::keyClick(&ad, Qt::Key_Down);
        QCOMPARE(firma.program.FormSifre->Text1.metin, Metin(u"can"));
        AlanaYaz(giris, "Text2", QStringLiteral("c9"));
        Tikla(giris, "Command1");
        QVERIFY(QTest::qWaitForWindowActive(&firma.Pencere()));
        QVERIFY(!firma.Bul<QAction>("BakiyeRaporss").isVisible());
        QVERIFY(!firma.Bul<QAction>("KulTanimssss").isVisible());
        QVERIFY(!firma.Bul<QAction>("Guvenliksss").isVisible());
        QVERIFY(firma.Bul<QAction>("Progrset").isVisible());
        Pencerede([&] { QTest::keyClick(&firma.Pencere(), Qt::Key_F3); }, {});
    }

    void a_name_can_be_typed_and_after_a_wrong_password_picked_again() {
        GuiFirma firma;
        QDialog& giris = GirisAc(firma);
        auto& ad = Parcasi<QComboBox>(giris, "Text1");
        ad.setFocus();
        ad.lineEdit()->selectAll();
        Yaz(QStringLiteral("Ayşe"));
        QCOMPARE(firma.program.FormSifre->Text1.metin, Metin(u"Ayşe"));
        AlanaYaz(giris, "Text2", QStringLiteral("yok"));
        Pencerede([] { Tusla(Qt::Key_Return); },
                  {Mesaj(QStringLiteral("Hatalı parola girdiniz!\nLütfen bilgilerinizi kontrol ediniz!"))});
        QCOMPARE(ad.currentText(), QString());
        QCOMPARE(Parcasi<QLineEdit>(giris, "Text2").text(), QString());
        QTRY_COMPARE(Odaktaki(), QStringLiteral("Text2"));
        ad.setFocus();
        QTest::keyClick(&ad, Qt::Key_Down);
        QCOMPARE(ad.currentText(), QStringLiteral("admin"));
        QCOMPARE(firma.program.FormSifre->Text1.metin, Metin(u"admin"));
    }

    void escape_and_the_x_end_the_program() {
        for (const bool x : {false, true}) {
            GuiFirma firma;
            QDialog& giris = GirisAc(firma);
            if (x)
                giris.close();
            else
                Tusla(Qt::Key_Escape);
            QCOMPARE(firma.bitisler, 1);
            QVERIFY(!firma.program.FormSifre.Yuklu());
        }
    }

    void a_password_shows_as_stars_and_is_read_out_by_nothing() {
        GuiFirma firma;
        QDialog& giris = GirisAc(firma);
        Yaz(QStringLiteral("gizli5"));
        const auto& alan = Parcasi<QLineEdit>(giris, "Text2");
        QCOMPARE(firma.program.FormSifre->Text2.metin, Metin(u"gizli5"));
        QCOMPARE(alan.displayText(), QStringLiteral("******"));
        const QAccessibleInterface* okunan =
            QAccessible::queryAccessibleInterface(giris.findChild<QLineEdit*>("Text2"));
        for (const auto metin : {QAccessible::Name, QAccessible::Value, QAccessible::Description})
            QVERIFY(!okunan->text(metin).contains(QStringLiteral("gizli")));
        QVERIFY(alan.toolTip().isEmpty());
    }

    void a_first_run_gives_the_new_password_other_captions_and_no_way_out() {
        GuiFirma firma;
        firma.program.FormSifreDegistir.Goster();
        const auto degistir = firma.program.FormSifreDegistir.Tut();
        degistir->baslik = u"Kullanıcı Girişi";
        degistir->Label8.baslik = u"Yeni Parola Oluşturun";
        degistir->Command2.etkin = false;
        Baglayici::HepsiniTazele();
        QDialog& pencere = Penceresi(firma, EkranAdi::FormSifreDegistir);
        QCOMPARE(pencere.windowTitle(), QStringLiteral("Kullanıcı Girişi"));
        QCOMPARE(Parcasi<QLabel>(pencere, "Label8").text(), QStringLiteral("Yeni Parola Oluşturun"));
        Tusla(Qt::Key_Escape);
        pencere.close();
        QVERIFY(pencere.isVisible());
        QCOMPARE(Odaktaki(), QStringLiteral("Text1"));
        Yaz(QStringLiteral("12345678901"));
        Tusla(Qt::Key_Tab);
        Yaz(QStringLiteral("1234567890"));
        Tusla(Qt::Key_Return);
        QVERIFY(QTest::qWaitForWindowActive(&firma.Pencere()));
        QCOMPARE(firma.agac.Bayt(u"User.dll"),
                 std::string("\"admin\",\"1234567890\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\","
                             "\"1\",\"1\"\r\n"));
        QCOMPARE(firma.bitisler, 0);
    }

    void a_cancelled_password_with_no_other_window_ends_the_program_and_over_the_table_it_does_not() {
        GuiFirma firma;
        firma.program.FormSifreDegistir.Goster();
        Tikla(Penceresi(firma, EkranAdi::FormSifreDegistir), "Command2");
        QCOMPARE(firma.bitisler, 1);
        firma.Ac();
        Pencerede([&] { MenudenSec(firma, "Guvenliksss"); }, {[&](QDialog& pencere) {
                      QCOMPARE(pencere.windowTitle(), QStringLiteral("Giriş Şifresi Değiştir"));
                      Tusla(Qt::Key_Escape);
                      QVERIFY(!pencere.isVisible());
                  }});
        QCOMPARE(firma.bitisler, 1);
    }

    void the_program_outlives_the_moment_in_which_no_window_stands() {
        GuiFirma firma;
        QDialog& giris = GirisAc(firma);
        QSignalSpy bitti(qApp, &QCoreApplication::aboutToQuit);
        QVERIFY(!QGuiApplication::quitOnLastWindowClosed());
        giris.hide();
        QCoreApplication::processEvents();
        QCOMPARE(bitti.size(), 0);
    }
};

VELORA_GUI_TEST(GirisPencereleriTest)
#include "GirisPencereleriTest.moc"
