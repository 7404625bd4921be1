#include <utility>

#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "access/Splash.h"
#include "destek/Servis.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "online/FormRezervasyonlar.h"
#include "qt/Baglayici.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"

using namespace velora;
using namespace velora::test;

namespace {

/// A firm in its windows whose service has two requests and an announcement for it. The poll comes by its own
/// timer, soon after the start.
struct IsaretFirmasi : GuiFirma {
    IsaretFirmasi() {
        agac.Koy(u"Adresler.dat", "\"http://servis.test\",\"\",\"\",\"\"\r\n");
        program.ortam.ag.donanimAdresi = [] { return DonanimAdresi{1, 2, 3, 4, 5, 6}; };
        program.ortam.ag.getir = [this](const AgIstegi& istek) { return servis.Getir(istek); };
        Firma().istekler = {
            {u"41", u"Gül|1|2|x@y.test|" + Metin(kSalonB) + u"|23.06.2026|19:30|Gece|Nişan"},
            {u"42", u"Can|3|4|z@y.test|" + Metin(kSalonA) + u"|24.06.2026|12:30|Gündüz|Düğün"}};
        Firma().duyuruVar = true;
        servis.duyurular = u"Yeni sürüm<br>İyi bayramlar";
        program.Splash->Check1 = 1;
        Ac();
    }
    Servis::Firma& Firma() { return servis.firmalar[u"01-02-03-04-05-06"]; }
    QToolButton& Isaret(const char* ad) { return Bul<QToolButton>(ad); }
    void YanincayaBekle() {
        QTRY_VERIFY_WITH_TIMEOUT(Isaret("YeniRezervasyonVar").isEnabled(), 6000);
        QTRY_VERIFY_WITH_TIMEOUT(Isaret("YeniDuyuru").isEnabled(), 2000);
    }
    /// Of the help menu.
    void Sec(const char* girdi) { Pencere().findChild<QAction*>(QString::fromLatin1(girdi))->trigger(); }
    void IsareteTikla(const char* ad) { QTest::mouseClick(&Isaret(ad), Qt::LeftButton); }

    Servis servis;
};

/// Closes a record without saving it.
Is Vazgec() {
    return [](QDialog& kayit) {
        Pencerede([&] { QTest::keyClick(&kayit, Qt::Key_Escape); },
                  {Mesaj(QStringLiteral("Rezervasyonu oluşturmadan kapatıyorsunuz!\nBu Rezervasyon kaydı "
                                        "oluşturulmayacak emin misiniz?"),
                         QStringLiteral("Evet"))});
    };
}

QImage Gorunen(const QToolButton& isaret) {
    return isaret.icon().pixmap(isaret.iconSize()).toImage();
}

} // namespace

/// The marks over the real table, and the windows behind them.
class OnlineIsaretleriTest : public QObject {
    Q_OBJECT

  private slots:
    void the_marks_stand_there_switched_off_until_the_poll_finds_something_and_then_blink() {
        IsaretFirmasi firma;
        for (const char* ad : {"YeniRezervasyonVar", "YeniDuyuru"})
            QVERIFY(firma.Isaret(ad).isVisible() && !firma.Isaret(ad).isEnabled());
        QCOMPARE(firma.Isaret("YeniRezervasyonVar").accessibleName(),
                 QStringLiteral("Online Rezervasyonlar"));
        QCOMPARE(firma.Isaret("YeniDuyuru").accessibleName(), QStringLiteral("Duyurular"));
        for (const auto& [ad, yeni] : {std::pair{"YeniRezervasyonVar", "Yeni online rezervasyon var"},
                                       {"YeniDuyuru", "Yeni duyuru var"}}) {
            const auto& isaret = firma.Isaret(ad);
            QTRY_VERIFY_WITH_TIMEOUT(isaret.isEnabled(), 6000);
            const QImage sade = Gorunen(isaret);
            QVERIFY(!sade.isNull());
            QCOMPARE(isaret.accessibleName(), QString::fromUtf8(yeni));
            QCOMPARE(isaret.toolTip(), QString::fromUtf8(yeni));
            QTRY_VERIFY_WITH_TIMEOUT(Gorunen(isaret) != sade, 2000);
            QTRY_COMPARE_WITH_TIMEOUT(Gorunen(isaret), sade, 2000);
            const auto* okunan = QAccessible::queryAccessibleInterface(&firma.Isaret(ad));
            QCOMPARE(okunan->role(), QAccessible::Button);
            QCOMPARE(okunan->text(QAccessible::Name), QString::fromUtf8(yeni));
        }
        QCOMPARE(firma.servis.Betikler(), (std::vector<std::string>{"duyuru.php", "rezkontrol.php"}));
    }

    void tab_reaches_the_marks_behind_the_lists_only_while_they_are_on_and_space_opens_them() {
        IsaretFirmasi firma;
        const auto sira = [&] {
            firma.Bul<QComboBox>("Sene").setFocus();
            QStringList adlar;
            for (Tusla(Qt::Key_Tab); adlar.size() < 4 && Odaktaki() != QStringLiteral("Picture4");
                 Tusla(Qt::Key_Tab))
                adlar << Odaktaki();
            return adlar;
        };
        QCOMPARE(sira(), QStringList());
        firma.YanincayaBekle();
        QCOMPARE(sira(), (QStringList{"YeniRezervasyonVar", "YeniDuyuru"}));
        firma.Isaret("YeniRezervasyonVar").setFocus(Qt::TabFocusReason);
        Pencerede([] { Tusla(Qt::Key_Space); }, {[](QDialog& pencere) {
                      QCOMPARE(pencere.windowTitle(), QStringLiteral("Online Rezervasyonlar"));
                      QCOMPARE(Odaktaki(), QStringLiteral("Command1"));
                      QTest::keyClick(&pencere, Qt::Key_Escape);
                  }});
        QVERIFY2(firma.Isaret("YeniRezervasyonVar").isEnabled(), "requests are left");
        firma.Isaret("YeniDuyuru").setFocus(Qt::TabFocusReason);
        Pencerede([] { Tusla(Qt::Key_Return); }, {TusBas(Qt::Key_Escape)});
        QVERIFY(!firma.Isaret("YeniDuyuru").isEnabled());
        QTRY_COMPARE(Odaktaki(), QStringLiteral("Picture4"));
    }

    void announcements_are_shown_line_by_line_to_be_read_only_and_the_mark_goes_out() {
        IsaretFirmasi firma;
        firma.YanincayaBekle();
        Pencerede([&] { firma.IsareteTikla("YeniDuyuru"); }, {[](QDialog& pencere) {
                      QCOMPARE(pencere.windowTitle(), QStringLiteral("Duyurular"));
                      auto& metin = Parcasi<QPlainTextEdit>(pencere, "Text1");
                      QTRY_COMPARE(metin.toPlainText(), QStringLiteral("Yeni sürüm\nİyi bayramlar"));
                      metin.setFocus();
                      Yaz(QStringLiteral("x"));
                      QCOMPARE(metin.toPlainText(), QStringLiteral("Yeni sürüm\nİyi bayramlar"));
                      QTest::keyClick(&pencere, Qt::Key_Escape);
                  }});
        QVERIFY(!firma.Isaret("YeniDuyuru").isEnabled());
        QVERIFY(!firma.Firma().duyuruVar);
    }

    void a_request_is_opened_by_a_double_click_and_the_table_shows_its_hall() {
        IsaretFirmasi firma;
        firma.YanincayaBekle();
        Pencerede([&] { firma.IsareteTikla("YeniRezervasyonVar"); }, {[&](QDialog& pencere) {
                      const auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
                      QCOMPARE(SatirYazilari(liste, 0),
                               (QStringList{"41", "Gül", "1", "2", "x@y.test", "Çınar Kır Bahçesi No.2",
                                            "23.06.2026", "19:30", "Gece", "Nişan"}));
                      QVERIFY(!Parcasi<QPushButton>(pencere, "Command2").isEnabled());
                      SatiraTikla(liste, 0);
                      Pencerede([&] { SatiraCiftTikla(liste, 0); }, {[](QDialog& kayit) {
                                    QCOMPARE(Parcasi<QLineEdit>(kayit, "Kay1").text(), QStringLiteral("Gül"));
                                    QCOMPARE(Parcasi<QLineEdit>(kayit, "Kay12").text(),
                                             QStringLiteral("19:30"));
                                    Vazgec()(kayit);
                                }});
                      QCOMPARE(liste.topLevelItemCount(), 1);
                      QCOMPARE(SatirYazilari(liste, 0).front(), QStringLiteral("42"));
                      QVERIFY(!Parcasi<QPushButton>(pencere, "Command2").isEnabled());
                      QTest::keyClick(&pencere, Qt::Key_Escape);
                  }});
        QCOMPARE(firma.Bul<QComboBox>("Salon").currentText(), QStringLiteral("Çınar Kır Bahçesi No.2"));
    }

    void behind_a_record_the_close_button_has_the_focus_and_behind_a_refusal_the_list() {
        IsaretFirmasi firma;
        firma.YanincayaBekle();
        Pencerede([&] { firma.IsareteTikla("YeniRezervasyonVar"); }, {[&](QDialog& pencere) {
                      const auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
                      SatiraTikla(liste, 0);
                      Pencerede([&] { Tikla(pencere, "Command2"); }, {Vazgec()});
                      QCOMPARE(Odaktaki(), QStringLiteral("Command1"));
                      firma.Firma().istekler.clear();
                      firma.Rezervasyon(kSalonA, u"24.06.2026 - Gündüz", true);
                      firma.Model().Command1();
                      SatiraTikla(liste, 0);
                      Pencerede([&] { Tikla(pencere, "Command2"); },
                                {Mesaj(QStringLiteral("Bu tarihe online rezervasyon alamazsınız!\nZaten bir "
                                                      "rezervasyon kayıtlı."))});
                      QCOMPARE(Odaktaki(), QStringLiteral("Liste"));
                      QTest::keyClick(&pencere, Qt::Key_Escape);
                  }});
    }

    void the_menu_opens_the_announcements_too() {
        IsaretFirmasi firma;
        Pencerede([&] { firma.Sec("duyurularsss"); }, {[](QDialog& pencere) {
                      QCOMPARE(pencere.windowTitle(), QStringLiteral("Duyurular"));
                      QTest::keyClick(&pencere, Qt::Key_Escape);
                  }});
        QVERIFY(!firma.Firma().duyuruVar);
    }

    void the_last_request_that_is_deleted_closes_the_list_and_the_focus_is_on_the_table() {
        IsaretFirmasi firma;
        firma.Firma().istekler.pop_back();
        firma.YanincayaBekle();
        firma.Isaret("YeniRezervasyonVar").setFocus(Qt::TabFocusReason);
        Pencerede([] { Tusla(Qt::Key_Space); }, {[&](QDialog& pencere) {
                      SatiraTikla(Parcasi<QTreeWidget>(pencere, "Liste"), 0);
                      Pencerede([&] { Tikla(pencere, "Command3"); },
                                {Mesaj(QStringLiteral(
                                           "Gelen online rezervasyonu silmek istediğinizden emin misiniz?"),
                                       QStringLiteral("Evet"))});
                      QVERIFY(!pencere.isVisible());
                  }});
        QVERIFY(firma.Firma().istekler.empty());
        QVERIFY(!firma.Isaret("YeniRezervasyonVar").isEnabled());
        QTRY_COMPARE(Odaktaki(), QStringLiteral("Picture4"));
    }

    void a_suggestion_that_was_not_taken_is_told_and_stays_to_be_sent_again() {
        IsaretFirmasi firma;
        firma.servis.kopuk = true;
        Pencerede([&] { firma.Sec("oneriii"); }, {[&](QDialog& pencere) {
                      Yaz(QStringLiteral("Teşekkürler"));
                      Pencerede([&] { Tikla(pencere, "Command1"); },
                                {Mesaj(QStringLiteral("Mesajınız gönderilemedi!\nLütfen İnternet "
                                                      "bağlantınızı kontrol ediniz!"))});
                      QVERIFY(pencere.isVisible());
                      QCOMPARE(Parcasi<QPlainTextEdit>(pencere, "Aciklama").toPlainText(),
                               QStringLiteral("Teşekkürler"));
                      QTest::keyClick(&pencere, Qt::Key_Escape);
                  }});
        QVERIFY(firma.Firma().oneriler.empty());
    }

    void a_suggestion_is_typed_and_sent_by_the_help_menu() {
        IsaretFirmasi firma;
        Pencerede([&] { firma.Sec("oneriii"); }, {[&](QDialog& pencere) {
                      QCOMPARE(Odaktaki(), QStringLiteral("Aciklama"));
                      QVERIFY(!Parcasi<QPushButton>(pencere, "Command1").isEnabled());
                      Yaz(QStringLiteral("Teşekkürler"));
                      QVERIFY(Parcasi<QPushButton>(pencere, "Command1").isEnabled());
                      Pencerede([&] { Tikla(pencere, "Command1"); },
                                {Mesaj(QStringLiteral("Tebrikler...\nMesajınız başarıyla gönderilmiştir."))});
                      QVERIFY(!pencere.isVisible());
                  }});
        QCOMPARE(firma.Firma().oneriler, std::vector<Metin>{u"Teşekkürler"});
    }
};

VELORA_GUI_TEST(OnlineIsaretleriTest)
#include "OnlineIsaretleriTest.moc"
