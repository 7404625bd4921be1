// Reservations whose day is near, and the panel that lists them.
#include "reservation/KayitTest.h"

namespace velora::test {

/// Today is 15 June 2012. Firm reservations are warned of 5 days ahead, pre-reservations 10.
class UyariTest : public KayitTest {
  protected:
    static constexpr MetinBakis kYok = u"Hatırlatmalarda yaklaşan rezervasyon yok.";

    FormTablo& Tablo() { return *Prog().FormTablo.Tut(); }
    /// The names in the list, each with its kind behind it.
    std::vector<Metin> Uyarilar() {
        std::vector<Metin> adlar;
        for (const ListeSatiri& satir : Tablo().Liste.satirlar)
            adlar.push_back(satir.sutun[0] + u" " + satir.sutun[6]);
        return adlar;
    }
    void UyarilarOlmali(const std::vector<Metin>& beklenen) { EXPECT_EQ(Uyarilar(), beklenen); }
    void Isaretle(int sira) {
        SatiraTikla(Tablo().Liste, sira, [this] { Tablo().Liste_Click(); });
    }
};

TEST_F(UyariTest, A_firm_reservation_is_near_from_tomorrow_to_the_set_day_and_never_today_on_purpose) {
    for (const MetinBakis ad : {u"14.06.2012 - Gece", u"15.06.2012 - Gece", u"16.06.2012 - Gece",
                                u"20.06.2012 - Gece", u"21.06.2012 - Gece"})
        RezervasyonKoy(Metin(ad));
    Prog();
    UyarilarOlmali({u"16.06.2012 - Gece Kesin", u"20.06.2012 - Gece Kesin"});
    EXPECT_TRUE(Tablo().Picture1.gorunur);
}

TEST_F(UyariTest, A_pre_reservation_is_near_by_its_own_number_of_days_and_green) {
    RezervasyonKoy(u"22.06.2012 - Gece");
    RezervasyonKoy(u"22.06.2012 - Gündüz", {}, true);
    RezervasyonKoy(u"26.06.2012 - Gündüz", {}, true);
    Prog();
    UyarilarOlmali({u"22.06.2012 - Gündüz Ön"});
    EXPECT_EQ(Tablo().Liste.satirlar[0].yazi, 49152);
    EXPECT_TRUE(Tablo().Liste.satirlar[0].kalin);
    EXPECT_EQ(Tablo().Liste.satirlar[0].tag, Yol(u"22.06.2012 - Gündüz"));
}

TEST_F(UyariTest, No_row_of_a_new_list_has_been_clicked_so_its_button_waits) {
    RezervasyonKoy(u"16.06.2012 - Gece");
    RezervasyonKoy(u"17.06.2012 - Gece");
    Prog();
    Isaretle(1);
    EXPECT_TRUE(Tablo().Command8.etkin);
    Tablo().UyariGoster();
    EXPECT_FALSE(Tablo().Command8.etkin);
    EXPECT_EQ(Tablo().Liste.secili, -1);
}

TEST_F(UyariTest, The_same_rows_again_leave_the_list_as_it_stands_and_any_other_letter_makes_it_anew) {
    RezervasyonKoy(u"16.06.2012 - Gece");
    RezervasyonKoy(u"17.06.2012 - Gece");
    Prog();
    auto onceki = Tablo().Liste.satirlar.Degisme();
    const auto degisti = [&] {
        Tablo().UyariGoster();
        const auto simdiki = Tablo().Liste.satirlar.Degisme();
        return std::exchange(onceki, simdiki) != simdiki;
    };
    EXPECT_FALSE(degisti());
    RezervasyonKoy(u"17.06.2012 - Gece", {.ad = u"Başka Biri"});
    EXPECT_TRUE(degisti());
    EXPECT_EQ(Tablo().Liste.satirlar[1].sutun[2], u"Başka Biri");
    EXPECT_FALSE(degisti());
}

TEST_F(UyariTest, A_row_tells_day_hall_customer_couple_telephones_and_kind) {
    agac.KoyMetin(u"Salon A/2012/16.06.2012 - Gece",
                  u"\"Ali\",\"Bolu\",\"Elif / Can\",\"Düğün\",\"0212\",\"0532\",\"\",\"\",\"\",\"\",\"\","
                  u"\"\",\"\",\"\",\"\",\"\",\"\",\"\",1,0\r\n");
    agac.KoyMetin(u"Salon A/2012/16.06.2012 - Gece-Detay", DetayMetni(false));
    Prog();
    ASSERT_EQ(Tablo().Liste.satirlar.size(), 1U);
    EXPECT_EQ(Tablo().Liste.satirlar[0].sutun,
              (std::vector<Metin>{u"16.06.2012 - Gece", u"Salon A", u"Ali", u"Elif / Can", u"0212", u"0532",
                                  u"Kesin"}));
    EXPECT_EQ(Tablo().Liste.satirlar[0].yazi, 0);
    EXPECT_FALSE(Tablo().Liste.satirlar[0].kalin);
    EXPECT_EQ(Tablo().Liste.basliklar, (std::vector<Metin>{u"Tarih", u"Salon", u"Ad Soyad", u"Gelin / Damat",
                                                           u"Telefon", u"Cep", u"Tipi"}));
}

TEST_F(UyariTest, A_record_that_is_not_to_be_reminded_of_is_left_out) {
    RezervasyonKoy(u"16.06.2012 - Gece", {.check18 = 0});
    Prog();
    UyarilarOlmali({});
    EXPECT_FALSE(Tablo().Picture1.gorunur) << "nothing to show at the start, and no message";
}

// The question about the couple is asked of firm reservations alone.
TEST_F(UyariTest, A_couple_of_just_0_keeps_a_firm_reservation_out_on_purpose_and_a_pre_reservation_not) {
    for (const bool on : {false, true}) {
        const Metin ad = on ? u"16.06.2012 - Gündüz" : u"16.06.2012 - Gece";
        agac.KoyMetin(u"Salon A/2012/" + ad,
                      u"\"Ali\",\"\",\"0\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\","
                      u"\"\",\"\",1,0\r\n");
        agac.KoyMetin(u"Salon A/2012/" + ad + u"-Detay", DetayMetni(on));
    }
    Prog();
    UyarilarOlmali({u"16.06.2012 - Gündüz Ön"});
}

TEST_F(UyariTest, A_couple_of_a_blank_and_0_is_a_couple) {
    agac.KoyMetin(u"Salon A/2012/17.06.2012 - Gece",
                  u"\"Can\",\"\",\" 0\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\","
                  u"\"\",\"\",1,0\r\n");
    agac.KoyMetin(u"Salon A/2012/17.06.2012 - Gece-Detay", DetayMetni(false));
    Prog();
    ASSERT_EQ(Uyarilar(), std::vector<Metin>{u"17.06.2012 - Gece Kesin"});
    EXPECT_EQ(Tablo().Liste.satirlar[0].sutun[3], u" 0");
}

TEST_F(UyariTest, A_companion_that_reads_like_a_record_is_never_listed) {
    RezervasyonKoy(u"16.06.2012 - Gece");
    agac.KoyMetin(u"Salon A/2012/16.06.2012 - Gece-Odeme", AnaMetni());
    agac.KoyMetin(u"Salon A/2012/17.06.2012 - Gece-Detay", AnaMetni());
    Prog();
    UyarilarOlmali({u"16.06.2012 - Gece Kesin"});
}

TEST_F(UyariTest, Rows_come_hall_by_hall_year_by_year_and_by_name_and_not_by_date) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon B\"\r\n\"Salon A\"\r\n");
    kullanici.ortam.simdi = std::chrono::local_days(std::chrono::year{2012} / 12 / 30);
    for (const MetinBakis yol : {u"Salon A/2012/31.12.2012 - Gece", u"Salon A/2013/01.01.2013 - Gece",
                                 u"Salon B/2013/02.01.2013 - Gece"})
        KayitKoy(agac, Metin(yol));
    Prog();
    UyarilarOlmali({u"02.01.2013 - Gece Kesin", u"31.12.2012 - Gece Kesin", u"01.01.2013 - Gece Kesin"});
}

TEST_F(UyariTest, Days_that_are_no_number_count_as_0_and_warn_of_nothing) {
    AyarKoy(27, u"\"çok\"");
    RezervasyonKoy(u"16.06.2012 - Gece", {}, true);
    Prog();
    UyarilarOlmali({});
}

// What a file doesn't fill stays from the names before it.
TEST_F(UyariTest, Firm_reservations_may_be_warned_of_earlier_than_the_others) {
    AyarKoy(26, u"\"20\"");
    RezervasyonKoy(u"04.07.2012 - Gece");
    RezervasyonKoy(u"04.07.2012 - Gündüz", {}, true);
    Prog();
    UyarilarOlmali({u"04.07.2012 - Gece Kesin"});
}

TEST_F(UyariTest, Events_run_between_the_scan_of_the_table_and_the_list) {
    RezervasyonKoy(u"16.06.2012 - Gece");
    Prog();
    int tur = kullanici.ortam.olaySayisi;
    Tablo().Command1();
    tur = kullanici.ortam.olaySayisi - tur; // of the scan itself
    // What happens in the turn behind these is seen by the list.
    kullanici.ortam.olayda = [&](int) {
        if (tur-- > 0)
            return;
        std::filesystem::remove(agac.Yol(u"Salon A/2012/16.06.2012 - Gece"));
        std::filesystem::remove(agac.Yol(u"Salon A/2012/16.06.2012 - Gece-Detay"));
    };
    KutuBekle(Metin(kYok));
    Tablo().UyariGoster();
    UyarilarOlmali({});
}

TEST_F(UyariTest, A_record_without_details_is_what_the_one_before_it_was_on_purpose) {
    RezervasyonKoy(u"02.02.2012 - Gündüz", {}, true);
    agac.KoyMetin(u"Salon A/2012/16.06.2012 - Gece", AnaMetni());
    Prog();
    UyarilarOlmali({u"16.06.2012 - Gece Ön"});
}

TEST_F(UyariTest, Asked_for_with_nothing_near_a_box_says_so_and_the_panel_stays_as_it_is) {
    Prog();
    Tablo().Picture1.gorunur = true;
    KutuBekle(Metin(kYok));
    Tablo().UyariGoster();
    EXPECT_TRUE(Tablo().Picture1.gorunur);
    Tablo().Activate();
    EXPECT_FALSE(Tablo().Picture1.gorunur);
}

TEST_F(UyariTest, The_box_of_an_empty_list_comes_with_the_panel_hidden_too) {
    Prog();
    Tablo().Activate();
    ASSERT_FALSE(Tablo().Picture1.gorunur);
    KutuBekle(Metin(kYok));
    Tablo().UyariGoster();
    EXPECT_FALSE(Tablo().Picture1.gorunur);
}

TEST_F(UyariTest, A_row_opens_its_record_in_its_hall_and_year) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    kullanici.ortam.simdi = std::chrono::local_days(std::chrono::year{2012} / 12 / 30);
    KayitKoy(agac, u"Salon B/2013/02.01.2013 - Gece");
    Prog();
    Metin tarih;
    Tablo().Liste_DblClick(); // no row was clicked yet
    Isaretle(0);
    EkranBekle(EkranAdi::FormKayit, [&] {
        tarih = Kayit().Tarih;
        EXPECT_EQ(Kayit().baslik, u"Kayıt Düzenle");
        EXPECT_FALSE(Tablo().Command8.etkin);
        KapataBas();
    });
    Tablo().Liste_DblClick();
    EXPECT_EQ(tarih, u"02.01.2013 - Gece");
    EXPECT_EQ(Tablo().Salon.Metni(), u"Salon B");
    EXPECT_EQ(Tablo().Sene.Metni(), u"2013");
    Tablo().Liste_DblClick(); // the row is marked still, and wants another click
}

TEST_F(UyariTest, A_row_whose_hall_is_gone_or_renamed_opens_nothing_and_leaves_the_table_where_it_is) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    KayitKoy(agac, u"Salon B/2012/17.06.2012 - Gece");
    Prog();
    Tablo().Salon.ogeler[1] = u"Salon C";
    Isaretle(0);
    Tablo().Command8_Click();
    EXPECT_FALSE(Prog().FormKayit.Yuklu());
    EXPECT_EQ(Tablo().Salon.Metni(), u"Salon A");
    Tablo().Salon.ogeler[1] = u"Salon B";
    Isaretle(0);
    EkranBekle(EkranAdi::FormKayit, [&] { KapataBas(); });
    Tablo().Command8_Click();
}

TEST_F(UyariTest, With_no_row_marked_nothing_opens) {
    RezervasyonKoy(u"16.06.2012 - Gece");
    Prog();
    Tablo().Command8_Click();
    EXPECT_FALSE(Prog().FormKayit.Yuklu());
}

TEST_F(UyariTest, A_save_lists_a_visible_panel_anew_and_leaves_a_hidden_one_alone) {
    RezervasyonKoy(u"16.06.2012 - Gece");
    Prog();
    const auto ertele = [this](const Is& bekle) {
        KayitAc(
            [&] {
                Tikla(Kayit().Check18);
                bekle();
                KaydeteBas();
            },
            u"16.06.2012 - Gece");
    };
    ertele([this] { KutuBekle(Metin(kYok)); });
    UyarilarOlmali({});
    VELORA_BAS(kullanici.Prog().FormTablo, Command2);
    EXPECT_FALSE(Tablo().Picture1.gorunur);
    ertele([] {});
    UyarilarOlmali({});
}

TEST_F(UyariTest, A_cancelled_reservation_keeps_its_row_until_the_panel_is_listed_anew_on_purpose) {
    RezervasyonKoy(u"16.06.2012 - Gece");
    Prog();
    ASSERT_TRUE(Tablo().Picture1.gorunur);
    ASSERT_TRUE(kullanici.SagTikla({16, 6, kGece}));
    KutuBekle(u"Seçili kaydı silmek istediğinizden emin misiniz?", Cevap::Evet, Simge::Soru);
    kullanici.ortam.Bekle(
        BeklenenGirdi{.baslik = u"İptal Sebebi", .metin = u"İptal sebebini yazınız!", .cevap = u"x"});
    kullanici.KomutSec(Komut::iptals);
    EXPECT_FALSE(AnaVar(u"16.06.2012 - Gece"));
    UyarilarOlmali({u"16.06.2012 - Gece Kesin"});
    EXPECT_TRUE(Tablo().Picture1.gorunur);
    KutuBekle(Metin(kYok));
    Tablo().UyariGoster();
    UyarilarOlmali({});
}

TEST_F(UyariTest, A_record_with_both_states_gives_two_rows_on_purpose) {
    RezervasyonKoy(u"17.06.2012 - Gece");
    Metin detay = DetayMetni(false);
    const Metin yazili = u"\"1\",\"0\"";
    detay.replace(detay.find(yazili), yazili.size(), u"\"1\",\"1\"");
    agac.KoyMetin(u"Salon A/2012/17.06.2012 - Gece-Detay", detay);
    Prog();
    UyarilarOlmali({u"17.06.2012 - Gece Kesin", u"17.06.2012 - Gece Ön"});
}

TEST_F(UyariTest,
       The_first_of_February_comes_before_the_second_of_January_on_purpose_for_names_are_the_order) {
    AyarKoy(26, u"\"60\"");
    kullanici.ortam.simdi = std::chrono::local_days(std::chrono::year{2012} / 12 / 30);
    KayitKoy(agac, u"Salon A/2013/02.01.2013 - Gece");
    KayitKoy(agac, u"Salon A/2013/01.02.2013 - Gece");
    Prog();
    UyarilarOlmali({u"01.02.2013 - Gece Kesin", u"02.01.2013 - Gece Kesin"});
}

TEST_F(UyariTest, A_name_without_a_date_counts_the_days_of_the_name_before_it_on_purpose) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    RezervasyonKoy(u"10.kopya");
    Prog();
    UyarilarOlmali({}); // nothing stands before it
    RezervasyonKoy(u"17.06.2012 - Gece");
    RezervasyonKoy(u"18.kopya");
    KayitKoy(agac, u"Salon B/2012/10.kopya");
    Tablo().UyariGoster();
    UyarilarOlmali({u"17.06.2012 - Gece Kesin", u"18.kopya Kesin", u"10.kopya Kesin"});
    EXPECT_EQ(Tablo().Liste.satirlar[2].sutun[1], u"Salon B") << "also across halls";
}

TEST_F(UyariTest, A_day_that_no_month_of_another_year_has_counts_as_the_one_before_it_on_purpose) {
    RezervasyonKoy(u"17.06.2012 - Gece");
    KayitKoy(agac, u"Salon A/2013/30.02.2011 - Gece");
    Prog();
    UyarilarOlmali({u"17.06.2012 - Gece Kesin", u"30.02.2011 - Gece Kesin"});
    RezervasyonKoy(u"28.02.2011 - Gece");
    Tablo().UyariGoster();
    UyarilarOlmali({u"17.06.2012 - Gece Kesin"});
}

TEST_F(UyariTest, A_name_without_a_date_counts_the_days_of_a_folder_before_it_in_which_nothing_is_near) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n\"Salon C\"\r\n");
    RezervasyonKoy(u"17.06.2012 - Gece");
    KayitKoy(agac, u"Salon A/2013/17.06.2013 - Gece");
    KayitKoy(agac, u"Salon B/2012/17.06.2012 - Gece");
    KayitKoy(agac, u"Salon B/2012/18.kopya");
    KayitKoy(agac, u"Salon B/2013/17.06.2013 - Gece");
    KayitKoy(agac, u"Salon C/2012/10.kopya");
    Prog();
    UyarilarOlmali({u"17.06.2012 - Gece Kesin", u"17.06.2012 - Gece Kesin", u"18.kopya Kesin"});
    EXPECT_EQ(Tablo().Liste.satirlar[1].sutun[1], u"Salon B") << "a day that was near before is near again";
}

TEST_F(UyariTest, The_row_of_a_cancelled_reservation_opens_nothing_on_purpose_and_leaves_no_ghost) {
    RezervasyonKoy(u"16.06.2012 - Gece");
    Prog();
    RezervasyonSil(Prog().dosyalar, Yol(u"16.06.2012 - Gece"));
    Tablo().Command1();
    Isaretle(0);
    Tablo().Command8_Click();
    EXPECT_FALSE(Prog().FormKayit.Yuklu());
    EXPECT_FALSE(Tablo().Command8.etkin);
    EkranBekle(EkranAdi::FormKayit, [&] {
        EXPECT_EQ(Kayit().baslik, u"Yeni Kayıt");
        EXPECT_EQ(Kayit().Tag, u"");
        EXPECT_EQ(Kayit().KayitAc, 0);
    });
    ASSERT_TRUE(kullanici.SagTikla({20, 6, kGece}));
    kullanici.KomutSec(Komut::newkay);
}

TEST_F(UyariTest, A_save_that_empties_the_panel_leaves_it_standing_on_purpose_until_the_table_is_in_front) {
    RezervasyonKoy(u"16.06.2012 - Gece");
    Prog();
    int kutudan = 0;
    kullanici.ortam.olayda = [&](int) {
        if (Tablo().Liste.satirlar.empty() && Tablo().Picture1.gorunur)
            ++kutudan;
    };
    EkranBekle(EkranAdi::FormKayit, [&] {
        Tikla(Kayit().Check18);
        KutuBekle(Metin(kYok));
        KaydeteBas();
        EXPECT_TRUE(Tablo().Picture1.gorunur);
        EXPECT_TRUE(Tablo().Liste.satirlar.empty());
    });
    Isaretle(0);
    Tablo().Command8_Click();
    EXPECT_GT(kutudan, 0);
    EXPECT_FALSE(Tablo().Picture1.gorunur);
}

TEST_F(UyariTest, At_the_start_nothing_near_is_said_of_by_no_box_and_the_tool_bar_says_so_in_one) {
    Prog(); // no box is expected
    EXPECT_FALSE(Tablo().Picture1.gorunur);
    KutuBekle(Metin(kYok));
    Tablo().AracaTikla(u" Uyarılar");
}

TEST_F(UyariTest, A_tree_of_which_nothing_can_be_read_warns_of_nothing) {
    RezervasyonKoy(u"16.06.2012 - Gece");
    Prog().dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Oku; };
    KutuBekle(Metin(kYok));
    Tablo().UyariGoster();
    UyarilarOlmali({});
}

} // namespace velora::test
