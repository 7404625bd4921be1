#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "setup/FormSalonTanim.h"

using namespace velora;
using namespace velora::test;

namespace {

// The halls of the firm, as the file has them.
constexpr std::string_view kIkiSalon = "\"G\xFCl Salonu\"\r\n\"\xC7\xFDnar K\xFDr Bah\xE7"
                                       "esi No.2\"\r\n";

QStringList Salonlar(const QWidget& pencere) {
    const auto& liste = Parcasi<QListWidget>(pencere, "List1");
    QStringList adlar;
    for (int i = 0; i < liste.count(); ++i)
        adlar << liste.item(i)->text();
    return adlar;
}

QStringList SecicininSalonlari(GuiFirma& firma) {
    const auto& secici = firma.Bul<QComboBox>("Salon");
    QStringList adlar;
    for (int i = 0; i < secici.count(); ++i)
        adlar << secici.itemText(i);
    return adlar;
}

void SalonaTikla(const QWidget& pencere, int sira) {
    SatiraTikla(Parcasi<QListWidget>(pencere, "List1"), sira);
}

/// Whether "Sil" and "Düzenle" can be pressed; they go together.
bool Degistirilebilir(const QWidget& pencere) {
    const bool sil = Parcasi<QPushButton>(pencere, "Command2").isEnabled();
    const bool duzenle = Parcasi<QPushButton>(pencere, "Command4").isEnabled();
    if (sil != duzenle)
        QTest::qFail("one of the two buttons is enabled", __FILE__, __LINE__);
    return sil;
}

const QString kSalonSilinsinMi =
    QStringLiteral("Seçili salonu silerseniz bu salona ait rezervasyonları göremezsiniz!\n"
                   "Seçili salonu silmek istediğinize emin misiniz?");

} // namespace

class SalonPencereleriTest : public QObject {
    Q_OBJECT

    static void Tanimlarda(GuiFirma& firma, const Is& is) {
        Pencerede([&] { MenudenSec(firma, "Salontanimss"); }, {is});
    }

  private slots:
    void a_hall_that_is_typed_stands_in_the_list_in_the_table_and_on_the_disk() {
        GuiFirma firma;
        firma.Ac();
        Tanimlarda(firma, [&](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Salon Tanımları"));
            QCOMPARE(Salonlar(pencere).size(), 2);
            Pencerede([&] { Tikla(pencere, "Command1"); }, {Girdi(QStringLiteral("büyük salon"))});
            QCOMPARE(Salonlar(pencere).back(), QStringLiteral("Büyük Salon"));
            QCOMPARE(SecicininSalonlari(firma), Salonlar(pencere));
            QCOMPARE(firma.agac.Bayt(u"Salon.dat"), std::string(kIkiSalon) + "\"B\xFCy\xFCk Salon\"\r\n");
            QVERIFY(firma.agac.KlasorVar(u"Büyük Salon/2026"));
            QVERIFY(firma.agac.KlasorVar(u"Büyük Salon/2036"));
            Tikla(pencere, "Command3");
            QVERIFY(!pencere.isVisible());
        });
        QVERIFY(!firma.program.FormSalonTanim.Yuklu());
    }

    void a_cancelled_name_is_refused_and_asked_for_again() {
        GuiFirma firma;
        firma.Ac();
        Tanimlarda(firma, [&](QDialog& pencere) {
            Pencerede([&] { Tikla(pencere, "Command1"); },
                      {TusBas(Qt::Key_Escape),
                       Mesaj(QStringLiteral("Salon adını girmediniz!\n"
                                            "Salon tanımı yapmadan rezervasyon kaydı oluşturamazsınız!.")),
                       Girdi(QStringLiteral("x"))});
            QCOMPARE(Salonlar(pencere).back(), QStringLiteral("X"));
        });
    }

    void delete_and_edit_wait_for_a_click_on_the_list_each_time() {
        GuiFirma firma;
        firma.Ac();
        Tanimlarda(firma, [&](QDialog& pencere) {
            QVERIFY(!Degistirilebilir(pencere));
            SalonaTikla(pencere, 1);
            QVERIFY(Degistirilebilir(pencere));
            Pencerede([&] { Tikla(pencere, "Command2"); },
                      {Mesaj(kSalonSilinsinMi, QStringLiteral("Hayır"))});
            QVERIFY(!Degistirilebilir(pencere));
            QCOMPARE(Salonlar(pencere).size(), 2);
            SalonaTikla(pencere, 1);
            QVERIFY(Degistirilebilir(pencere));
            Pencerede([&] { Tikla(pencere, "Command2"); }, {Mesaj(kSalonSilinsinMi, QStringLiteral("Evet"))});
            QVERIFY(!Degistirilebilir(pencere));
            QCOMPARE(Salonlar(pencere), QStringList{QStringLiteral("Gül Salonu")});
            QCOMPARE(SecicininSalonlari(firma), Salonlar(pencere));
            QCOMPARE(firma.agac.Bayt(u"Salon.dat"), std::string("\"G\xFCl Salonu\"\r\n"));
        });
    }

    void a_hall_takes_the_name_that_is_typed() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gündüz", false);
        firma.Ac();
        Tanimlarda(firma, [&](QDialog& pencere) {
            SalonaTikla(pencere, 0);
            Pencerede([&] { Tikla(pencere, "Command4"); }, {[](QDialog& ad) {
                          QCOMPARE(ad.windowTitle(), QStringLiteral("Salon Düzenle"));
                          QCOMPARE(Parcasi<QLineEdit>(ad, "Text1").text(), QStringLiteral("Gül Salonu"));
                          Yaz(QStringLiteral("ıhlamur"));
                          QTest::keyClick(&ad, Qt::Key_Return);
                          QVERIFY(!ad.isVisible());
                      }});
            QCOMPARE(Salonlar(pencere).front(), QStringLiteral("Ihlamur"));
            QCOMPARE(SecicininSalonlari(firma), Salonlar(pencere));
            QVERIFY(!Degistirilebilir(pencere));
            SalonaTikla(pencere, 0);
            QVERIFY(Degistirilebilir(pencere));
        });
        QVERIFY(firma.agac.Bayt(u"Salon.dat").starts_with("\"Ihlamur\"\r\n"));
        QVERIFY(firma.agac.DosyaVar(u"Ihlamur/2026/10.09.2026 - Gündüz"));
        QVERIFY(firma.agac.DosyaVar(u"Gül Salonu/2026/10.09.2026 - Gündüz"));
    }

    void cancel_and_escape_leave_the_name() {
        GuiFirma firma;
        firma.Ac();
        const std::string once = firma.agac.Resim();
        Tanimlarda(firma, [&](QDialog& pencere) {
            const Is vazgecmeler[]{[](QDialog& ad) { Tikla(ad, "Command2"); }, TusBas(Qt::Key_Escape),
                                   [](QDialog& ad) { ad.close(); }};
            for (const auto& vazgec : vazgecmeler) {
                SalonaTikla(pencere, 0);
                Pencerede([&] { Tikla(pencere, "Command4"); }, {[&](QDialog& ad) {
                              Yaz(QStringLiteral("başka"));
                              vazgec(ad);
                              QVERIFY(!ad.isVisible());
                          }});
                QCOMPARE(Salonlar(pencere).front(), QStringLiteral("Gül Salonu"));
            }
        });
        QCOMPARE(firma.agac.Resim(), once);
    }

    void the_x_and_escape_press_close_which_refuses_while_there_is_no_hall() {
        GuiFirma firma;
        firma.agac.Koy(u"Salon.dat", "");
        firma.Ac();
        Tanimlarda(firma, [&](QDialog& pencere) {
            const std::function<void()> kapatmalar[]{[&] { Tikla(pencere, "Command3"); },
                                                     [&] { pencere.close(); },
                                                     [&] { QTest::keyClick(&pencere, Qt::Key_Escape); }};
            for (const auto& kapat : kapatmalar) {
                // The refusal starts an add; blanks leave it.
                Pencerede(kapat, {Mesaj(QStringLiteral(
                                      "Hiç salon tanımınız yok!\n"
                                      "Salon tanımı yapmadan rezervasyon kaydı oluşturamazsınız!.")),
                                  Girdi(QStringLiteral(" "))});
                QVERIFY(pencere.isVisible());
            }
            Pencerede([&] { Tikla(pencere, "Command1"); }, {Girdi(QStringLiteral("a"))});
            QTest::keyClick(&pencere, Qt::Key_Escape);
            QVERIFY(!pencere.isVisible());
        });
        QVERIFY(!firma.program.FormSalonTanim.Yuklu());
    }

    void with_no_hall_the_drop_down_says_so_and_where_to_go_and_the_first_hall_takes_its_place() {
        GuiFirma firma;
        std::filesystem::remove(firma.agac.Yol(u"Salon.dat"));
        firma.Ac();
        auto& salon = firma.Bul<QComboBox>("Salon");
        QCOMPARE(salon.placeholderText(), QStringLiteral("Salon tanımlı değil"));
        QVERIFY(salon.toolTip().contains(QStringLiteral("Salon Tanımları")));
        QCOMPARE(salon.count(), 0);
        QCOMPARE(salon.currentText(), QString());
        Tanimlarda(firma, [&](QDialog& pencere) {
            Pencerede([&] { Tikla(pencere, "Command1"); }, {Girdi(QStringLiteral("nar"))});
        });
        QCOMPARE(salon.currentText(), QStringLiteral("Nar"));
        QCOMPARE(salon.toolTip(), QString());
    }

    void on_a_first_run_nothing_closes_the_list_before_an_add_was_started() {
        GuiFirma firma;
        std::filesystem::remove(firma.agac.Yol(u"Salon.dat"));
        firma.Ac();
        const auto tanimda = [&](QDialog& pencere) {
            auto& kapat = Parcasi<QPushButton>(pencere, "Command3");
            QVERIFY(!kapat.isEnabled());
            pencere.close();
            QTest::keyClick(&pencere, Qt::Key_Escape);
            QTest::mouseClick(&kapat, Qt::LeftButton);
            QCOMPARE(QApplication::activeModalWidget(), &pencere);
            Pencerede([&] { QTest::keyClick(&pencere, Qt::Key_Return); }, {Girdi(QStringLiteral("ilk"))});
            QVERIFY(kapat.isEnabled());
            QCOMPARE(firma.Bul<QComboBox>("Salon").currentText(), QStringLiteral("İlk"));
            QTest::keyClick(&pencere, Qt::Key_Escape);
            QVERIFY(!pencere.isVisible());
        };
        Pencerede([&] { IlkSalonuSor(firma.program); },
                  {Mesaj(QStringLiteral("Önce salon tanımı yapmalısınız!\n"
                                        "Şimdi salon tanımı yapmak ister misiniz?"),
                         QStringLiteral("Evet")),
                   tanimda});
        QCOMPARE(firma.agac.Bayt(u"Salon.dat"), std::string("\"\xDDlk\"\r\n"));
    }
};

VELORA_GUI_TEST(SalonPencereleriTest)
#include "SalonPencereleriTest.moc"
