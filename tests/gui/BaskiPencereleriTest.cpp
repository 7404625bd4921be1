#include <QApplication>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "accounts/FormGiderler.h"
#include "documents/FormMakbuzPrint.h"
#include "documents/FormTabloPrint.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "gui/PdfOkuma.h"
#include "qt/Baglayici.h"
#include "qt/documents/SayfaGorunumu.h"
#include "qt/table/TabloGorunumu.h"
#include "qt/table/TabloPenceresi.h"
#include "reservation/FormKayit.h"
#include "reservation/KayitYukle.h"

using namespace velora;
using namespace velora::test;

namespace {

constexpr MetinBakis kMakbuzGunu = u"20.06.2026 - Gece";

/// A printer that remembers what it was given.
struct DenemeYazicisi {
    DenemeYazicisi(GuiFirma& firma, bool basar) {
        firma.program.ortam.kagit.yazdir = [this, basar](const std::vector<Sayfa>& sayfalar,
                                                         const Metin& ad) {
            const Baglayici::KullaniciBekleme bekleme;
            isler << QString::fromStdU16String(ad);
            sonSayfalar = sayfalar;
            if (basarken)
                basarken();
            return basar;
        };
    }
    QStringList isler;
    std::vector<Sayfa> sonSayfalar;
    std::function<void()> basarken; // while the system takes the job
};

QString Okunan(QDialog& pencere) {
    return Parcasi<SayfaGorunumu>(pencere, "Sayfa").accessibleDescription();
}

QPushButton& Dugmesi(QDialog& pencere, const char* ad) {
    return Parcasi<QPushButton>(pencere, ad);
}

} // namespace

/// The windows that show a receipt and the year table as they will be printed.
class BaskiPencereleriTest : public QObject {
    Q_OBJECT

    /// The second payment of a reservation is marked and its receipt asked for; `is` is done on it.
    static void Makbuzda(GuiFirma& firma, const Is& is) {
        firma.Rezervasyon(kSalonA, kMakbuzGunu, false);
        firma.agac.KoyMetin(Metin(kSalonA) + u"/2026/" + Metin(kMakbuzGunu) + u"-Odeme",
                            u"\"01.05.2026\",\"100\",\"kapora\"\r\n\"02.05.2026\",\"12500\",\"ikinci\"\r\n");
        firma.Ac();
        const Metin yol = firma.program.agac.GunYolu(kSalonA, u"2026", kMakbuzGunu);
        Pencerede([&] { KayitYukle(firma.program, yol, Metin(kMakbuzGunu)); }, {[&](QDialog& kayit) {
                      Tikla(kayit, "Command4");
                      QVERIFY(!Dugmesi(kayit, "Command9").isEnabled());
                      SatiraTikla(Parcasi<QTreeWidget>(kayit, "Liste"), 1);
                      Pencerede([&] { Tikla(kayit, "Command9"); }, {is});
                      QVERIFY(!Dugmesi(kayit, "Command9").isEnabled());
                      QVERIFY(Parcasi<QTreeWidget>(kayit, "Liste").hasFocus());
                  }});
    }
    /// F5 on the table; `is` is done on the window that comes.
    static void Tabloda(GuiFirma& firma, const Is& is) {
        Pencerede([&] { QTest::keyClick(&firma.Tablo(), Qt::Key_F5); }, {is});
    }

  private slots:
    void the_receipt_of_the_marked_payment_is_shown_and_enter_prints_it() {
        GuiFirma firma;
        DenemeYazicisi yazici(firma, true);
        Makbuzda(firma, [&](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Makbuz"));
            QCOMPARE(Odaktaki(), QStringLiteral("Command1"));
            QCOMPARE(Dugmesi(pencere, "Command1").text().remove(u'&'), QStringLiteral("Yazdır"));
            QCOMPARE(Dugmesi(pencere, "Command2").text().remove(u'&'), QStringLiteral("İptal"));
            QVERIFY(Okunan(pencere).contains(QStringLiteral(": 12.500 TL")));
            QVERIFY(Okunan(pencere).contains(QStringLiteral(": 02.05.2026")));
            Tusla(Qt::Key_Return);
            QVERIFY(!firma.program.FormMakbuzPrint.Yuklu());
            QVERIFY(!pencere.isVisible());
        });
        QCOMPARE(yazici.isler, QStringList{QStringLiteral("02.05.2026 - Gül Salonu - Ali Veli - Makbuz")});
        QCOMPARE(yazici.sonSayfalar.size(), std::size_t{1});
    }

    void escape_and_the_cross_cancel_and_nothing_is_printed() {
        for (const bool tusla : {true, false}) {
            GuiFirma firma;
            DenemeYazicisi yazici(firma, true);
            Makbuzda(firma, [&](QDialog& pencere) {
                if (tusla)
                    Tusla(Qt::Key_Escape);
                else
                    pencere.close();
                QVERIFY(!firma.program.FormMakbuzPrint.Yuklu());
            });
            QVERIFY(yazici.isler.isEmpty());
        }
    }

    void while_a_print_takes_long_neither_escape_nor_the_cross_nor_another_press_does_anything() {
        GuiFirma firma;
        DenemeYazicisi yazici(firma, true);
        bool pdf = false;
        firma.program.ortam.sor.kayitYeri = [&](const KayitYeriKutusu& /*kutu*/) {
            pdf = true;
            return std::optional<std::filesystem::path>();
        };
        Makbuzda(firma, [&](QDialog& pencere) {
            const QPoint yazdirYeri = Dugmesi(pencere, "Command1").geometry().center();
            yazici.basarken = [&] {
                QTRY_VERIFY(!Dugmesi(pencere, "Command1").isVisible());
                QTRY_VERIFY(!Dugmesi(pencere, "Command2").isVisible());
                QTest::keyClick(&pencere, Qt::Key_Escape);
                QTest::keyClick(&pencere, Qt::Key_Return);
                QTest::mouseClick(&pencere, Qt::LeftButton, {}, yazdirYeri);
                QTest::mouseClick(&Dugmesi(pencere, "Pdf"), Qt::LeftButton);
                pencere.close();
                QCoreApplication::processEvents();
                QVERIFY(pencere.isVisible());
                QVERIFY(firma.program.FormMakbuzPrint.Yuklu());
            };
            Tikla(pencere, "Command1");
            QVERIFY(!firma.program.FormMakbuzPrint.Yuklu());
        });
        QCOMPARE(yazici.isler.size(), 1);
        QVERIFY(!pdf);
    }

    void a_screen_that_goes_while_it_is_printed_takes_its_window_along() {
        GuiFirma firma;
        DenemeYazicisi yazici(firma, true);
        Makbuzda(firma, [&](QDialog& pencere) {
            yazici.basarken = [&] {
                firma.program.FormMakbuzPrint.Bosalt();
                QTRY_VERIFY(!pencere.isVisible());
            };
            Tikla(pencere, "Command1");
            QVERIFY(!firma.program.FormMakbuzPrint.Yuklu());
        });
        QCOMPARE(yazici.isler.size(), 1);
    }

    void the_expenses_have_a_receipt_of_the_clicked_row() {
        GuiFirma firma;
        DenemeYazicisi yazici(firma, false);
        firma.agac.Koy(Metin(kSalonA) + u"/2026/Gider.dat",
                       "\"03.05.2026\",\"150\",\"Elektrik\"\r\n#2026-05-04#,\"90\",\"Su\"\r\n");
        firma.Ac();
        firma.Model().UserNamem = u"zeynep";
        Pencerede([&] { firma.program.FormGiderler.GosterModal(); }, {[&](QDialog& giderler) {
                      auto& makbuz = Dugmesi(giderler, "Command2");
                      QVERIFY(!makbuz.isEnabled());
                      SatiraTikla(Parcasi<QTreeWidget>(giderler, "Liste"), 1);
                      QVERIFY(makbuz.isEnabled());
                      Pencerede([&] { QTest::mouseClick(&makbuz, Qt::LeftButton); }, {[&](QDialog& pencere) {
                                    QVERIFY(Okunan(pencere).contains(QStringLiteral("GİDER MAKBUZU")));
                                    QVERIFY(Okunan(pencere).contains(QStringLiteral(": zeynep")));
                                    QVERIFY(Okunan(pencere).contains(QStringLiteral(": Su")));
                                    Tusla(Qt::Key_Return);
                                    QVERIFY(!firma.program.FormMakbuzPrint.Yuklu());
                                }});
                      QVERIFY(!makbuz.isEnabled());
                      QVERIFY(Parcasi<QTreeWidget>(giderler, "Liste").hasFocus());
                  }});
        QCOMPARE(yazici.isler, QStringList{QStringLiteral("04.05.2026 - Gül Salonu - Su - Gider Makbuzu")});
    }

    void f5_and_the_button_of_the_tool_bar_show_the_year_table() {
        GuiFirma firma;
        DenemeYazicisi yazici(firma, true);
        firma.Rezervasyon(kSalonA, u"20.06.2026 - Gündüz", false);
        firma.Ac();
        Tabloda(firma, [&](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Rezervasyon Tablosu"));
            QCOMPARE(Odaktaki(), QStringLiteral("Command1"));
            QVERIFY(Okunan(pencere).contains(QStringLiteral("Gül Salonu - 2026 Yılı Rezervasyon Tablosu")));
            QVERIFY(Okunan(pencere).contains(QStringLiteral("Cmt\n●")));
            QTest::keyClick(&firma.Tablo(), Qt::Key_F5);
            Tusla(Qt::Key_F5); // nothing comes over it
            QCOMPARE(QApplication::activeModalWidget(), &pencere);
            Tusla(Qt::Key_Escape);
            QVERIFY(!firma.program.FormTabloPrint.Yuklu());
        });
        Pencerede([&] { QTest::mouseClick(&firma.Bul<QToolButton>("Toolbar1_7"), Qt::LeftButton); },
                  {[&](QDialog& pencere) {
                      Tikla(pencere, "Command1");
                      QVERIFY(!firma.program.FormTabloPrint.Yuklu());
                  }});
        QCOMPARE(yazici.isler, QStringList{QStringLiteral("2026 - Gül Salonu - Rezervasyon Tablosu")});
        QVERIFY(yazici.sonSayfalar.at(0).yon == Yon::Yatay);
    }

    void without_a_printer_two_buttons_go_the_file_can_still_be_had_and_the_cross_closes_it() {
        for (const bool carpi : {true, false}) {
            GuiFirma firma;
            DenemeYazicisi yazici(firma, false);
            const auto dosya = firma.agac.Kok() / "tablo.pdf";
            firma.program.ortam.sor.kayitYeri = [&](const KayitYeriKutusu& kutu) {
                return kutu.ad == u"2026 - Gül Salonu - Rezervasyon Tablosu.pdf" ? std::optional(dosya)
                                                                                 : std::nullopt;
            };
            firma.Ac();
            Tabloda(firma, [&](QDialog& pencere) {
                Tusla(Qt::Key_Return);
                QVERIFY(pencere.isVisible());
                QVERIFY(!Dugmesi(pencere, "Command1").isVisible());
                QVERIFY(!Dugmesi(pencere, "Command2").isVisible());
                Tusla(Qt::Key_Return); // the button that is gone isn't pressed
                QCOMPARE(yazici.isler.size(), 1);
                QTest::mouseClick(&Dugmesi(pencere, "Pdf"), Qt::LeftButton);
                QVERIFY(PdfMetni(dosya).contains(QStringLiteral("HAZİRAN")));
                QVERIFY(PdfMetni(dosya).contains(QStringLiteral("●")));
                QVERIFY(pencere.isVisible());
                if (carpi)
                    pencere.close();
                else
                    Tusla(Qt::Key_Escape);
                QVERIFY(!firma.program.FormTabloPrint.Yuklu());
            });
        }
    }

    void the_page_is_built_anew_only_when_something_on_it_changes() {
        GuiFirma firma;
        int olcumler = 0;
        firma.program.ortam.kagit.olcer =
            [&, olcer = firma.program.ortam.kagit.olcer](MetinBakis metin, const SayfaYazisi& yazi) {
                ++olcumler;
                return olcer(metin, yazi);
            };
        firma.Ac();
        Tabloda(firma, [&](QDialog& pencere) {
            QVERIFY(olcumler > 0);
            const int once = olcumler;
            for (int i = 0; i < 5; ++i)
                Baglayici::HepsiniTazele();
            QCOMPARE(olcumler, once);
            firma.program.FormTabloPrint->Gozu(MartGece, 9).baslik = u"Xyz";
            Baglayici::HepsiniTazele();
            QVERIFY(olcumler > once);
            QVERIFY(Okunan(pencere).contains(QStringLiteral("Xyz")));
        });
    }

    void on_a_small_screen_the_buttons_stay_in_sight_and_the_page_is_scrolled_by_keys() {
        GuiFirma firma;
        firma.Ac();
        Tabloda(firma, [&](QDialog& pencere) {
            pencere.resize(700, 360);
            for (const char* ad : {"Command1", "Pdf", "Command2"})
                QTRY_COMPARE(Dugmesi(pencere, ad).visibleRegion().boundingRect().size(),
                             Dugmesi(pencere, ad).size());
            auto& sayfa = Parcasi<SayfaGorunumu>(pencere, "Sayfa");
            sayfa.setFocus();
            const QRectF once = sayfa.SayfaninYeri(0);
            Tusla(Qt::Key_End);
            QVERIFY(sayfa.SayfaninYeri(0).top() < once.top());
        });
    }
};

VELORA_GUI_TEST(BaskiPencereleriTest)
#include "BaskiPencereleriTest.moc"
