#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Ceviri.h"
#include "reservation/FormKayit.h"
#include "reservation/KayitYukle.h"

using namespace velora;
using namespace velora::test;

/// A reservation entered with the keyboard, in the real window.
class KayitKlavyesiTest : public QObject {
    Q_OBJECT

    static constexpr MetinBakis kGun = u"20.06.2026 - Gece";

    /// Tab until the focus is in a field.
    static void AlanaGit(const char* ad) {
        for (int i = 0; i < 60 && Odaktaki() != QLatin1String(ad); ++i)
            Tusla(Qt::Key_Tab);
        QCOMPARE(Odaktaki(), QString::fromLatin1(ad));
    }
    /// Types into a field that Tab leads to.
    static void TablaYaz(const char* ad, const QString& metin) {
        AlanaGit(ad);
        Yaz(metin);
    }
    /// The key that the mark in a button's caption names.
    static Qt::Key ErisimTusu(const QPushButton& dugme) {
        return static_cast<Qt::Key>(dugme.text().at(dugme.text().indexOf(u'&') + 1).toUpper().unicode());
    }
    static void NiteligiSec(QDialog& pencere) {
        AlanaGit("Kay4");
        QTest::keyClick(&Parcasi<QComboBox>(pencere, "Kay4"), Qt::Key_Down);
    }

  private slots:
    void a_price_still_in_its_field_is_in_the_rest_when_the_access_key_saves() {
        GuiFirma firma;
        YeniKayitta(firma, kGun, {[](QDialog& pencere) {
                        QCOMPARE(Odaktaki(), QStringLiteral("Kay1"));
                        Yaz(QStringLiteral("ali veli"));
                        NiteligiSec(pencere);
                        TablaYaz("Kay15", QStringLiteral("2330"));
                        TablaYaz("Kay8", QStringLiteral("1500"));
                        Tusla(ErisimTusu(Parcasi<QPushButton>(pencere, "Command1")), Qt::AltModifier);
                        Kapanincaya(pencere);
                    }});
        const std::string bayt = firma.agac.Bayt(Metin(kSalonA) + u"/2026/" + Metin(kGun));
        QVERIFY2(bayt.find("\"1500\",\"0\",\"1500\"") != std::string::npos, bayt.c_str());
        QVERIFY(bayt.starts_with("\"Ali Veli\",\"\",\"\",\"D\xFC\xF0\xFCn\""));
        QVERIFY(!firma.program.FormKayit.Yuklu());
    }

    void a_held_enter_or_escape_that_opened_or_closed_a_window_goes_no_further() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, kGun, false);
        firma.Ac();
        const std::string once = firma.agac.Resim();
        const auto tekrarla = [](int tus) {
            QTest::simulateEvent(QApplication::focusWidget(), true, tus, Qt::NoModifier, QString(), true);
        };
        const Metin yol = firma.program.agac.GunYolu(kSalonA, u"2026", kGun);
        Pencerede([&] { KayitYukle(firma.program, yol, Metin(kGun)); }, {[&](QDialog& pencere) {
                      for (const char* ad : {"Kay1", "Command1", "Command2"}) {
                          Parcasi<QWidget>(pencere, ad).setFocus();
                          for (const int tus : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
                              tekrarla(tus);
                              QVERIFY(firma.program.FormKayit.Yuklu() && pencere.isVisible());
                          }
                      }
                      auto& adres = Parcasi<QPlainTextEdit>(pencere, "Kay7");
                      adres.setFocus();
                      const int satir = adres.blockCount();
                      tekrarla(Qt::Key_Return);
                      QCOMPARE(adres.blockCount(), satir + 1);
                  }});
        QVERIFY(firma.agac.Resim() == once);
    }

    void the_start_is_selected_whole_mended_when_it_is_left_and_the_end_is_not_on_purpose() {
        GuiFirma firma;
        YeniKayitta(
            firma, kGun, {[&](QDialog& pencere) {
                const auto model = firma.program.FormKayit.Tut();
                AlanaGit("Kay12");
                QCoreApplication::processEvents();
                QCOMPARE(Parcasi<QLineEdit>(pencere, "Kay12").selectedText(), QStringLiteral("20:00"));
                Yaz(QStringLiteral("2570"));
                Tusla(Qt::Key_Tab);
                QCOMPARE(QMetin(model->Kay[12].metin), QStringLiteral("00:00"));
                QCOMPARE(Parcasi<QLineEdit>(pencere, "Kay12").displayText(), QStringLiteral("00:00"));
                TablaYaz("Kay15", QStringLiteral("9999"));
                Tusla(Qt::Key_Tab);
                QCOMPARE(QMetin(model->Kay[15].metin), QStringLiteral("99:99"));
                Pencerede([] { Tusla(Qt::Key_Escape); },
                          {Mesaj(QStringLiteral("Rezervasyonu oluşturmadan kapatıyorsunuz!\n"
                                                "Bu Rezervasyon kaydı oluşturulmayacak emin misiniz?"),
                                 QStringLiteral("Evet"))});
            }});
    }

    void enter_saves_and_a_refusal_puts_the_focus_where_something_is_missing() {
        GuiFirma firma;
        YeniKayitta(firma, kGun, {[&](QDialog& pencere) {
                        Yaz(QStringLiteral("ali veli"));
                        NiteligiSec(pencere);
                        AlanaGit("Kay1");
                        Pencerede([] { Tusla(Qt::Key_Return); },
                                  {Mesaj(QStringLiteral("Lütfen bitiş saatini giriniz!"))});
                        QCOMPARE(Odaktaki(), QStringLiteral("Kay15"));
                        Yaz(QStringLiteral("2330"));
                        Tusla(Qt::Key_Return);
                    }});
        QVERIFY(firma.agac.DosyaVar(Metin(kSalonA) + u"/2026/" + Metin(kGun)));
    }

    void a_refusal_turns_back_to_the_page_of_its_field() {
        GuiFirma firma;
        YeniKayitta(firma, kGun, {[&](QDialog& pencere) {
                        Yaz(QStringLiteral("ali veli"));
                        for (int i = 0; i < 3; ++i)
                            Tusla(Qt::Key_Tab, Qt::ControlModifier);
                        QCOMPARE(firma.program.FormKayit->SSTab1, 4);
                        Pencerede([] { Tusla(Qt::Key_Return); },
                                  {Mesaj(QStringLiteral("Lütfen bitiş saatini giriniz!"))});
                        QCOMPARE(Parcasi<QTabWidget>(pencere, "SSTab1").currentIndex(), 0);
                        QCOMPARE(Odaktaki(), QStringLiteral("Kay15"));
                        firma.program.FormKayit->KayitAc = 1; // closes without a question
                        Tusla(Qt::Key_Escape);
                    }});
    }

    void enter_on_the_focused_close_button_closes_and_saves_nothing() {
        GuiFirma firma;
        YeniKayitta(firma, kGun, {[&](QDialog& pencere) {
                        Yaz(QStringLiteral("ali veli"));
                        NiteligiSec(pencere);
                        TablaYaz("Kay15", QStringLiteral("2330"));
                        const auto kapat = [&](const char* cevap) {
                            AlanaGit("Command2");
                            Pencerede(
                                [] { Tusla(Qt::Key_Return); },
                                {Mesaj(QStringLiteral("Rezervasyonu oluşturmadan kapatıyorsunuz!\n"
                                                      "Bu Rezervasyon kaydı oluşturulmayacak emin misiniz?"),
                                       QString::fromUtf8(cevap))});
                        };
                        kapat("Hayır");
                        QVERIFY(pencere.isVisible());
                        kapat("Evet");
                    }});
        QVERIFY(!firma.program.FormKayit.Yuklu());
        QVERIFY(!firma.agac.DosyaVar(Metin(kSalonA) + u"/2026/" + Metin(kGun)));
    }

    void after_esc_and_a_no_the_focus_is_where_it_was() {
        GuiFirma firma;
        YeniKayitta(firma, kGun, {[&](QDialog& /*pencere*/) {
                        AlanaGit("Kay5");
                        Pencerede(
                            [] { Tusla(Qt::Key_Escape); },
                            {Mesaj(QStringLiteral("Rezervasyonu oluşturmadan kapatıyorsunuz!\n"
                                                  "Bu Rezervasyon kaydı oluşturulmayacak emin misiniz?"),
                                   QStringLiteral("Hayır"))});
                        QCOMPARE(Odaktaki(), QStringLiteral("Kay5"));
                        firma.program.FormKayit->KayitAc = 1;
                        Tusla(Qt::Key_Escape);
                    }});
    }

    void ctrl_and_tab_turn_the_pages_from_any_field() {
        GuiFirma firma;
        YeniKayitta(firma, kGun, {[&](QDialog& pencere) {
                        auto& sayfalar = Parcasi<QTabWidget>(pencere, "SSTab1");
                        for (const int sayfa : {1, 2, 3, 0}) {
                            Tusla(Qt::Key_Tab, Qt::ControlModifier);
                            QCOMPARE(sayfalar.currentIndex(), sayfa);
                            Tusla(Qt::Key_Tab); // into a field of the page, a list to choose from on the
                                                // third
                        }
                        Tusla(Qt::Key_PageUp, Qt::ControlModifier);
                        QCOMPARE(sayfalar.currentIndex(), 3);
                        QCOMPARE(firma.program.FormKayit->SSTab1, 4);
                        firma.program.FormKayit->KayitAc = 1; // closes without a question
                        Tusla(Qt::Key_Escape);
                    }});
    }
};

VELORA_GUI_TEST(KayitKlavyesiTest)

#include "KayitKlavyesiTest.moc"
