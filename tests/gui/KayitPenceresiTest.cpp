#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Ceviri.h"
#include "reservation/FormKayit.h"

using namespace velora;
using namespace velora::test;

/// Typing into the real window of a reservation.
class KayitPenceresiTest : public QObject {
    Q_OBJECT

    static void Kayitta(GuiFirma& firma, const Is& is) { YeniKayitta(firma, u"20.06.2026 - Gece", {is}); }

  private slots:
    void the_hall_stands_beside_the_day_and_a_long_name_does_not_widen_the_window() {
        int kisa = 0;
        for (const Metin& salon :
             {Metin(u"Nar"),
              Metin(u"Büyük Bahçe Düğün Salonu Ve Havuz Başı & Teras, Yeni Bina, Alt Kat, Göl Tarafındaki "
                    u"Eski Girişin Üstü")}) {
            GuiFirma firma;
            firma.agac.KoyMetin(u"Salon.dat", u"\"" + salon + u"\"\r\n");
            Kayitta(firma, [&](QDialog& pencere) {
                const auto& gun = Parcasi<QLabel>(pencere, "Tarih");
                const auto& ad = Parcasi<QLabel>(pencere, "SalonAdi");
                QCOMPARE(ad.text(), QMetin(salon));
                QCOMPARE(gun.text(), QStringLiteral("20.06.2026 - Gece"));
                QVERIFY(ad.isVisible() &&
                        ad.mapTo(&pencere, QPoint()).x() > gun.mapTo(&pencere, QPoint()).x());
                QVERIFY(ad.heightForWidth(ad.width()) <= ad.height());
                // What stands in the window: the window itself is never wider than the screen.
                const int en = Parcasi<QTabWidget>(pencere, "SSTab1").minimumSizeHint().width();
                QVERIFY(kisa == 0 || en == kisa);
                kisa = en;
            });
        }
    }

    void an_empty_or_half_filled_mask_keeps_its_prompt_signs_in_the_model() {
        GuiFirma firma;
        Kayitta(firma, [&](QDialog& pencere) {
            const auto model = firma.program.FormKayit.Tut();
            QCOMPARE(QMetin(model->Kay[15].metin), QStringLiteral("__:__"));
            auto& saat = Parcasi<QLineEdit>(pencere, "Kay15");
            saat.setFocus();
            saat.setCursorPosition(0);
            QTest::keyClicks(&saat, QStringLiteral("2"));
            QCOMPARE(QMetin(model->Kay[15].metin), QStringLiteral("2_:__"));
            QTest::keyClicks(&saat, QStringLiteral("x1"));
            QCOMPARE(QMetin(model->Kay[15].metin), QStringLiteral("21:__"));
        });
    }

    void the_price_takes_digits_only_typed_or_pasted_and_six_of_them() {
        GuiFirma firma;
        Kayitta(firma, [&](QDialog& pencere) {
            const auto model = firma.program.FormKayit.Tut();
            auto& ucret = Parcasi<QLineEdit>(pencere, "Kay8");
            ucret.setFocus();
            QTest::keyClicks(&ucret, QStringLiteral("1a,5."));
            QCOMPARE(QMetin(model->Kay[8].metin), QStringLiteral("15"));
            QApplication::clipboard()->setText(QStringLiteral("0.0x07899"));
            ucret.paste();
            QCOMPARE(QMetin(model->Kay[8].metin), QStringLiteral("150007"));
        });
    }

    void a_sign_outside_the_code_page_is_dropped_when_typed_and_asked_for_when_pasted() {
        GuiFirma firma;
        Kayitta(firma, [&](QDialog& pencere) {
            const auto model = firma.program.FormKayit.Tut();
            auto& ad = Parcasi<QLineEdit>(pencere, "Kay1");
            ad.setFocus();
            Yaz(QStringLiteral("ş語ı"));
            QCOMPARE(QMetin(model->Kay[1].metin), QStringLiteral("şı"));
            QApplication::clipboard()->setText(QStringLiteral(" u\u0308語"));
            ad.paste();
            QCOMPARE(QMetin(model->Kay[1].metin), QStringLiteral("şı ü?"));
        });
    }

    void the_price_counts_as_left_when_a_button_is_pressed_without_the_mouse() {
        GuiFirma firma;
        Kayitta(firma, [&](QDialog& pencere) {
            const auto model = firma.program.FormKayit.Tut();
            auto& ucret = Parcasi<QLineEdit>(pencere, "Kay8");
            ucret.setFocus();
            QVERIFY(ucret.hasFocus());
            QTest::keyClicks(&ucret, QStringLiteral("1500"));
            Parcasi<QPushButton>(pencere, "Command4").click();
            QCOMPARE(QMetin(model->Kay[10].metin), QStringLiteral("1500"));
        });
    }

    void a_service_that_is_ticked_opens_its_note_and_moves_the_focus_there() {
        GuiFirma firma;
        Kayitta(firma, [&](QDialog& pencere) {
            auto& not3 = Parcasi<QLineEdit>(pencere, "TT3");
            auto& kutu = Parcasi<QCheckBox>(pencere, "Check3");
            QVERIFY(!not3.isEnabled());
            Parcasi<QTabWidget>(pencere, "SSTab1").setCurrentIndex(3);
            QVERIFY(kutu.isVisible());
            QTest::mouseClick(&kutu, Qt::LeftButton, {}, {8, kutu.height() / 2});
            QTRY_COMPARE(QApplication::focusWidget(), &not3);
            QVERIFY(not3.isEnabled());
            QCOMPARE(firma.program.FormKayit->Check[3].deger, 1);
            QTest::mouseClick(&kutu, Qt::LeftButton, {}, {8, kutu.height() / 2});
            QCoreApplication::processEvents();
            QVERIFY(!not3.isEnabled());
            QVERIFY(QApplication::focusWidget() != &not3);
        });
    }

    void a_service_ticked_by_the_space_bar_leaves_the_focus_where_it_is_on_purpose() {
        GuiFirma firma;
        Kayitta(firma, [&](QDialog& pencere) {
            Parcasi<QTabWidget>(pencere, "SSTab1").setCurrentIndex(3);
            auto& kutu = Parcasi<QCheckBox>(pencere, "Check3");
            kutu.setFocus();
            QTest::keyClick(&kutu, Qt::Key_Space);
            QCoreApplication::processEvents();
            QVERIFY(Parcasi<QLineEdit>(pencere, "TT3").isEnabled());
            QCOMPARE(QApplication::focusWidget(), &kutu);
        });
    }

    void a_click_with_the_mouse_selects_all_that_a_field_holds() {
        GuiFirma firma;
        Kayitta(firma, [&](QDialog& pencere) {
            auto& saat = Parcasi<QLineEdit>(pencere, "Kay12");
            QVERIFY(!saat.hasFocus());
            QTest::mouseClick(&saat, Qt::LeftButton, {}, {saat.width() / 2, saat.height() / 2});
            QCoreApplication::processEvents();
            QCOMPARE(saat.selectedText(), QStringLiteral("20:00"));
            QTest::mouseClick(&saat, Qt::LeftButton, {}, {saat.width() / 2, saat.height() / 2});
            QCoreApplication::processEvents();
            QVERIFY2(!saat.hasSelectedText(), "a second click sets the cursor");
        });
    }

    void wishes_and_the_address_have_many_lines_and_amounts_stand_at_the_right() {
        GuiFirma firma;
        Kayitta(firma, [&](QDialog& pencere) {
            for (const char* ad : {"Kay7", "Kay11", "Label20", "Aciklamalar"})
                QVERIFY2(pencere.findChild<QPlainTextEdit*>(QString::fromLatin1(ad)) != nullptr, ad);
            QVERIFY(Parcasi<QLineEdit>(pencere, "Kay8").alignment().testFlag(Qt::AlignRight));
            QVERIFY(!Parcasi<QLineEdit>(pencere, "Kay1").alignment().testFlag(Qt::AlignRight));
            for (const char* ad : {"Kayam9", "Kayam10"})
                QVERIFY2(Parcasi<QLabel>(pencere, ad).alignment().testFlag(Qt::AlignRight), ad);
            firma.program.FormKayit->Kay[AnaNo::AdiSoyadi].metin = u"Ali";
            firma.program.FormKayit->Kay[AnaNo::ToplamUcret].metin = u"5000";
            Pencerede([&] { firma.program.FormKayit->Command8_Click(); }, {[](QDialog& odeme) {
                          QVERIFY(Parcasi<QLineEdit>(odeme, "Text1").alignment().testFlag(Qt::AlignRight));
                      }});
        });
    }

    void what_is_pasted_into_a_mask_or_a_price_is_meant_as_a_person_means_it() {
        GuiFirma firma;
        Kayitta(firma, [&](QDialog& pencere) {
            const auto yapistir = [&](const char* ad, const QString& metin) {
                QGuiApplication::clipboard()->setText(metin);
                auto& alan = Parcasi<QLineEdit>(pencere, ad);
                alan.setFocus();
                QCoreApplication::processEvents();
                alan.selectAll();
                QTest::keyClick(&alan, Qt::Key_V, Qt::ControlModifier);
                return alan.displayText();
            };
            QCOMPARE(yapistir("Kay13", QStringLiteral("5.1.2026")), QStringLiteral("05.01.2026"));
            QCOMPARE(yapistir("Kay13", QStringLiteral("21.6.2025")), QStringLiteral("21.06.2025"));
            QCOMPARE(yapistir("Kay12", QStringLiteral("9.30")), QStringLiteral("09:30"));
            QCOMPARE(yapistir("Kay8", QStringLiteral("5000")), QStringLiteral("5000"));
            QCOMPARE(yapistir("Kay8", QStringLiteral("12.500,00")), QStringLiteral("12500"));
            QCOMPARE(yapistir("Kay8", QStringLiteral("1,00")), QStringLiteral("1"));
            QCOMPARE(firma.program.FormKayit->Kay[AnaNo::SozlesmeTarihi].metin, Metin(u"21.06.2025"));
            QCOMPARE(firma.program.FormKayit->Kay[AnaNo::ToplamUcret].metin, Metin(u"1"));
        });
    }

    void line_breaks_of_a_note_are_those_of_the_files() {
        GuiFirma firma;
        Kayitta(firma, [&](QDialog& pencere) {
            auto& adres = Parcasi<QPlainTextEdit>(pencere, "Kay7");
            adres.setFocus();
            QTest::keyClicks(&adres, QStringLiteral("a"));
            QTest::keyClick(&adres, Qt::Key_Return);
            QTest::keyClicks(&adres, QStringLiteral("b"));
            QCOMPARE(QMetin(firma.program.FormKayit->Kay[7].metin), QStringLiteral("a\r\nb"));
        });
    }

    void escape_asks_before_a_new_record_is_dropped() {
        GuiFirma firma;
        Kayitta(firma, [](QDialog& pencere) {
            Pencerede([&] { QTest::keyClick(&pencere, Qt::Key_Escape); },
                      {Kutuda<QMessageBox>([](QMessageBox& kutu) {
                          QCOMPARE(kutu.text(),
                                   QStringLiteral("Rezervasyonu oluşturmadan kapatıyorsunuz!\n"
                                                  "Bu Rezervasyon kaydı oluşturulmayacak emin misiniz?"));
                          QTest::keyClick(&kutu, Qt::Key_E);
                          Kapanincaya(kutu);
                      })});
        });
        QVERIFY(!firma.program.FormKayit.Yuklu());
    }
};

VELORA_GUI_TEST(KayitPenceresiTest)
#include "KayitPenceresiTest.moc"
