// The pointer over a cell and a press on it.
#include "table/TabloTest.h"

namespace velora::test {

class GozIslemleri : public TabloTest {
  protected:
    /// Which of the two entries a right press on the cell offers.
    void MenuOlmali(const TabloGozu& goz, bool yeni) {
        EXPECT_TRUE(kullanici.SagTikla(goz));
        EXPECT_EQ(kullanici.Tablo().Girdi(Komut::newkay).etkin, yeni) << goz.gun << '.' << goz.ay;
        EXPECT_EQ(kullanici.Tablo().Girdi(Komut::iptals).etkin, !yeni) << goz.gun << '.' << goz.ay;
        EXPECT_TRUE(kullanici.Tablo().Girdi(Komut::TasimaModuAc).etkin);
    }
};

TEST_F(GozIslemleri, Hover_label_has_the_date_then_a_blank_the_weekday_the_slot_and_a_blank) {
    kullanici.ProgramiAc();
    kullanici.Uzerine({5, 1, kGunduz});
    EXPECT_EQ(kullanici.Tablo().Ekran.baslik, u"05.01.2012\n Perşembe - Gündüz ");
    EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"05.01.2012 - Gündüz");
    EXPECT_TRUE(kullanici.Tablo().Ekran.gorunur);
    kullanici.Uzerine({31, 12, kGece});
    EXPECT_EQ(kullanici.Tablo().Ekran.baslik, u"31.12.2012\n Pazartesi - Gece ");
    EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"31.12.2012 - Gece");
}

TEST_F(GozIslemleri, Each_of_the_twenty_four_rows_names_its_own_month_and_slot) {
    kullanici.ProgramiAc();
    const std::array<MetinBakis, 12> aylar{u".01.", u".02.", u".03.", u".04.", u".05.", u".06.",
                                           u".07.", u".08.", u".09.", u".10.", u".11.", u".12."};
    for (int satir = 0; satir < kSatirSayisi; ++satir) {
        kullanici.Tablo().Hucre_MouseMove(static_cast<SatirAdi>(satir), 9);
        const Metin beklenen = u"09" + Metin(aylar[static_cast<std::size_t>(satir / 2)]) + u"2012" +
                               (satir % 2 == 0 ? u" - Gündüz" : u" - Gece");
        EXPECT_EQ(kullanici.Tablo().SeciliTarih, beklenen);
    }
}

TEST_F(GozIslemleri, Hover_label_stands_a_hundred_twips_within_the_lower_right_corner_of_its_cell) {
    kullanici.ProgramiAc();
    kullanici.Uzerine({17, 4, kGece});
    const Yer goz = kullanici.Tablo().HucreYeri(NisanGece, 17);
    EXPECT_DOUBLE_EQ(kullanici.Tablo().Ekran.yer.sol, goz.sol + goz.genislik - 100);
    EXPECT_DOUBLE_EQ(kullanici.Tablo().Ekran.yer.ust, goz.ust + goz.yukseklik - 100);
}

TEST_F(GozIslemleri, With_details_off_the_hover_label_is_never_shown_and_the_selected_day_still_follows) {
    AyarKoy(32, u"0");
    kullanici.ProgramiAc();
    kullanici.Uzerine({5, 1, kGunduz});
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
    EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"05.01.2012 - Gündüz");
    kullanici.Uzerine({6, 1, kGunduz});
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
    EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"06.01.2012 - Gündüz");
}

TEST_F(GozIslemleri,
       Switching_details_off_leaves_a_shown_label_until_the_pointer_leaves_the_cells_on_purpose) {
    kullanici.ProgramiAc();
    kullanici.Uzerine({5, 1, kGunduz});
    kullanici.Prog().FormAyarlar->Check6.Ata(0);
    kullanici.Uzerine({6, 1, kGunduz});
    EXPECT_TRUE(kullanici.Tablo().Ekran.gorunur);
    EXPECT_EQ(kullanici.Tablo().Ekran.baslik, u"06.01.2012\n Cuma - Gündüz ");
    kullanici.ImleciBosaGotur();
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
    kullanici.Uzerine({7, 1, kGunduz});
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
}

TEST_F(GozIslemleri, Value_of_the_details_box_that_is_neither_on_nor_off_shows_no_label) {
    AyarKoy(32, u"2");
    kullanici.ProgramiAc();
    kullanici.Uzerine({5, 1, kGunduz});
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
}

TEST_F(GozIslemleri, Right_press_on_a_weekday_or_a_weekend_offers_a_new_reservation_and_no_cancellation) {
    kullanici.ProgramiAc();
    for (const auto dilim : {kGunduz, kGece}) {
        MenuOlmali({18, 6, dilim}, true);
        MenuOlmali({16, 6, dilim}, true); // Saturday
        MenuOlmali({17, 6, dilim}, true); // Sunday
    }
}

TEST_F(GozIslemleri, Right_press_on_a_holiday_offers_a_new_reservation_until_it_holds_one) {
    agac.KoyMetin(u"Tatiller.dll", u"\"29.10.2000\",\"Cumhuriyet Bayramı\",\"Evet\",\"Genel\"\r\n");
    RezervasyonKoy(u"29.10.2012 - Gece");
    kullanici.ProgramiAc();
    MenuOlmali({29, 10, kGunduz}, true);
    MenuOlmali({29, 10, kGece}, false);
    RenkOlmali(29, 10, kGece, 12, 13);
}

TEST_F(GozIslemleri, Right_press_on_a_firm_or_a_pre_reservation_offers_its_cancellation) {
    for (const bool on : {false, true})
        for (const Metin& dilim : {Metin(u"Gündüz"), Metin(u"Gece")})
            RezervasyonKoy((on ? u"20.06.2012 - " : u"21.06.2012 - ") + dilim, {}, on);
    kullanici.ProgramiAc();
    for (const int gun : {20, 21})
        for (const auto dilim : {kGunduz, kGece})
            MenuOlmali({gun, 6, dilim}, false);
}

TEST_F(GozIslemleri, Past_days_offer_only_the_cancellation_even_a_free_past_day) {
    AyarKoy(28, u"1");
    RezervasyonKoy(u"10.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    MenuOlmali({10, 6, kGunduz}, false);
    MenuOlmali({11, 6, kGunduz}, false);
    MenuOlmali({3, 2, kGece}, false);
    MenuOlmali({15, 6, kGunduz}, true);
}

TEST_F(GozIslemleri, Taken_day_in_the_colour_of_a_free_day_counts_as_free_on_purpose) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    kullanici.Prog().FormAyarlar->renkler[6] = kullanici.Prog().FormAyarlar->Renk(2);
    kullanici.Tablo().Command1();
    MenuOlmali({20, 6, kGunduz}, true);
    // The other row has its own colours.
    MenuOlmali({20, 6, kGece}, true);
}

TEST_F(GozIslemleri, Free_colour_of_the_other_row_is_no_free_colour_on_purpose) {
    kullanici.ProgramiAc();
    kullanici.Goz(20, 6, kGece).zemin = kullanici.Prog().FormAyarlar->Renk(2);
    MenuOlmali({20, 6, kGece}, false);
}

TEST_F(GozIslemleri,
       Dropped_colour_leaves_its_free_days_without_a_new_reservation_until_the_next_scan_on_purpose) {
    kullanici.ProgramiAc();
    kullanici.Prog().FormAyarlar->renkler[2] = 0x123456;
    kullanici.Tablo().Command1();
    MenuOlmali({20, 6, kGunduz}, true);
    kullanici.Prog().FormAyarlar.Bosalt();
    MenuOlmali({20, 6, kGunduz}, false);
    kullanici.Tablo().Command1();
    MenuOlmali({20, 6, kGunduz}, true);
}

TEST_F(GozIslemleri, Any_button_decides_on_the_entries_and_only_the_right_one_opens_the_menu) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    kullanici.Uzerine({20, 6, kGunduz});
    EXPECT_FALSE(kullanici.Tablo().Hucre_MouseDown(HaziranGunduz, 20, false));
    EXPECT_FALSE(kullanici.Tablo().Girdi(Komut::newkay).etkin);
    EXPECT_TRUE(kullanici.Tablo().Girdi(Komut::iptals).etkin);
    EXPECT_TRUE(kullanici.Tablo().Hucre_MouseDown(HaziranGunduz, 20, true));
}

TEST_F(GozIslemleri, Press_freezes_the_selected_day_and_moving_on_leaves_it_there) {
    kullanici.ProgramiAc();
    kullanici.SagTikla({20, 6, kGunduz});
    kullanici.Uzerine({21, 6, kGece});
    EXPECT_EQ(kullanici.Tablo().SeciliTarih2, u"20.06.2012 - Gündüz");
    EXPECT_EQ(kullanici.Tablo().SeciliTarih, u"21.06.2012 - Gece");
}

TEST_F(GozIslemleri, Menu_has_its_three_entries_under_their_captions) {
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Tablo().Girdi(Komut::newkay).baslik, u"Yeni Organizasyon Oluştur");
    EXPECT_EQ(kullanici.Tablo().Girdi(Komut::TasimaModuAc).baslik, u"Taşıma Modunu Aç");
    EXPECT_EQ(kullanici.Tablo().Girdi(Komut::iptals).baslik, u"Kayıt İptali");
}

TEST_F(GozIslemleri, Press_brings_back_no_entry_that_is_closed_to_the_user_whatever_the_cell_is) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    kullanici.ProgramiAc();
    for (const MetinBakis girdi : {u"newkay", u"TasimaModuAc"})
        kullanici.Prog().oturum.Kapat({.girdi = girdi, .cizgi = u"aline11"});
    kullanici.Tablo().Activate();
    for (const int gun : {20, 21}) { // taken, free
        EXPECT_TRUE(kullanici.SagTikla({gun, 6, kGece})) << "the cancellation is still there";
        for (const Komut komut : {Komut::newkay, Komut::aline11, Komut::TasimaModuAc})
            EXPECT_FALSE(kullanici.Tablo().Girdi(komut).gorunur);
        EXPECT_TRUE(kullanici.Tablo().Girdi(Komut::iptals).gorunur);
        EXPECT_EQ(kullanici.Tablo().Girdi(Komut::iptals).etkin, gun == 20);
    }
}

TEST_F(GozIslemleri, Menu_of_which_nothing_is_left_does_not_open) {
    kullanici.ProgramiAc();
    kullanici.Prog().oturum.Kapat({.girdi = u"newkay", .cizgi = u"aline11"});
    kullanici.Prog().oturum.Kapat({.girdi = u"TasimaModuAc", .cizgi = u"aline11"});
    kullanici.Tablo().Activate();
    EXPECT_TRUE(kullanici.SagTikla({21, 6, kGece}));
    kullanici.Prog().oturum.Kapat({.girdi = u"iptals"});
    kullanici.Tablo().Activate();
    EXPECT_FALSE(kullanici.SagTikla({21, 6, kGece})) << "a line alone is nothing to choose";
    EXPECT_EQ(kullanici.Tablo().SeciliTarih2, u"21.06.2012 - Gece");
}

TEST_F(GozIslemleri, Click_on_a_cell_ends_the_ruler) {
    kullanici.ProgramiAc();
    kullanici.AyBasligina(3);
    kullanici.GunBasligina(5);
    kullanici.Goze();
    EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur);
    EXPECT_EQ(kullanici.Tablo().HizliAy, 0);
}

} // namespace velora::test
