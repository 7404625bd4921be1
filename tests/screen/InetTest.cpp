// The transfer control of a screen.
#include "screen/Inet.h"

#include <optional>
#include <stdexcept>

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"

namespace velora::test {

class InetTest : public ::testing::Test {
  protected:
    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
    std::optional<Inet> inet{std::in_place, program};
};

TEST_F(InetTest, Waits_ten_seconds_unless_its_screen_says_otherwise) {
    ortam.Bekle(BeklenenIstek{.adres = u"http://a/?x=ş&y", .cevap = u" OKEY\r\n", .sure = 10});
    ortam.Bekle(BeklenenIstek{.adres = u"http://b/", .cevap = u"2", .sure = 3});
    EXPECT_EQ(inet->Getir(u"http://a/?x=ş&y"), u" OKEY\r\n") << "the reply as it came";
    inet->sure = 3;
    EXPECT_EQ(inet->Getir(u"http://b/"), u"2");
}

TEST_F(InetTest, An_empty_address_is_no_request) {
    EXPECT_EQ(inet->Getir({}), u"");
}

TEST_F(InetTest, A_second_request_of_it_within_the_first_fails_at_once_and_that_of_another_goes_out) {
    Inet oteki(program);
    ortam.Bekle(BeklenenIstek{.adres = u"http://1/", .cevap = u"bir", .is = [&] {
                                  EXPECT_EQ(inet->Getir(u"http://2/"), u"");
                                  ortam.Bekle(BeklenenIstek{.adres = u"http://3/", .cevap = u"üç"});
                                  EXPECT_EQ(oteki.Getir(u"http://3/"), u"üç");
                              }});
    EXPECT_EQ(inet->Getir(u"http://1/"), u"bir");
    ortam.Bekle(BeklenenIstek{.adres = u"http://4/", .cevap = u"dört"});
    EXPECT_EQ(inet->Getir(u"http://4/"), u"dört") << "the control is free again";
}

TEST_F(InetTest, Cancelling_within_a_request_ends_it_and_frees_the_control_at_once) {
    ortam.Bekle(BeklenenIstek{.adres = u"http://1/", .cevap = u"bir", .is = [&] {
                                  inet->Iptal();
                                  ortam.Bekle(BeklenenIstek{.adres = u"http://2/", .cevap = u"iki"});
                                  EXPECT_EQ(inet->Getir(u"http://2/"), u"iki");
                              }});
    EXPECT_EQ(inet->Getir(u"http://1/"), u"");
    inet->Iptal();
    ortam.Bekle(BeklenenIstek{.adres = u"http://3/", .cevap = u"üç"});
    EXPECT_EQ(inet->Getir(u"http://3/"), u"üç") << "with nothing open a cancel is nothing";
}

TEST_F(InetTest, Its_screen_may_go_within_a_request) {
    ortam.Bekle(BeklenenIstek{.adres = u"http://1/", .cevap = u"bir", .is = [&] { inet.reset(); }});
    EXPECT_EQ(inet->Getir(u"http://1/"), u"");
}

TEST_F(InetTest, Is_free_again_behind_a_request_that_ended_by_an_exception) {
    program.ortam.ag.getir = [](const AgIstegi&) -> Metin { throw std::runtime_error("x"); };
    EXPECT_THROW(inet->Getir(u"http://1/"), std::runtime_error);
    program.ortam.ag.getir = [](const AgIstegi&) { return Metin(u"iki"); };
    EXPECT_EQ(inet->Getir(u"http://2/"), u"iki");
}

TEST_F(InetTest, With_no_network_put_in_there_is_no_connection_no_address_and_no_reply) {
    program.ortam.ag = {};
    EXPECT_EQ(inet->Getir(u"http://1/"), u"");
    EXPECT_FALSE(program.ortam.ag.baglantiVar());
    EXPECT_FALSE(program.ortam.ag.donanimAdresi().has_value());
}

} // namespace velora::test
