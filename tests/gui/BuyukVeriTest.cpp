#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QTest>
#include <QTextBlock>
#include <QTreeWidget>

#include "gui/GuiFirma.h"
#include "gui/GuiProgram.h"
#include "gui/Kullanim.h"
#include "qt/Baglayici.h"
#include "qt/Ceviri.h"
#include "qt/CokSatirKutusu.h"

using namespace velora;
using namespace velora::test;

namespace {

/// Tells long texts apart without printing them.
#define AYNI_METIN(metin, beklenen) QVERIFY2((metin) == (beklenen), qPrintable(Fark(metin, beklenen)))

QString Fark(const QString& metin, const QString& beklenen) {
    const auto [bir, iki] = std::mismatch(metin.begin(), metin.end(), beklenen.begin(), beklenen.end());
    const qsizetype yer = bir - metin.begin();
    return QStringLiteral("%1 and %2 letters, from %3: \"%4\", not \"%5\"")
        .arg(metin.size())
        .arg(beklenen.size())
        .arg(yer)
        .arg(metin.mid(yer, 20), beklenen.mid(yer, 20));
}

/// Letters without a blank; no two of its pieces are alike.
QString Kelime(int boy) {
    QString kelime;
    for (int i = 0; kelime.size() < boy; ++i)
        kelime += QString::number(i) + QChar(u'a' + i % 23);
    return kelime.left(boy);
}

/// A text of a screen, in a field of many lines.
struct NotSahnesi {
    explicit NotSahnesi(const QString& metin) : alan(&pencere), baglayici(model, &pencere) {
        model->metin = MetinYap(metin);
        baglayici.Bagla(alan, *model);
        pencere.show();
        if (QTest::qWaitForWindowActive(&pencere))
            alan.setFocus();
    }
    [[nodiscard]] QString Model() const { return QMetin(model->metin); }
    [[nodiscard]] qsizetype EnUzunSatir() const {
        qsizetype boy = 0;
        for (QTextBlock satir = alan.document()->begin(); satir.isValid(); satir = satir.next())
            boy = std::max(boy, satir.text().size());
        return boy;
    }
    void ImleciKoy(int yer, int son = -1) {
        QTextCursor imlec = alan.textCursor();
        imlec.setPosition(yer);
        if (son >= 0)
            imlec.setPosition(son, QTextCursor::KeepAnchor);
        alan.setTextCursor(imlec);
    }

    std::shared_ptr<MetinKutusu> model = std::make_shared<MetinKutusu>();
    QWidget pencere;
    CokSatirKutusu alan;
    Baglayici baglayici;
};

struct SatirSahnesi {
    SatirSahnesi() : baglayici(model, &liste) {
        model->basliklar = {u"Tarih", u"Tutar"};
        model->sayiSutunlari = {1};
        model->satirlar = {{{u"01.02.2026", u"40"}, {}, 0}, {{u"03.04.2026", u"1500"}, {}, 255, true}};
        baglayici.Bagla(liste, *model);
    }
    std::shared_ptr<ListeGorunumu> model = std::make_shared<ListeGorunumu>();
    QTreeWidget liste;
    Baglayici baglayici;
};

/// Counts how often it is asked how large a cell is.
class OlcumSayan : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& secenek, const QModelIndex& goz) const override {
        ++sayi;
        return QStyledItemDelegate::sizeHint(secenek, goz);
    }
    mutable int sayi = 0;
};

class BoyanmaSayan : public QWidget {
  public:
    using QWidget::QWidget;
    int sayi = 0;

  protected:
    void paintEvent(QPaintEvent* /*olay*/) override { ++sayi; }
};

} // namespace

/// What is far larger than any firm needs: no pause, and nothing is lost.
class BuyukVeriTest : public QObject {
    Q_OBJECT

  private slots:
    void a_row_copies_nothing_and_shows_what_its_model_holds_when_it_is_looked_at() {
        SatirSahnesi sahne;
        const QTreeWidgetItem& satir = *sahne.liste.topLevelItem(1);
        QCOMPARE(satir.text(1), QStringLiteral("1500"));
        QVERIFY(satir.font(0).bold());
        QCOMPARE(satir.foreground(0).color(), QColor(Qt::red));
        QCOMPARE(satir.textAlignment(1), int(Qt::AlignRight | Qt::AlignVCenter));
        sahne.model->satirlar.Degistir(1, {{u"05.06.2026", u"70\r\n80"}, {}, 0});
        QCOMPARE(satir.text(0), QStringLiteral("05.06.2026"));
        QCOMPARE(satir.text(1), QStringLiteral("70 80"));
        QVERIFY(!satir.font(0).bold());
    }

    void a_row_that_the_model_has_no_more_shows_nothing_until_the_refresh() {
        SatirSahnesi sahne;
        sahne.model->satirlar.erase(0);
        QCOMPARE(sahne.liste.topLevelItem(1)->text(0), QString());
        QCOMPARE(sahne.liste.topLevelItem(1)->textAlignment(1), 0);
        Baglayici::HepsiniTazele();
        QCOMPARE(sahne.liste.topLevelItemCount(), 1);
        QCOMPARE(sahne.liste.topLevelItem(0)->text(0), QStringLiteral("03.04.2026"));
    }

    void the_rows_of_a_screen_that_is_gone_show_nothing() {
        SatirSahnesi sahne;
        sahne.model.reset();
        QCOMPARE(sahne.liste.topLevelItemCount(), 2);
        QCOMPARE(sahne.liste.topLevelItem(0)->text(0), QString());
    }

    void a_cell_is_measured_as_far_as_a_screen_reaches_and_copied_whole() {
        SatirSahnesi sahne;
        const QString kelime = Kelime(300'000);
        sahne.model->satirlar = {{{MetinYap(kelime), u"5"}, {}, 0}};
        Baglayici::HepsiniTazele();
        const QModelIndex goz = sahne.liste.model()->index(0, 0);
        QStyleOptionViewItem secenek;
        secenek.font = sahne.liste.font();
        secenek.fontMetrics = QFontMetrics(secenek.font);
        const int en = sahne.liste.itemDelegate()->sizeHint(secenek, goz).width();
        QVERIFY2(en < secenek.fontMetrics.maxWidth() * 2100, qPrintable(QString::number(en)));
        sahne.liste.setCurrentIndex(goz);
        QTest::keySequence(&sahne.liste, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), kelime + QStringLiteral("\t5"));
    }

    void a_word_without_an_end_is_laid_out_in_pieces_and_stays_whole() {
        const QString kelime = Kelime(200'000);
        const NotSahnesi sahne(QStringLiteral("önce\r\n") + kelime + QStringLiteral("\r\nsonra"));
        QVERIFY(sahne.EnUzunSatir() <= CokSatirKutusu::kEnUzunSatir);
        QCOMPARE(sahne.alan.Metni(), QStringLiteral("önce\n") + kelime + QStringLiteral("\nsonra"));
        QCOMPARE(sahne.Model(), QStringLiteral("önce\r\n") + kelime + QStringLiteral("\r\nsonra"));
    }

    void a_line_that_can_be_typed_is_shown_as_one() {
        const QString kelime = Kelime(CokSatirKutusu::kEnUzunSatir);
        const NotSahnesi sahne(kelime + u'\n' + kelime);
        QCOMPARE(sahne.alan.document()->blockCount(), 2);
        QCOMPARE(sahne.alan.toPlainText(), kelime + u'\n' + kelime);
    }

    void a_long_line_of_words_is_parted_behind_a_blank() {
        const NotSahnesi sahne(QStringLiteral("düğün ").repeated(2000));
        QVERIFY(sahne.alan.document()->blockCount() > 2);
        for (QTextBlock satir = sahne.alan.document()->begin(); satir.next().isValid(); satir = satir.next())
            QVERIFY2(satir.text().endsWith(QStringLiteral("düğün ")), qPrintable(satir.text()));
        QCOMPARE(sahne.alan.Metni(), QStringLiteral("düğün ").repeated(2000));
    }

    void what_is_typed_and_deleted_between_pieces_is_all_that_changes() {
        const QString kelime = Kelime(20'000);
        NotSahnesi sahne(kelime);
        const int ek = static_cast<int>(sahne.alan.document()->begin().text().size());
        sahne.ImleciKoy(ek + 1);
        QTest::keyClicks(&sahne.alan, QStringLiteral("X"));
        QTest::keyClick(&sahne.alan, Qt::Key_Return);
        QString beklenen = QString(kelime).insert(ek, QStringLiteral("X\r\n"));
        AYNI_METIN(sahne.Model(), beklenen);
        // From the middle of one piece over the next into the third, with two ends of pieces.
        const int ucuncu = sahne.alan.document()->findBlockByNumber(4).position();
        sahne.ImleciKoy(sahne.alan.document()->findBlockByNumber(2).position() + 5, ucuncu + 7);
        const qsizetype giden = ucuncu + 7 - sahne.alan.textCursor().selectionStart() - 2;
        // One end of a piece stands before it, and a line end that is two signs in the model.
        const qsizetype bas = sahne.alan.textCursor().selectionStart();
        QTest::keyClick(&sahne.alan, Qt::Key_Delete);
        beklenen.remove(bas, giden);
        QCOMPARE(sahne.Model().size(), beklenen.size());
        AYNI_METIN(sahne.Model(), beklenen);
    }

    void what_is_copied_has_no_ends_of_pieces() {
        const QString kelime = Kelime(20'000);
        NotSahnesi sahne(kelime + QStringLiteral("\r\nson"));
        sahne.alan.selectAll();
        sahne.alan.copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), kelime + QStringLiteral("\nson"));
        sahne.ImleciKoy(500, 2500);
        sahne.alan.copy();
        QCOMPARE(QGuiApplication::clipboard()->text().size(), 2000 - 2);
        QVERIFY(kelime.contains(QGuiApplication::clipboard()->text()));
    }

    void a_word_without_an_end_that_is_pasted_is_laid_out_in_pieces_too() {
        const QString kelime = Kelime(30'000);
        NotSahnesi sahne(QStringLiteral("Ad Soyad"));
        sahne.ImleciKoy(2);
        QGuiApplication::clipboard()->setText(kelime);
        sahne.alan.paste();
        AYNI_METIN(sahne.Model(), QStringLiteral("Ad") + kelime + QStringLiteral(" Soyad"));
        QVERIFY(sahne.EnUzunSatir() <= CokSatirKutusu::kEnUzunSatir);
        QTest::keyClicks(&sahne.alan, QStringLiteral("Y"));
        AYNI_METIN(sahne.Model(), QStringLiteral("Ad") + kelime + QStringLiteral("Y Soyad"));
    }

    void the_panel_of_warnings_measures_its_rows_once() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Ac();
        auto& liste = firma.Bul<QTreeWidget>("Liste");
        auto* olcum = new OlcumSayan(&liste);
        liste.setItemDelegate(olcum);
        QCoreApplication::processEvents();
        olcum->sayi = 0;
        Baglayici::HepsiniTazele();
        QCOMPARE(olcum->sayi, 0);
        firma.Model().UyariGoster();
        Baglayici::HepsiniTazele();
        QVERIFY2(olcum->sayi == 0, "the same rows");
        firma.Rezervasyon(kSalonB, u"24.05.2026 - Gece", false);
        firma.Model().UyariGoster();
        Baglayici::HepsiniTazele();
        QVERIFY(olcum->sayi > 0);
        QCOMPARE(liste.topLevelItemCount(), 2);
    }

    void the_panel_of_very_many_warnings_measures_fewer_cells_than_it_has_rows() {
        GuiFirma firma;
        firma.Rezervasyon(kSalonA, u"23.05.2026 - Gece", false);
        firma.Ac();
        auto& liste = firma.Bul<QTreeWidget>("Liste");
        auto* olcum = new OlcumSayan(&liste);
        liste.setItemDelegate(olcum);
        const ListeSatiri satir = firma.Model().Liste.satirlar[0];
        firma.Model().Liste.satirlar = std::vector<ListeSatiri>(40'000, satir);
        Baglayici::HepsiniTazele();
        QCoreApplication::processEvents();
        QCOMPARE(liste.topLevelItemCount(), 40'000);
        QVERIFY2(olcum->sayi > 0 && olcum->sayi < 40'000, qPrintable(QString::number(olcum->sayi)));
    }

    void a_drop_down_takes_its_entries_at_once_and_measures_no_long_list() {
        const auto secim = std::make_shared<AcilirListe>();
        QComboBox kutu;
        Baglayici baglayici(secim, &kutu);
        secim->ogeler = {u"Gül"};
        baglayici.Bagla(kutu, *secim);
        const auto ayniBoylu = [&] { return qobject_cast<QListView*>(kutu.view())->uniformItemSizes(); };
        QVERIFY(!ayniBoylu());
        QCOMPARE(kutu.view()->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        const QSignalSpy eklenen(kutu.model(), &QAbstractItemModel::rowsInserted);
        for (int i = 0; i < 1500; ++i)
            secim->ogeler.push_back(u"Salon " + MetinYap(QString::number(i)));
        secim->secili = 700;
        Baglayici::HepsiniTazele();
        QCOMPARE(eklenen.count(), 0);
        QCOMPARE(kutu.count(), 1501);
        QCOMPARE(kutu.currentText(), QStringLiteral("Salon 699"));
        QCOMPARE(kutu.itemData(3, Qt::ToolTipRole).toString(), QIpucu(u"Salon 2"));
        QVERIFY(ayniBoylu());
        QCOMPARE(kutu.view()->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    }

    void a_handler_that_reads_long_paints_and_lets_nothing_come_between() {
        GuiFirma firma;
        firma.Ac();
        const auto durum = std::make_shared<std::pair<Dugme, Dugme>>();
        BoyanmaSayan pencere;
        QPushButton uzun(&pencere);
        QPushButton kisa(&pencere);
        Baglayici baglayici(durum, &pencere);
        QStringList sira;
        int tik = 0;
        Zamanlayici saat;
        saat.aralik = 1;
        saat.tik = [&] { ++tik; };
        baglayici.Bagla(saat, QStringLiteral("saat"));
        Qt::CursorShape imlec = Qt::ArrowCursor;
        const auto oku = [&] {
            Siraya(pencere, [&] { kisa.click(); });
            pencere.update();
            const int boyanan = pencere.sayi;
            const int tikli = tik;
            QElapsedTimer sure;
            for (sure.start(); pencere.sayi == boyanan && !sure.hasExpired(10'000);)
                firma.program.dosyalar.Listele(firma.agac.Kok().u16string());
            sira << (pencere.sayi > boyanan ? QStringLiteral("boyandı") : QStringLiteral("durdu"));
            sira << (tik == tikli ? QStringLiteral("tıksız") : QStringLiteral("tıklı"));
            if (const QCursor* ustteki = QGuiApplication::overrideCursor())
                imlec = ustteki->shape();
        };
        baglayici.Bagla(uzun, durum->first, oku);
        baglayici.Bagla(kisa, durum->second, [&] { sira << QStringLiteral("basıldı"); });
        pencere.resize(200, 100);
        pencere.show();
        QVERIFY(QTest::qWaitForWindowExposed(&pencere));
        QTest::mouseClick(&uzun, Qt::LeftButton);
        QTRY_COMPARE(sira, (QStringList{"boyandı", "tıksız", "basıldı"}));
        QCOMPARE(imlec, Qt::WaitCursor);
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }
};

VELORA_GUI_TEST(BuyukVeriTest)
#include "BuyukVeriTest.moc"
