#include <cmath>

#include <QAccessible>
#include <QPainter>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include "gui/GuiProgram.h"
#include "qt/documents/SayfaGorunumu.h"

using namespace velora;
using namespace velora::test;

namespace {

Sayfa OrnekSayfa(MetinBakis metin, Yon yon = Yon::Dik) {
    return {yon,
            {{.yer = {15, 15, 100, 8}, .yazi = {12, false}, .satirlar = {Metin(metin)}},
             {.yer = {15, 30, 40, 10}, .zemin = 0x0000FF}}};
}

/// Counts how often its widget is painted.
struct BoyamaSayaci : QObject {
    explicit BoyamaSayaci(QWidget& parca) { parca.installEventFilter(this); }
    bool eventFilter(QObject* nesne, QEvent* olay) override {
        adet += olay->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(nesne, olay);
    }
    int adet = 0;
};

/// Has a widget painted anew, with all that it owes until then.
void BoyananaDekBekle(QWidget& parca) {
    const BoyamaSayaci sayac(parca);
    parca.update();
    QTRY_VERIFY(sayac.adet > 0);
}

/// Waits as long as a painting takes that is asked for now, of a window of its own: one asked for earlier
/// comes earlier.
void SonrakininBoyanmasiniBekle() {
    QWidget bekci;
    bekci.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bekci));
    BoyananaDekBekle(bekci);
}

bool KirmiziMi(const QImage& resim, QPointF yer) {
    return resim.pixelColor(yer.toPoint()) == QColor(255, 0, 0);
}

} // namespace

class SayfaGorunumuTest : public QObject {
    Q_OBJECT

    /// A window with the pages alone.
    static void Ac(SayfaGorunumu& gorunum, std::vector<Sayfa> sayfalar, QSize boy) {
        gorunum.Goster(std::move(sayfalar));
        gorunum.resize(boy);
        gorunum.show();
        QVERIFY(QTest::qWaitForWindowActive(&gorunum));
    }

  private slots:
    void each_sheet_has_its_shape_and_what_stands_on_it_is_where_the_page_says() {
        SayfaGorunumu gorunum;
        Ac(gorunum, {OrnekSayfa(u"dik"), OrnekSayfa(u"yatay", Yon::Yatay)}, {900, 2400});
        QVERIFY(gorunum.SayfaninYeri(1).top() > gorunum.SayfaninYeri(0).bottom());
        const QImage resim = gorunum.viewport()->grab().toImage();
        const QSizeF boylar[]{{kSayfaEni, kSayfaBoyu}, {kSayfaBoyu, kSayfaEni}};
        for (int sira = 0; sira < 2; ++sira) {
            const QRectF yer = gorunum.SayfaninYeri(sira);
            const double olcek = yer.width() / boylar[sira].width();
            QVERIFY(std::abs(yer.height() - boylar[sira].height() * olcek) < 0.5);
            QCOMPARE(resim.pixelColor((yer.topLeft() + QPointF(5, 5)).toPoint()), QColor(Qt::white));
            QVERIFY(resim.pixelColor((yer.topLeft() - QPointF(4, 4)).toPoint()) != QColor(Qt::white));
            QVERIFY(KirmiziMi(resim, yer.topLeft() + QPointF(20, 35) * olcek));
            QVERIFY(!KirmiziMi(resim, yer.topLeft() + QPointF(60, 35) * olcek));
        }
        // As wide as the place, but for the gaps.
        QVERIFY(gorunum.SayfaninYeri(1).width() > 900 - 50);
    }

    void a_single_sheet_is_shown_whole_where_it_stays_readable_and_else_it_scrolls() {
        SayfaGorunumu gorunum;
        Ac(gorunum, {OrnekSayfa(u"tek")}, {1000, 820});
        QVERIFY(!gorunum.verticalScrollBar()->isVisible());
        QVERIFY(gorunum.SayfaninYeri(0).height() > 780);
        gorunum.resize(600, 500);
        QTRY_VERIFY(gorunum.verticalScrollBar()->isVisible());
        QVERIFY2(!gorunum.horizontalScrollBar()->isVisible(), "it fits its width");
        gorunum.resize(330, 500);
        QTRY_VERIFY(gorunum.horizontalScrollBar()->isVisible());
        QVERIFY2(gorunum.SayfaninYeri(0).width() > 500, "letters would be too small to be read");
    }

    void keys_go_through_it_and_another_page_begins_at_its_top() {
        SayfaGorunumu gorunum;
        Ac(gorunum, {OrnekSayfa(u"bir"), OrnekSayfa(u"iki")}, {600, 400});
        QVERIFY(gorunum.hasFocus());
        const QScrollBar& serit = *gorunum.verticalScrollBar();
        QTest::keyClick(&gorunum, Qt::Key_PageDown);
        QVERIFY(serit.value() > 300);
        const int birSayfa = serit.value();
        QTest::keyClick(&gorunum, Qt::Key_Down);
        QVERIFY(serit.value() > birSayfa);
        QTest::keyClick(&gorunum, Qt::Key_Up);
        QTest::keyClick(&gorunum, Qt::Key_PageUp);
        QCOMPARE(serit.value(), 0);
        QTest::keyClick(&gorunum, Qt::Key_End);
        QCOMPARE(serit.value(), serit.maximum());
        QVERIFY(gorunum.SayfaninYeri(1).bottom() <= gorunum.viewport()->height());
        QTest::keyClick(&gorunum, Qt::Key_Home);
        QCOMPARE(serit.value(), 0);
        QTest::keyClick(&gorunum, Qt::Key_End);
        gorunum.Goster({OrnekSayfa(u"üç"), OrnekSayfa(u"dört"), OrnekSayfa(u"beş")});
        QCOMPARE(serit.value(), 0);
    }

    void the_same_pages_again_paint_nothing_and_leave_the_place_where_it_is() {
        SayfaGorunumu gorunum;
        Ac(gorunum, {OrnekSayfa(u"bir"), OrnekSayfa(u"iki")}, {600, 400});
        const BoyamaSayaci sayac(*gorunum.viewport());
        QTest::keyClick(&gorunum, Qt::Key_PageDown);
        BoyananaDekBekle(*gorunum.viewport());
        const int yer = gorunum.verticalScrollBar()->value();
        const int once = sayac.adet;
        gorunum.Goster({OrnekSayfa(u"bir"), OrnekSayfa(u"iki")});
        SonrakininBoyanmasiniBekle();
        QCOMPARE(sayac.adet, once);
        QCOMPARE(gorunum.verticalScrollBar()->value(), yer);
        gorunum.Goster({OrnekSayfa(u"bir"), OrnekSayfa(u"İKİ")});
        QTRY_VERIFY(sayac.adet > once);
    }

    void a_scale_of_two_shows_finer_letters_and_no_larger_dots() {
        SayfaGorunumu gorunum;
        Ac(gorunum, {OrnekSayfa(u"Sözleşme Şartları")}, {700, 500});
        QImage resim(gorunum.size() * 2, QImage::Format_RGB32);
        resim.setDevicePixelRatio(2);
        gorunum.render(&resim);
        int ince = 0; // device pixels that differ from the one beside them, within one logical pixel
        for (int y = 0; y < resim.height(); ++y)
            for (int x = 0; x + 1 < resim.width(); x += 2)
                ince += resim.pixel(x, y) != resim.pixel(x + 1, y) ? 1 : 0;
        QVERIFY2(ince > 300, qPrintable(QString::number(ince)));
    }

    void a_screen_reader_finds_its_name_and_its_texts() {
        SayfaGorunumu gorunum;
        gorunum.Goster({OrnekSayfa(u"Ayşe Yılmaz"), OrnekSayfa(u"Çiğdem Öz")});
        const QAccessibleInterface* arayuz = QAccessible::queryAccessibleInterface(&gorunum);
        QVERIFY(arayuz != nullptr);
        QCOMPARE(arayuz->text(QAccessible::Name), QStringLiteral("Sayfa önizlemesi"));
        QCOMPARE(arayuz->text(QAccessible::Description), QStringLiteral("Ayşe Yılmaz\nÇiğdem Öz"));
    }

    void nothing_to_show_is_no_harm() {
        SayfaGorunumu gorunum;
        Ac(gorunum, {}, {500, 400});
        QTest::keyClick(&gorunum, Qt::Key_End);
        gorunum.Goster({OrnekSayfa(u"bir")});
        gorunum.Goster({});
        QVERIFY(!gorunum.verticalScrollBar()->isVisible());
        QVERIFY(gorunum.accessibleDescription().isEmpty());
    }
};

VELORA_GUI_TEST(SayfaGorunumuTest)
#include "SayfaGorunumuTest.moc"
