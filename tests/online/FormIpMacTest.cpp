#include "online/FormIpMac.h"

#include "online/OnlineTest.h"

namespace velora::test {

using FormIpMacTest = OnlineTest;

TEST_F(FormIpMacTest, The_key_is_the_address_in_six_groups_of_two_capitals_zero_bytes_too) {
    EXPECT_EQ(program.FormIpMac->Label1.baslik, u"00-1B-C4-0D-E0-9F");
    EXPECT_EQ(program.FormIpMac->baslik, u"Bilgisayar ID");
    EXPECT_EQ(BilgisayarAnahtari(DonanimAdresi{0, 0, 0, 0, 0, 0}), u"00-00-00-00-00-00");
    EXPECT_EQ(BilgisayarAnahtari(DonanimAdresi{0xFF, 0xA0, 0x0A, 0x10, 0x99, 0xEE}), u"FF-A0-0A-10-99-EE");
}

TEST_F(FormIpMacTest, Computers_without_an_address_share_one_key_of_twenty_letters_and_digits_in_groups) {
    ortam.donanim.reset();
    const Metin anahtar = program.FormIpMac->Label1.baslik;
    EXPECT_EQ(anahtar, BilgisayarAnahtari({}));
    EXPECT_EQ(anahtar.size(), 20U);
    EXPECT_NE(anahtar.find(u'-'), Metin::npos);
    for (const char16_t harf : anahtar)
        EXPECT_TRUE(harf == u'-' || (harf >= u'0' && harf <= u'9') || (harf >= u'A' && harf <= u'Z'));
}

TEST_F(FormIpMacTest, The_key_is_kept_until_macal_looks_it_up_again_and_unloads_the_screen) {
    EXPECT_EQ(program.FormIpMac->Label1.baslik, u"00-1B-C4-0D-E0-9F");
    ortam.donanim = DonanimAdresi{1, 2, 3, 4, 5, 6};
    EXPECT_EQ(program.FormIpMac->Label1.baslik, u"00-1B-C4-0D-E0-9F");
    const auto ekran = program.FormIpMac.Tut();
    ekran->macal();
    EXPECT_EQ(ekran->Label1.baslik, u"01-02-03-04-05-06");
    EXPECT_FALSE(program.FormIpMac.Yuklu());
    EXPECT_EQ(program.FormIpMac->Label1.baslik, u"01-02-03-04-05-06");
}

TEST_F(FormIpMacTest, Only_the_firms_key_is_without_commas) {
    program.FormIpMac->Label1.baslik = u",A,B-1,";
    EXPECT_EQ(FirmaAnahtari(program), u"AB-1");
    EXPECT_EQ(program.FormIpMac->Label1.baslik, u",A,B-1,");
}

} // namespace velora::test
