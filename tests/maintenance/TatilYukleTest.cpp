// The published list of holidays is fetched.
#include "maintenance/TatilTest.h"

namespace velora::test {

namespace {

const Metin kTatilAdresi = u"http://site.test/progdata/ozelgunler.dat";
constexpr std::string_view kYeniListe = "\"29.10.2010\",\"Cumhuriyet\",\"Evet\",\"Genel\"\r\n";

Metin Uzunluk(std::size_t boy) {
    return u"HTTP/1.1 200 OK\r\nContent-Length: " + SayiMetni(static_cast<long long>(boy)) + u"\r\n\r\n";
}

} // namespace

class TatilYukleTest : public TatilTest {
  protected:
    FormResmiTatilYukle& Yukle() { return *program.FormResmiTatilYukle.Tut(); }
    /// What comes of the next fetch.
    void Gelecek(std::string_view bayt, const std::function<void(std::size_t)>& is = {}) {
        ortam.Bekle(BeklenenAktarim{kTatilAdresi,
                                    Uzunluk(bayt.size()),
                                    {std::string(bayt.substr(0, 10)), std::string(bayt.substr(10))},
                                    is});
    }
    void HataBekle(const std::function<void()>& is = {}) {
        ortam.Bekle(BeklenenKutu{
            .baslik = u"Hata",
            .metin = u"Yükleme sırasında hata oluştu! Lütfen internet bağlantınızı kontrol ediniz.",
            .simge = Simge::Kritik,
            .is = is});
    }
};

TEST_F(TatilYukleTest, It_begins_by_itself_and_its_list_takes_the_place_of_the_general_rows) {
    std::vector<int> yuzdeler;
    ortam.olayda = [&](int) {
        if (program.FormResmiTatilYukle.Yuklu())
            yuzdeler.push_back(Yukle().ProgressBar.deger);
    };
    ortam.Bekle(BeklenenEkran{EkranAdi::FormResmiTatilYukle});
    Gelecek(kYeniListe, [&](std::size_t) {
        EXPECT_EQ(Yukle().Command.baslik, u"Durdur");
        EXPECT_TRUE(program.yigin.Acik(EkranAdi::FormResmiTatilYukle));
    });
    ortam.Bekle(BeklenenKutu{u"Yükleme", u"Yükleme başarıyla tamamlandı..."});
    Tatil().Command3_Click();
    EXPECT_EQ(yuzdeler, (std::vector{24, 100}));
    EXPECT_FALSE(program.FormResmiTatilYukle.Yuklu());
    EXPECT_EQ(agac.Bayt(u"Tatiller.dat"), kYeniListe);
    EXPECT_EQ(Adlar(), (Liste{u"Kuruluş", u"Cumhuriyet"}));
    EXPECT_EQ(agac.Bayt(u"Tatiller.dll"), kTatiller);
}

TEST_F(TatilYukleTest, A_stop_ends_it_without_a_box_or_a_file_and_it_can_be_tried_again) {
    Gelecek(kYeniListe, [&](std::size_t sira) {
        ASSERT_LT(sira, 3U);
        if (sira == 2) {
            EXPECT_EQ(Yukle().ProgressBar.deger, 24);
            Yukle().Command_Click();
            EXPECT_EQ(Yukle().Command.baslik, u"Yeniden Dene");
            EXPECT_EQ(Yukle().ProgressBar.deger, 0);
        }
    });
    program.FormResmiTatilYukle->Activate();
    EXPECT_EQ(Yukle().Command.baslik, u"Yeniden Dene");
    EXPECT_FALSE(agac.Var(u"Tatiller.dat"));
    EXPECT_EQ(Adlar().size(), 3U);
    Gelecek(kYeniListe);
    ortam.Bekle(BeklenenKutu{u"Yükleme", u"Yükleme başarıyla tamamlandı..."});
    program.FormResmiTatilYukle->Command_Click();
    EXPECT_EQ(Adlar().size(), 2U);
}

TEST_F(TatilYukleTest, A_failure_is_told_in_its_own_words_and_can_be_tried_again) {
    agac.Koy(u"Tatiller.dat", "eski");
    ortam.Bekle(
        BeklenenAktarim{kTatilAdresi, u"HTTP/1.1 404 Not Found\r\nContent-Length: 3\r\n\r\n", {"abc"}});
    HataBekle();
    program.FormResmiTatilYukle->Activate();
    EXPECT_EQ(Yukle().Command.baslik, u"Yeniden Dene");
    EXPECT_EQ(Yukle().ProgressBar.deger, 0);
    EXPECT_EQ(agac.Bayt(u"Tatiller.dat"), "eski");
    EXPECT_EQ(Adlar().size(), 3U);
    ortam.Bekle(BeklenenAktarim{kTatilAdresi, Uzunluk(9), {"abc"}});
    HataBekle();
    program.FormResmiTatilYukle->Command_Click();
    EXPECT_FALSE(agac.Var(u"Tatiller.dat")) << "a cut off one is no list";
    EXPECT_EQ(Adlar().size(), 3U);
}

TEST_F(TatilYukleTest, A_box_stands_before_the_button_and_the_bar_go_back) {
    const auto durur = [this](int yuzde) {
        EXPECT_EQ(Yukle().Command.baslik, u"Durdur");
        EXPECT_EQ(Yukle().ProgressBar.deger, yuzde);
        EXPECT_EQ(Adlar().size(), 3U);
    };
    ortam.Bekle(BeklenenAktarim{kTatilAdresi, Uzunluk(12), {"abc"}});
    HataBekle([&] { durur(25); });
    program.FormResmiTatilYukle->Activate();
    EXPECT_EQ(Yukle().ProgressBar.deger, 0);
    Gelecek(kYeniListe);
    ortam.Bekle(BeklenenKutu{
        .baslik = u"Yükleme", .metin = u"Yükleme başarıyla tamamlandı...", .is = [&] { durur(100); }});
    program.FormResmiTatilYukle->Command_Click();
    EXPECT_FALSE(program.FormResmiTatilYukle.Yuklu());
}

TEST_F(TatilYukleTest, A_reply_of_no_length_says_nothing_and_can_be_tried_again_on_purpose) {
    ortam.Bekle(BeklenenAktarim{kTatilAdresi, Uzunluk(0)});
    program.FormResmiTatilYukle->Activate();
    EXPECT_EQ(Yukle().Command.baslik, u"Yeniden Dene");
    EXPECT_TRUE(program.FormResmiTatilYukle.Yuklu());
}

TEST_F(TatilYukleTest, A_cancel_in_the_middle_unloads_it_and_leaves_no_file) {
    Gelecek(kYeniListe, [&](std::size_t sira) {
        ASSERT_LT(sira, 2U);
        if (sira == 1)
            program.FormResmiTatilYukle->Command1_Click();
    });
    program.FormResmiTatilYukle->Activate();
    EXPECT_FALSE(program.FormResmiTatilYukle.Yuklu());
    EXPECT_FALSE(agac.Var(u"Tatiller.dat"));
    EXPECT_EQ(Adlar().size(), 3U);
}

TEST_F(TatilYukleTest, A_second_try_among_the_events_of_a_stopped_one_owns_the_screen) {
    Gelecek(kYeniListe, [&](std::size_t sira) {
        if (sira != 2)
            return;
        program.FormResmiTatilYukle->Command_Click(); // "Durdur"
        Gelecek(kYeniListe);
        ortam.Bekle(BeklenenKutu{u"Yükleme", u"Yükleme başarıyla tamamlandı..."});
        program.FormResmiTatilYukle->Command_Click(); // "Yeniden Dene"
    });
    program.FormResmiTatilYukle->Activate();
    EXPECT_FALSE(program.FormResmiTatilYukle.Yuklu());
    EXPECT_EQ(agac.Bayt(u"Tatiller.dat"), kYeniListe);
}

TEST_F(TatilYukleTest, Without_a_site_it_fails) {
    agac.Koy(u"Adresler.dat", "\"http://servis.test\",\"\",\"\",\"\"\r\n");
    ortam.Bekle(BeklenenAktarim{u""});
    HataBekle();
    program.FormResmiTatilYukle->Activate();
}

} // namespace velora::test
