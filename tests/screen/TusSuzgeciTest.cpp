#include "screen/TusSuzgeci.h"

#include <gtest/gtest.h>

#include <string_view>

namespace velora::test {

TEST(TusSuzgeci, Digits_and_backspace_pass) {
    for (const char16_t tus : std::u16string_view(u"0123456789\b"))
        EXPECT_TRUE(YalnizRakam(tus)) << static_cast<int>(tus);
}

TEST(TusSuzgeci, Every_other_key_is_dropped) {
    for (const char16_t tus : std::u16string_view(u"/:a,.-+ \t\r\n\x1B\x7F\"²٣ş"))
        EXPECT_FALSE(YalnizRakam(tus)) << static_cast<int>(tus);
    EXPECT_FALSE(YalnizRakam(0));
}

} // namespace velora::test
