#include "storage/dosya/AdBicimi.h"

#include <gtest/gtest.h>

#include "storage/dosya/Utf8.h"

namespace velora {
namespace {

/// A name as the disk has its bytes.
Metin Bayttan(std::string_view bayt) {
    Metin ad;
    Utf8Coz(bayt, ad);
    return ad;
}

Metin Duzgun(Metin ad) {
    AdDuzelt(ad);
    return ad;
}

} // namespace

TEST(AdDuzelt, Takes_bytes_that_are_no_UTF_8_as_Windows_1254) {
    EXPECT_EQ(Duzgun(Bayttan("\xC7i\xF0 \xDE\xFD\xDD\xD0\xF6\xD6\xFC\xDC\xE7\xFE")), u"Çiğ ŞıİĞöÖüÜçş");
    EXPECT_EQ(Duzgun(Bayttan("\x80\x81\xFF")), Metin(u"€\u0081ÿ"));
}

TEST(AdDuzelt, Puts_letters_and_their_marks_together) {
    EXPECT_EQ(Duzgun(u"c\u0327o\u0308g\u0306u\u0308s\u0327 I\u0307C\u0327O\u0308G\u0306U\u0308S\u0327"),
              u"çöğüş İÇÖĞÜŞ");
    EXPECT_EQ(Duzgun(u"Ha\u0302l a\u0300E\u0301n\u0303A\u030As\u030C"), u"Hâl àÉñÅš");
}

TEST(AdDuzelt, Leaves_what_has_no_letter_of_its_own_and_what_is_right_already) {
    for (const MetinBakis ad : {u"\u0308a", u"x\u0308", u"i\u0307", u"Düğün Şöleni", u"", u"\U0001F480"}) {
        Metin ayni(ad);
        EXPECT_FALSE(AdDuzelt(ayni));
        EXPECT_EQ(ayni, ad);
    }
    Metin ad = u"u\u0308";
    EXPECT_TRUE(AdDuzelt(ad));
}

TEST(AdAnahtari, Is_one_for_names_that_Windows_takes_for_the_same) {
    const Metin anahtar = AdAnahtari(u"Gül Şölen Salonu");
    EXPECT_EQ(AdAnahtari(u"gÜL şöLEN sALONU"), anahtar);
    EXPECT_EQ(AdAnahtari(u"Gu\u0308l S\u0327o\u0308len Salonu"), anahtar);
    EXPECT_EQ(AdAnahtari(Bayttan("G\xFCl \xDE\xF6len Salonu")), anahtar);
    EXPECT_EQ(AdAnahtari(u"Gül Şölen Salonu. "), anahtar);
    EXPECT_NE(AdAnahtari(u"Gul Şölen Salonu"), anahtar);
    EXPECT_NE(AdAnahtari(u" Gül Şölen Salonu"), anahtar);
    EXPECT_NE(AdAnahtari(u"Gül Şölen Salon"), anahtar);
    EXPECT_NE(AdAnahtari(u"IRMAK"), AdAnahtari(u"ırmak")) << "as on Windows, ı isn't the small I";
}

} // namespace velora
