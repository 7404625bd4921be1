#include <algorithm>
#include <array>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "accounts/FormBakiye.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Ceviri.h"
#include "qt/table/TabloPenceresi.h"
#include "reservation/FormKayit.h"

using namespace velora;
using namespace velora::test;

/// The real window of the reservation report, opened by its key from the table.
class BakiyePenceresiTest : public QObject {
    Q_OBJECT

    /// F3 on the table; `is` is done on the report, which is then taken away.
    static void Raporda(GuiFirma& firma, const Is& is) {
        Pencerede([&] { QTest::keyClick(&firma.Pencere(), Qt::Key_F3); }, {is});
        firma.program.FormBakiye.Bosalt();
    }
    /// `ac` must open the record of this day, which is then taken away.
    static void KaydiAcmali(GuiFirma& firma, const QString& gun, const std::function<void()>& ac) {
        Pencerede(ac, {[&](QDialog& kayit) { QCOMPARE(Yazi(kayit, "Tarih"), gun); }});
        firma.program.FormKayit.Bosalt();
    }
    static QString Yazi(QWidget& pencere, const char* ad) { return Parcasi<QLabel>(pencere, ad).text(); }
    static bool EtiketVar(const QWidget& pencere, const QString& yazi) {
        return std::ranges::any_of(pencere.findChildren<QLabel*>(),
                                   [&](const QLabel* etiket) { return Isaretsiz(etiket->text()) == yazi; });
    }

  private slots:
    void a_type_is_chosen_and_enter_lists_it_with_its_totals() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.05.2026 - Gece", true);
        firma.Rezervasyon(kSalonA, u"11.05.2026 - Gece", false);
        firma.Rezervasyon(kSalonA, u"12.05.2026 - Gündüz", true);
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Rezervasyon Raporu"));
            QCOMPARE(Yazi(pencere, "Toplam"), QStringLiteral(": 0 TL"));
            auto& tip = Parcasi<QComboBox>(pencere, "Combo1");
            tip.setFocus();
            QTest::keyClick(&tip, Qt::Key_Down);
            QTest::keyClick(&tip, Qt::Key_Return);
            auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            QCOMPARE(liste.topLevelItemCount(), 2);
            QCOMPARE(liste.topLevelItem(1)->text(0), QStringLiteral("12.05.2026 - Gündüz"));
            QCOMPARE(liste.headerItem()->text(9), QStringLiteral("Ön Açıklama"));
            for (const int sutun : {2, 3, 4, 8})
                QVERIFY(liste.topLevelItem(0)->textAlignment(sutun) & Qt::AlignRight);
            QCOMPARE(Yazi(pencere, "DTop1"), QStringLiteral(": 10.000 TL"));
            QCOMPARE(Yazi(pencere, "DTop8"), QStringLiteral(": 0 TL"));
            QCOMPARE(Yazi(pencere, "Toplam"), QStringLiteral(": 10.000 TL"));
            QCOMPARE(Parcasi<QLabel>(pencere, "Toplam").accessibleName(),
                     QStringLiteral("Genel Toplam: 10.000 TL"));
            QCOMPARE(Yazi(pencere, "Alinan"), QStringLiteral(": 2.000 TL"));
            QCOMPARE(Yazi(pencere, "Kalan"), QStringLiteral(": 8.000 TL"));
            QCOMPARE(Yazi(pencere, "Label14"), QStringLiteral(": 0"));
            QCOMPARE(Yazi(pencere, "Label18"), QStringLiteral(": 2"));
            QCOMPARE(Yazi(pencere, "Label19"), QStringLiteral(": 2"));
        });
    }

    void every_control_has_its_caption_also_for_those_who_cannot_see_it() {
        GuiFirma firma;
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            const std::array yazilar{std::pair{"Combo2", "Salon Adı"},
                                     std::pair{"Combo1", "Rezervasyon Tipi"},
                                     std::pair{"DTPicker1", "Başlangıç Tarihi"},
                                     std::pair{"DTPicker2", "Bitiş Tarihi"},
                                     std::pair{"DTop1", "Düğün"},
                                     std::pair{"DTop8", "Diğer"},
                                     std::pair{"Toplam", "Genel Toplam"},
                                     std::pair{"Alinan", "Alınan Ödeme"},
                                     std::pair{"Kalan", "Kalan Ödeme"},
                                     std::pair{"Label14", "Kesin Rezervasyon"},
                                     std::pair{"Label18", "Ön Rezervasyon"},
                                     std::pair{"Label19", "Toplam Rezervasyon"}};
            for (const auto& [ad, yazi] : yazilar) {
                const auto& parca = Parcasi<QWidget>(pencere, ad);
                // A value is called by its caption and by what it is.
                const auto* deger = qobject_cast<const QLabel*>(&parca);
                QCOMPARE(parca.accessibleName(),
                         QString::fromUtf8(yazi) + (deger == nullptr ? QString() : deger->text()));
                QVERIFY2(EtiketVar(pencere, QString::fromUtf8(yazi)), yazi);
            }
            QVERIFY(!Parcasi<QWidget>(pencere, "Liste").accessibleName().isEmpty());
        });
    }

    void a_double_click_opens_the_record_and_the_button_waits_for_a_click_afterwards() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.05.2026 - Gece", true);
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            QTest::mouseClick(&Parcasi<QPushButton>(pencere, "ListeleGun"), Qt::LeftButton);
            auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            auto& detay = Parcasi<QPushButton>(pencere, "Command6");
            QVERIFY(!detay.isEnabled());
            SatiraTikla(liste, 0);
            QVERIFY(detay.isEnabled());
            KaydiAcmali(firma, QStringLiteral("10.05.2026 - Gece"), [&] { SatiraCiftTikla(liste, 0); });
            QVERIFY(!detay.isEnabled());
            SatiraTikla(liste, 0);
            QVERIFY(detay.isEnabled());
        });
    }

    void enter_lists_again_after_the_focus_went_from_the_list_over_a_button_to_a_field() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.05.2026 - Gece", true);
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            Parcasi<QPushButton>(pencere, "ListeleGun").click();
            auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            QVERIFY(liste.hasFocus());
            SatiraTikla(liste, 0);
            QVERIFY(Parcasi<QPushButton>(pencere, "Command6").isDefault());
            Parcasi<QPushButton>(pencere, "Command1").setFocus();
            Parcasi<QWidget>(pencere, "Combo1").setFocus();
            QVERIFY(Parcasi<QPushButton>(pencere, "ListeleGun").isDefault());
            firma.Rezervasyon(kSalonA, u"11.05.2026 - Gece", true);
            Tusla(Qt::Key_Return);
            QCOMPARE(liste.topLevelItemCount(), 2);
        });
    }

    void a_row_marked_with_the_keys_opens_by_the_button() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.05.2026 - Gece", true);
        firma.Rezervasyon(kSalonA, u"11.05.2026 - Gece", true);
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            Parcasi<QPushButton>(pencere, "ListeleGun").click();
            auto& liste = Parcasi<QTreeWidget>(pencere, "Liste");
            liste.setFocus();
            QTest::keyClick(&liste, Qt::Key_Down);
            QTest::keyClick(&liste, Qt::Key_Up);
            QVERIFY(Parcasi<QPushButton>(pencere, "Command6").isEnabled());
            KaydiAcmali(firma, QStringLiteral("10.05.2026 - Gece"),
                        [&] { QTest::keyClick(&Parcasi<QPushButton>(pencere, "Command6"), Qt::Key_Space); });
        });
    }

    void the_tab_key_goes_through_the_fields_as_they_stand() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.05.2026 - Gece", true);
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            Parcasi<QPushButton>(pencere, "ListeleGun").click();
            Parcasi<QWidget>(pencere, "Combo2").setFocus();
            for (const char* ad : {"DTPicker1", "Combo1", "DTPicker2", "ListeleGun", "Liste", "Command2",
                                   "Command1", "Combo2"}) {
                // A date keeps the key for its day, month and year.
                const QWidget* once = QApplication::focusWidget();
                for (int i = 0; i < 3 && QApplication::focusWidget() == once; ++i)
                    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget()->objectName(), QString::fromLatin1(ad));
            }
        });
    }

    void the_dates_refuse_another_year() {
        GuiFirma firma;
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            const auto model = firma.program.FormBakiye.Tut();
            auto& ilk = Parcasi<QDateEdit>(pencere, "DTPicker1");
            QCOMPARE(ilk.date(), QDate(2026, 5, 1));
            QCOMPARE(Parcasi<QDateEdit>(pencere, "DTPicker2").date(), QDate(2026, 5, 31));
            ilk.setFocus();
            ilk.setCurrentSection(QDateTimeEdit::YearSection);
            QTest::keyClick(&ilk, Qt::Key_Up);
            QTest::keyClicks(&ilk, QStringLiteral("2027"));
            QTest::keyClick(&ilk, Qt::Key_Tab);
            QCOMPARE(model->DTPicker1.deger.year(), std::chrono::year(2026));
            QCOMPARE(ilk.date().year(), 2026);
            ilk.setFocus();
            ilk.setCurrentSection(QDateTimeEdit::MonthSection);
            QTest::keyClick(&ilk, Qt::Key_Down);
            QCOMPARE(TarihMetni(model->DTPicker1.deger), Metin(u"01.04.2026"));
        });
    }

    void an_empty_report_says_so_in_a_box() {
        GuiFirma firma;
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            Pencerede(
                [&] { Parcasi<QPushButton>(pencere, "ListeleGun").click(); },
                {Mesaj(QStringLiteral("Belirtilen tarihler arasında bir rezervasyon kaydı bulunamadı!"))});
        });
    }

    void a_line_under_the_list_tells_how_many_rows_and_of_what_year_behind_a_listing() {
        GuiFirma firma;
        for (const MetinBakis gun : {u"10.05.2026 - Gece", u"11.05.2026 - Gece", u"12.05.2026 - Gece"})
            firma.Rezervasyon(kSalonA, gun, true);
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            const auto& ozet = Parcasi<QLabel>(pencere, "Ozet");
            QCOMPARE(ozet.text(), QString());
            Parcasi<QPushButton>(pencere, "ListeleGun").click();
            QCOMPARE(ozet.text(), QStringLiteral("3 kayıt · 2026"));
        });
    }

    void the_button_for_the_spreadsheet_writes_the_list_and_opens_it() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.05.2026 - Gece", true);
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            auto& aktar = Parcasi<QPushButton>(pencere, "Command2");
            QCOMPARE(Isaretsiz(aktar.text()), QStringLiteral("Excel'e Aktar"));
            Parcasi<QPushButton>(pencere, "ListeleGun").click();
            SatiraTikla(Parcasi<QTreeWidget>(pencere, "Liste"), 0);
            QVERIFY(Parcasi<QPushButton>(pencere, "Command6").isEnabled());
            QTest::mouseClick(&aktar, Qt::LeftButton);
            QVERIFY(firma.agac.Bayt(u"Rapor.xls").starts_with("\xD0\xCF\x11\xE0"));
            QVERIFY(firma.acilanDosyalar == std::vector{firma.agac.Kok() / "Rapor.xls"});
            QVERIFY(!Parcasi<QPushButton>(pencere, "Command6").isEnabled());
        });
    }

    void an_impatient_user_who_presses_it_again_while_the_file_opens_breaks_nothing() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"10.05.2026 - Gece", true);
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            Parcasi<QPushButton>(pencere, "ListeleGun").click();
            auto& aktar = Parcasi<QPushButton>(pencere, "Command2");
            firma.arada = [&] {
                firma.arada = nullptr;
                QTest::mouseClick(&aktar, Qt::LeftButton);
                QTest::keyClick(&pencere, Qt::Key_Escape);
            };
            QTest::mouseClick(&aktar, Qt::LeftButton);
            QVERIFY(firma.agac.DosyaVar(u"Rapor.xls"));
            QVERIFY(!firma.acilanDosyalar.empty());
        });
        QVERIFY(!firma.program.FormBakiye.Yuklu());
    }

    void a_long_name_of_a_hall_does_not_widen_the_window_and_is_told_by_a_tip() {
        GuiFirma firma;
        const Metin uzun(150, u'W');
        firma.Ac();
        int onceki = 0;
        Raporda(firma, [&](QDialog& pencere) { onceki = pencere.minimumSizeHint().width(); });
        firma.Model().Salon.ogeler.push_back(uzun);
        firma.Model().Salon.secili = static_cast<int>(firma.Model().Salon.ogeler.size()) - 1;
        Raporda(firma, [&](QDialog& pencere) {
            const auto& salon = Parcasi<QComboBox>(pencere, "Combo2");
            QCOMPARE(salon.currentText().size(), 150);
            QVERIFY(pencere.minimumSizeHint().width() < onceki + 200);
            QCOMPARE(salon.toolTip(), QIpucu(uzun));
            QCOMPARE(salon.itemData(0, Qt::ToolTipRole).toString(), QIpucu(kSalonA));
        });
        QVERIFY(firma.Bul<QComboBox>("Salon").sizeHint().width() < 600);
    }

    void escape_closes_it() {
        GuiFirma firma;
        firma.Ac();
        Raporda(firma, [&](QDialog& pencere) {
            QTest::keyClick(&pencere, Qt::Key_Escape);
            QVERIFY(!firma.program.FormBakiye.Yuklu());
        });
    }
};

VELORA_GUI_TEST(BakiyePenceresiTest)
#include "BakiyePenceresiTest.moc"
