#include <QTest>

#include "gui/GuiProgram.h"
#include "qt/Ceviri.h"

using namespace velora;

class CeviriTest : public QObject {
    Q_OBJECT

  private slots:
    void red_is_the_low_byte_of_a_colour() {
        QCOMPARE(QRenk(33023), QColor(255, 128, 0));
        QCOMPARE(QRenk(6086641), QColor(241, 223, 92));
        QCOMPARE(QRenk(255), QColor(255, 0, 0));
        QCOMPARE(QRenk(32768), QColor(0, 128, 0));
        QCOMPARE(QRenk(16711680), QColor(0, 0, 255));
    }

    void a_colour_with_bits_above_its_three_bytes_is_still_a_colour() {
        QCOMPARE(QRenk(-1), QColor(255, 255, 255));
        QVERIFY(QRenk(std::numeric_limits<RenkDegeri>::min()).isValid());
    }

    void text_comes_back_unit_by_unit() {
        const Metin metin{u'ğ', u'\0', u'İ', 0xFEFF, 0xD800, u'\x81', u'\n', u'ş'};
        QCOMPARE(QMetin(metin).size(), 8);
        QCOMPARE(MetinYap(QMetin(metin)), metin);
    }

    void a_byte_order_mark_at_the_start_is_text_too() {
        const Metin metin{0xFFFE, u'a'};
        QCOMPARE(MetinYap(QMetin(metin)), metin);
    }

    void a_tool_tip_with_tags_is_shown_letter_by_letter() {
        QCOMPARE(QIpucu(u"Zafer Bayramı"), QStringLiteral("Zafer Bayramı"));
        QVERIFY(QIpucu(u"<b>Bayram</b>").contains(QStringLiteral("&lt;b&gt;")));
    }
};

VELORA_GUI_TEST(CeviriTest)
#include "CeviriTest.moc"
