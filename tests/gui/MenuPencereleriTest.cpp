#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormMenuEkle.h"

using namespace velora;
using namespace velora::test;

namespace {

// Two menus, as the file has them: "Düğün" and "Kına", each with its content.
constexpr std::string_view kIkiMenu = "\"D\xFC\xF0\xFCn\",\"Et Sote\"\r\n\"K\xFDna\",\"\xC7orba\"\r\n";

QTreeWidget& Liste(const QWidget& pencere) {
    return Parcasi<QTreeWidget>(pencere, "Liste");
}

void MenuyeCiftTikla(const QWidget& pencere, int sira) {
    SatiraTikla(Liste(pencere), sira);
    SatiraCiftTikla(Liste(pencere), sira);
}

bool Etkin(const QWidget& pencere, const char* dugme) {
    return Parcasi<QPushButton>(pencere, dugme).isEnabled();
}

const QString kMenuSilinsinMi = QStringLiteral("Seçili menüyü silmek istediğinizden emin misiniz?");

} // namespace

class MenuPencereleriTest : public QObject {
    Q_OBJECT

    static void Menulerde(GuiFirma& firma, const Is& is) {
        Pencerede([&] { MenudenSec(firma, "MenuAyars"); }, {is});
    }

  private slots:
    void enter_on_a_marked_menu_edits_it_and_on_none_adds_one() {
        GuiFirma firma;
        firma.agac.Koy(u"Menuler.dat", kIkiMenu);
        firma.Ac();
        Menulerde(firma, [&](QDialog& pencere) {
            QCOMPARE(Odaktaki(), QStringLiteral("Liste"));
            const auto acilan = [](QString& baslik) -> Is {
                return [&baslik](QDialog& ekle) { baslik = ekle.windowTitle(); };
            };
            QString baslik;
            Pencerede([] { Tusla(Qt::Key_Return); }, {acilan(baslik)});
            QCOMPARE(baslik, QStringLiteral("Menü Ekle"));
            firma.program.FormMenuEkle.Bosalt();
            pencere.activateWindow();
            Liste(pencere).setFocus();
            QTRY_VERIFY(Liste(pencere).hasFocus());
            Tusla(Qt::Key_Down);
            Tusla(Qt::Key_Down);
            Pencerede([] { Tusla(Qt::Key_Return); }, {[&](QDialog& duzenle) {
                          QCOMPARE(duzenle.windowTitle(), QStringLiteral("Menü Düzenle"));
                          QCOMPARE(Parcasi<QLineEdit>(duzenle, "Text1").text(), QStringLiteral("Kına"));
                      }});
            firma.program.FormMenuEkle.Bosalt();
        });
    }

    void a_menu_that_is_typed_stands_in_the_list_and_on_the_disk() {
        GuiFirma firma;
        firma.Ac();
        Menulerde(firma, [&](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Menü Ayarları"));
            QCOMPARE(Liste(pencere).headerItem()->text(0), QStringLiteral("Menü Adı"));
            QCOMPARE(Liste(pencere).headerItem()->text(1), QStringLiteral("Menü İçeriği"));
            Pencerede([&] { Tikla(pencere, "Command1"); }, {[](QDialog& ekle) {
                          QCOMPARE(ekle.windowTitle(), QStringLiteral("Menü Ekle"));
                          Yaz(QStringLiteral("düğün"));
                          QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                          Yaz(QStringLiteral("et sote"));
                          Tikla(ekle, "Command4");
                          QVERIFY(!ekle.isVisible());
                      }});
            QCOMPARE(Liste(pencere).topLevelItemCount(), 1);
            QCOMPARE(Liste(pencere).topLevelItem(0)->text(0), QStringLiteral("Düğün"));
            QCOMPARE(Liste(pencere).topLevelItem(0)->text(1), QStringLiteral("Et Sote"));
            QTest::keyClick(&pencere, Qt::Key_Escape);
            QVERIFY(!pencere.isVisible());
        });
        QCOMPARE(firma.agac.Bayt(u"Menuler.dat"), std::string("\"D\xFC\xF0\xFCn\",\"Et Sote\"\r\n"));
        QVERIFY(!firma.program.FormMenuAyar.Yuklu());
    }

    void a_blank_name_cannot_be_confirmed() {
        GuiFirma firma;
        firma.Ac();
        const std::string once = firma.agac.Resim();
        Menulerde(firma, [&](QDialog& pencere) {
            Pencerede([&] { Tikla(pencere, "Command1"); }, {[](QDialog& ekle) {
                          QVERIFY(!Etkin(ekle, "Command4"));
                          Yaz(QStringLiteral("  "));
                          QVERIFY(!Etkin(ekle, "Command4"));
                          QTest::keyClick(&ekle, Qt::Key_Return);
                          QVERIFY(ekle.isVisible());
                          Yaz(QStringLiteral("a"));
                          QVERIFY(Etkin(ekle, "Command4"));
                          QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
                          QVERIFY(!Etkin(ekle, "Command4"));
                          QTest::keyClick(&ekle, Qt::Key_Escape);
                          QVERIFY(!ekle.isVisible());
                      }});
        });
        QCOMPARE(firma.agac.Resim(), once);
    }

    void an_empty_content_is_refused_and_gets_the_focus() {
        GuiFirma firma;
        firma.Ac();
        Menulerde(firma, [&](QDialog& pencere) {
            Pencerede([&] { Tikla(pencere, "Command1"); }, {[](QDialog& ekle) {
                          Yaz(QStringLiteral("kına"));
                          Pencerede([&] { QTest::keyClick(&ekle, Qt::Key_Return); },
                                    {Mesaj(QStringLiteral("Lüften içerik giriniz!"))});
                          QVERIFY(ekle.isVisible());
                          QTRY_COMPARE(QApplication::focusWidget(), &Parcasi<QPlainTextEdit>(ekle, "Text2"));
                          Yaz(QStringLiteral("çorba"));
                          QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
                          Yaz(QStringLiteral("pilav"));
                          Tikla(ekle, "Command4");
                          QVERIFY(!ekle.isVisible());
                      }});
        });
        QCOMPARE(firma.agac.Bayt(u"Menuler.dat"), std::string("\"K\xFDna\",\"\xC7orba\r\nPilav\"\r\n"));
    }

    void a_double_click_edits_the_menu() {
        GuiFirma firma;
        firma.agac.Koy(u"Menuler.dat", kIkiMenu);
        firma.Ac();
        Menulerde(firma, [&](QDialog& pencere) {
            Pencerede([&] { MenuyeCiftTikla(pencere, 1); }, {[](QDialog& ekle) {
                          QCOMPARE(ekle.windowTitle(), QStringLiteral("Menü Düzenle"));
                          const auto& degistir = Parcasi<QPushButton>(ekle, "Command4");
                          QCOMPARE(Isaretsiz(degistir.text()), QStringLiteral("Değiştir"));
                          QVERIFY(degistir.isEnabled());
                          QCOMPARE(Parcasi<QLineEdit>(ekle, "Text1").text(), QStringLiteral("Kına"));
                          QCOMPARE(Parcasi<QPlainTextEdit>(ekle, "Text2").toPlainText(),
                                   QStringLiteral("Çorba"));
                          QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
                          Yaz(QStringLiteral(" gecesi"));
                          QTest::keyClick(&ekle, Qt::Key_Return);
                          QVERIFY(!ekle.isVisible());
                      }});
            QCOMPARE(Liste(pencere).topLevelItem(1)->text(0), QStringLiteral("Kına Gecesi"));
        });
        QCOMPARE(firma.agac.Bayt(u"Menuler.dat"),
                 std::string("\"D\xFC\xF0\xFCn\",\"Et Sote\"\r\n\"K\xFDna Gecesi\",\"\xC7orba\"\r\n"));
    }

    void cancel_and_the_x_leave_the_menu_as_it_was() {
        GuiFirma firma;
        firma.agac.Koy(u"Menuler.dat", kIkiMenu);
        firma.Ac();
        Menulerde(firma, [&](QDialog& pencere) {
            const Is vazgecmeler[]{[](QDialog& ekle) { Tikla(ekle, "Command3"); },
                                   [](QDialog& ekle) { ekle.close(); }};
            for (const Is& vazgec : vazgecmeler) {
                SatiraTikla(Liste(pencere), 0);
                Pencerede([&] { Tikla(pencere, "Command4"); }, {[&](QDialog& ekle) {
                              Yaz(QStringLiteral("x"));
                              vazgec(ekle);
                              QVERIFY(!ekle.isVisible());
                          }});
                QCOMPARE(Liste(pencere).topLevelItem(0)->text(0), QStringLiteral("Düğün"));
            }
        });
        QCOMPARE(firma.agac.Bayt(u"Menuler.dat"), std::string(kIkiMenu));
    }

    void delete_waits_for_a_click_on_a_row_and_a_yes() {
        GuiFirma firma;
        firma.agac.Koy(u"Menuler.dat", kIkiMenu);
        firma.Ac();
        Menulerde(firma, [&](QDialog& pencere) {
            QVERIFY(!Etkin(pencere, "Command2") && !Etkin(pencere, "Command4"));
            SatiraTikla(Liste(pencere), 0);
            QVERIFY(Etkin(pencere, "Command2") && Etkin(pencere, "Command4"));
            Pencerede([&] { Tikla(pencere, "Command2"); }, {Mesaj(kMenuSilinsinMi, QStringLiteral("Hayır"))});
            QVERIFY(!Etkin(pencere, "Command2") && !Etkin(pencere, "Command4"));
            QCOMPARE(Liste(pencere).topLevelItemCount(), 2);
            SatiraTikla(Liste(pencere), 0);
            Pencerede([&] { Tikla(pencere, "Command2"); }, {Mesaj(kMenuSilinsinMi, QStringLiteral("Evet"))});
            QCOMPARE(Liste(pencere).topLevelItemCount(), 1);
            QVERIFY(!Etkin(pencere, "Command2") && !Etkin(pencere, "Command4"));
            QCOMPARE(firma.agac.Bayt(u"Menuler.dat"), std::string("\"K\xFDna\",\"\xC7orba\"\r\n"));
            SatiraTikla(Liste(pencere), 0);
            Pencerede([&] { Tikla(pencere, "Command2"); }, {Mesaj(kMenuSilinsinMi, QStringLiteral("Evet"))});
        });
        QVERIFY(firma.agac.DosyaVar(u"Menuler.dat"));
        QCOMPARE(firma.agac.Bayt(u"Menuler.dat"), std::string());
    }
};

VELORA_GUI_TEST(MenuPencereleriTest)
#include "MenuPencereleriTest.moc"
