// The real network in the outside world of a program.
#include "platform/Ag.h"

#include <mutex>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "platform/AgTest.h"
#include "screen/Inet.h"
#include "screen/Program.h"

namespace velora::test {

class AgBaglamaTest : public ::testing::Test {
  protected:
    AgBaglamaTest() { AgiBagla(program.ortam); }

    /// A request that may go over a connection that another one has left open.
    Metin Ortak(const Sunucu& sunucu) {
        return program.ortam.ag.getir({.adres = sunucu.Adres(u"/"), .sure = 60, .baglantiKalsin = true});
    }
    Gonderim Gonder(const Sunucu& sunucu) {
        return program.ortam.ag.Gonder({.adres = sunucu.Adres(u"/g"), .sure = 60});
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
    Inet inet{program};
};

TEST_F(AgBaglamaTest, A_screen_gets_its_reply_through_its_control) {
    Sunucu sunucu({Cevapla("OKEY")});
    EXPECT_EQ(inet.Getir(sunucu.Adres(u"/x.php?ver=2.0.5")), u"OKEY");
    EXPECT_EQ(sunucu.IstekSatirlari(), std::vector<std::string>{"GET /x.php?ver=2.0.5 HTTP/1.1"});
}

TEST_F(AgBaglamaTest, The_seconds_of_the_control_are_those_of_the_request) {
    Sunucu sunucu({Sus()});
    inet.sure = 1;
    const auto bas = std::chrono::steady_clock::now();
    EXPECT_EQ(inet.Getir(sunucu.Adres(u"/")), u"");
    EXPECT_GE(std::chrono::steady_clock::now() - bas, 900ms);
}

TEST_F(AgBaglamaTest, Requests_that_may_come_twice_share_a_connection_and_any_other_has_its_own) {
    const auto sayarak = [](const Baglanti& baglanti) {
        for (int sira = 1; baglanti.Yolla(TamCevap(std::to_string(sira)));) {
            ++sira;
            if (baglanti.IstegiOku().empty())
                return;
        }
    };
    Sunucu sunucu({sayarak, Cevapla("kendi yolundan"), Cevapla("yeni")});
    EXPECT_EQ(Ortak(sunucu), u"1");
    EXPECT_EQ(Ortak(sunucu), u"2");
    EXPECT_EQ(inet.Getir(sunucu.Adres(u"/")), u"kendi yolundan");
    EXPECT_EQ(Ortak(sunucu), u"3");
}

TEST_F(AgBaglamaTest, A_shared_connection_that_the_server_has_closed_meanwhile_is_made_anew) {
    Sunucu sunucu({Cevapla("ilk"), Cevapla("ikinci")});
    EXPECT_EQ(Ortak(sunucu), u"ilk");
    sunucu.BitenleriBekle(1);
    EXPECT_EQ(Ortak(sunucu), u"ikinci");
}

TEST_F(AgBaglamaTest, Events_run_and_a_cancel_among_them_ends_the_request) {
    Sunucu sunucu({Sus()});
    ortam.olayda = [&](int sira) {
        if (sira == 3)
            inet.Iptal();
    };
    inet.sure = 60;
    EXPECT_EQ(inet.Getir(sunucu.Adres(u"/")), u"");
    EXPECT_EQ(ortam.olaySayisi, 3);
}

TEST_F(AgBaglamaTest, Another_control_can_ask_within_the_events_of_the_first) {
    Sunucu sunucu({[&](const Baglanti& baglanti) {
                       sunucu.IstekleriBekle(2);
                       baglanti.Yolla(TamCevap("bir"));
                   },
                   Cevapla("iki")});
    Inet oteki(program);
    Metin icteki;
    ortam.olayda = [&](int) {
        ortam.olayda = {};
        sunucu.IstekleriBekle(1);
        icteki = oteki.Getir(sunucu.Adres(u"/2"));
    };
    inet.sure = 60;
    EXPECT_EQ(inet.Getir(sunucu.Adres(u"/1")), u"bir");
    EXPECT_EQ(icteki, u"iki");
}

TEST_F(AgBaglamaTest, A_program_that_is_told_to_end_within_a_request_ends_at_once) {
    Sunucu sunucu({Sus()});
    ortam.olayda = [&](int) { program.ortam.olaylar.bitir(); };
    inet.sure = 60;
    EXPECT_EQ(inet.Getir(sunucu.Adres(u"/")), u"");
    EXPECT_EQ(ortam.olaySayisi, 1);
    EXPECT_TRUE(ortam.bitti);
    EXPECT_EQ(inet.Getir(sunucu.Adres(u"/")), u"");
    EXPECT_EQ(sunucu.Istekler().size(), 1U);
}

TEST_F(AgBaglamaTest, A_request_that_is_sent_goes_on_while_nobody_waits_and_can_be_waited_for_later) {
    bool cevaplandi = false;
    std::mutex kilit;
    Sunucu sunucu({[&](const Baglanti& baglanti) {
        const std::lock_guard tutulan(kilit);
        cevaplandi = baglanti.Yolla(TamCevap("1"));
    }});
    std::unique_lock bekleyen(kilit);
    const Gonderim giden = Gonder(sunucu);
    EXPECT_FALSE(giden.bitti());
    giden.bekle([&] { return sunucu.Istekler().size() == 1; });
    EXPECT_FALSE(giden.bitti()) << "who waits no longer hasn't given it up";
    bekleyen.unlock();
    const int once = ortam.olaySayisi;
    giden.bekle([] { return false; });
    EXPECT_TRUE(giden.bitti());
    sunucu.BitenleriBekle(1);
    EXPECT_TRUE(cevaplandi);
    EXPECT_GT(once, 0) << "events run while it is waited for";
}

TEST_F(AgBaglamaTest, A_request_that_nobody_holds_any_more_is_given_up) {
    Sunucu sunucu({Sus()});
    {
        const Gonderim giden = Gonder(sunucu);
        giden.bekle([&] { return sunucu.Istekler().size() == 1; });
    }
    sunucu.BitenleriBekle(1);
    EXPECT_TRUE(program.ortam.ag.Gonder({.adres = u"x:/", .sure = 60}).bitti()) << "and a bad one is over";
}

TEST_F(AgBaglamaTest, A_sent_request_is_over_when_the_program_ends) {
    Sunucu sunucu({Sus()});
    const Gonderim giden = Gonder(sunucu);
    EXPECT_FALSE(giden.bitti());
    ortam.olayda = [&](int) { program.ortam.olaylar.bitir(); };
    giden.bekle([] { return false; });
    EXPECT_TRUE(giden.bitti());
}

TEST_F(AgBaglamaTest, The_adapters_are_those_of_the_machine) {
    ortam.baglanti = false;
    const auto adres = program.ortam.ag.donanimAdresi();
    EXPECT_NE(adres, ortam.donanim);
    EXPECT_EQ(program.ortam.ag.donanimAdresi(), adres) << "the key of a firm is the same each time";
}

} // namespace velora::test
