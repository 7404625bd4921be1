#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloGorunumu.h"

using namespace velora;
using namespace velora::test;

namespace {

/// What the chart shows at a point.
QColor CizelgeRengi(const QWidget& pencere, QPoint yer) {
    return Parcasi<QWidget>(pencere, "Picture1").grab().toImage().pixelColor(yer);
}

QString AlanYazisi(const QWidget& pencere, const char* ad) {
    return Parcasi<QLineEdit>(pencere, ad).text();
}

/// The colour that the component fields say.
QColor Yazan(const QWidget& pencere) {
    return {AlanYazisi(pencere, "txtRed").toInt(), AlanYazisi(pencere, "txtGreen").toInt(),
            AlanYazisi(pencere, "txtBlue").toInt()};
}

QColor Ornek(const QWidget& pencere) {
    auto& ornek = Parcasi<QLabel>(pencere, "picColorBox");
    return ornek.grab().toImage().pixelColor(ornek.rect().center());
}

QColor KutununRengi(const QWidget& pencere, const char* kutu) {
    auto& dugme = Parcasi<QToolButton>(pencere, kutu);
    return dugme.grab().toImage().pixelColor(dugme.rect().center());
}

} // namespace

class RenkPenceresiTest : public QObject {
    Q_OBJECT

    /// Opens the settings on their second page, and there the colour picker by a click on a colour box.
    static void RenkKutusunda(GuiFirma& firma, const char* kutu, const Is& renkte, const Is& sonra = {}) {
        Pencerede([&] { QTest::keyClick(&firma.Tablo(), Qt::Key_F7); }, {[&](QDialog& ayarlar) {
                      ayarlar.findChild<QTabWidget*>()->setCurrentIndex(1);
                      Pencerede([&] { Tikla(ayarlar, kutu); }, {renkte});
                      if (sonra)
                          sonra(ayarlar);
                  }});
    }

  private slots:
    void a_click_on_a_colour_box_opens_the_picker_with_its_colour() {
        GuiFirma firma;
        firma.Ac();
        RenkKutusunda(firma, "Renk8", [](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Renk Seçiniz"));
            QCOMPARE(Ornek(pencere), QColor(241, 223, 92));
            for (const char* ad : {"txtRed", "txtGreen", "txtBlue", "txtWeb", "txtHex", "txtTers"})
                QCOMPARE(AlanYazisi(pencere, ad), QStringLiteral("0"));
        });
    }

    void the_sample_follows_what_is_typed_and_what_is_only_shown_takes_no_key() {
        GuiFirma firma;
        firma.Ac();
        RenkKutusunda(firma, "Renk8", [](QDialog& pencere) {
            AlanaYaz(pencere, "txtGreen", QStringLiteral("200"));
            AlanaYaz(pencere, "txtBlue", QStringLiteral("9"));
            QCOMPARE(Ornek(pencere), QColor(0, 200, 9));
            QCOMPARE(AlanYazisi(pencere, "txtWeb"), QStringLiteral("#00C809"));
            for (const char* ad : {"txtWeb", "txtHex", "txtTers"}) {
                const QString once = AlanYazisi(pencere, ad);
                AlanaYaz(pencere, ad, QStringLiteral("7"));
                QCOMPARE(AlanYazisi(pencere, ad), once);
            }
        });
    }

    void a_press_and_a_move_with_the_button_held_pick_and_a_move_without_does_not() {
        GuiFirma firma;
        firma.Ac();
        RenkKutusunda(firma, "Renk2", [](QDialog& pencere) {
            auto& cizelge = Parcasi<QWidget>(pencere, "Picture1");
            QTest::mouseMove(&cizelge, {10, 60});
            QCOMPARE(Yazan(pencere), QColor(Qt::black));
            QTest::mousePress(&cizelge, Qt::LeftButton, {}, {40, 90});
            QCOMPARE(Yazan(pencere), CizelgeRengi(pencere, {40, 90}));
            QTest::mouseMove(&cizelge, {200, 150});
            const QColor secilen = CizelgeRengi(pencere, {200, 150});
            QVERIFY(secilen != CizelgeRengi(pencere, {40, 90}));
            QCOMPARE(Yazan(pencere), secilen);
            QCOMPARE(Ornek(pencere), secilen);
            QTest::mouseRelease(&cizelge, Qt::LeftButton, {}, {200, 150});
            QTest::mouseMove(&cizelge, {300, 30});
            QCOMPARE(Yazan(pencere), secilen);
        });
    }

    void the_texts_say_the_colour_in_each_form() {
        GuiFirma firma;
        firma.Ac();
        RenkKutusunda(firma, "Renk2", [](QDialog& pencere) {
            auto& cizelge = Parcasi<QWidget>(pencere, "Picture1");
            const QPoint yer(80, 170);
            const QColor renk = CizelgeRengi(pencere, yer);
            QVERIFY(renk.red() > 0 && renk.green() > renk.red() && renk.blue() == 0);
            QTest::mouseClick(&cizelge, Qt::LeftButton, {}, yer);
            QCOMPARE(AlanYazisi(pencere, "txtWeb"), renk.name().toUpper());
            // Blue leads and is nought here: the plain form has no digits for it.
            const int deger = renk.green() * 256 + renk.red();
            QCOMPARE(AlanYazisi(pencere, "txtHex"), QString::number(deger, 16).toUpper());
        });
    }

    void a_drag_beyond_the_chart_gives_no_colour_at_all() {
        GuiFirma firma;
        firma.Ac();
        RenkKutusunda(firma, "Renk2", [](QDialog& pencere) {
            auto& cizelge = Parcasi<QWidget>(pencere, "Picture1");
            QTest::mousePress(&cizelge, Qt::LeftButton, {}, {40, 90});
            QVERIFY(Yazan(pencere) != QColor(Qt::black));
            for (const QPoint& yer :
                 {QPoint(-3, 90), QPoint(40, -1), QPoint(cizelge.width(), 5), QPoint(5, cizelge.height())}) {
                QTest::mouseMove(&cizelge, {200, 150});
                QVERIFY(Yazan(pencere) != QColor(Qt::black));
                QTest::mouseMove(&cizelge, yer);
                QCOMPARE(Yazan(pencere), QColor(Qt::black));
                QCOMPARE(AlanYazisi(pencere, "txtWeb"), QStringLiteral("#000000"));
                QCOMPARE(AlanYazisi(pencere, "txtHex"), QStringLiteral("0"));
                QCOMPARE(AlanYazisi(pencere, "txtTers"), QStringLiteral("&H000000&"));
            }
            QTest::mouseRelease(&cizelge, Qt::LeftButton, {}, {-3, 90});
        });
    }

    void ok_puts_the_colour_into_the_box_the_slot_and_with_save_the_file() {
        GuiFirma firma;
        firma.Ac();
        QColor secilen;
        const Is sec = [&](QDialog& pencere) {
            secilen = CizelgeRengi(pencere, {120, 60});
            QTest::mouseClick(&Parcasi<QWidget>(pencere, "Picture1"), Qt::LeftButton, {}, {120, 60});
            QTest::keyClick(&pencere, Qt::Key_Return);
            QVERIFY(!pencere.isVisible());
        };
        RenkKutusunda(firma, "Renk0", sec, [&](QDialog& ayarlar) {
            QCOMPARE(KutununRengi(ayarlar, "Renk0"), secilen);
            QCOMPARE(QRenk(firma.program.FormAyarlar->Renk(0)), secilen);
            Tikla(ayarlar, "Command1");
        });
        const int deger = secilen.red() + 256 * secilen.green() + 65536 * secilen.blue();
        QVERIFY(firma.agac.Bayt(u"Settings.dll").starts_with(std::to_string(deger) + ",16777215,"));
    }

    void ok_without_a_pick_gives_black_on_purpose() {
        GuiFirma firma;
        firma.Ac();
        RenkKutusunda(
            firma, "Renk2", [](QDialog& pencere) { Tikla(pencere, "Command1"); },
            [&](QDialog& ayarlar) {
                QCOMPARE(firma.program.FormAyarlar->Renk(2), 0);
                QCOMPARE(KutununRengi(ayarlar, "Renk2"), QColor(Qt::black));
            });
    }

    void components_can_be_typed() {
        GuiFirma firma;
        firma.Ac();
        const Is yaz = [](QDialog& pencere) {
            for (const char* ad : {"txtRed", "txtGreen", "txtBlue"}) {
                auto& alan = Parcasi<QLineEdit>(pencere, ad);
                alan.setFocus();
                alan.selectAll();
                Yaz(QStringLiteral("17"));
            }
            Tikla(pencere, "Command1");
        };
        RenkKutusunda(firma, "Renk5", yaz,
                      [&](QDialog&) { QCOMPARE(firma.program.FormAyarlar->Renk(5), 17 * 0x010101); });
    }

    void cancel_escape_and_the_x_leave_the_colour() {
        GuiFirma firma;
        firma.Ac();
        const Is vazgecmeler[]{[](QDialog& pencere) { Tikla(pencere, "Command2"); }, TusBas(Qt::Key_Escape),
                               [](QDialog& pencere) { pencere.close(); }};
        for (const Is& vazgec : vazgecmeler) {
            const Is dene = [&](QDialog& pencere) {
                QTest::mouseClick(&Parcasi<QWidget>(pencere, "Picture1"), Qt::LeftButton, {}, {120, 60});
                vazgec(pencere);
                QVERIFY(!pencere.isVisible());
            };
            RenkKutusunda(firma, "Renk2", dene,
                          [&](QDialog&) { QCOMPARE(firma.program.FormAyarlar->Renk(2), 8454143); });
        }
    }
};

VELORA_GUI_TEST(RenkPenceresiTest)
#include "RenkPenceresiTest.moc"
