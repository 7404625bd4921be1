#include <QApplication>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "reservation/FormKayit.h"
#include "reservation/KayitYukle.h"

using namespace velora;
using namespace velora::test;

/// The payments of a reservation, on their page and in the dialog that takes one.
class OdemeSayfasiTest : public QObject {
    Q_OBJECT

    static constexpr MetinBakis kGun = u"20.06.2026 - Gece";
    static constexpr auto kSilinsinMi = u"Ödeme kaydını silmek istediğinizden emin misiniz?";

    /// An existing reservation with two payments of 100 and 250: `is` is done on their page, by a user who
    /// may change amounts or may not.
    static void Odemelerde(GuiFirma& firma, const Is& is, bool tutarDegistirir = true) {
        firma.Rezervasyon(kSalonA, kGun, false);
        firma.agac.KoyMetin(
            Metin(kSalonA) + u"/2026/" + Metin(kGun) + u"-Odeme",
            u"\"01.05.2026\",\"100\",\"kapora\"\r\n\"02.05.2026\",\"250\",\"7 - Ali Veli\"\r\n");
        firma.Ac();
        firma.Model().TutarDegistir = tutarDegistirir ? 1 : 0;
        const Metin yol = firma.program.agac.GunYolu(kSalonA, u"2026", kGun);
        Pencerede([&] { KayitYukle(firma.program, yol, Metin(kGun)); }, {[&](QDialog& pencere) {
                      Tikla(pencere, "Command4");
                      QCOMPARE(Parcasi<QTabWidget>(pencere, "SSTab1").currentIndex(), 1);
                      is(pencere);
                  }});
    }
    static QTreeWidget& Liste(QDialog& pencere) { return Parcasi<QTreeWidget>(pencere, "Liste"); }
    static QStringList Satir(QDialog& pencere, int sira) { return SatirYazilari(Liste(pencere), sira); }
    static QStringList Toplamlar(QDialog& pencere) {
        return {Parcasi<QLabel>(pencere, "ToplamUcret").text(), Parcasi<QLabel>(pencere, "Kayam9").text(),
                Parcasi<QLabel>(pencere, "Kayam10").text()};
    }
    static bool Acik(QDialog& pencere, const char* dugme) {
        return Parcasi<QPushButton>(pencere, dugme).isEnabled();
    }
    /// "Ekle" is clicked; `is` is done in the dialog, which has to close by it.
    static void Ekle(QDialog& pencere, const Is& is) {
        Pencerede([&] { Tikla(pencere, "Command8"); }, {[&](QDialog& odeme) {
                      QCOMPARE(odeme.windowTitle(), QStringLiteral("Ödeme Ekle"));
                      QCOMPARE(Odaktaki(), QStringLiteral("Text1"));
                      is(odeme);
                      Kapanincaya(odeme);
                  }});
    }
    static void Sil(QDialog& pencere, const QString& cevap) {
        Pencerede([&] { Tikla(pencere, "Command7"); }, {Mesaj(QString::fromUtf16(kSilinsinMi), cevap)});
    }

  private slots:
    void an_amount_and_enter_bring_a_row_and_new_totals() {
        GuiFirma firma;
        Odemelerde(firma, [](QDialog& pencere) {
            QCOMPARE(Satir(pencere, 1), (QStringList{"02.05.2026", "250", "7 - Ali Veli"}));
            QCOMPARE(Toplamlar(pencere), (QStringList{"5.000", "350", "4.650"}));
            Ekle(pencere, [](QDialog&) {
                Yaz(QStringLiteral("0x1500"));
                Tusla(Qt::Key_Return);
            });
            QCOMPARE(Liste(pencere).topLevelItemCount(), 3);
            QCOMPARE(Satir(pencere, 2), (QStringList{"21.05.2026", "1500", "7 - Ali Veli"}));
            QCOMPARE(Toplamlar(pencere), (QStringList{"5.000", "1.850", "3.150"}));
        });
    }

    void another_day_and_another_note_come_into_the_row() {
        GuiFirma firma;
        Odemelerde(firma, [](QDialog& pencere) {
            Ekle(pencere, [](QDialog& odeme) {
                Yaz(QStringLiteral("640"));
                auto& tarih = Parcasi<QDateEdit>(odeme, "DTPicker1");
                tarih.setFocus();
                tarih.setSelectedSection(QDateTimeEdit::DaySection);
                Tusla(Qt::Key_Up);
                Tusla(Qt::Key_Up);
                AlanaYaz(odeme, "Aciklama", QStringLiteral("elden, Nur"));
                Tikla(odeme, "Command1");
            });
            QCOMPARE(Satir(pencere, 2), (QStringList{"23.05.2026", "640", "elden, Nur"}));
        });
    }

    void only_one_payment_is_marked_at_a_time_as_only_one_is_deleted() {
        GuiFirma firma;
        Odemelerde(firma, [](QDialog& pencere) {
            QTreeWidget& liste = Liste(pencere);
            QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                              liste.visualItemRect(liste.topLevelItem(0)).center());
            QTest::keyClick(&liste, Qt::Key_Down, Qt::ShiftModifier);
            QCOMPARE(liste.selectedItems(), QList<QTreeWidgetItem*>{liste.topLevelItem(1)});
        });
    }

    void enter_saves_after_a_payment_was_added_and_not_after_none_was() {
        GuiFirma firma;
        Odemelerde(firma, [&](QDialog& pencere) {
            Pencerede([&] { Tikla(pencere, "Command8"); }, {TusBas(Qt::Key_Escape)});
            QCOMPARE(pencere.focusWidget()->objectName(), QStringLiteral("Command8"));
            Ekle(pencere, [](QDialog&) {
                Yaz(QStringLiteral("730"));
                Tusla(Qt::Key_Return);
            });
            pencere.activateWindow();
            QTRY_COMPARE(Odaktaki(), QStringLiteral("Command1"));
            Tusla(Qt::Key_Return);
            QVERIFY(!firma.program.FormKayit.Yuklu());
        });
        QVERIFY(firma.agac.Bayt(Metin(kSalonA) + u"/2026/" + Metin(kGun) + u"-Odeme").find("\"730\"") !=
                std::string::npos);
    }

    void enter_on_a_payment_saves_nothing() {
        GuiFirma firma;
        Odemelerde(firma, [&](QDialog& pencere) {
            SatiraTikla(Liste(pencere), 1);
            QVERIFY(Liste(pencere).hasFocus());
            for (const Qt::Key tus : {Qt::Key_Return, Qt::Key_Enter})
                Tusla(tus);
            QVERIFY(firma.program.FormKayit.Yuklu());
            QVERIFY(pencere.isVisible());
        });
    }

    void ok_waits_for_an_amount_and_escape_closes_without_a_row() {
        GuiFirma firma;
        Odemelerde(firma, [](QDialog& pencere) {
            Ekle(pencere, [](QDialog& odeme) {
                QVERIFY(!Acik(odeme, "Command1"));
                Tusla(Qt::Key_Return);
                QVERIFY(odeme.isVisible());
                Yaz(QStringLiteral("5"));
                QVERIFY(Acik(odeme, "Command1"));
                Tusla(Qt::Key_Backspace);
                QVERIFY(!Acik(odeme, "Command1"));
                Yaz(QStringLiteral("5"));
                Tusla(Qt::Key_Escape);
            });
            QCOMPARE(Liste(pencere).topLevelItemCount(), 2);
            QCOMPARE(Toplamlar(pencere), (QStringList{"5.000", "350", "4.650"}));
        });
    }

    void enter_on_the_cancel_button_adds_nothing() {
        GuiFirma firma;
        Odemelerde(firma, [](QDialog& pencere) {
            Ekle(pencere, [](QDialog&) {
                Yaz(QStringLiteral("5"));
                for (int i = 0; i < 4 && Odaktaki() != QStringLiteral("Command2"); ++i)
                    Tusla(Qt::Key_Tab);
                QCOMPARE(Odaktaki(), QStringLiteral("Command2"));
                Tusla(Qt::Key_Return);
            });
            QCOMPARE(Liste(pencere).topLevelItemCount(), 2);
        });
    }

    void an_amount_of_zero_closes_the_dialog_and_adds_nothing_on_purpose() {
        GuiFirma firma;
        Odemelerde(firma, [](QDialog& pencere) {
            Ekle(pencere, [](QDialog& odeme) {
                Yaz(QStringLiteral("000"));
                Tikla(odeme, "Command1");
            });
            QCOMPARE(Liste(pencere).topLevelItemCount(), 2);
        });
    }

    void a_click_on_a_row_lets_it_be_deleted_after_a_yes_alone() {
        GuiFirma firma;
        Odemelerde(firma, [](QDialog& pencere) {
            QVERIFY(!Acik(pencere, "Command7"));
            SatiraTikla(Liste(pencere), 0);
            QVERIFY(Acik(pencere, "Command7"));
            Sil(pencere, QStringLiteral("Hayır"));
            QCOMPARE(Liste(pencere).topLevelItemCount(), 2);
            QVERIFY(!Acik(pencere, "Command7"));
            SatiraTikla(Liste(pencere), 0);
            QVERIFY(Acik(pencere, "Command7"));
            Sil(pencere, QStringLiteral("Evet"));
            QCOMPARE(Liste(pencere).topLevelItemCount(), 1);
            QCOMPARE(Satir(pencere, 0), (QStringList{"02.05.2026", "250", "7 - Ali Veli"}));
            QCOMPARE(Toplamlar(pencere), (QStringList{"5.000", "250", "4.750"}));
            QVERIFY(!Acik(pencere, "Command7"));
        });
    }

    void after_the_dialog_the_same_row_must_be_clicked_again() {
        GuiFirma firma;
        Odemelerde(firma, [](QDialog& pencere) {
            SatiraTikla(Liste(pencere), 1);
            QVERIFY(Acik(pencere, "Command7"));
            Ekle(pencere, [](QDialog&) { Tusla(Qt::Key_Escape); });
            QVERIFY(!Acik(pencere, "Command7"));
            SatiraTikla(Liste(pencere), 1);
            QVERIFY(Acik(pencere, "Command7"));
        });
    }

    void without_a_right_to_amounts_nothing_is_deleted_and_payments_can_still_be_taken() {
        GuiFirma firma;
        const Is is = [](QDialog& pencere) {
            QVERIFY(Parcasi<QLineEdit>(pencere, "Kay8").isReadOnly());
            Ekle(pencere, [](QDialog&) {
                Yaz(QStringLiteral("50"));
                Tusla(Qt::Key_Return);
            });
            QCOMPARE(Toplamlar(pencere), (QStringList{"5.000", "400", "4.600"}));
            SatiraTikla(Liste(pencere), 0);
            Pencerede([&] { Tikla(pencere, "Command7"); },
                      {Mesaj(QStringLiteral("Alınan ödemeleri silmeye yetkiniz yok!"))});
            QCOMPARE(Liste(pencere).topLevelItemCount(), 3);
            QVERIFY(!Acik(pencere, "Command7"));
        };
        Odemelerde(firma, is, false);
    }

    void without_a_name_or_a_price_a_box_comes_and_leads_back_to_the_field() {
        GuiFirma firma;
        YeniKayitta(firma, kGun, {[&](QDialog& pencere) {
                        const auto geriDon = [&](const char* alan, const QString& metin) {
                            Tikla(pencere, "Command4");
                            QCOMPARE(Parcasi<QTabWidget>(pencere, "SSTab1").currentIndex(), 1);
                            Pencerede([&] { Tikla(pencere, "Command8"); }, {Mesaj(metin)});
                            QCOMPARE(Parcasi<QTabWidget>(pencere, "SSTab1").currentIndex(), 0);
                            QCOMPARE(Odaktaki(), QString::fromLatin1(alan));
                        };
                        geriDon("Kay1", QStringLiteral("Lütfen önce adı soyadı giriniz!"));
                        Yaz(QStringLiteral("Ali"));
                        geriDon("Kay8", QStringLiteral("Lütfen önce toplam ücreti giriniz!"));
                        Yaz(QStringLiteral("900"));
                        Tikla(pencere, "Command4");
                        Ekle(pencere, [](QDialog&) {
                            Yaz(QStringLiteral("1000"));
                            Tusla(Qt::Key_Return);
                        });
                        QCOMPARE(Toplamlar(pencere), (QStringList{"900", "1.000", "-100"}));
                        firma.program.FormKayit->KayitAc = 1; // closes without a question
                        Tusla(Qt::Key_Escape);
                    }});
    }
};

VELORA_GUI_TEST(OdemeSayfasiTest)
#include "OdemeSayfasiTest.moc"
