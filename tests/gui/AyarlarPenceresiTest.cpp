#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"

using namespace velora;
using namespace velora::test;

namespace {

const QString kYenidenBaslat =
    QStringLiteral("Yaptığınız yarı gün değişikliği programı yeniden başlattığınızda çalışacaktır!");

constexpr std::string_view kRenkler =
    "32768,16777215,8454143,0,16777215,0,255,16777215,6086641,0,15461355,0,192,16777215,192,"
    "16777215,255,12632256,16777215,65280,16777215,49152,16777215,16761087,0,";

/// Clicks on the sign of a tick box.
void OnayaTikla(QWidget& pencere, const char* ad) {
    auto& kutu = Parcasi<QCheckBox>(pencere, ad);
    QTest::mouseClick(&kutu, Qt::LeftButton, {}, {8, kutu.height() / 2});
}

int IsaretliAylar(const QWidget& pencere) {
    int adet = 0;
    for (int ay = 1; ay <= 12; ++ay)
        adet += pencere.findChild<QCheckBox*>(QStringLiteral("Aylar%1").arg(ay))->isChecked() ? 1 : 0;
    return adet;
}

/// Chooses the other slot order with the keys.
void SirayiDegistir(QWidget& pencere) {
    auto& liste = Parcasi<QComboBox>(pencere, "GunduzGece");
    liste.setFocus();
    QTest::keyClick(&liste, liste.currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
}

void GorunumeGec(QWidget& pencere) {
    auto& sayfalar = *pencere.findChild<QTabWidget*>();
    QTest::mouseClick(sayfalar.tabBar(), Qt::LeftButton, {}, sayfalar.tabBar()->tabRect(1).center());
    QCOMPARE(sayfalar.currentIndex(), 1);
}

} // namespace

class AyarlarPenceresiTest : public QObject {
    Q_OBJECT

    static void Ayarlarda(GuiFirma& firma, const Is& is) {
        Pencerede([&] { QTest::keyClick(&firma.Tablo(), Qt::Key_F7); }, {is});
    }

  private slots:
    void f7_and_the_menu_open_the_settings() {
        GuiFirma firma;
        firma.Ac();
        const Is bak = [](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Genel Program Ayarları"));
            QCOMPARE(Parcasi<QLineEdit>(pencere, "UyariGun").text(), QStringLiteral("5"));
            QCOMPARE(Parcasi<QLineEdit>(pencere, "UyariGun2").text(), QStringLiteral("10"));
            QCOMPARE(Parcasi<QComboBox>(pencere, "GunduzGece").currentText(),
                     QStringLiteral("Gece / Gündüz"));
            const auto& sayfalar = *pencere.findChild<QTabWidget*>();
            QCOMPARE(Isaretsiz(sayfalar.tabText(0)), QStringLiteral("Genel Ayarlar "));
            QCOMPARE(Isaretsiz(sayfalar.tabText(1)), QStringLiteral("Görünüm Ayarları "));
        };
        Ayarlarda(firma, bak);
        Pencerede([&] { MenudenSec(firma, "Progrset"); }, {bak});
    }

    void days_of_the_definite_ones_take_digits_only_and_those_of_the_others_anything_on_purpose() {
        GuiFirma firma;
        firma.Ac();
        Ayarlarda(firma, [&](QDialog& pencere) {
            AlanaYaz(pencere, "UyariGun", QStringLiteral("1a2-"));
            QCOMPARE(Parcasi<QLineEdit>(pencere, "UyariGun").text(), QStringLiteral("12"));
            AlanaYaz(pencere, "UyariGun2", QStringLiteral("3x"));
            QCOMPARE(Parcasi<QLineEdit>(pencere, "UyariGun2").text(), QStringLiteral("3x"));
            Tikla(pencere, "Command1");
        });
        QCOMPARE(firma.agac.Bayt(u"Settings.dll"),
                 std::string(kRenkler) + "\"12\",\"3x\",0,1,\"Gece / G\xFCnd\xFCz\",1,1,0\r\n");
    }

    void the_months_stand_in_their_order_under_their_own_names() {
        GuiFirma firma;
        firma.Ac();
        Ayarlarda(firma, [&](QDialog& pencere) {
            QPoint once(-1, -1);
            for (int ay = 1; ay <= 12; ++ay) {
                const auto& kutu = *pencere.findChild<QCheckBox*>(QStringLiteral("Aylar%1").arg(ay));
                const QPoint yer = kutu.mapTo(&pencere, QPoint());
                QVERIFY(yer.y() > once.y() || (yer.y() == once.y() && yer.x() > once.x()));
                QCOMPARE(Isaretsiz(kutu.text()), QMetin(firma.program.FormAyarlar->Aylar[ay].baslik));
                once = yer;
            }
        });
    }

    void the_box_over_the_months_clears_and_ticks_them_all() {
        GuiFirma firma;
        firma.Ac();
        Ayarlarda(firma, [&](QDialog& pencere) {
            QCOMPARE(IsaretliAylar(pencere), 12);
            OnayaTikla(pencere, "Check3");
            QCOMPARE(IsaretliAylar(pencere), 0);
            OnayaTikla(pencere, "Aylar5");
            QCOMPARE(IsaretliAylar(pencere), 1);
            OnayaTikla(pencere, "Check3");
            QCOMPARE(IsaretliAylar(pencere), 12);
            OnayaTikla(pencere, "Aylar2");
            Tikla(pencere, "Command1");
        });
        QCOMPARE(firma.agac.Bayt(u"Visible.dll"), std::string("1,0,1,1,1,1,1,1,1,1,1,1,1\r\n"));
        QVERIFY(!firma.Model().Gozu(2, GunduzGece::Gunduz, 5).gorunur);
        QVERIFY(firma.Model().Gozu(3, GunduzGece::Gunduz, 5).gorunur);
    }

    void without_contract_numbers_nothing_is_given_automatically() {
        GuiFirma firma;
        firma.Ac();
        Ayarlarda(firma, [&](QDialog& pencere) {
            const auto& otomatik = Parcasi<QCheckBox>(pencere, "Check2");
            QVERIFY(otomatik.isEnabled() && otomatik.isChecked());
            OnayaTikla(pencere, "Check7");
            QVERIFY(!otomatik.isEnabled() && otomatik.isChecked());
            OnayaTikla(pencere, "Check7");
            QVERIFY(otomatik.isEnabled());
        });
    }

    void a_changed_slot_order_tells_of_the_restart_at_each_apply() {
        GuiFirma firma;
        firma.Ac();
        Ayarlarda(firma, [&](QDialog& pencere) {
            Pencerede([&] { Tikla(pencere, "Command4"); }, {});
            SirayiDegistir(pencere);
            for (int kez = 0; kez < 2; ++kez)
                Pencerede([&] { Tikla(pencere, "Command4"); }, {Mesaj(kYenidenBaslat)});
            QVERIFY(pencere.isVisible());
            Pencerede([&] { Tikla(pencere, "Command1"); }, {Mesaj(kYenidenBaslat)});
            QVERIFY(!pencere.isVisible());
        });
        QCOMPARE(firma.agac.Bayt(u"Settings.dll"),
                 std::string(kRenkler) + "\"5\",\"10\",0,1,\"G\xFCnd\xFCz / Gece\",1,1,0\r\n");
    }

    void save_writes_both_files() {
        GuiFirma firma;
        firma.Ac();
        QVERIFY(!firma.agac.DosyaVar(u"Settings.dll"));
        Ayarlarda(firma, [&](QDialog& pencere) {
            GorunumeGec(pencere);
            OnayaTikla(pencere, "Check1");
            OnayaTikla(pencere, "Check5");
            QTest::keyClick(&pencere, Qt::Key_Return);
            QVERIFY(!pencere.isVisible());
        });
        QVERIFY(!firma.program.FormAyarlar.Yuklu() || firma.program.FormAyarlar->Check1.deger == 1);
        QCOMPARE(firma.agac.Bayt(u"Settings.dll"),
                 std::string(kRenkler) + "\"5\",\"10\",1,1,\"Gece / G\xFCnd\xFCz\",0,1,0\r\n");
        QCOMPARE(firma.agac.Bayt(u"Visible.dll"), std::string("1,1,1,1,1,1,1,1,1,1,1,1,1\r\n"));
    }

    void cancel_escape_and_the_x_drop_what_was_changed() {
        GuiFirma firma;
        firma.Ac();
        const std::string once = firma.agac.Resim();
        const Is vazgecmeler[]{[](QDialog& pencere) { Tikla(pencere, "Command2"); }, TusBas(Qt::Key_Escape),
                               [](QDialog& pencere) { pencere.close(); }};
        for (const Is& vazgec : vazgecmeler) {
            Ayarlarda(firma, [&](QDialog& pencere) {
                AlanaYaz(pencere, "UyariGun", QStringLiteral("77"));
                OnayaTikla(pencere, "Check6");
                vazgec(pencere);
                QVERIFY(!pencere.isVisible());
            });
            QCOMPARE(firma.program.FormAyarlar->UyariGun.metin, Metin(u"5"));
            QCOMPARE(firma.program.FormAyarlar->Check6.deger, 1);
        }
        QCOMPARE(firma.agac.Resim(), once);
    }

    void the_defaults_followed_by_cancel_leave_the_files() {
        GuiFirma firma;
        firma.agac.Koy(u"Settings.dll",
                       std::string(kRenkler) + "\"7\",\"8\",1,0,\"Gece / G\xFCnd\xFCz\",0,0,1\r\n");
        firma.agac.Koy(u"Visible.dll", "1,1,1,1,1,1,1,1,1,1,1,0,1\r\n");
        firma.Ac();
        const std::string once = firma.agac.Resim();
        Ayarlarda(firma, [&](QDialog& pencere) {
            QCOMPARE(IsaretliAylar(pencere), 11);
            // The order counts as changed, though it is the same.
            Pencerede([&] { Tikla(pencere, "Command3"); }, {Mesaj(kYenidenBaslat)});
            QCOMPARE(IsaretliAylar(pencere), 12);
            QCOMPARE(Parcasi<QLineEdit>(pencere, "UyariGun").text(), QStringLiteral("5"));
            QVERIFY(Parcasi<QCheckBox>(pencere, "Check2").isEnabled());
            Tikla(pencere, "Command2");
            QVERIFY(!pencere.isVisible());
        });
        QCOMPARE(firma.agac.Resim(), once);
        QCOMPARE(firma.program.FormAyarlar->UyariGun.metin, Metin(u"7"));
    }

    void both_boxes_of_the_past_days_have_the_tip_of_a_ground_on_purpose() {
        GuiFirma firma;
        firma.Ac();
        Ayarlarda(firma, [&](QDialog& pencere) {
            for (const char* ad : {"Renk17", "Renk18", "Renk0", "Renk16"})
                QCOMPARE(Parcasi<QToolButton>(pencere, ad).toolTip(), QStringLiteral("Zemin Rengi"));
            for (const char* ad : {"Renk1", "Renk24", "Renk15"})
                QCOMPARE(Parcasi<QToolButton>(pencere, ad).toolTip(), QStringLiteral("Metin Rengi"));
        });
    }
};

VELORA_GUI_TEST(AyarlarPenceresiTest)
#include "AyarlarPenceresiTest.moc"
