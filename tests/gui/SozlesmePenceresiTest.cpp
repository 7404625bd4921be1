#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "documents/FormSozlesme.h"
#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"

using namespace velora;
using namespace velora::test;

namespace {

// "Gül" in Tekirdağ; "Şartlar" and two clauses.
constexpr std::string_view kGulProfili =
    "\"G\xFCl\",\"Ay\xFE"
    "e\",\"0212 1\",\"0532 2\",\"gul.test\",\"a@gul.test\",\"\xC7"
    "ay Sk.\",\"TEKIRDAG\",\"Ergene\",\"Velora 1.0\",\"01.01.2012\",\"yedek\",\"4\"\r\n";
constexpr std::string_view kIkiMadde = "\"\xDE"
                                       "artlar\",\"1 - Kira pe\xFEin.\r\n2 - \xDD\xE7ki yok.\"\r\n";

/// A firm with a profile and a contract.
struct SozlesmeliFirma : GuiFirma {
    SozlesmeliFirma() {
        agac.Koy(u"Firma.dll", kGulProfili);
        agac.Koy(u"Sozlesme.dat", kIkiMadde);
        Ac();
    }
};

void Sozlesmede(GuiFirma& firma, const Is& is) {
    Pencerede([&] { MenudenSec(firma, "Sozduzenss"); }, {is});
}

} // namespace

class SozlesmePenceresiTest : public QObject {
    Q_OBJECT

  private slots:
    void it_shows_the_firm_and_the_texts() {
        SozlesmeliFirma firma;
        Sozlesmede(firma, [](QDialog& pencere) {
            QCOMPARE(pencere.windowTitle(), QStringLiteral("Sözleşme Ayarları"));
            QCOMPARE(Parcasi<QLineEdit>(pencere, "Unvan").text(), QStringLiteral("Gül"));
            QCOMPARE(Parcasi<QComboBox>(pencere, "Sehir").currentText(), QStringLiteral("TEKIRDAG"));
            QCOMPARE(Parcasi<QLineEdit>(pencere, "Baslik").text(), QStringLiteral("Şartlar"));
            QCOMPARE(Parcasi<QPlainTextEdit>(pencere, "Sozlesme").toPlainText(),
                     QStringLiteral("1 - Kira peşin.\n2 - İçki yok."));
            QCOMPARE(Odaktaki(), QStringLiteral("Sozlesme"));
        });
        firma.program.FormSozlesme.Bosalt();
    }

    void a_clause_that_is_typed_stands_on_the_disk_behind_its_line_break() {
        SozlesmeliFirma firma;
        Sozlesmede(firma, [](QDialog& pencere) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_End, Qt::ControlModifier);
            Tusla(Qt::Key_Return);
            QVERIFY(pencere.isVisible());
            QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("3 - \"Nakit\", kart"));
            AlanaYaz(pencere, "Unvan", QStringLiteral("baska"));
            Tikla(pencere, "Command2");
            QVERIFY(!pencere.isVisible());
        });
        QVERIFY(!firma.program.FormSozlesme.Yuklu());
        QCOMPARE(
            firma.agac.Bayt(u"Sozlesme.dat"),
            std::string("\"\xDE"
                        "artlar\",\"1 - Kira pe\xFEin.\r\n2 - \xDD\xE7ki yok.\r\n3 - Nakit, kart\"\r\n"));
        QCOMPARE(firma.agac.Bayt(u"Firma.dll"), std::string(kGulProfili));
    }

    void enter_in_the_heading_saves_and_escape_anywhere_does_not() {
        SozlesmeliFirma firma;
        Sozlesmede(firma, [](QDialog& pencere) {
            QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
            Tusla(Qt::Key_Escape);
            QVERIFY(!pencere.isVisible());
        });
        QVERIFY(!firma.program.FormSozlesme.Yuklu());
        QCOMPARE(firma.agac.Bayt(u"Sozlesme.dat"), std::string(kIkiMadde));
        Sozlesmede(firma, [](QDialog& pencere) {
            AlanaYaz(pencere, "Baslik", QStringLiteral("Kurallar"));
            QTest::keyClick(&Parcasi<QLineEdit>(pencere, "Baslik"), Qt::Key_Return);
            QVERIFY(!pencere.isVisible());
        });
        QVERIFY(firma.agac.Bayt(u"Sozlesme.dat").starts_with("\"Kurallar\",\"1 - Kira"));
    }

    void sample_and_pdf_do_their_own_work_by_a_click() {
        SozlesmeliFirma firma;
        QStringList isler;
        firma.program.ortam.kagit.yazdir = [&](const std::vector<Sayfa>& /*sayfalar*/, const Metin& ad) {
            isler << QStringLiteral("baskı ") + QString::fromStdU16String(ad);
            return true;
        };
        firma.program.ortam.sor.kayitYeri = [&](const KayitYeriKutusu& kutu) {
            isler << QStringLiteral("dosya ") + QString::fromStdU16String(kutu.ad);
            return std::optional<std::filesystem::path>();
        };
        Sozlesmede(firma, [&](QDialog& pencere) {
            Tikla(pencere, "Command1");
            QCOMPARE(isler, QStringList{QStringLiteral("baskı Örnek Sözleşme")});
            isler.clear();
            Tikla(pencere, "Pdf");
            QCOMPARE(isler, QStringList{QStringLiteral("dosya Örnek Sözleşme.pdf")});
            QVERIFY(pencere.isVisible());
        });
        firma.program.FormSozlesme.Bosalt();
    }

    void who_has_no_right_to_it_does_not_see_its_entry() {
        SozlesmeliFirma firma;
        QVERIFY(firma.Bul<QAction>("Sozduzenss").isVisible());
        GuiFirma yetkisiz;
        yetkisiz.program.oturum.kapaliGirdiler.insert(u"Sozduzenss");
        yetkisiz.Ac();
        QVERIFY(!yetkisiz.Bul<QAction>("Sozduzenss").isVisible());
        QVERIFY(yetkisiz.Bul<QAction>("Salontanimss").isVisible());
    }
};

VELORA_GUI_TEST(SozlesmePenceresiTest)
#include "SozlesmePenceresiTest.moc"
