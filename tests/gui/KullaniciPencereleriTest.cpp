#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "access/FormKullaniciEkle.h"
#include "access/FormKullanicilar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"

using namespace velora;
using namespace velora::test;

namespace {

const std::string kAdminSatiri =
    "\"admin\",\"g5\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"0\",\"1\"\r\n";
const std::string kCanSatiri =
    "\"can\",\"c9\",\"0\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"0\",\"0\",\"2\"\r\n";

QTreeWidget& Listesi(const QWidget& pencere) {
    return Parcasi<QTreeWidget>(pencere, "Liste");
}

bool Acik(const QWidget& pencere, const char* dugme) {
    return Parcasi<QPushButton>(pencere, dugme).isEnabled();
}

} // namespace

class KullaniciPencereleriTest : public QObject {
    Q_OBJECT

    static void Kullanicilarda(GuiFirma& firma, const Is& is) {
        firma.agac.Koy(u"User.dll", kAdminSatiri + kCanSatiri);
        firma.Ac();
        Pencerede([&] { MenudenSec(firma, "KulTanimssss"); }, {is});
    }

  private slots:
    void the_list_has_all_values_and_its_heads_tell_the_rights() {
        GuiFirma firma;
        Kullanicilarda(firma, [](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Kullanıcı Tanımları"));
            QCOMPARE(SatirYazilari(Listesi(pencere), 1),
                     (QStringList{"can", "c9", "0", "1", "1", "1", "1", "1", "1", "1", "0", "0", "2"}));
            QCOMPARE(Listesi(pencere).headerItem()->text(12), QStringLiteral("Y11"));
            QCOMPARE(Listesi(pencere).headerItem()->toolTip(12), QStringLiteral("Kasa raporu alabilsin"));
            QCOMPARE(Listesi(pencere).headerItem()->toolTip(2),
                     QStringLiteral("Rezervasyon raporu alabilsin"));
            QVERIFY(pencere.findChild<QWidget*>("Command5") == nullptr);
            QVERIFY(pencere.findChild<QWidget*>("Command6") == nullptr);
        });
    }

    void a_user_that_is_typed_stands_in_the_list_and_on_the_disk() {
        GuiFirma firma;
        Kullanicilarda(firma, [&](QDialog& pencere) {
            Pencerede([&] { Tikla(pencere, "Command1"); }, {[](QDialog& ekle) {
                          QCOMPARE(ekle.windowTitle(), QStringLiteral("Yeni Kullanıcı Ekle / Düzenle"));
                          QCOMPARE(Odaktaki(), QStringLiteral("Text1"));
                          QVERIFY(!Parcasi<QCheckBox>(ekle, "Check3").isEnabled());
                          QVERIFY(Parcasi<QCheckBox>(ekle, "Check3").isChecked());
                          QVERIFY(ekle.findChild<QCheckBox*>("Check10") == nullptr);
                          Yaz(QStringLiteral("Ayşe"));
                          AlanaYaz(ekle, "Text2", QStringLiteral("çay"));
                          AlanaYaz(ekle, "Text3", QStringLiteral("çay"));
                          QCOMPARE(Parcasi<QLineEdit>(ekle, "Text3").displayText(), QStringLiteral("***"));
                          Tikla(ekle, "Check5");
                          Tusla(Qt::Key_Return);
                          QVERIFY(!ekle.isVisible());
                      }});
            QCOMPARE(Listesi(pencere).topLevelItemCount(), 3);
            QCOMPARE(Listesi(pencere).topLevelItem(2)->text(0), QStringLiteral("Ayşe"));
            Tusla(Qt::Key_Escape);
            QVERIFY(!pencere.isVisible());
        });
        QCOMPARE(firma.agac.Bayt(u"User.dll"), kAdminSatiri + kCanSatiri +
                                                   "\"Ay\xFE\x65\",\"\xE7\x61y\",\"1\",\"1\",\"1\",\"1\","
                                                   "\"0\",\"1\",\"1\",\"1\",\"1\",\"0\",\"1\"\r\n");
    }

    void of_admin_the_password_alone_can_be_changed_and_has_the_focus() {
        GuiFirma firma;
        Kullanicilarda(firma, [&](QDialog& pencere) {
            SatiraTikla(Listesi(pencere), 0);
            QVERIFY(!Acik(pencere, "Command2"));
            Pencerede([&] { Tusla(Qt::Key_Return); }, {[](QDialog& ekle) {
                          QVERIFY(!Parcasi<QLineEdit>(ekle, "Text1").isEnabled());
                          for (const auto* kutu : ekle.findChildren<QCheckBox*>())
                              QVERIFY2(!kutu->isEnabled(), qPrintable(kutu->objectName()));
                          QCOMPARE(Odaktaki(), QStringLiteral("Text2"));
                          AlanaYaz(ekle, "Text2", QStringLiteral("yeni"));
                          AlanaYaz(ekle, "Text3", QStringLiteral("yeni"));
                          Tikla(ekle, "Command1");
                      }});
        });
        std::string yeni = kAdminSatiri;
        yeni.replace(yeni.find("g5"), 2, "yeni");
        QCOMPARE(firma.agac.Bayt(u"User.dll"), yeni + kCanSatiri);
    }

    void delete_and_edit_wait_for_a_row_and_delete_for_a_yes() {
        GuiFirma firma;
        Kullanicilarda(firma, [&](QDialog& pencere) {
            const QString soru = QStringLiteral("Seçili kullanıcıyı silmek istediğinizden emin misiniz?");
            QVERIFY(!Acik(pencere, "Command2") && !Acik(pencere, "Command3"));
            SatiraTikla(Listesi(pencere), 1);
            QVERIFY(Acik(pencere, "Command2") && Acik(pencere, "Command3"));
            Pencerede([&] { Tikla(pencere, "Command2"); }, {Mesaj(soru, QStringLiteral("Hayır"))});
            QVERIFY(Acik(pencere, "Command2") && Acik(pencere, "Command3"));
            Pencerede([&] { SatiraCiftTikla(Listesi(pencere), 1); }, {TusBas(Qt::Key_Escape)});
            QVERIFY(!Acik(pencere, "Command2") && !Acik(pencere, "Command3"));
            SatiraTikla(Listesi(pencere), 1);
            Pencerede([&] { Tikla(pencere, "Command2"); }, {Mesaj(soru, QStringLiteral("Evet"))});
            QCOMPARE(Listesi(pencere).topLevelItemCount(), 1);
            QCOMPARE(Odaktaki(), QStringLiteral("Liste"));
        });
        QCOMPARE(firma.agac.Bayt(u"User.dll"), kAdminSatiri);
    }

    void a_right_that_is_neither_on_nor_off_shows_as_neither_and_stays() {
        GuiFirma firma;
        Kullanicilarda(firma, [&](QDialog& pencere) {
            SatiraTikla(Listesi(pencere), 1);
            Pencerede([&] { Tikla(pencere, "Command3"); }, {[](QDialog& ekle) {
                          QCOMPARE(Parcasi<QCheckBox>(ekle, "Check11").checkState(), Qt::PartiallyChecked);
                          QCOMPARE(Parcasi<QCheckBox>(ekle, "Check1").checkState(), Qt::Unchecked);
                          Tikla(ekle, "Command1");
                      }});
        });
        QCOMPARE(firma.agac.Bayt(u"User.dll"), kAdminSatiri + kCanSatiri);
    }
};

VELORA_GUI_TEST(KullaniciPencereleriTest)
#include "KullaniciPencereleriTest.moc"
