// The whole service behind a real server: what a program sends arrives there byte for byte.
#include "platform/Ag.h"

#include <curl/curl.h>

#include "access/Splash.h"
#include "destek/Kayitlar.h"
#include "destek/SahteOrtam.h"
#include "destek/Servis.h"
#include "online/FormOneri.h"
#include "online/FormSunucu.h"
#include "platform/AgTest.h"
#include "screen/Program.h"
#include "storage/KodSayfasi.h"
#include "table/FormTablo.h"

namespace velora::test {

/// A firm with a hall on 15 June 2012 and the real network. The server's thread touches the service only
/// while a request waits.
class ServisTest : public ::testing::Test {
  protected:
    ServisTest() {
        agac.KoyMetin(u"Salon.dat", u"\"Gül Salonu\"\r\n");
        agac.KoyMetin(u"Adresler.dat", u"\"" + sunucu.Adres(u"/x") + u"\",\"\",\"\",\"\"\r\n");
        program.ortam.ag.donanimAdresi = [] { return DonanimAdresi{1, 2, 3, 4, 5, 6}; };
        AgiBagla(program.ortam);
        program.ortam.ag.donanimAdresi = [] { return DonanimAdresi{1, 2, 3, 4, 5, 6}; };
        program.Splash->Check1 = 1;
    }
    Servis::Firma& Firma() { return servis.firmalar[u"01-02-03-04-05-06"]; }

    Servis servis;
    Sunucu sunucu{Baglantilar::AcikKalir, [this](std::string_view hedef) { return servis.Cevapla(hedef); }};
    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
};

TEST_F(ServisTest, A_year_that_is_published_can_be_read_back_at_the_service) {
    KayitKoy(agac, u"Gül Salonu/2012/20.06.2012 - Gündüz", {.ad = u"Şule Iğdır", .no = u"9"});
    KayitKoy(agac, u"Gül Salonu/2012/21.06.2012 - Gece", {.ad = u"Can", .no = u"10"}, true);
    Firma().yillar[{u"0", u"2012"}] = {{u"Gül Salonu", u"2012-01-01", u"Gece", u"eski"}};
    program.FormTablo.Tut();
    ortam.Bekle(BeklenenEkran{EkranAdi::FormWebteYayinla});
    program.FormTablo->Yayinla();
    EXPECT_EQ(Firma().salonlar, std::vector<Metin>{u"Gül Salonu"});
    EXPECT_EQ(
        (Firma().yillar[{u"0", u"2012"}]),
        (std::vector<Servis::Goz>{
            {u"Gül Salonu", u"2012-06-20", u"Gündüz", u"|11:00|Düğün|Gündüz|5000|1000|4000|Şule Iğdır|9|1"},
            {u"Gül Salonu", u"2012-06-21", u"Gece", u"|11:00|Düğün|Gece|5000|1000|4000|Can|10|1"}}));
    EXPECT_EQ(sunucu.Istekler().size(), 4U);
}

TEST_F(ServisTest, A_poll_takes_what_the_service_holds_and_a_script_that_it_has_not_is_a_failure) {
    Firma().istekler = {{u"7", u"Işıl|1|2|3|Gül Salonu|20.06.2012|19:00|Gece|Düğün"}};
    Firma().duyuruVar = true;
    program.FormTablo->DuyuruKontrol_Tick();
    EXPECT_EQ(agac.Bayt(u"RezTemp.dat"), "\"7\",\"I\xFE\xFDl\",\"1\",\"2\",\"3\",\"G\xFCl "
                                         "Salonu\",\"20.06.2012\",\"19:00\",\"Gece\",\"D\xFC\xF0"
                                         "\xFCn\"\r\n");
    EXPECT_EQ(program.FormTablo->YeniDuyuruTimer.aralik, 400);
    Inet inet(program);
    EXPECT_EQ(inet.Getir(sunucu.Adres(u"/x/yok.php?firmaid=1")), u"");
}

TEST_F(ServisTest, A_reply_in_UTF_8_is_read_byte_by_byte_and_loses_nothing) {
    Firma().istekler = {{u"7", KodCoz("\xC5\x9Eule|1")}};
    program.FormTablo->DuyuruKontrol_Tick();
    EXPECT_EQ(agac.Bayt(u"RezTemp.dat"), "\"7\",\"\xC5\x9Eule\",\"1\"\r\n");
}

TEST_F(ServisTest, A_suggestion_of_several_lines_arrives_as_it_was_written) {
    program.FormOneri->Aciklama.metin = u"Bir\r\nİki ğ";
    ortam.Bekle(BeklenenKutu{u"Teşekkürler", u"Tebrikler...\nMesajınız başarıyla gönderilmiştir."});
    program.FormOneri->Command1_Click();
    EXPECT_EQ(Firma().oneriler, std::vector<Metin>{u"Bir\r\nİki ğ"});
}

TEST_F(ServisTest, A_connection_can_carry_one_request_after_the_other) {
    int istekler = 0;
    Sunucu ikinci(Baglantilar::AcikKalir, [&](std::string_view hedef) {
        ++istekler;
        return std::optional(std::string(hedef));
    });
    CURL* curl = curl_easy_init();
    std::string gelen;
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &gelen);
    curl_easy_setopt(
        curl, CURLOPT_WRITEFUNCTION, +[](const char* bayt, std::size_t, std::size_t boy, void* hedef) {
            static_cast<std::string*>(hedef)->append(bayt, boy);
            return boy;
        });
    long acilan = 0;
    for (const char* ad : {"/a", "/b", "/c"}) {
        curl_easy_setopt(curl, CURLOPT_URL, (KodYaz(ikinci.Adres(u"")) + ad).c_str());
        EXPECT_EQ(curl_easy_perform(curl), CURLE_OK);
        long yeni = 0;
        curl_easy_getinfo(curl, CURLINFO_NUM_CONNECTS, &yeni);
        acilan += yeni;
    }
    curl_easy_cleanup(curl);
    EXPECT_EQ(gelen, "/a/b/c");
    EXPECT_EQ(istekler, 3);
    EXPECT_EQ(acilan, 1);
}

} // namespace velora::test
