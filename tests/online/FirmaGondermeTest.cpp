// The firm's profile on its way to the service.
#include "access/FormSifreDegistir.h"
#include "destek/Ariza.h"
#include "online/FirmaTest.h"
#include "online/FormIpMac.h"

namespace velora::test {

namespace {

// What the file on disk makes.
constexpr MetinBakis kDosyaIstegi =
    u"http://servis.test/x/firmakontrol.php?firmaid=00-1B-C4-0D-E0-9F&a1=Gül Düğün&a2=Ayşe Ir&a3=0212 1&"
    u"a4=0532 2&a5=gul.test&a6=a@gul.test&a7=Çay Sk. 3&a8=YALOVA&a9=Termal&a10=Velora 1.0&a11=01.01.2012&"
    u"a12=yedek&a13=4";

// What the fields make that are filled by hand over that.
constexpr MetinBakis kElleIstegi =
    u"http://servis.test/x/firmakontrol.php?firmaid=00-1B-C4-0D-E0-9F&a1=Büyük Düğün İşleri&"
    u"a2=Ali Ilıca&a3=0212 33&a4=0532 44&a5=www.Buyuk.test&a6=yok&a7=Gül Sk. No:7 İç Kapı&"
    u"a8=BAYBURT&a9=Aydıntepe&a10=Velora 2.0.5&a11=05.03.2012&a12=yedek&a13=10";

} // namespace

class FirmaGondermeTest : public FirmaTest {
  protected:
    FirmaGondermeTest() {
        agac.Koy(u"Firma.dll", kDosya);
        program.Splash->Check1 = 1;
    }
};

TEST_F(FirmaGondermeTest, Sends_what_the_file_holds_with_its_own_title_and_day_which_is_meant) {
    ortam.Bekle(BeklenenIstek{.adres = Metin(kDosyaIstegi), .cevap = u"?", .sure = 2});
    program.FormFirma->gonder();
    EXPECT_EQ(Firma().t11.metin, u"01.01.2012");
    program.FormFirma.Bosalt();
    EXPECT_EQ(Firma().t11.metin, u"05.03.2012") << "loading shows the day of today";
}

TEST_F(FirmaGondermeTest, Without_a_file_title_and_day_are_those_of_now) {
    std::filesystem::remove(agac.Yol(u"Firma.dll"));
    Firma();
    ortam.simdi += std::chrono::hours(24);
    ortam.Bekle(BeklenenIstek{
        .adres = u"http://servis.test/x/firmakontrol.php?firmaid=00-1B-C4-0D-E0-9F&a1=&a2=&a3=&a4=&a5=&a6=&"
                 u"a7=&a8=Şehir Seçiniz&a9=&a10=Velora 2.0.5&a11=06.03.2012&a12=&a13=Salon Sayısı Seçiniz"});
    program.FormFirma->gonder();
}

TEST_F(FirmaGondermeTest, Values_go_out_as_they_stand_on_purpose_and_only_the_key_loses_its_commas) {
    agac.KoyMetin(
        u"Firma.dll",
        u"\"A&B=c, %20+\",\"b\r\nc\",\"3\",\"4\",\"5\",\"6\",\"7\",\"8\",\"9\",\"10\",\"11\",\"12\",\"13\"");
    program.FormIpMac->Label1.baslik = u",X,1,";
    ortam.Bekle(
        BeklenenIstek{.adres = u"http://servis.test/x/firmakontrol.php?firmaid=X1&a1=A&B=c, %20+&a2=b\r\nc&"
                               u"a3=3&a4=4&a5=5&a6=6&a7=7&a8=8&a9=9&a10=10&a11=11&a12=12&a13=13"});
    program.FormFirma->gonder();
}

TEST_F(FirmaGondermeTest, While_the_service_has_not_answered_or_has_no_place_nothing_is_sent) {
    program.Splash->Check1 = 0;
    program.FormFirma->gonder();
    Doldur();
    VELORA_BAS(program.FormFirma, Command1);
    program.Splash->Check1 = 1;
    std::filesystem::remove(agac.Yol(u"Adresler.dat"));
    program.FormFirma->gonder();
    Doldur();
    VELORA_BAS(program.FormFirma, Command1);
    EXPECT_FALSE(program.FormFirma.Yuklu());
}

TEST_F(FirmaGondermeTest, A_send_leaves_the_fields_alone_in_which_somebody_types) {
    ortam.Bekle(BeklenenEkran{EkranAdi::FormFirma, [this] {
                                  Doldur();
                                  ortam.Bekle(BeklenenIstek{.adres = Metin(kDosyaIstegi)});
                                  program.FormFirma->gonder();
                                  EXPECT_EQ(Firma().t1.metin, u"BÜYÜK DÜĞÜN işleri");
                                  EXPECT_EQ(Firma().t8.Metni(), u"BAYBURT");
                                  EXPECT_EQ(Firma().t11.metin, u"05.03.2012");
                              }});
    program.FormFirma.GosterModal();
}

TEST_F(FirmaGondermeTest, OK_sends_what_it_has_written_and_a_failure_is_no_hindrance) {
    Doldur();
    ortam.Bekle(BeklenenIstek{.adres = Metin(kElleIstegi), .sure = 2, .is = [this] {
                                  EXPECT_TRUE(agac.Bayt(u"Firma.dll").starts_with("\"B\xFCy\xFCk"))
                                      << "the file comes first";
                                  EXPECT_FALSE(agac.Var(u"Sunucu.dat"));
                              }});
    VELORA_BAS(program.FormFirma, Command1);
    EXPECT_TRUE(agac.Var(u"Sunucu.dat"));
    EXPECT_FALSE(program.FormFirma.Yuklu());
    EXPECT_EQ(ortam.olaySayisi, 2) << "events have a turn before the send and behind it";
}

TEST_F(FirmaGondermeTest, Saving_unchecked_sends_nothing) {
    Firma();
    VELORA_BAS(program.FormFirma, Command3);
}

TEST_F(FirmaGondermeTest, A_send_is_given_up_when_its_screen_goes_though_its_handler_holds_it_still) {
    bool vazgecildi = false;
    program.ortam.ag.getir = [&](const AgIstegi& istek) {
        EXPECT_FALSE(istek.vazgecildi());
        program.FormFirma.Bosalt();
        vazgecildi = istek.vazgecildi();
        return Metin();
    };
    Doldur();
    VELORA_BAS(program.FormFirma, Command1);
    EXPECT_TRUE(vazgecildi);
    EXPECT_TRUE(agac.Var(u"Sunucu.dat"));
}

TEST_F(FirmaGondermeTest, A_profile_that_is_saved_while_an_older_one_goes_out_takes_its_place) {
    std::vector<Metin> istekler;
    std::vector<bool> birakilan;
    program.ortam.ag.getir = [&](const AgIstegi& istek) {
        istekler.push_back(istek.adres);
        if (istekler.size() == 1) {
            Doldur();
            program.FormFirma->Command1_Click();
        }
        birakilan.push_back(istek.vazgecildi());
        return Metin();
    };
    program.FormFirma->gonder();
    ASSERT_EQ(istekler.size(), 2U);
    EXPECT_NE(istekler[1].find(u"&a1=Büyük Düğün İşleri&a2=Ali Ilıca&"), Metin::npos);
    EXPECT_EQ(birakilan, (std::vector{false, true})) << "the newer one first";
}

TEST_F(FirmaGondermeTest, The_screen_may_go_before_the_send_or_while_it_is_waited_for) {
    for (const bool once : {true, false}) {
        Doldur();
        ortam.olayda = [this, once](int) {
            if (once)
                program.FormFirma.Bosalt();
        };
        ortam.Bekle(BeklenenIstek{.adres = Metin(kElleIstegi), .is = [this] { program.FormFirma.Bosalt(); }});
        VELORA_BAS(program.FormFirma, Command1);
        EXPECT_FALSE(program.FormFirma.Yuklu());
        EXPECT_TRUE(agac.Var(u"Sunucu.dat"));
        std::filesystem::remove(agac.Yol(u"Sunucu.dat"));
    }
}

TEST_F(FirmaGondermeTest, Fields_that_a_sending_has_read_may_be_saved_though_the_loading_had_failed) {
    const auto bozuldu = BirKezOkunmaz(program.dosyalar, kFirmaDosyasi);
    EXPECT_EQ(Firma().t1.metin, u"");
    EXPECT_TRUE(*bozuldu);
    VELORA_BAS(program.FormFirma, Command3);
    EXPECT_EQ(agac.Bayt(u"Firma.dll"), kDosya);
    ortam.Bekle(BeklenenIstek{.adres = Metin(kDosyaIstegi)});
    program.FormFirma->gonder();
    AlanaYaz(Firma().t3, u"0212 99");
    VELORA_BAS(program.FormFirma, Command3);
    EXPECT_NE(agac.Bayt(u"Firma.dll").find(",\"0212 99\",\"0532 2\","), std::string::npos);
}

TEST_F(FirmaGondermeTest, A_sending_that_could_not_read_keeps_the_fields_and_what_may_be_done_with_them) {
    Firma();
    const auto bozuldu = BirKezOkunmaz(program.dosyalar, kFirmaDosyasi);
    program.Splash->Check1 = 0;
    program.FormFirma->gonder();
    EXPECT_TRUE(*bozuldu);
    AlanaYaz(Firma().t3, u"0212 99");
    VELORA_BAS(program.FormFirma, Command3);
    EXPECT_NE(agac.Bayt(u"Firma.dll").find(",\"0212 99\",\"0532 2\","), std::string::npos);
}

TEST_F(FirmaGondermeTest, Fields_that_could_not_be_read_stay_unsaved_while_a_sending_leaves_them_alone) {
    BirKezOkunmaz(program.dosyalar, kFirmaDosyasi);
    program.Splash->Check1 = 0;
    program.FormFirma.Goster();
    program.FormFirma->gonder();
    EXPECT_EQ(Firma().t1.metin, u"") << "somebody may be typing";
    VELORA_BAS(program.FormFirma, Command3);
    EXPECT_EQ(agac.Bayt(u"Firma.dll"), kDosya);
}

TEST_F(FirmaGondermeTest, A_first_run_for_want_of_a_reading_writes_over_nothing_and_goes_on) {
    program.Splash->Check1 = 0;
    agac.Koy(u"Sunucu.dat", "\"00-11\",0\r\n");
    BirKezOkunmaz(program.dosyalar, kFirmaDosyasi);
    Firma().Tag = u"1";
    Doldur();
    VELORA_BAS(program.FormFirma, Command1);
    EXPECT_EQ(agac.Bayt(u"Firma.dll"), kDosya);
    EXPECT_TRUE(program.FormSifreDegistir.Yuklu());
    EXPECT_FALSE(program.FormFirma.Yuklu());
}

} // namespace velora::test
