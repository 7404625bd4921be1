// Replies that don't count: each of them is an empty text and nothing else.
#include "platform/AgTest.h"

namespace velora::test {

using KotuCevapTest = AgTest;

TEST_F(KotuCevapTest, One_that_is_late_counts_as_none) {
    Sunucu sunucu({Sus(), [](const Baglanti& baglanti) {
                       baglanti.Yolla("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nOK");
                       baglanti.KapanmasiniBekle();
                   }});
    EXPECT_EQ(Getir(sunucu.Adres(u"/"), kAzZaman), u"");
    EXPECT_EQ(Getir(sunucu.Adres(u"/"), kAzZaman), u"") << "the time counts for the whole reply";
    sunucu.BitenleriBekle(2);
    EXPECT_EQ(sunucu.Istekler().size(), 2U) << "nothing is sent again";
}

TEST_F(KotuCevapTest, One_that_is_cut_off_in_the_middle) {
    Sunucu sunucu({HamYolla("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nOKEY"),
                   HamYolla("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n4\r\nOKEY\r\n"),
                   HamYolla("HTTP/1.1 200 OK\r\nConte"), HamYolla("")});
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"") << i;
    EXPECT_EQ(sunucu.Istekler().size(), 4U) << "nothing is sent again";
}

TEST_F(KotuCevapTest, One_that_speaks_no_HTTP) {
    Sunucu sunucu({HamYolla("OKEY"), HamYolla(std::string("\x16\x03\x01\0\xFF\xFE OKEY\r\n\r\n", 16)),
                   HamYolla("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\nOKEY\r\n0\r\n\r\n")});
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"") << i;
}

TEST_F(KotuCevapTest, One_with_another_status_than_200) {
    const std::vector<std::string> durumlar{"201 Created",   "204 No Content", "206 Partial Content",
                                            "404 Not Found", "500 Error",      "304 Not Modified"};
    std::vector<Sunucu::Davranis> senaryo;
    for (const std::string& durum : durumlar)
        senaryo.push_back(HamYolla("HTTP/1.1 " + durum + "\r\nContent-Length: 4\r\n\r\nOKEY"));
    Sunucu sunucu(std::move(senaryo));
    for (const std::string& durum : durumlar)
        EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"") << durum;
}

TEST_F(KotuCevapTest, A_redirect_which_is_not_followed) {
    Sunucu hedef({Cevapla("OKEY")});
    const Metin yeri = hedef.Adres(u"/");
    const std::string baslik = "\r\nLocation: " + std::string(yeri.begin(), yeri.end());
    Sunucu sunucu({HamYolla("HTTP/1.1 302 Found" + baslik + "\r\nContent-Length: 4\r\n\r\nOKEY"),
                   HamYolla("HTTP/1.1 301 Moved" + baslik + "\r\n\r\n")});
    EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"");
    EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"");
    EXPECT_TRUE(hedef.Istekler().empty());
}

TEST_F(KotuCevapTest, A_connection_that_is_refused_and_a_host_that_is_none) {
    Metin adres;
    {
        const Sunucu sunucu({});
        adres = sunucu.Adres(u"/");
    }
    EXPECT_EQ(Getir(adres), u"");
    EXPECT_EQ(Getir(u"http://127.0.0.1:99999/"), u"");
    EXPECT_EQ(Getir(u"http://[::zz]/"), u"");
}

TEST_F(KotuCevapTest, One_over_8_MiB_is_cut_off_as_soon_as_that_is_known) {
    const std::string tam(kEnUzunCevap, 'x');
    bool hepsiGitti = true;
    Sunucu sunucu(
        {Cevapla(tam),
         HamYolla("HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(kEnUzunCevap + 1) + "\r\n\r\n"),
         HamYolla("HTTP/1.0 200 OK\r\n\r\n" + tam + "y"), [&](const Baglanti& baglanti) {
             hepsiGitti = baglanti.Yolla("HTTP/1.0 200 OK\r\n\r\n" + tam + tam + tam + tam);
         }});
    EXPECT_EQ(Getir(sunucu.Adres(u"/")).size(), kEnUzunCevap);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"") << i;
    sunucu.BitenleriBekle(4);
    EXPECT_FALSE(hepsiGitti);
}

TEST_F(KotuCevapTest, One_that_never_ends) {
    const std::string parca(100000, 'x');
    const auto sonsuz = [](const std::string& bas, const std::string& devam) {
        return [bas, devam](const Baglanti& baglanti) {
            for (bool gitti = baglanti.Yolla(bas); gitti;)
                gitti = baglanti.Yolla(devam);
        };
    };
    Sunucu sunucu({sonsuz("HTTP/1.0 200 OK\r\n\r\n", parca),
                   sonsuz("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n",
                          "3e8\r\n" + parca.substr(0, 1000) + "\r\n"),
                   sonsuz("HTTP/1.1 200 OK\r\n", "X: y\r\n"), sonsuz("", "HTTP/1.1 100 Continue\r\n\r\n"),
                   sonsuz("HTTP/1.1 200 OK\r\nX: ", parca)});
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Getir(sunucu.Adres(u"/")), u"") << i;
    sunucu.BitenleriBekle(5);
}

TEST_F(KotuCevapTest, Address_that_is_none_sends_nothing) {
    Sunucu sunucu({Cevapla("OKEY")});
    const Metin sunucuda = sunucu.Adres(u"").substr(7); // without its scheme
    const std::vector<Metin> adresler{{},
                                      u"http://",
                                      u"http:///x",
                                      sunucuda + u"/",
                                      u"ftp://" + sunucuda + u"/",
                                      u"file:///etc/hostname",
                                      u"http:/" + sunucuda,
                                      u"http://ad@" + sunucuda + u"/",
                                      u" http://" + sunucuda + u"/",
                                      u"http://" + sunucuda + u" /",
                                      u"http://" + sunucuda + u"\r\n/",
                                      u"http://ğ" + sunucuda + u"/",
                                      u"http://" + sunucuda + u"\\x",
                                      sunucu.Adres(u"/a") + Metin(1, u'\0') + u"b"};
    for (const Metin& adres : adresler)
        EXPECT_EQ(Getir(adres), u"") << ::testing::PrintToString(adres);
    EXPECT_TRUE(sunucu.Istekler().empty());
}

} // namespace velora::test
