#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>

#include "gui/GuiProgram.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/CokSatirKutusu.h"

using namespace velora;

namespace {

/// One text of a screen, and the window that shows it.
struct MetinSahnesi {
    MetinSahnesi() : baglayici(metin, &pencere) {}

    std::shared_ptr<MetinKutusu> metin = std::make_shared<MetinKutusu>();
    QWidget pencere;
    Baglayici baglayici;

    [[nodiscard]] QString Model() const { return QMetin(metin->metin); }
};

/// One press of a key that brings a text.
void Bas(QWidget& alan, const QString& metin) {
    QTest::sendKeyEvent(QTest::Click, &alan, Qt::Key_unknown, metin, Qt::NoModifier);
}

/// A text that an input method brings at once.
void Getir(QWidget& alan, const QString& metin) {
    QInputMethodEvent olay;
    olay.setCommitString(metin);
    QApplication::sendEvent(&alan, &olay);
}

template <class Alan>
void Yapistir(Alan& alan, const QString& metin) {
    QGuiApplication::clipboard()->setText(metin);
    alan.paste();
}

void ImleciKoy(CokSatirKutusu& alan, int yer) {
    QTextCursor imlec = alan.textCursor();
    imlec.setPosition(yer);
    alan.setTextCursor(imlec);
}

} // namespace

class MetinBaglamaTest : public QObject {
    Q_OBJECT

  private slots:
    void a_mask_takes_no_other_digits_than_0_to_9_when_they_are_typed() {
        MetinSahnesi sahne;
        sahne.metin->maske = u"##:##";
        sahne.metin->metin = u"__:__";
        QLineEdit alan(&sahne.pencere);
        sahne.baglayici.Bagla(alan, *sahne.metin);
        alan.setCursorPosition(0);
        for (const auto& harf :
             {QStringLiteral("½"), QStringLiteral("\u0663"), QStringLiteral("2"), QStringLiteral("²")})
            Bas(alan, harf);
        Getir(alan, QStringLiteral("\u0661³"));
        QCOMPARE(sahne.Model(), QStringLiteral("2_:__"));
        QCOMPARE(alan.displayText(), QStringLiteral("2_:__"));
        Getir(alan, QStringLiteral("1"));
        QCOMPARE(sahne.Model(), QStringLiteral("21:__"));
        alan.setCursorPosition(0);
        Bas(alan, QStringLiteral("½"));
        QCOMPARE(alan.displayText(), QStringLiteral("21:__"));
        QCOMPARE(alan.cursorPosition(), 0);
    }

    void a_mask_takes_no_other_digits_than_0_to_9_when_they_are_pasted() {
        MetinSahnesi sahne;
        sahne.metin->maske = u"##.##.####";
        sahne.metin->metin = u"__.__.____";
        QLineEdit alan(&sahne.pencere);
        sahne.baglayici.Bagla(alan, *sahne.metin);
        sahne.pencere.show();
        QVERIFY(QTest::qWaitForWindowActive(&sahne.pencere));
        alan.setFocus();
        alan.setCursorPosition(0);
        Yapistir(alan, QStringLiteral("½1.\u0665"));
        QCOMPARE(sahne.Model(), QStringLiteral("_1.__.____"));
        QCOMPARE(alan.displayText(), QStringLiteral("_1.__.____"));
        Bas(alan, QStringLiteral("7"));
        QCOMPARE(sahne.Model(), QStringLiteral("_1._7.____"));
    }

    void a_text_that_does_not_fit_its_mask_is_put_once_and_the_cursor_stays() {
        MetinSahnesi sahne;
        sahne.metin->maske = u"##:##";
        sahne.metin->metin = u"9:30";
        QLineEdit alan(&sahne.pencere);
        sahne.baglayici.Bagla(alan, *sahne.metin);
        const QString gorunen = alan.displayText();
        alan.setCursorPosition(1);
        alan.setSelection(0, 2);
        Baglayici::HepsiniTazele();
        QCOMPARE(alan.selectionLength(), 2);
        QCOMPARE(alan.displayText(), gorunen);
        QCOMPARE(sahne.Model(), QStringLiteral("9:30"));
        sahne.metin->metin = u"10:45";
        Baglayici::HepsiniTazele();
        QCOMPARE(alan.displayText(), QStringLiteral("10:45"));
    }

    void a_field_of_one_line_never_takes_a_line_break_or_a_tab() {
        MetinSahnesi sahne;
        QLineEdit alan(&sahne.pencere);
        sahne.baglayici.Bagla(alan, *sahne.metin);
        Yapistir(alan, QStringLiteral("a\r\nb\rc\nd\te\u2028f\u2029g\n"));
        QCOMPARE(sahne.Model(), QStringLiteral("a b c d e f g "));
        QCOMPARE(alan.text(), sahne.Model());
    }

    void a_field_of_many_lines_takes_line_breaks_and_tabs() {
        MetinSahnesi sahne;
        CokSatirKutusu alan(&sahne.pencere);
        sahne.baglayici.Bagla(alan, *sahne.metin);
        Yapistir(alan, QStringLiteral("a\r\nb\nc\td\u2028e"));
        QCOMPARE(sahne.Model(), QStringLiteral("a\r\nb\r\nc\td\r\ne"));
        QTest::keyClick(&alan, Qt::Key_Return);
        QCOMPARE(sahne.Model(), QStringLiteral("a\r\nb\r\nc\td\r\ne\r\n"));
    }

    void a_line_break_counts_twice_for_the_limit() {
        MetinSahnesi sahne;
        sahne.metin->enUzun = 5;
        CokSatirKutusu alan(&sahne.pencere);
        sahne.baglayici.Bagla(alan, *sahne.metin);
        QTest::keyClick(&alan, Qt::Key_A);
        QTest::keyClick(&alan, Qt::Key_Return);
        QTest::keyClick(&alan, Qt::Key_B);
        QTest::keyClick(&alan, Qt::Key_Return);
        QCOMPARE(sahne.Model(), QStringLiteral("a\r\nb"));
        QTest::keyClick(&alan, Qt::Key_C);
        QTest::keyClick(&alan, Qt::Key_D);
        QCOMPARE(sahne.Model(), QStringLiteral("a\r\nbc"));
        alan.selectAll();
        Yapistir(alan, QStringLiteral("1\n2\n3"));
        QCOMPARE(sahne.Model(), QStringLiteral("1\r\n2"));
        QCOMPARE(alan.toPlainText(), QStringLiteral("1\n2"));
    }

    void the_cursor_stays_where_a_key_was_refused() {
        MetinSahnesi sahne;
        sahne.metin->enUzun = 4;
        sahne.metin->metin = u"a\r\nb";
        CokSatirKutusu alan(&sahne.pencere);
        sahne.baglayici.Bagla(alan, *sahne.metin);
        sahne.pencere.show();
        QVERIFY(QTest::qWaitForWindowActive(&sahne.pencere));
        alan.setFocus();
        ImleciKoy(alan, 1);
        QTest::keyClick(&alan, Qt::Key_X);
        QCOMPARE(alan.textCursor().position(), 1);
        QTest::keyClick(&alan, Qt::Key_Backspace);
        QTest::keyClick(&alan, Qt::Key_Y);
        QCOMPARE(sahne.Model(), QStringLiteral("y\r\nb"));
    }

    void what_no_file_holds_is_dropped_when_typed_and_asked_for_when_pasted() {
        const QString yuz = QStringLiteral("\U0001F600");
        MetinSahnesi sahne;
        QLineEdit satir(&sahne.pencere);
        CokSatirKutusu satirlar(&sahne.pencere);
        sahne.baglayici.Bagla(satir, *sahne.metin);
        sahne.baglayici.Bagla(satirlar, *sahne.metin);
        for (QWidget* alan : {static_cast<QWidget*>(&satir), static_cast<QWidget*>(&satirlar)}) {
            Bas(*alan, yuz);
            Bas(*alan, QStringLiteral("語"));
            Getir(*alan, yuz);
            QCOMPARE(sahne.Model(), QString());
            Bas(*alan, QStringLiteral("x語"));
            Getir(*alan, yuz + QStringLiteral("e\u0301"));
            QCOMPARE(sahne.Model(), QStringLiteral("xé"));
            sahne.metin->metin.clear();
            Baglayici::HepsiniTazele();
        }
        Yapistir(satir, QStringLiteral("語"));
        Yapistir(satir, yuz);
        QCOMPARE(sahne.Model(), QStringLiteral("??"));
        satirlar.selectAll();
        Yapistir(satirlar, yuz);
        QCOMPARE(sahne.Model(), QStringLiteral("?"));
    }

    void a_key_that_does_nothing_leaves_the_selection_alone() {
        MetinSahnesi sahne;
        sahne.metin->metin = u"abc";
        QLineEdit alan(&sahne.pencere);
        sahne.baglayici.Bagla(alan, *sahne.metin);
        alan.selectAll();
        Bas(alan, QStringLiteral("語"));
        Getir(alan, QStringLiteral("語"));
        QCOMPARE(sahne.Model(), QStringLiteral("abc"));
        QCOMPARE(alan.selectedText(), QStringLiteral("abc"));
    }

    void an_editable_list_drops_typed_signs_as_a_field_does() {
        MetinSahnesi sahne;
        QComboBox kutu(&sahne.pencere);
        sahne.metin->ogeler = {u"bir", u"iki"};
        sahne.baglayici.Bagla(kutu, *sahne.metin);
        sahne.metin->metin.clear();
        Baglayici::HepsiniTazele();
        Bas(kutu, QStringLiteral("ş"));
        Bas(kutu, QStringLiteral("\U0001F600"));
        Getir(kutu, QStringLiteral("語"));
        QCOMPARE(sahne.Model(), QStringLiteral("ş"));
        Yapistir(*kutu.lineEdit(), QStringLiteral("語\n"));
        QCOMPARE(sahne.Model(), QStringLiteral("ş? "));
    }

    void the_arrow_keys_of_an_editable_list_go_on_from_the_text_of_the_model() {
        MetinSahnesi sahne;
        QComboBox kutu(&sahne.pencere);
        sahne.metin->ogeler = {u"bir", u"iki", u"üç"};
        sahne.baglayici.Bagla(kutu, *sahne.metin);
        sahne.metin->metin = u"iki";
        Baglayici::HepsiniTazele();
        QTest::keyClick(&kutu, Qt::Key_Down);
        QCOMPARE(sahne.Model(), QStringLiteral("üç"));
        sahne.metin->metin = u"elle";
        Baglayici::HepsiniTazele();
        QCOMPARE(kutu.currentText(), QStringLiteral("elle"));
    }

    void what_a_field_of_many_lines_shows_otherwise_stands_when_another_place_is_edited() {
        MetinSahnesi sahne;
        const QString dosyadan = QStringLiteral("bir\riki\nüç\r\ndört\u00A0beş");
        sahne.metin->metin = MetinYap(dosyadan);
        CokSatirKutusu alan(&sahne.pencere);
        sahne.baglayici.Bagla(alan, *sahne.metin);
        QCOMPARE(alan.toPlainText(), QStringLiteral("bir\niki\nüç\ndört beş"));
        QCOMPARE(sahne.Model(), dosyadan);
        ImleciKoy(alan, 9); // between the lone breaks and the rest
        QTest::keyClick(&alan, Qt::Key_X);
        QCOMPARE(sahne.Model(), QStringLiteral("bir\riki\nüxç\r\ndört\u00A0beş"));
        QTest::keyClick(&alan, Qt::Key_Backspace);
        QCOMPARE(sahne.Model(), dosyadan);
        ImleciKoy(alan, 4);
        QTest::keyClick(&alan, Qt::Key_Backspace);
        QCOMPARE(sahne.Model(), QStringLiteral("biriki\nüç\r\ndört\u00A0beş"));
    }

    void a_text_that_is_shown_otherwise_is_put_once() {
        MetinSahnesi sahne;
        sahne.metin->metin = u"bir\riki\u00A0üç";
        CokSatirKutusu alan(&sahne.pencere);
        sahne.baglayici.Bagla(alan, *sahne.metin);
        alan.selectAll();
        Baglayici::HepsiniTazele();
        QVERIFY(alan.textCursor().hasSelection());
    }
};

VELORA_GUI_TEST(MetinBaglamaTest)
#include "MetinBaglamaTest.moc"
