// The poll of the service and the two marks that blink for what it found.
#include <algorithm>

#include "access/Splash.h"
#include "destek/Eylemler.h"
#include "destek/Servis.h"
#include "online/FormDuyurular.h"
#include "table/TabloTest.h"

namespace velora::test {

namespace {

const Metin kDuyuru = u"http://servis.test/x/duyuru.php?firmaid=00-1B-C4-0D-E0-9F";
const Metin kRezKontrol = u"http://servis.test/x/rezkontrol.php?firmaid=00-1B-C4-0D-E0-9F";

} // namespace

class OnlineIsaretlerTest : public TabloTest {
  protected:
    OnlineIsaretlerTest() { agac.Koy(u"Adresler.dat", "\"http://servis.test/x\",\"\",\"\",\"\"\r\n"); }

    void Baslat() {
        kullanici.ortam.baglanti = false; // nothing asks by itself whether the service is there
        kullanici.ProgramiAc();
        kullanici.Prog().Splash->Check1 = 1;
    }
    /// One poll, with these replies to its two requests.
    void Sor(const Metin& duyuru, const Metin& istekler) {
        kullanici.ortam.Bekle(BeklenenIstek{.adres = kDuyuru, .cevap = duyuru});
        kullanici.ortam.Bekle(BeklenenIstek{.adres = kRezKontrol, .cevap = istekler});
        kullanici.Tablo().DuyuruKontrol.aralik = 2'500;
        kullanici.Tablo().DuyuruKontrol.Calis();
        EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 0) << "one shot";
    }
    /// The table comes back at the next events, and its poll is set going anew.
    std::function<void()> GeriGelinir() {
        return [this] {
            kullanici.ortam.olayda = [this](int) {
                kullanici.ortam.olayda = {};
                Tablo().DuyuruKontrol.Kur(2'500);
            };
        };
    }
    /// A poll within which the table comes back.
    void EskiyenYoklama() {
        Tablo().DuyuruKontrol.Kur(2'500);
        Tablo().DuyuruKontrol.Calis();
        EXPECT_EQ(Tablo().DuyuruKontrol.aralik, 2'500) << "a new one asks";
    }
    std::string Dosya() { return agac.Bayt(u"RezTemp.dat"); }
    FormTablo& Tablo() { return kullanici.Tablo(); }
};

TEST_F(OnlineIsaretlerTest, Both_marks_start_off_plain_and_quiet) {
    Baslat();
    for (const OnlineIsareti* isaret : {&Tablo().YeniRezervasyonVar, &Tablo().YeniDuyuru}) {
        EXPECT_FALSE(isaret->etkin);
        EXPECT_FALSE(isaret->renkli);
    }
    EXPECT_EQ(Tablo().YeniRezTimer.aralik, 0);
    EXPECT_EQ(Tablo().YeniDuyuruTimer.aralik, 0);
}

TEST_F(OnlineIsaretlerTest, Each_request_of_the_reply_becomes_a_line_of_quoted_fields) {
    Baslat();
    agac.Koy(u"RezTemp.dat", "\"eski\"\r\n");
    Sor(u"0", u" 12|Gül Işık|0212 3|0532 4|g@x.test|Salon A|20.06.2012|19:30|Gece|Düğün<br> <br>\"|\"<br>"
              u"  13|A \"B\" C|<br>son");
    EXPECT_EQ(Dosya(), "\"12\",\"G\xFCl I\xFE\xFDk\",\"0212 3\",\"0532 4\",\"g@x.test\",\"Salon A\","
                       "\"20.06.2012\",\"19:30\",\"Gece\",\"D\xFC\xF0\xFCn\"\r\n"
                       "\"\",\"\"\r\n"
                       "\"13\",\"A B C\",\"\"\r\n"
                       "\"son\"\r\n");
    EXPECT_EQ(Tablo().YeniRezTimer.aralik, 400);
    EXPECT_EQ(Tablo().YeniDuyuruTimer.aralik, 0);
}

TEST_F(OnlineIsaretlerTest, Zero_blanks_and_no_answer_mean_no_request_and_leave_a_full_file_on_purpose) {
    Baslat();
    for (const Metin& cevap : {Metin(u" 0 "), Metin(u"   "), Metin()}) {
        Sor(u"", u"7|x");
        kullanici.ZamanGecir(500);
        ASSERT_TRUE(Tablo().YeniRezervasyonVar.etkin);
        Sor(u"", cevap);
        EXPECT_EQ(Tablo().YeniRezTimer.aralik, 0);
        EXPECT_FALSE(Tablo().YeniRezervasyonVar.etkin);
        EXPECT_EQ(Dosya(), "\"7\",\"x\"\r\n");
    }
}

TEST_F(OnlineIsaretlerTest, The_blink_stops_before_events_run_and_the_mark_goes_out_behind_them) {
    Baslat();
    Sor(u"", u"7|x");
    kullanici.ZamanGecir(500);
    std::vector<std::pair<int, bool>> gorulen;
    kullanici.ortam.olayda = [&](int) {
        gorulen.emplace_back(Tablo().YeniRezTimer.aralik, Tablo().YeniRezervasyonVar.etkin);
    };
    Sor(u"", u"0");
    kullanici.ortam.olayda = {};
    EXPECT_EQ(gorulen, (std::vector<std::pair<int, bool>>{{400, true}, {0, true}}));
}

TEST_F(OnlineIsaretlerTest, A_mark_that_blinks_is_on_and_its_pictures_alternate) {
    Baslat();
    Sor(u" 1 ", u"7|x");
    for (const auto& [isaret, zamanlayici] : {std::pair{&Tablo().YeniRezervasyonVar, &Tablo().YeniRezTimer},
                                              {&Tablo().YeniDuyuru, &Tablo().YeniDuyuruTimer}}) {
        EXPECT_EQ(zamanlayici->aralik, 400);
        EXPECT_FALSE(isaret->etkin) << "until the first tick";
        for (const bool renkli : {true, false, true}) {
            zamanlayici->Calis();
            EXPECT_TRUE(isaret->etkin);
            EXPECT_EQ(isaret->renkli, renkli);
        }
    }
}

TEST_F(OnlineIsaretlerTest, An_announcement_that_is_not_news_leaves_its_mark_as_it_is_on_purpose) {
    Baslat();
    Sor(u"1", u"0");
    for (const Metin& cevap : {Metin(u"0"), Metin(u"11"), Metin()})
        Sor(cevap, u"0");
    EXPECT_EQ(Tablo().YeniDuyuruTimer.aralik, 400);
}

TEST_F(OnlineIsaretlerTest, While_the_service_has_not_answered_nothing_is_asked_and_nothing_changes) {
    Baslat();
    Sor(u"1", u"7|x");
    kullanici.Prog().Splash->Check1 = 0;
    Tablo().DuyuruKontrol.aralik = 2'500;
    Tablo().DuyuruKontrol.Calis();
    EXPECT_EQ(Tablo().DuyuruKontrol.aralik, 0);
    EXPECT_EQ(Tablo().YeniRezTimer.aralik, 400);
}

TEST_F(OnlineIsaretlerTest, A_poll_whose_table_goes_meanwhile_asks_nothing_more_and_writes_nothing) {
    Baslat();
    const auto tablo = kullanici.Prog().FormTablo.Tut();
    kullanici.ortam.Bekle(BeklenenIstek{
        .adres = kDuyuru, .cevap = u"1", .is = [this] { kullanici.Prog().FormTablo.Bosalt(); }});
    tablo->DuyuruKontrol_Tick();
    EXPECT_FALSE(agac.Var(u"RezTemp.dat"));
    EXPECT_EQ(tablo->YeniDuyuruTimer.aralik, 0);
}

TEST_F(OnlineIsaretlerTest, A_poll_within_which_the_announcements_were_read_lights_no_mark) {
    Baslat();
    kullanici.ortam.Bekle(BeklenenIstek{
        .adres = kDuyuru, .cevap = u"1", .is = [this] {
            Tablo().YeniDuyuruTimer.aralik = 400;
            kullanici.ortam.olayda = [this](int) {
                EXPECT_EQ(Tablo().YeniDuyuruTimer.aralik, 0) << "it stops before events run";
                kullanici.ortam.olayda = {};
            };
            kullanici.ortam.Bekle(BeklenenEkran{
                EkranAdi::FormDuyurular, [this] { VELORA_BAS(kullanici.Prog().FormDuyurular, Command1); }});
            kullanici.ortam.Bekle(BeklenenIstek{.adres = u"http://servis.test/x/duyurular.php"});
            kullanici.ortam.Bekle(
                BeklenenIstek{.adres = u"http://servis.test/x/duyuruokundu.php?firmaid=00-1B-C4-0D-E0-9F"});
            Tablo().YeniDuyuru_Click();
        }});
    EskiyenYoklama();
    EXPECT_EQ(Tablo().YeniDuyuruTimer.aralik, 0);
}

TEST_F(OnlineIsaretlerTest, A_table_that_comes_back_between_the_requests_of_a_poll_leaves_the_second_out) {
    Baslat();
    kullanici.ortam.Bekle(BeklenenIstek{.adres = kDuyuru, .cevap = u"1", .is = GeriGelinir()});
    EskiyenYoklama();
    EXPECT_EQ(Tablo().YeniDuyuruTimer.aralik, 400) << "what it was told before holds";
}

TEST_F(OnlineIsaretlerTest, A_table_that_comes_back_in_the_last_events_of_a_poll_asks_anew) {
    Baslat();
    kullanici.ortam.Bekle(BeklenenIstek{.adres = kDuyuru, .cevap = u"0"});
    kullanici.ortam.Bekle(BeklenenIstek{.adres = kRezKontrol, .cevap = u"0", .is = GeriGelinir()});
    EskiyenYoklama();
    EXPECT_EQ(Tablo().YeniDuyuruTimer.aralik, 0);
}

TEST_F(OnlineIsaretlerTest, A_reply_of_separators_alone_empties_the_list_and_blinks_on_purpose) {
    Baslat();
    Sor(u"", u"7|x");
    Sor(u"", u"<br> <br>");
    EXPECT_EQ(agac.Oku(u"RezTemp.dat"), "");
    EXPECT_EQ(Tablo().YeniRezTimer.aralik, 400);
}

TEST_F(OnlineIsaretlerTest, A_disk_that_takes_no_file_stops_no_blink) {
    Baslat();
    kullanici.Prog().dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    Sor(u"", u"7|x");
    EXPECT_EQ(Tablo().YeniRezTimer.aralik, 400);
    EXPECT_FALSE(agac.Var(u"RezTemp.dat"));
}

TEST_F(OnlineIsaretlerTest, Ten_thousand_requests_and_a_reply_of_garbage_are_taken_as_they_come) {
    Baslat();
    Metin cok;
    for (int no = 1; no <= 10'000; ++no)
        cok += SayiMetni(no) + u"|A<br>";
    Sor(u"", cok);
    EXPECT_EQ(std::ranges::count(Dosya(), '\n'), 10'000);
    EXPECT_TRUE(Dosya().ends_with("\"10000\",\"A\"\r\n"));
    Sor(u"", u"<html>\x01|\r\n\"x\" ğ</html>");
    EXPECT_EQ(Dosya(), "\"<html>\x01\",\"\r\nx \xF0</html>\"\r\n");
}

TEST_F(OnlineIsaretlerTest,
       A_click_on_the_marks_opens_their_screens_and_only_the_announcement_stops_to_blink) {
    Baslat();
    Sor(u"1", u"7|x");
    kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormRezervasyonlar});
    Tablo().YeniRezervasyonVar_Click();
    EXPECT_EQ(Tablo().YeniRezTimer.aralik, 400) << "requests are left";
    kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormDuyurular});
    kullanici.ortam.Bekle(BeklenenIstek{.adres = u"http://servis.test/x/duyurular.php"});
    kullanici.ortam.Bekle(
        BeklenenIstek{.adres = u"http://servis.test/x/duyuruokundu.php?firmaid=00-1B-C4-0D-E0-9F"});
    Tablo().YeniDuyuru_Click();
    EXPECT_EQ(Tablo().YeniDuyuruTimer.aralik, 0);
}

} // namespace velora::test
