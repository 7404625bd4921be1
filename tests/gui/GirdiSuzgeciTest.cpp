#include <QTest>

#include "gui/GuiProgram.h"
#include "qt/GirdiSuzgeci.h"

using namespace velora;

namespace {

/// A field of one line into which `gelen` was pasted, at `yer` of `eski`.
QString Satirda(const QString& eski, qsizetype yer, const QString& gelen, const GirdiKurali& kural = {}) {
    return GirdiyiSuz(eski, QString(eski).insert(yer, gelen), kural);
}

bool Rakam(char16_t harf) {
    return harf >= u'0' && harf <= u'9';
}

const GirdiKurali kSatirlar{.izin = {}, .enUzun = 0, .cokSatirli = true};

} // namespace

class GirdiSuzgeciTest : public QObject {
    Q_OBJECT

  private slots:
    void a_character_outside_the_code_page_becomes_one_question_mark() {
        QCOMPARE(Satirda(QStringLiteral("ab"), 1, QStringLiteral("語")), QStringLiteral("a?b"));
        QCOMPARE(Satirda(QStringLiteral("ab"), 1, QStringLiteral("\U0001F600")), QStringLiteral("a?b"));
        QCOMPARE(Satirda({}, 0, QStringLiteral("\U0001F600ş\U0001F601")), QStringLiteral("?ş?"));
        QCOMPARE(Satirda({}, 0, QString(QChar(0xD83D))), QStringLiteral("?"));
    }

    void half_a_pair_that_was_there_already_is_not_taken_for_a_common_part() {
        const QString eski = QStringLiteral("a\U0001F600b");
        // The two share their first half, and in the second case their last one.
        QCOMPARE(GirdiyiSuz(eski, QStringLiteral("a\U0001F601b"), {}), QStringLiteral("a?b"));
        QCOMPARE(GirdiyiSuz(eski, QStringLiteral("a\U0001FA00b"), {}), QStringLiteral("a?b"));
    }

    void letters_and_their_marks_are_composed() {
        QCOMPARE(Satirda(QStringLiteral("ab"), 1, QStringLiteral("e\u0301u\u0308")), QStringLiteral("aéüb"));
        // The letter before is the same, the one behind too.
        QCOMPARE(Satirda(QStringLiteral("ex"), 0, QStringLiteral("e\u0301")), QStringLiteral("éex"));
        QCOMPARE(Satirda(QStringLiteral("ex"), 1, QStringLiteral("e\u0301")), QStringLiteral("eéx"));
        QCOMPARE(Satirda(QStringLiteral("x"), 1, QStringLiteral("\u0436\u0301")), QStringLiteral("x??"));
    }

    void line_breaks_and_control_characters_are_blanks_in_one_line() {
        QCOMPARE(Satirda({}, 0, QStringLiteral("a\r\nb\rc\nd")), QStringLiteral("a b c d"));
        QCOMPARE(Satirda({}, 0, QStringLiteral("a\u2028b\u2029c\td\u0001e")), QStringLiteral("a b c d e"));
        QCOMPARE(Satirda({}, 0, QStringLiteral("\n\r\r\n\r\n")), QStringLiteral("    "));
        // What was there already stands.
        QCOMPARE(Satirda(QStringLiteral("a\r\nb"), 4, QStringLiteral("\n")), QStringLiteral("a\r\nb "));
    }

    void line_breaks_are_cr_lf_in_many_lines_and_tabs_stand() {
        QCOMPARE(GirdiyiSuz({}, QStringLiteral("a\nb\tc\u2028d"), kSatirlar),
                 QStringLiteral("a\r\nb\tc\r\nd"));
        QCOMPARE(GirdiyiSuz(QStringLiteral("a\r\nb"), QStringLiteral("a\n\nb"), kSatirlar),
                 QStringLiteral("a\r\n\r\nb"));
        QCOMPARE(GirdiyiSuz(QStringLiteral("a\r\nb"), QStringLiteral("ab"), kSatirlar), QStringLiteral("ab"));
    }

    void what_many_lines_show_otherwise_stands_where_nothing_was_edited() {
        const QString eski = QStringLiteral("a\rb\nc\r\nd\u00A0e");
        QCOMPARE(CokSatirGoster(eski), QStringLiteral("a\nb\nc\nd e"));
        QCOMPARE(GirdiyiSuz(eski, QStringLiteral("a\nb\nXc\nd e"), kSatirlar),
                 QStringLiteral("a\rb\nXc\r\nd\u00A0e"));
        QCOMPARE(GirdiyiSuz(eski, QStringLiteral("a\nb\nc\nd e!"), kSatirlar),
                 QStringLiteral("a\rb\nc\r\nd\u00A0e!"));
        // A lone CR and a lone LF that come to stand side by side stay two line breaks.
        QCOMPARE(CokSatirGoster(GirdiyiSuz(eski, QStringLiteral("a\n\nc\nd e"), kSatirlar)),
                 QStringLiteral("a\n\nc\nd e"));
    }

    void the_limit_cuts_what_came_in_and_nothing_else() {
        const GirdiKurali bes{.izin = {}, .enUzun = 5};
        QCOMPARE(Satirda(QStringLiteral("abc"), 1, QStringLiteral("123"), bes), QStringLiteral("a12bc"));
        QCOMPARE(Satirda(QStringLiteral("abcdefg"), 7, QStringLiteral("1"), bes), QStringLiteral("abcdefg"));
        QCOMPARE(Satirda({}, 0, QStringLiteral("\U0001F6001234567"), bes), QStringLiteral("?1234"));
    }

    void a_line_break_counts_as_the_two_characters_that_it_is() {
        const GirdiKurali bes{.izin = {}, .enUzun = 5, .cokSatirli = true};
        QCOMPARE(GirdiyiSuz({}, QStringLiteral("1\n2\n3"), bes), QStringLiteral("1\r\n2"));
        QCOMPARE(GirdiyiSuz(QStringLiteral("a\r\nb"), QStringLiteral("a\nb\n"), bes),
                 QStringLiteral("a\r\nb"));
        QCOMPARE(GirdiyiSuz(QStringLiteral("a\r\nb"), QStringLiteral("a\nbcd"), bes),
                 QStringLiteral("a\r\nbc"));
        QCOMPARE(GirdiyiSuz(QStringLiteral("abc"), QStringLiteral("a\nbc"), bes), QStringLiteral("a\r\nbc"));
    }

    void what_is_not_allowed_does_not_count_for_the_limit() {
        const GirdiKurali rakamlar{.izin = Rakam, .enUzun = 4};
        QCOMPARE(Satirda(QStringLiteral("12"), 1, QStringLiteral("a.9\n8b7"), rakamlar),
                 QStringLiteral("1982"));
        QCOMPARE(Satirda(QStringLiteral("1"), 1, QStringLiteral("語x "), rakamlar), QStringLiteral("1"));
        QCOMPARE(Satirda(QStringLiteral("12,5"), 4, QStringLiteral("a"), rakamlar), QStringLiteral("12,5"));
    }

    void a_deletion_only_deletes() {
        const GirdiKurali dar{.izin = Rakam, .enUzun = 2};
        QCOMPARE(GirdiyiSuz(QStringLiteral("abcdef"), QStringLiteral("abef"), dar), QStringLiteral("abef"));
        QCOMPARE(GirdiyiSuz(QStringLiteral("aaaa"), QStringLiteral("aaa"), dar), QStringLiteral("aaa"));
        QCOMPARE(GirdiyiSuz(QStringLiteral("abc"), QString(), dar), QString());
    }

    void a_replacement_in_the_middle_leaves_both_ends() {
        const GirdiKurali alti{.izin = {}, .enUzun = 6};
        QCOMPARE(GirdiyiSuz(QStringLiteral("語abc語"), QStringLiteral("語aжжc語"), alti),
                 QStringLiteral("語a??c語"));
        QCOMPARE(GirdiyiSuz(QStringLiteral("abcd"), QStringLiteral("a12345d"), alti),
                 QStringLiteral("a1234d"));
    }
};

VELORA_GUI_TEST(GirdiSuzgeciTest)
#include "GirdiSuzgeciTest.moc"
