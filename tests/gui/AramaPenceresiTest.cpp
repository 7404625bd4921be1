#include <algorithm>
#include <array>

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "destek/Kayitlar.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"
#include "reservation/FormArama.h"
#include "reservation/FormKayit.h"

using namespace velora;
using namespace velora::test;

/// The real window of the search, opened from the real table by its key.
class AramaPenceresiTest : public QObject {
    Q_OBJECT

    /// F2 on the table; `is` is done on the search, which is then taken away.
    static void Aramada(GuiFirma& firma, const Is& is) {
        firma.Ac();
        Pencerede([&] { QTest::keyClick(&firma.Tablo(), Qt::Key_F2); }, {is});
        firma.program.FormArama.Bosalt();
    }
    /// Types into the field that has the focus and presses Enter.
    static void YazVeAra(const QString& metin) {
        Yaz(metin);
        Tusla(Qt::Key_Return);
    }

  private slots:
    void the_menu_has_the_search_on_the_left_of_the_settings() {
        GuiFirma firma;
        firma.Ac();
        QStringList menuler;
        for (const QAction* menu : firma.Pencere().menuBar()->actions())
            menuler << menu->text();
        QVERIFY(menuler.indexOf(QStringLiteral("&Dosya")) >= 0);
        QVERIFY(menuler.indexOf(QStringLiteral("&Dosya")) < menuler.indexOf(QStringLiteral("&Ayarlar")));
        const auto& girdi = firma.Bul<QAction>("Arasss");
        QCOMPARE(Isaretsiz(girdi.text()), QStringLiteral("Kayıt Ara"));
        QCOMPARE(girdi.shortcut(), QKeySequence(Qt::Key_F2));
        QVERIFY(firma.Bul<QMenu>("Kayitss").actions().contains(&girdi));
    }

    void a_name_and_enter_bring_a_row_and_a_double_click_opens_its_record() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonB, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Kayıt Arama"));
            QVERIFY(Parcasi<QLineEdit>(pencere, "Text1").hasFocus());
            YazVeAra(QStringLiteral("VEL"));
            auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            QCOMPARE(liste.topLevelItemCount(), 1);
            QCOMPARE(SatirYazilari(liste, 0), (QStringList{"10.09.2026 - Gece", QMetin(kSalonB), "Ali Veli",
                                                           QStringLiteral("Ayşe / Can"), "0212", "0532"}));
            SatiraTikla(liste, 0);
            Pencerede([&] { SatiraCiftTikla(liste, 0); }, {[&](QDialog& kayit) {
                          QCOMPARE(Parcasi<QLineEdit>(kayit, "Kay1").text(), QStringLiteral("Ali Veli"));
                          QCOMPARE(firma.program.FormKayit->Tarih, Metin(u"10.09.2026 - Gece"));
                          QCOMPARE(firma.Model().Salon.Metni(), Metin(kSalonB));
                          QTest::keyClick(&kayit, Qt::Key_Escape);
                      }});
        });
    }

    void enter_searches_from_any_field() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QDialog& pencere) {
            auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            const std::array olcutler{u"ali", u"can", u"0212", u"0532", u"7"};
            for (int no = 1; no <= 5; ++no) {
                auto& alan = Parcasi<QLineEdit>(pencere, qPrintable(QStringLiteral("Text%1").arg(no)));
                alan.setFocus();
                YazVeAra(QString::fromUtf16(olcutler[static_cast<std::size_t>(no - 1)]));
                QCOMPARE(liste.topLevelItemCount(), no);
            }
        });
    }

    void a_search_without_an_answer_says_so_in_a_box() {
        GuiFirma firma;
        Aramada(firma, [](QDialog&) {
            Pencerede([] { YazVeAra(QStringLiteral("yok")); },
                      {Mesaj(QStringLiteral("Hiç kayıt bulunamadı!"))});
        });
    }

    void a_search_without_an_answer_goes_back_to_its_field_and_the_typing_goes_on() {
        GuiFirma firma;
        Aramada(firma, [](QDialog& pencere) {
            auto& alan = Parcasi<QLineEdit>(pencere, "Text3");
            alan.setFocus();
            Pencerede([] { YazVeAra(QStringLiteral("0216")); },
                      {Mesaj(QStringLiteral("Hiç kayıt bulunamadı!"))});
            QCOMPARE(pencere.focusWidget(), &alan);
            pencere.activateWindow();
            QTRY_VERIFY(alan.hasFocus());
            Yaz(QStringLiteral("7"));
            QVERIFY(alan.text().contains(u'7'));
        });
    }

    void enter_searches_again_after_the_focus_went_from_the_list_over_a_button_to_a_field() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QDialog& pencere) {
            YazVeAra(QStringLiteral("ali"));
            auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            SatiraTikla(liste, 0);
            QVERIFY(Parcasi<QPushButton>(pencere, "Command1").isDefault());
            Parcasi<QPushButton>(pencere, "Command2").setFocus();
            Parcasi<QLineEdit>(pencere, "Text1").setFocus();
            QVERIFY(Parcasi<QPushButton>(pencere, "Command3").isDefault());
            Pencerede([] { YazVeAra(QStringLiteral("yok")); },
                      {Mesaj(QStringLiteral("Hiç kayıt bulunamadı!"))});
            QCOMPARE(liste.topLevelItemCount(), 0);
        });
    }

    void a_new_search_disables_the_button_of_the_old_mark() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QDialog& pencere) {
            YazVeAra(QStringLiteral("ali"));
            SatiraTikla(Parcasi<QTreeWidget>(pencere, "Liste"), 0);
            QVERIFY(Parcasi<QPushButton>(pencere, "Command1").isEnabled());
            Parcasi<QLineEdit>(pencere, "Text1").setFocus();
            Tusla(Qt::Key_Return);
            QVERIFY(!Parcasi<QPushButton>(pencere, "Command1").isEnabled());
        });
    }

    void a_click_on_the_marked_row_enables_the_button_again_after_a_record_closed() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QDialog& pencere) {
            YazVeAra(QStringLiteral("ali"));
            auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            auto& detaylar = Parcasi<QPushButton>(pencere, "Command1");
            QVERIFY(!detaylar.isEnabled());
            SatiraTikla(liste, 0);
            QVERIFY(detaylar.isEnabled());
            Pencerede([&] { detaylar.click(); }, {TusBas(Qt::Key_Escape)});
            QVERIFY(!detaylar.isEnabled());
            QVERIFY(liste.topLevelItem(0)->isSelected());
            QTest::qWait(QApplication::doubleClickInterval() + 50); // not the second half of a double click
            SatiraTikla(liste, 0);
            QVERIFY(detaylar.isEnabled());
        });
    }

    void the_keys_alone_go_from_a_name_to_the_record() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QDialog& pencere) {
            YazVeAra(QStringLiteral("ali"));
            auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            QVERIFY(liste.hasFocus());
            QVERIFY(!Parcasi<QPushButton>(pencere, "Command1").isEnabled());
            QTest::keyClick(&liste, Qt::Key_Down);
            QVERIFY(liste.topLevelItem(0)->isSelected());
            Pencerede([&] { QTest::keyClick(&liste, Qt::Key_Return); }, {TusBas(Qt::Key_Escape)});
            QCOMPARE(pencere.focusWidget(), &liste);
            pencere.activateWindow();
            QTRY_VERIFY(liste.hasFocus());
            Parcasi<QLineEdit>(pencere, "Text1").setFocus();
            QVERIFY(Parcasi<QPushButton>(pencere, "Command3").isDefault());
        });
    }

    void a_line_under_the_list_tells_how_many_rows_and_of_what_year_behind_a_search() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        firma.Rezervasyon(kSalonB, u"11.09.2026 - Gece", false);
        Aramada(firma, [&](QDialog& pencere) {
            const auto& ozet = Parcasi<QLabel>(pencere, "Ozet");
            QCOMPARE(ozet.text(), QString());
            YazVeAra(QStringLiteral("ali"));
            QCOMPARE(ozet.text(), QStringLiteral("2 kayıt · 2026"));
            QVERIFY(ozet.isVisible());
            Parcasi<QLineEdit>(pencere, "Text1").setFocus();
            Pencerede([] { YazVeAra(QStringLiteral("yok")); },
                      {Mesaj(QStringLiteral("Hiç kayıt bulunamadı!"))});
            QCOMPARE(ozet.text(), QStringLiteral("0 kayıt · 2026"));
        });
    }

    void all_rows_stay_chosen_while_the_timers_of_the_table_tick() {
        int tik = 0; // outlives the firm, whose timer may tick until the end
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        firma.Rezervasyon(kSalonB, u"11.09.2026 - Gece", false);
        Aramada(firma, [&](QDialog& pencere) {
            YazVeAra(QStringLiteral("ali"));
            auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            firma.Model().GunTimer.aralik = 20;
            firma.Model().GunTimer.tik = [&tik] { ++tik; };
            Baglayici::HepsiniTazele();
            QTest::keyClick(&liste, Qt::Key_A, Qt::ControlModifier);
            QTRY_VERIFY(tik > 3);
            QCOMPARE(liste.selectedItems().size(), 2);
            QCOMPARE(firma.program.FormArama->Liste.secili, -1);
        });
    }

    void escape_closes_and_the_next_search_is_empty() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.09.2026 - Gece", false);
        Aramada(firma, [&](QDialog& pencere) {
            YazVeAra(QStringLiteral("ali"));
            QTest::keyClick(&pencere, Qt::Key_Escape);
            QVERIFY(!firma.program.FormArama.Yuklu());
        });
        Aramada(firma, [&](QDialog& pencere) {
            QVERIFY(Parcasi<QLineEdit>(pencere, "Text1").text().isEmpty());
            QCOMPARE(Parcasi<QTreeWidget>(pencere, "Liste").topLevelItemCount(), 0);
        });
    }

    void every_field_has_its_caption_also_for_those_who_cannot_see_it() {
        GuiFirma firma;
        Aramada(firma, [&](QDialog& pencere) {
            const std::array alanlar{"Adı Soyadı", "Gelin / Damat", "Telefon", "Cep", "Sözleşme No"};
            for (std::size_t i = 0; i < alanlar.size(); ++i) {
                const auto& alan = *pencere.findChild<QLineEdit*>(QStringLiteral("Text%1").arg(i + 1));
                QCOMPARE(alan.accessibleName(), QString::fromUtf8(alanlar[i]));
                QVERIFY(std::ranges::any_of(pencere.findChildren<QLabel*>(), [&](const QLabel* etiket) {
                    return etiket->buddy() == &alan &&
                           Isaretsiz(etiket->text()) == QString::fromUtf8(alanlar[i]);
                }));
            }
            QVERIFY(!Parcasi<QWidget>(pencere, "Liste").accessibleName().isEmpty());
        });
    }
};

VELORA_GUI_TEST(AramaPenceresiTest)
#include "AramaPenceresiTest.moc"
