// A publish, request by request: what goes out, in what order, and what stops it or doesn't.
#include "access/Splash.h"
#include "destek/Eylemler.h"
#include "destek/Servis.h"
#include "online/FormSunucu.h"
#include "online/FormWebteYayinla.h"
#include "table/TabloTest.h"

namespace velora::test {

namespace {

constexpr MetinBakis kAnahtar = u"00-1B-C4-0D-E0-9F";

} // namespace

/// Two halls with reservations, of which the second one is shown, and a service that keeps what it is told.
/// `istekte` runs while a request is under way; the number counts the requests from 1.
class YayinKosusuTest : public TabloTest {
  protected:
    YayinKosusuTest() {
        agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Çınar & Bahçe\"\r\n");
        agac.Koy(u"Adresler.dat", "\"http://servis.test/x\",\"\",\"\",\"\"\r\n");
        KayitKoy(agac, u"Çınar & Bahçe/2012/02.01.2012 - Gece", {.ad = u"İğne", .no = u"31"});
        KayitKoy(agac, u"Çınar & Bahçe/2012/01.02.2012 - Gündüz", {.ad = u"Can", .no = u"32"}, true);
        KayitKoy(agac, u"Çınar & Bahçe/2012/01.02.2012 - Gece", {.ad = u"Ece", .no = u"33"});
    }

    void Baslat() {
        kullanici.ortam.baglanti = false; // nothing asks by itself whether the service is there
        kullanici.ProgramiAc();
        kullanici.Prog().Splash->Check1 = 1;
        kullanici.Prog().ortam.ag.getir = [this](const AgIstegi& istek) {
            const Metin cevap = servis.Getir(istek);
            if (istekte)
                istekte(static_cast<int>(servis.gelenler.size()));
            EXPECT_FALSE(istek.vazgecildi()) << "no request of a publish is given up";
            // Only what may come twice goes over a connection that may have died.
            EXPECT_EQ(istek.baglantiKalsin, istek.adres.find(u"/save.php?") != Metin::npos);
            return cevap;
        };
        kullanici.SalonSec(u"Çınar & Bahçe");
    }
    /// From now on a request stays under way until it is waited for, or its entry of `yoldakiler` is called.
    void YoldaKalsin() {
        kullanici.Prog().ortam.ag.gonder = [this](const AgIstegi& istek) {
            const auto bitti = std::make_shared<bool>(false);
            const auto var = [this, istek, bitti] {
                servis.Getir(istek);
                *bitti = true;
            };
            yoldakiler.emplace_back(var);
            return Gonderim{.bitti = [bitti] { return *bitti; },
                            .bekle =
                                [this, var](const std::function<bool()>& birak) {
                                    beklerken();
                                    if (!birak())
                                        var();
                                }};
        };
    }
    void EkranBekle(std::function<void()> is = {}) {
        kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormWebteYayinla, std::move(is)});
    }
    void Yayinla() {
        EkranBekle();
        kullanici.Tablo().AracaTikla(u"Yayınla");
    }
    auto Ekran() { return kullanici.Prog().FormWebteYayinla.Tut(); }
    bool EkranVar() { return kullanici.Prog().FormWebteYayinla.Yuklu(); }
    void IptalEt() { VELORA_BAS(kullanici.Prog().FormWebteYayinla, Command1); }
    Metin Tag(int gun, int ay, velora::GunduzGece dilim) { return kullanici.Goz(gun, ay, dilim).tag; }
    const std::vector<Servis::Goz>& Yili(MetinBakis no = u"1", MetinBakis sene = u"2012") {
        return servis.firmalar[Metin(kAnahtar)].yillar[{Metin(no), Metin(sene)}];
    }

    Servis servis;
    std::function<void(int)> istekte;
    std::vector<std::function<void()>> yoldakiler; // brings the request to the service
    std::function<void()> beklerken;
};

TEST_F(YayinKosusuTest,
       The_year_is_cleared_then_all_halls_are_told_then_each_taken_slot_day_by_day_on_purpose) {
    Baslat();
    Yayinla();
    const Metin bas = u"save.php?firmaid=" + Metin(kAnahtar) + u"&salonid=1&salonisim=Çınar & Bahçe&tarih=";
    EXPECT_EQ(
        servis.gelenler,
        (std::vector<Metin>{u"temizle.php?firmaid=00-1B-C4-0D-E0-9F&salonid=1&sene=2012",
                            u"salonekle.php?firmaid=00-1B-C4-0D-E0-9F&salonisim=Salon A",
                            u"salonekle.php?firmaid=00-1B-C4-0D-E0-9F&salonisim=Çınar & Bahçe",
                            bas + u"2012-02-01&gunduzgece=Gündüz&durum=" + Tag(1, 2, kGunduz) + u"&sene=2012",
                            bas + u"2012-02-01&gunduzgece=Gece&durum=" + Tag(1, 2, kGece) + u"&sene=2012",
                            bas + u"2012-01-02&gunduzgece=Gece&durum=" + Tag(2, 1, kGece) + u"&sene=2012"}));
    EXPECT_EQ(Tag(2, 1, kGece), u"|11:00|Düğün|Gece|5000|1000|4000|İğne|31|1") << "the whole tag goes out";
    EXPECT_FALSE(EkranVar());
}

TEST_F(YayinKosusuTest, A_day_of_two_months_goes_month_by_month_and_its_day_slot_first) {
    for (const Metin ad : {u"01.03.2012 - Gece", u"01.01.2012 - Gece", u"01.03.2012 - Gündüz"})
        KayitKoy(agac, u"Çınar & Bahçe/2012/" + ad, {});
    Baslat();
    Yayinla();
    std::vector<Metin> gidenler;
    for (const Servis::Goz& goz : Yili())
        gidenler.push_back(goz.tarih + u" " + goz.dilim);
    EXPECT_EQ(gidenler, (std::vector<Metin>{u"2012-01-01 Gece", u"2012-02-01 Gündüz", u"2012-02-01 Gece",
                                            u"2012-03-01 Gündüz", u"2012-03-01 Gece", u"2012-01-02 Gece"}));
}

TEST_F(YayinKosusuTest, Hidden_months_and_past_days_go_out_too_on_purpose) {
    agac.KoyMetin(u"Settings.dll", AyarMetni(28, u"1")); // past days are painted
    agac.KoyMetin(u"Visible.dll", u"0,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
    Baslat();
    Yayinla();
    ASSERT_EQ(Yili().size(), 3U);
    EXPECT_EQ(Yili()[2].tarih, u"2012-01-02");
}

TEST_F(YayinKosusuTest, An_empty_table_still_clears_the_year_and_tells_the_halls) {
    Baslat();
    kullanici.YilSec(u"2014");
    int enCok = -1;
    Metin son;
    kullanici.ortam.olayda = [&](int) {
        if (EkranVar())
            son = Ekran()->Label2.baslik + Ekran()->Label1.baslik + Ekran()->Command1.baslik;
    };
    istekte = [&](int) { enCok = Ekran()->ProgressBar1.enCok; };
    Yayinla();
    EXPECT_EQ(son, u"Tamamlandı.Tüm Değişiklikler veri tabanına kaydedildi.Kapat");
    EXPECT_EQ(servis.Betikler(), (std::vector<std::string>{"temizle.php", "salonekle.php", "salonekle.php"}));
    EXPECT_EQ(enCok, 0);
    EXPECT_FALSE(EkranVar());
}

TEST_F(YayinKosusuTest, The_screen_tells_what_is_sent_how_far_it_has_come_and_that_it_is_done) {
    Baslat();
    std::vector<int> adimlar;
    int enUzak = 0;
    istekte = [&](int) { adimlar.push_back(Ekran()->ProgressBar1.deger); };
    Metin son;
    kullanici.ortam.olayda = [&](int) {
        if (!EkranVar())
            return;
        const auto ekran = Ekran();
        EXPECT_EQ(ekran->List1, (std::vector<Metin>{u"01-02-2012", u"01-02-2012", u"02-01-2012"}));
        EXPECT_EQ(ekran->List2[2], Tag(2, 1, kGece));
        EXPECT_EQ(ekran->List3, (std::vector<Metin>{u"Gündüz", u"Gece", u"Gece"}));
        EXPECT_EQ(ekran->ProgressBar1.enCok, 3);
        son = ekran->Label2.baslik + u"/" + ekran->Label1.baslik + u"/" + ekran->Command1.baslik;
        enUzak = ekran->ProgressBar1.deger;
        if (servis.gelenler.size() == 4) {
            EXPECT_EQ(son,
                      u"Çınar & Bahçe (2012) kayıtları veri tabanına kaydediliyor./Lütfen bekleyiniz, bu "
                      u"işlem bir kaç dakika sürebilir.../İptal");
        }
    };
    Yayinla();
    EXPECT_EQ(adimlar, (std::vector<int>{0, 0, 0, 0, 1, 2}));
    EXPECT_EQ(enUzak, 3);
    EXPECT_EQ(son, u"Tamamlandı./Tüm Değişiklikler veri tabanına kaydedildi./Kapat");
}

TEST_F(YayinKosusuTest, Events_have_a_turn_behind_each_request) {
    Baslat();
    std::string sira;
    istekte = [&](int) { sira += 'i'; };
    kullanici.ortam.olayda = [&](int) { sira += EkranVar() ? "o" : ""; };
    Yayinla();
    EXPECT_EQ(sira, "ioioioioioiooo");
}

TEST_F(YayinKosusuTest, Requests_that_fail_are_not_noticed_and_the_next_ones_go_out) {
    Baslat();
    // The fourth one is lost.
    istekte = [&](int no) { servis.kopuk = !servis.kopuk && no == 3; };
    Yayinla();
    EXPECT_EQ(servis.gelenler.size(), 5U);
    EXPECT_EQ(Yili().size(), 2U);
    EXPECT_FALSE(EkranVar());
}

TEST_F(YayinKosusuTest, Offline_no_request_goes_out) {
    Baslat();
    kullanici.Prog().Splash->Check1 = 0;
    kullanici.Tablo().AracaTikla(u"Yayınla");
    EXPECT_TRUE(servis.gelenler.empty());
}

TEST_F(YayinKosusuTest, Cancel_closes_the_screen_and_gives_control_back_and_the_rest_goes_out_on_purpose) {
    Baslat();
    istekte = [this](int no) {
        if (no == 2)
            IptalEt();
    };
    Yayinla();
    EXPECT_FALSE(EkranVar());
    EXPECT_EQ(servis.gelenler.size(), 2U) << "the table can be used again at once";
    kullanici.ZamanGecir(1'000);
    EXPECT_EQ(servis.gelenler.size(), 6U);
    EXPECT_EQ(Yili().size(), 3U);
    EXPECT_EQ(kullanici.Tablo().YayinTimer.aralik, 0);
}

TEST_F(YayinKosusuTest, What_is_sent_is_the_table_as_it_was_whatever_is_chosen_meanwhile) {
    Baslat();
    istekte = [this](int no) {
        if (no == 1) {
            kullanici.SalonSec(u"Salon A");
            kullanici.YilSec(u"2013");
            kullanici.Prog().FormSunucu->Text1.metin = u"baska";
        }
    };
    Yayinla();
    ASSERT_EQ(Yili().size(), 3U);
    EXPECT_EQ(Yili()[1].salon, u"Çınar ") << "cut at its sign by the service";
    EXPECT_EQ(servis.firmalar.size(), 1U);
}

TEST_F(YayinKosusuTest, A_publish_asked_while_one_goes_out_goes_out_whole_behind_it_on_a_screen_of_its_own) {
    Baslat();
    std::vector<Metin> basliklar;
    istekte = [&](int no) {
        basliklar.push_back(Ekran()->Label2.baslik.substr(0, 14));
        EXPECT_EQ(kullanici.Tablo().YayinTimer.aralik, 0) << "what a screen sends, nobody else does";
        if (no != 5)
            return;
        // As a save does that comes in between.
        std::filesystem::remove(agac.Yol(u"Çınar & Bahçe/2012/01.02.2012 - Gece"));
        kullanici.Tablo().Command1();
        kullanici.Tablo().Yayinla();
        EXPECT_EQ(servis.gelenler.size(), 5U) << "nothing goes out in between";
        kullanici.SalonSec(u"Salon A");
    };
    EkranBekle();
    Yayinla();
    const std::vector<std::string> ilk{"temizle.php", "salonekle.php", "salonekle.php",
                                       "save.php",    "save.php",      "save.php"};
    std::vector<std::string> beklenen = ilk;
    beklenen.insert(beklenen.end(), ilk.begin(), ilk.end() - 1);
    EXPECT_EQ(servis.Betikler(), beklenen);
    ASSERT_EQ(Yili().size(), 2U) << "what the first one still sent hasn't brought the cancelled slot back";
    EXPECT_TRUE(Yili(u"0").empty()) << "the hall is the one for which it was asked";
    EXPECT_EQ(basliklar, std::vector<Metin>(11, u"Çınar & Bahçe "));
    EXPECT_FALSE(EkranVar());
}

TEST_F(YayinKosusuTest, The_rest_of_a_cancelled_one_goes_out_one_request_at_a_time_and_nobody_waits) {
    Baslat();
    YoldaKalsin();
    int bekleyis = 0;
    beklerken = [&] {
        if (++bekleyis == 2)
            IptalEt();
    };
    Yayinla();
    EXPECT_FALSE(EkranVar());
    EXPECT_EQ(yoldakiler.size(), 2U);
    EXPECT_EQ(servis.gelenler.size(), 1U) << "the second one is still on its way, and the table works";
    kullanici.ZamanGecir(500);
    EXPECT_EQ(yoldakiler.size(), 2U) << "the next one waits for it";
    for (std::size_t giden = 2; giden <= 6; ++giden) {
        ASSERT_EQ(yoldakiler.size(), giden);
        EXPECT_EQ(kullanici.Tablo().YayinTimer.aralik, 10);
        yoldakiler.back()();
        kullanici.ZamanGecir(100);
    }
    EXPECT_EQ(yoldakiler.size(), 6U);
    EXPECT_EQ(Yili().size(), 3U);
    EXPECT_EQ(kullanici.Tablo().YayinTimer.aralik, 0);
}

TEST_F(YayinKosusuTest, A_publish_asked_while_a_cancelled_one_still_goes_out_shows_both_to_their_ends) {
    Baslat();
    YoldaKalsin();
    beklerken = [this] { IptalEt(); };
    Yayinla();
    EXPECT_TRUE(servis.gelenler.empty());
    std::vector<Metin> basliklar;
    beklerken = [&] { basliklar.push_back(Ekran()->Label2.baslik.substr(0, 12)); };
    kullanici.YilSec(u"2013");
    EkranBekle();
    Yayinla();
    EXPECT_EQ(yoldakiler.size(), 6U + 3U) << "the one on its way isn't sent twice";
    ASSERT_EQ(servis.gelenler.size(), 9U);
    EXPECT_EQ(servis.Betikler()[0], "temizle.php");
    EXPECT_TRUE(servis.gelenler[6].ends_with(u"&sene=2013")) << "the later one behind the whole first";
    EXPECT_EQ(basliklar, std::vector<Metin>(9, u"Çınar & Bahç"));
    EXPECT_EQ(Yili().size(), 3U);
    EXPECT_FALSE(EkranVar());
    EXPECT_EQ(kullanici.Tablo().YayinTimer.aralik, 0);
}

TEST_F(YayinKosusuTest, A_screen_that_is_activated_again_sends_nothing_twice) {
    Baslat();
    istekte = [this](int no) {
        if (no == 2)
            kullanici.Prog().yigin.UsttekileriEtkinlestir();
    };
    Yayinla();
    EXPECT_EQ(servis.gelenler.size(), 6U);
}

TEST_F(YayinKosusuTest, Without_a_hall_the_index_is_that_of_no_entry_on_purpose) {
    agac.KoyMetin(u"Salon.dat", u"");
    kullanici.ProgramiAc();
    kullanici.Prog().Splash->Check1 = 1;
    kullanici.Prog().ortam.ag.getir = [this](const AgIstegi& istek) { return servis.Getir(istek); };
    Yayinla();
    EXPECT_EQ(servis.gelenler,
              std::vector<Metin>{u"temizle.php?firmaid=00-1B-C4-0D-E0-9F&salonid=-1&sene=2012"});
}

} // namespace velora::test
