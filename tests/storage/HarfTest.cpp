#include "storage/Harf.h"

#include <gtest/gtest.h>

#include "storage/KodSayfasi.h"

namespace velora {
namespace {

// All letters of Windows-1254 that have both cases.
constexpr MetinBakis kKucukler = u"abcçdefgğhıijklmnoöpqrsştuüvwxyzàáâãäåæèéêëìíîïñòóôõøùúûšœÿ";
constexpr MetinBakis kBuyukler = u"ABCÇDEFGĞHIİJKLMNOÖPQRSŞTUÜVWXYZÀÁÂÃÄÅÆÈÉÊËÌÍÎÏÑÒÓÔÕØÙÚÛŠŒŸ";

} // namespace

TEST(Harf, Every_letter_of_the_code_page_has_its_partner) {
    ASSERT_EQ(kKucukler.size(), kBuyukler.size());
    for (std::size_t i = 0; i < kKucukler.size(); ++i) {
        EXPECT_EQ(BuyukHarf(kKucukler[i]), kBuyukler[i]) << i;
        EXPECT_EQ(KucukHarf(kBuyukler[i]), kKucukler[i]) << i;
        EXPECT_EQ(BuyukHarf(kBuyukler[i]), kBuyukler[i]) << i;
        EXPECT_EQ(KucukHarf(kKucukler[i]), kKucukler[i]) << i;
    }
}

TEST(Harf, Every_other_sign_of_the_code_page_stays_as_it_is) {
    int digerleri = 0;
    for (int bayt = 0; bayt < 256; ++bayt) {
        const char16_t harf = KodCoz(std::string(1, static_cast<char>(bayt)))[0];
        if (kKucukler.find(harf) != MetinBakis::npos || kBuyukler.find(harf) != MetinBakis::npos)
            continue;
        ++digerleri;
        EXPECT_EQ(BuyukHarf(harf), harf) << bayt;
        EXPECT_EQ(KucukHarf(harf), harf) << bayt;
    }
    EXPECT_EQ(digerleri, 256 - 2 * static_cast<int>(kKucukler.size()));
}

TEST(Harf, The_dot_of_the_Turkish_i_stays) {
    EXPECT_EQ(Buyut(u"iı"), u"İI");
    EXPECT_EQ(Kucult(u"Iİ"), u"ıi");
    EXPECT_EQ(Kucult(u"ÇIĞLIK İşi 5"), u"çığlık işi 5");
}

TEST(BuyukBas, An_input_in_lower_case_comes_out_in_proper_case) {
    EXPECT_EQ(BuyukBas(u"büyük salon"), u"Büyük Salon");
    EXPECT_EQ(BuyukBas(u"AYŞE IŞIK"), u"Ayşe Işık");
    EXPECT_EQ(BuyukBas(u"istanbul ırmak"), u"İstanbul Irmak");
    EXPECT_EQ(BuyukBas(u""), u"");
}

TEST(BuyukBas, A_word_begins_after_a_blank_a_tab_or_a_line_end_only) {
    EXPECT_EQ(BuyukBas(u"ali-veli"), u"Ali-veli");
    EXPECT_EQ(BuyukBas(u"a.b c/d o'nur"), u"A.b C/d O'nur");
    EXPECT_EQ(BuyukBas(u"a\tb\rc\nd\r\ne"), u"A\tB\rC\nD\r\nE");
    EXPECT_EQ(BuyukBas(u"\"ali (veli"), u"\"ali (veli");
    EXPECT_EQ(BuyukBas(u"3.kat 2A"), u"3.kat 2a");
}

TEST(BuyukBas, Blanks_are_kept) {
    EXPECT_EQ(BuyukBas(u"  ali   VELİ "), u"  Ali   Veli ");
}

TEST(SiraHarfi, Is_not_Turkish_on_purpose_since_file_systems_are_not) {
    EXPECT_EQ(SiraHarfi(u'i'), u'I');
    EXPECT_EQ(SiraHarfi(u'ı'), u'ı');
    EXPECT_EQ(SiraHarfi(u'İ'), u'İ');
    EXPECT_EQ(SiraHarfi(u'ü'), u'Ü');
    EXPECT_EQ(SiraHarfi(u'ş'), u'Ş');
    EXPECT_EQ(SiraHarfi(u'÷'), u'÷');
    EXPECT_EQ(SiraHarfi(u'ÿ'), u'Ÿ');
}

} // namespace velora
