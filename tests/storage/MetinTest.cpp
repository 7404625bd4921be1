#include "storage/Metin.h"

#include <gtest/gtest.h>

#include <limits>

namespace velora {

TEST(Kirp, Takes_the_blanks_from_both_ends) {
    EXPECT_EQ(Kirp(u"  OKEY "), u"OKEY");
    EXPECT_EQ(Kirp(u"a  b"), u"a  b");
    EXPECT_EQ(Kirp(u""), u"");
    EXPECT_EQ(Kirp(u"   "), u"");
}

TEST(Kirp, Leaves_tabs_and_line_ends_on_purpose) {
    EXPECT_EQ(Kirp(u" OKEY\r\n"), u"OKEY\r\n");
    EXPECT_EQ(Kirp(u"\tOKEY "), u"\tOKEY");
    EXPECT_EQ(Kirp(u"\u00A0a"), u"\u00A0a");
}

TEST(Parca, Counts_from_one) {
    EXPECT_EQ(Parca(u"05.01.2012", 4, 2), u"01");
    EXPECT_EQ(Parca(u"05.01.2012", 1, 2), u"05");
}

TEST(Parca, Leaves_out_what_lies_outside_the_text) {
    EXPECT_EQ(Parca(u"abc", 3, 5), u"c");
    EXPECT_EQ(Parca(u"abc", 4, 1), u"");
    EXPECT_EQ(Parca(u"abc", 0, 2), u"");
    EXPECT_EQ(Parca(u"", 1, 1), u"");
    EXPECT_EQ(Parca(u"abc", 2, std::numeric_limits<std::size_t>::max()), u"bc");
}

TEST(Son, Gives_the_whole_text_when_it_is_shorter) {
    EXPECT_EQ(Son(u"Gündüz", 3), u"düz");
    EXPECT_EQ(Son(u"ab", 3), u"ab");
    EXPECT_EQ(Son(u"", 3), u"");
}

TEST(SayiMetni, Writes_plain_digits) {
    EXPECT_EQ(SayiMetni(0), u"0");
    EXPECT_EQ(SayiMetni(-12), u"-12");
    EXPECT_EQ(SayiMetni(std::numeric_limits<long long>::min()), u"-9223372036854775808");
}

TEST(IkiHane, Day_9_gives_09_and_day_10_gives_10) {
    EXPECT_EQ(IkiHane(9), u"09");
    EXPECT_EQ(IkiHane(10), u"10");
    EXPECT_EQ(IkiHane(0), u"00");
    EXPECT_EQ(IkiHane(123), u"123");
}

} // namespace velora
