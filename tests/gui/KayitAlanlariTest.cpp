#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "destek/Kayitlar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "reservation/FormKayit.h"

using namespace velora;
using namespace velora::test;

/// What follows from one field of the real window of a reservation to another.
class KayitAlanlariTest : public QObject {
    Q_OBJECT

    /// A new record with one menu on a page, counted from 0, and the contract numbers given out up to 57.
    static void Sayfada(GuiFirma& firma, int sayfa, const Is& is) {
        firma.agac.KoyMetin(u"Menuler.dat", u"\"Klasik\",\"Çorba\r\nTatlı\"\r\n\"Altın\",\"Balık\"\r\n");
        firma.agac.Koy(u"Count.dat", "\"57\"\r\n");
        YeniKayitta(firma, u"20.06.2026 - Gece", {[&](QDialog& pencere) {
                        Parcasi<QTabWidget>(pencere, "SSTab1").setCurrentIndex(sayfa);
                        is(pencere);
                        firma.program.FormKayit->KayitAc = 1; // closes without a question
                        QTest::keyClick(&pencere, Qt::Key_Escape);
                    }});
    }
    /// A click on the box or the dot before a caption.
    static void Isaretle(const QDialog& pencere, const char* ad) {
        auto& dugme = Parcasi<QAbstractButton>(pencere, ad);
        QVERIFY(dugme.isVisible());
        QTest::mouseClick(&dugme, Qt::LeftButton, {}, {8, dugme.height() / 2});
        QCoreApplication::processEvents();
    }
    static QColor Zemin(const QWidget& alan) { return alan.palette().color(QPalette::Base); }
    static void BeyazOlmali(const QWidget& alan) { QCOMPARE(Zemin(alan), QColor(Qt::white)); }
    static void GriOlmali(const QWidget& alan) {
        QCOMPARE(Zemin(alan), alan.palette().color(QPalette::Window));
        QVERIFY(Zemin(alan) != QColor(Qt::white));
    }

    /// A click on the tab of a page, counted from 0.
    static void SayfayaTikla(const QDialog& pencere, int sayfa, Qt::MouseButton dugme = Qt::LeftButton) {
        auto& serit = *Parcasi<QTabWidget>(pencere, "SSTab1").tabBar();
        QTest::mouseClick(&serit, dugme, {}, serit.tabRect(sayfa).center());
        QCoreApplication::processEvents();
    }
    static QLineEdit& BosAlanda(const QDialog& pencere, const char* ad) {
        auto& alan = Parcasi<QLineEdit>(pencere, ad);
        alan.setFocus();
        QCoreApplication::processEvents();
        alan.selectAll();
        return alan;
    }
    /// The menu of the right button, as the toolkit opens it.
    static QMenu* SagMenu(QWidget& alan) {
        const QPoint yer = alan.rect().center();
        QContextMenuEvent istek(QContextMenuEvent::Mouse, yer, alan.mapToGlobal(yer));
        QCoreApplication::sendEvent(&alan, &istek);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

  private slots:
    void a_price_and_a_time_that_are_left_by_a_click_on_a_tab_are_taken() {
        GuiFirma firma;
        YeniKayitta(firma, u"20.06.2026 - Gece", {[&](QDialog& pencere) {
                        const auto kayit = firma.program.FormKayit.Tut();
                        Parcasi<QLineEdit>(pencere, "Kay1").setFocus();
                        Yaz(QStringLiteral("ali"));
                        QTest::keyClick(&Parcasi<QComboBox>(pencere, "Kay4"), Qt::Key_Down);
                        QTest::keyClicks(&BosAlanda(pencere, "Kay12"), QStringLiteral("2570"));
                        SayfayaTikla(pencere, 2);
                        QCOMPARE(kayit->Kay[12].metin, Metin(u"00:00"));
                        SayfayaTikla(pencere, 0);
                        QTest::keyClicks(&BosAlanda(pencere, "Kay15"), QStringLiteral("2330"));
                        QTest::keyClicks(&BosAlanda(pencere, "Kay8"), QStringLiteral("1500"));
                        SayfayaTikla(pencere, 1);
                        QCOMPARE(Parcasi<QTabWidget>(pencere, "SSTab1").currentIndex(), 1);
                        QCOMPARE(kayit->Kay[10].metin, Metin(u"1500"));
                        Tikla(pencere, "Command1");
                    }});
        const std::string bayt = firma.agac.Bayt(Metin(kSalonA) + u"/2026/20.06.2026 - Gece");
        QVERIFY2(bayt.find("\"1500\",\"0\",\"1500\"") != std::string::npos, bayt.c_str());
    }

    void a_digit_behind_a_price_with_decimals_makes_no_larger_one() {
        GuiFirma firma;
        Sayfada(firma, 0, [&](QDialog& pencere) {
            const auto kayit = firma.program.FormKayit.Tut();
            kayit->Kay[8].metin = u"1250.50";
            Baglayici::HepsiniTazele();
            auto& ucret = BosAlanda(pencere, "Kay8");
            Tusla(Qt::Key_End);
            Yaz(QStringLiteral("3"));
            QCOMPARE(ucret.text(), QStringLiteral("1250.50"));
            Tusla(Qt::Key_Backspace);
            Tusla(Qt::Key_Backspace);
            QCOMPARE(kayit->Kay[8].metin, Metin(u"1250."));
            Yaz(QStringLiteral("7"));
            QCOMPARE(kayit->Kay[8].metin, Metin(u"1250.7"));
        });
    }

    void only_the_left_button_turns_a_page() {
        GuiFirma firma;
        Sayfada(firma, 1, [&](QDialog& pencere) {
            SayfayaTikla(pencere, 3, Qt::RightButton);
            QCOMPARE(firma.program.FormKayit->SSTab1, 2);
            QCOMPARE(Parcasi<QTabWidget>(pencere, "SSTab1").currentIndex(), 1);
        });
    }

    void what_is_typed_goes_on_after_the_menu_of_its_field_and_no_rule_runs_in_between() {
        GuiFirma firma;
        Sayfada(firma, 0, [&](QDialog& pencere) {
            const auto kayit = firma.program.FormKayit.Tut();
            QTest::keyClicks(&BosAlanda(pencere, "Kay12"), QStringLiteral("25"));
            QMenu* menu = SagMenu(Parcasi<QLineEdit>(pencere, "Kay12"));
            QVERIFY(menu != nullptr);
            QCOMPARE(kayit->Kay[12].metin, Metin(u"25:__"));
            QTest::keyClick(menu, Qt::Key_Escape);
            auto& ad = BosAlanda(pencere, "Kay1");
            QTest::keyClicks(&ad, QStringLiteral("Ali "));
            menu = SagMenu(ad);
            QVERIFY(menu != nullptr);
            QTest::keyClick(menu, Qt::Key_Escape);
            pencere.activateWindow(); // here nobody else does it
            QTRY_VERIFY(ad.hasFocus());
            QCoreApplication::processEvents();
            QCOMPARE(ad.selectedText(), QString());
            QTest::keyClicks(&ad, QStringLiteral("Veli"));
            QCOMPARE(ad.text(), QStringLiteral("Ali Veli"));
            Parcasi<QLineEdit>(pencere, "Kay5").setFocus();
            ad.setFocus();
            QTRY_COMPARE(ad.selectedText(), QStringLiteral("Ali Veli"));
        });
    }

    void a_chosen_menu_shows_its_text_and_the_first_entry_empties_it() {
        GuiFirma firma;
        Sayfada(firma, 2, [&](QDialog& pencere) {
            auto& menu = Parcasi<QComboBox>(pencere, "Combo1");
            const auto& metin = Parcasi<QPlainTextEdit>(pencere, "Label20");
            QCOMPARE(menu.currentText(), QStringLiteral("Menü seçiniz..."));
            QCOMPARE(metin.toPlainText(), QString());
            QTest::keyClick(&menu, Qt::Key_Down);
            QCOMPARE(menu.currentText(), QStringLiteral("Klasik"));
            QCOMPARE(metin.toPlainText(), QStringLiteral("Çorba\nTatlı"));
            QTest::keyClick(&menu, Qt::Key_Down);
            QCOMPARE(metin.toPlainText(), QStringLiteral("Balık"));
            QTest::keyClick(&menu, Qt::Key_Home);
            QCOMPARE(metin.toPlainText(), QString());
        });
    }

    void firm_and_pre_reservation_exclude_each_other() {
        GuiFirma firma;
        Sayfada(firma, 0, [&](QDialog& pencere) {
            const auto model = firma.program.FormKayit.Tut();
            const auto& kesin = Parcasi<QRadioButton>(pencere, "Option1");
            const auto& on = Parcasi<QRadioButton>(pencere, "Option2");
            QVERIFY(kesin.isChecked() && !on.isChecked());
            Isaretle(pencere, "Option2");
            QVERIFY(!kesin.isChecked() && on.isChecked());
            QVERIFY(model->Option1.deger == 0 && model->Option2.deger == 1);
            Isaretle(pencere, "Option1");
            QVERIFY(kesin.isChecked() && !on.isChecked());
            QVERIFY(model->Option1.deger == 1 && model->Option2.deger == 0);
        });
    }

    void the_reminder_opens_its_date_with_the_focus_and_closes_it_with_the_date_kept() {
        GuiFirma firma;
        Sayfada(firma, 0, [&](QDialog& pencere) {
            const auto& tarih = Parcasi<QLineEdit>(pencere, "Kay18");
            QVERIFY(!tarih.isEnabled());
            GriOlmali(tarih);
            Isaretle(pencere, "Check19");
            QTRY_COMPARE(QApplication::focusWidget(), &tarih);
            QVERIFY(tarih.isEnabled());
            BeyazOlmali(tarih);
            Tusla(Qt::Key_Home);
            Yaz(QStringLiteral("01062026"));
            QCOMPARE(tarih.displayText(), QStringLiteral("01.06.2026"));
            Isaretle(pencere, "Check19");
            QVERIFY(!tarih.isEnabled());
            GriOlmali(tarih);
            QCOMPARE(tarih.displayText(), QStringLiteral("01.06.2026"));
            QVERIFY(QApplication::focusWidget() != &tarih);
        });
    }

    void the_contract_number_is_offered_grey_and_locked() {
        GuiFirma firma;
        Sayfada(firma, 0, [&](QDialog& pencere) {
            auto& no = Parcasi<QLineEdit>(pencere, "Kay14");
            QCOMPARE(no.text(), QStringLiteral("58"));
            QVERIFY(no.isReadOnly());
            GriOlmali(no);
            no.setFocus();
            Yaz(QStringLiteral("9"));
            QCOMPARE(no.text(), QStringLiteral("58"));
        });
    }

    void without_automatic_numbers_the_number_is_white_and_takes_digits() {
        GuiFirma firma;
        constexpr int kOtomatikNumara = 29; // its place in the settings
        firma.agac.KoyMetin(u"Settings.dll", AyarMetni(kOtomatikNumara, u"0"));
        firma.agac.KoyMetin(u"Visible.dll", u"1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
        Sayfada(firma, 0, [&](QDialog& pencere) {
            auto& no = Parcasi<QLineEdit>(pencere, "Kay14");
            QVERIFY(!no.isReadOnly());
            BeyazOlmali(no);
            no.setFocus();
            Yaz(QStringLiteral("x9"));
            QCOMPARE(no.text(), QStringLiteral("589"));
            QCOMPARE(QMetin(firma.program.FormKayit->Kay[14].metin), QStringLiteral("589"));
        });
    }

    void each_note_is_grey_until_its_service_is_ticked_and_is_emptied_when_it_is_not_any_more() {
        GuiFirma firma;
        Sayfada(firma, 3, [&](QDialog& pencere) {
            for (int no = 1; no <= kHizmetSayisi; ++no) {
                const QByteArray hizmet = "Check" + QByteArray::number(no);
                const auto& not_ = Parcasi<QLineEdit>(pencere, "TT" + QByteArray::number(no));
                QVERIFY(!not_.isEnabled());
                GriOlmali(not_);
                Isaretle(pencere, hizmet);
                QTRY_COMPARE(QApplication::focusWidget(), &not_);
                BeyazOlmali(not_);
                Yaz(QStringLiteral("not"));
                QCOMPARE(QMetin(firma.program.FormKayit->TT[no].metin), QStringLiteral("not"));
                if (no % 2 == 0)
                    continue; // stays on, so that one service is seen to leave another's note alone
                Isaretle(pencere, hizmet);
                QVERIFY(!not_.isEnabled());
                GriOlmali(not_);
                QCOMPARE(not_.text(), QString());
            }
            QCOMPARE(Parcasi<QLineEdit>(pencere, "TT16").text(), QStringLiteral("not"));
        });
    }
};

VELORA_GUI_TEST(KayitAlanlariTest)
#include "KayitAlanlariTest.moc"
