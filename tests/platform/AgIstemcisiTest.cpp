// Requests of the network: what goes out, and what happens while they wait.
#include "platform/AgTest.h"
#include "storage/KodSayfasi.h"

namespace velora::test {

using AgIstemcisiTest = AgTest;

TEST_F(AgIstemcisiTest, A_query_leaves_byte_for_byte_in_Windows_1254_blanks_and_signs_too) {
    Sunucu sunucu({Cevapla("OKEY")});
    EXPECT_EQ(Getir(sunucu.Adres(u"/Servis Kökü/a.php?a1=Gül & Şen İşçi=%20+\"ç\"#ı&a2=../x//y?z\\{|}^`€")),
              u"OKEY");
    EXPECT_EQ(
        sunucu.IstekSatirlari(),
        std::vector<std::string>{"GET /Servis K\xF6k\xFC/a.php?a1=G\xFCl & \xDE"
                                 "en \xDD\xFE\xE7i=%20+\"\xE7\"#\xFD&a2=../x//y?z\\{|}^`\x80 HTTP/1.1"});
}

TEST_F(AgIstemcisiTest, A_letter_that_the_code_page_lacks_goes_out_as_a_question_mark) {
    Sunucu sunucu({Cevapla("1")});
    EXPECT_EQ(Getir(sunucu.Adres(u"/Ж\u4E2D?ğ")), u"1");
    EXPECT_EQ(sunucu.IstekSatirlari(), std::vector<std::string>{"GET /\?\?\?\xF0 HTTP/1.1"});
}

TEST_F(AgIstemcisiTest, Line_ends_in_an_address_go_out_as_they_stand_which_is_meant) {
    Sunucu sunucu({Cevapla("1")});
    EXPECT_EQ(Getir(sunucu.Adres(u"/a?x=bir\r\niki\nüç\ty")), u"1");
    ASSERT_EQ(sunucu.Istekler().size(), 1U);
    EXPECT_TRUE(sunucu.Istekler()[0].starts_with("GET /a?x=bir\r\niki\n\xFC\xE7\ty HTTP/1.1\r\n"))
        << sunucu.Istekler()[0];
}

TEST_F(AgIstemcisiTest, An_address_without_a_path_asks_for_the_root) {
    Sunucu sunucu({Cevapla("1"), Cevapla("2"), Cevapla("3")});
    EXPECT_EQ(Getir(sunucu.Adres(u"")), u"1");
    EXPECT_EQ(Getir(sunucu.Adres(u"?q")), u"2");
    EXPECT_EQ(Getir(u"HTTP" + sunucu.Adres(u"/").substr(4)), u"3");
    EXPECT_EQ(sunucu.IstekSatirlari(),
              (std::vector<std::string>{"GET / HTTP/1.1", "GET /?q HTTP/1.1", "GET / HTTP/1.1"}));
}

TEST_F(AgIstemcisiTest, A_reply_is_read_as_Windows_1254_and_comes_with_the_blanks_about_it) {
    Sunucu sunucu({Cevapla(" OKEY\r\n "), Cevapla("Gece|\xDE\xFDk\xFD\x81|\xC3\xBC"), Cevapla({"a\0b", 3})});
    EXPECT_EQ(Getir(sunucu.Adres(u"/")), u" OKEY\r\n ");
    EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"Gece|Şıkı\u0081|Ã¼");
    EXPECT_EQ(Getir(sunucu.Adres(u"/")), Metin(u"a\0b", 3));
}

TEST_F(AgIstemcisiTest, A_reply_in_chunks_and_one_that_ends_with_the_connection_come_whole) {
    Sunucu sunucu(
        {HamYolla("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n2\r\nOK\r\n3\r\nEY!\r\n0\r\n\r\n"),
         HamYolla("HTTP/1.0 200 OK\r\n\r\nuzun"), HamYolla("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n")});
    EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"OKEY!");
    EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"uzun");
    EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"");
}

TEST_F(AgIstemcisiTest, Each_request_has_a_connection_of_its_own_so_that_none_is_ever_sent_twice) {
    const auto acikKalan = [](const Baglanti& baglanti) {
        baglanti.Yolla(TamCevap("1"));
        baglanti.KapanmasiniBekle();
    };
    Sunucu sunucu({acikKalan, acikKalan});
    EXPECT_EQ(Getir(sunucu.Adres(u"/1")), u"1");
    EXPECT_EQ(Getir(sunucu.Adres(u"/2")), u"1");
    EXPECT_EQ(sunucu.Istekler().size(), 2U);
}

TEST_F(AgIstemcisiTest, No_proxy_of_the_environment_comes_between) {
    Sunucu vekil({Cevapla("vekil")});
    Sunucu sunucu({Cevapla("sunucu")});
    setenv("http_proxy", KodYaz(vekil.Adres(u"")).c_str(), 1);
    EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"sunucu");
    unsetenv("http_proxy");
    EXPECT_TRUE(vekil.Istekler().empty());
}

TEST_F(AgIstemcisiTest, Events_run_while_a_reply_is_waited_for) {
    // The server answers only when the turns have come.
    std::mutex kilit;
    std::condition_variable yeter;
    int sirasi = 0;
    Sunucu sunucu({[&](const Baglanti& baglanti) {
        std::unique_lock tutulan(kilit);
        yeter.wait(tutulan, [&] { return sirasi >= 5; });
        baglanti.Yolla(TamCevap("geldi"));
    }});
    EXPECT_EQ(Getir(sunucu.Adres(u"/"), kBolZaman,
                    [&] {
                        const std::lock_guard tutulan(kilit);
                        ++sirasi;
                        yeter.notify_all();
                        return true;
                    }),
              u"geldi");
}

TEST_F(AgIstemcisiTest, A_request_within_the_turn_of_another_has_its_own_reply_and_both_come) {
    Sunucu sunucu({[&](const Baglanti& baglanti) {
                       sunucu.IstekleriBekle(2);
                       baglanti.Yolla(TamCevap("dıştaki"));
                   },
                   Cevapla("i\xE7teki")});
    Metin icteki;
    EXPECT_EQ(Getir(sunucu.Adres(u"/1"), kBolZaman,
                    [&] {
                        sunucu.IstekleriBekle(1);
                        if (icteki.empty())
                            icteki = Getir(sunucu.Adres(u"/2"));
                        return true;
                    }),
              KodCoz("dıştaki"));
    EXPECT_EQ(icteki, u"içteki");
}

TEST_F(AgIstemcisiTest, A_turn_that_says_no_gives_the_request_up) {
    Sunucu sunucu({Sus()});
    int sira = 0;
    EXPECT_EQ(Getir(sunucu.Adres(u"/"), kBolZaman, [&] { return ++sira < 3; }), u"");
    EXPECT_EQ(sira, 3);
    sunucu.BitenleriBekle(1); // the connection was closed
}

TEST_F(AgIstemcisiTest, A_program_that_ends_within_a_request_waits_for_none_and_sends_no_more) {
    Sunucu sunucu({Sus(), Cevapla("1")});
    EXPECT_EQ(Getir(sunucu.Adres(u"/"), kBolZaman,
                    [&] {
                        if (!sunucu.Istekler().empty()) // it may still be on its way
                            istemci.Kapat();
                        return true;
                    }),
              u"");
    EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"");
    EXPECT_EQ(sunucu.Istekler().size(), 1U);
}

TEST_F(AgIstemcisiTest, The_client_itself_may_go_within_a_turn) {
    Sunucu sunucu({Sus()});
    auto gecici = std::make_unique<AgIstemcisi>();
    EXPECT_EQ(gecici->Getir(sunucu.Adres(u"/"), kBolZaman,
                            [&] {
                                gecici.reset();
                                return true;
                            }),
              u"");
    EXPECT_EQ(gecici, nullptr);
}

TEST_F(AgIstemcisiTest, An_exception_of_a_turn_leaves_the_client_of_use) {
    Sunucu sunucu({Sus(), Cevapla("2")});
    EXPECT_THROW(Getir(sunucu.Adres(u"/"), kBolZaman, [&]() -> bool { throw std::runtime_error("x"); }),
                 std::runtime_error);
    sunucu.IstekleriBekle(1);
    EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"2");
}

} // namespace velora::test
