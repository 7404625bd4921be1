// Requests that no visitor would write: days, times and slots of another form, names that aim elsewhere.
#include "online/IstekListesiTest.h"

namespace velora::test {

class KotuIsteklerTest : public IstekListesiTest {
  protected:
    /// Takes the one request over and fills what a save asks for beside it; it is saved as `ad`.
    void DevralVeKaydet(const Istek& istek) {
        Iste(istek);
        Baslat();
        ListeyiAc([this] {
            Sec(0);
            EkranBekle(EkranAdi::FormKayit, [this] {
                tarih = Kayit().Tarih;
                saat = Kayit().Kay[AnaNo::BaslamaSaati].metin;
                Gir(AnaNo::BaslamaSaati, u"18:15");
                Gir(AnaNo::BitisSaati, u"23:00");
                KaydeteBas();
                EXPECT_FALSE(Prog().FormKayit.Yuklu());
            });
            Olustur();
        });
    }

    Metin tarih;
    Metin saat;
};

TEST_F(KotuIsteklerTest, A_date_of_another_form_matches_no_month_and_goes_on_to_the_record_on_purpose) {
    DevralVeKaydet({.tarih = u"2012-06-23"});
    EXPECT_EQ(tarih, u"2012-06-23 - Gece");
    EXPECT_EQ(kullanici.Tablo().Sene.Metni(), u"2012") << "\"6-23\" is no year";
    EXPECT_TRUE(agac.DosyaVar(u"Salon B/2012/2012-06-23 - Gece")) << "kept, though the table never shows it";
}

TEST_F(KotuIsteklerTest, A_year_that_the_table_does_not_offer_looks_at_no_cell_of_another_year) {
    KayitKoy(agac, u"Salon B/2012/23.06.2012 - Gece");
    DevralVeKaydet({.tarih = u"23.06.2050"});
    EXPECT_EQ(kullanici.Tablo().Sene.Metni(), u"2012");
    EXPECT_TRUE(agac.DosyaVar(u"Salon B/2012/23.06.2050 - Gece"));
}

TEST_F(KotuIsteklerTest, A_name_from_the_network_never_leaves_the_folder_of_the_year) {
    for (const char16_t* gun : {u"..\\..\\..\\23.06.2012", u"..\\x", u"../../../23.06.2012", u"C:23.06.2012",
                                u"23/06/2012", u"a\\b"}) {
        Firma().istekler.clear();
        const std::string once = agac.Resim();
        DevralVeKaydet({.tarih = gun});
        EXPECT_EQ(tarih, Metin(gun) + u" - Gece");
        for (const auto& yol : std::filesystem::recursive_directory_iterator(agac.Disi()))
            EXPECT_EQ(yol.path().string().find("23.06.2012"), std::string::npos) << yol.path();
        EXPECT_FALSE(agac.Var(u"x - Gece") || agac.Var(u"Salon B/x - Gece"));
        ProgramiKapat();
    }
}

TEST_F(KotuIsteklerTest, A_slot_of_no_name_looks_at_no_cell_and_a_day_of_none_neither) {
    KayitKoy(agac, u"Salon B/2012/23.06.2012 - Gece");
    DevralVeKaydet({.tarih = u"23.06.2012", .zaman = u"gece"});
    EXPECT_EQ(tarih, u"23.06.2012 - gece");
    ProgramiKapat();
    DevralVeKaydet({.no = u"43", .tarih = u"99.06.2012"});
    EXPECT_EQ(tarih, u"99.06.2012 - Gece");
}

TEST_F(KotuIsteklerTest, A_time_that_is_none_leaves_its_field_empty_and_one_that_is_one_gets_its_places) {
    for (const auto& [gelen, konan] : {std::pair{u"akşam", u"__:__"},
                                       {u"9.30", u"09:30"},
                                       {u"", u"__:__"},
                                       {u"19:00 - 23:00", u"__:__"}}) {
        Firma().istekler.clear();
        DevralVeKaydet({.tarih = u"24.06.2012", .saat = gelen});
        EXPECT_EQ(saat, konan);
        std::filesystem::remove(agac.Yol(u"Salon B/2012/24.06.2012 - Gece"));
        ProgramiKapat();
    }
}

TEST_F(KotuIsteklerTest, Quotes_commas_and_line_breaks_of_a_sender_slide_no_record) {
    DevralVeKaydet({.ad = u"ali \"kara\", veli\r\ncan", .tarih = u"24.06.2012"});
    const std::string bayt = agac.Bayt(u"Salon B/2012/24.06.2012 - Gece");
    EXPECT_TRUE(bayt.starts_with("\"Ali Kara. Veli\r\nCan\",\"\",\"\",\"Ni\xFE"
                                 "an\",\"0212 33\","))
        << bayt;
}

TEST_F(KotuIsteklerTest, Ten_thousand_requests_are_listed_and_one_of_them_is_deleted) {
    for (int no = 1; no <= 10'000; ++no)
        Iste({.no = SayiMetni(no)});
    Baslat();
    ListeyiAc([this] {
        ASSERT_EQ(Liste().Liste.satirlar.size(), 10'000U);
        Sec(5'000);
        KutuBekle(u"Gelen online rezervasyonu silmek istediğinizden emin misiniz?", Cevap::Evet, Simge::Soru);
        VELORA_BAS(Prog().FormRezervasyonlar, Command3);
        ASSERT_EQ(Liste().Liste.satirlar.size(), 9'999U);
        EXPECT_EQ(Liste().Liste.satirlar[5'000].sutun[0], u"5002");
    });
    EXPECT_EQ(servis.gelenler.back(), u"rezsil.php?firmaid=00-1B-C4-0D-E0-9F&id=5001");
}

} // namespace velora::test
