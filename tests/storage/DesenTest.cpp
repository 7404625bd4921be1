#include "storage/Desen.h"

#include <gtest/gtest.h>

namespace velora {
namespace {

struct Ornek {
    MetinBakis metin;
    MetinBakis desen;
    bool uyar;
};

template <std::size_t Adet>
void Dene(const Ornek (&ornekler)[Adet]) {
    for (const Ornek& ornek : ornekler)
        EXPECT_EQ(HazirDesen(ornek.desen).Uyar(ornek.metin), ornek.uyar)
            << ::testing::PrintToString(Metin(ornek.metin)) << " against "
            << ::testing::PrintToString(Metin(ornek.desen));
}

} // namespace

TEST(Desen, A_pattern_without_signs_fits_only_itself) {
    Dene({{u"ali", u"ali", true},
          {u"ali", u"al", false},
          {u"ali", u"alii", false},
          {u"Ali", u"ali", false},
          {u"", u"", true},
          {u"a", u"", false},
          {u"şükrü", u"şükrü", true},
          {u"a!b-c]", u"a!b-c]", true}});
}

TEST(Desen, A_star_stands_for_any_run_and_for_none) {
    Dene({{u"ali veli", u"*veli", true},
          {u"ali veli", u"*ali*", true},
          {u"ali veli", u"a*i", true},
          {u"ali veli", u"a*l", false},
          {u"", u"*", true},
          {u"", u"**", true},
          {u"", u"*a*", false},
          {u"aab", u"*ab", true},
          {u"abcabcabd", u"*abc*abd*", true},
          {u"abab", u"*aba", false},
          {u"a\r\nb", u"a*b", true}});
}

TEST(Desen, Between_two_stars_the_signs_keep_their_meaning_and_the_rest_stands_for_itself) {
    Dene({{u"no 7 a", u"*#*", true},
          {u"no x #", u"*#*", false},
          {u"", u"*?*", false},
          {u"z", u"*?*", true},
          {u"x[ab]", u"*[ab]*", true},
          {u"xa", u"*[ab]*", true},
          {u"xc", u"*[ab]*", false},
          {u"acb", u"*a*b*", true},
          {u"bca", u"*a*b*", false},
          {u"x]!-", u"*]!-*", true},
          {u"x", u"*]*", false},
          {u"a", u"*", true},
          {u"[", u"*[*", false}});
}

TEST(Desen, A_question_mark_is_one_character_and_a_hash_one_digit) {
    Dene({{u"ali", u"?l?", true},
          {u"al", u"al?", false},
          {u"", u"?", false},
          {u"0532", u"####", true},
          {u"053", u"####", false},
          {u"053a", u"####", false},
          {u"no 7", u"*#", true},
          {u"#", u"#", false},
          {u"#", u"[#]", true},
          {u"*?", u"[*][?]", true},
          {u"ab", u"[*][?]", false}});
}

TEST(Desen, A_list_is_one_of_its_characters_or_ranges) {
    Dene({{u"can", u"[bcd]an", true},
          {u"fan", u"[bcd]an", false},
          {u"can", u"[a-d]an", true},
          {u"şan", u"[a-z]an", false},
          {u"şan", u"[a-zş]an", true},
          {u"5", u"[a-z0-9]", true},
          {u"-", u"[-a]", true},
          {u"-", u"[a-]", true},
          {u"-", u"[a-c-]", true},
          {u"b", u"[a-c-]", true},
          {u"-", u"[-]", true},
          {u"[", u"[[]", true},
          {u"", u"[a]", false}});
}

TEST(Desen, An_exclamation_mark_turns_a_list_about) {
    Dene({{u"can", u"[!a-d]an", false},
          {u"fan", u"[!a-d]an", true},
          {u"an", u"[!a-d]an", false},
          {u"-", u"[!-a]", false},
          {u"b", u"[!-a]", true},
          {u"!", u"[a!]", true},
          {u"!", u"[!]", true},
          {u"a", u"[!]", false}});
}

TEST(Desen, An_empty_list_stands_for_nothing) {
    Dene({{u"ab", u"a[]b", true}, {u"", u"[]", true}, {u"a", u"[]", false}});
}

TEST(Desen, A_malformed_pattern_fits_no_text_not_even_where_the_rest_would) {
    Dene({{u"a", u"*[*", false},
          {u"a[", u"a[", false},
          {u"", u"*[a", false},
          {u"m", u"[z-a]", false},
          {u"xm", u"x*[!z-a]", false},
          {u"b", u"a[c", false}});
}

TEST(Desen, Many_stars_over_a_long_text_that_does_not_fit_come_to_an_end) {
    Metin desen;
    for (int i = 0; i < 40; ++i)
        desen += u"*a";
    EXPECT_FALSE(HazirDesen(desen).Uyar(Metin(5000, u'a') + u"b"));
    EXPECT_TRUE(HazirDesen(desen + u"*").Uyar(Metin(5000, u'a') + u"b"));
}

} // namespace velora
