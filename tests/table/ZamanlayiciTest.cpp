#include "access/Splash.h"
#include "table/TabloTest.h"

namespace velora::test {

class TabloZamanlayici : public TabloTest {
  protected:
    bool BuGunGorunur() { return kullanici.Tablo().BuGun.gorunur; }
    int GunAraligi() { return kullanici.Tablo().GunTimer.aralik; }
};

TEST_F(TabloZamanlayici, Slow_clock_starts_the_check_at_its_fourth_tick_and_then_at_every_fourth_on_purpose) {
    kullanici.ProgramiAc();
    FormTablo& tablo = kullanici.Tablo();
    for (int tur = 0; tur < 2; ++tur) {
        for (int tik = 1; tik <= 3; ++tik) {
            tablo.Saatsay.Calis();
            EXPECT_EQ(tablo.DuyuruKontrol.aralik, 0);
            EXPECT_EQ(tablo.Dklabel, tik);
        }
        tablo.Saatsay.Calis();
        EXPECT_EQ(tablo.DuyuruKontrol.aralik, 2'500);
        EXPECT_EQ(tablo.Dklabel, 0);
        tablo.DuyuruKontrol.Calis();
        EXPECT_EQ(tablo.DuyuruKontrol.aralik, 0) << "one shot";
    }
}

TEST_F(TabloZamanlayici, First_check_comes_after_about_two_hundred_seconds) {
    kullanici.ProgramiAc();
    kullanici.ZamanGecir(199'000);
    EXPECT_EQ(kullanici.Tablo().Dklabel, 3);
    kullanici.ZamanGecir(1'500);
    EXPECT_EQ(kullanici.Tablo().DuyuruKontrol.aralik, 2'500);
}

TEST_F(TabloZamanlayici, Todays_frame_is_steady_from_the_first_layout_though_today_may_be_taken_on_purpose) {
    RezervasyonKoy(u"15.06.2012 - Gece");
    kullanici.ProgramiAc();
    EXPECT_TRUE(BuGunGorunur());
    EXPECT_EQ(GunAraligi(), 0) << "only a save, a move or a cancellation asks whether today is taken";
}

TEST_F(TabloZamanlayici, Frame_blinks_when_one_slot_of_today_is_taken_and_is_steady_when_none) {
    for (const MetinBakis ad : {u"15.06.2012 - Gece", u"15.06.2012 - Gündüz"}) {
        RezervasyonKoy(Metin(ad));
        kullanici.ProgramiAc();
        kullanici.Tablo().Command6();
        EXPECT_EQ(GunAraligi(), 300);
        kullanici.ZamanGecir(300);
        EXPECT_FALSE(BuGunGorunur());
        kullanici.ZamanGecir(300);
        EXPECT_TRUE(BuGunGorunur());
        std::filesystem::remove(agac.Yol(u"Salon A/2012/" + Metin(ad)));
        kullanici.Tablo().Command6();
        EXPECT_EQ(GunAraligi(), 0);
        EXPECT_TRUE(BuGunGorunur());
    }
}

TEST_F(TabloZamanlayici, Change_of_hall_does_not_ask_whether_today_is_taken_on_purpose) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    RezervasyonKoy(u"15.06.2012 - Gece");
    kullanici.ProgramiAc();
    kullanici.Tablo().Command6();
    kullanici.SalonSec(u"Salon B");
    EXPECT_EQ(GunAraligi(), 300);
}

TEST_F(TabloZamanlayici, Frame_is_hidden_in_another_year_and_comes_back_only_with_the_pointer_on_purpose) {
    kullanici.ProgramiAc();
    kullanici.YilSec(u"2013");
    EXPECT_FALSE(BuGunGorunur());
    kullanici.ImleciBosaGotur();
    EXPECT_FALSE(BuGunGorunur());
    kullanici.YilSec(u"2012");
    EXPECT_FALSE(BuGunGorunur());
    kullanici.ImleciBosaGotur();
    EXPECT_TRUE(BuGunGorunur());
}

TEST_F(TabloZamanlayici, Running_timer_shows_nothing_in_another_year_and_brings_the_frame_back_in_this_one) {
    RezervasyonKoy(u"15.06.2012 - Gece");
    kullanici.ProgramiAc();
    kullanici.Tablo().Command6();
    kullanici.YilSec(u"2013");
    kullanici.ZamanGecir(900);
    EXPECT_FALSE(BuGunGorunur());
    kullanici.YilSec(u"2012");
    kullanici.ImleciBosaGotur();
    EXPECT_FALSE(BuGunGorunur()) << "the pointer leaves a running timer alone";
    kullanici.ZamanGecir(300);
    EXPECT_TRUE(BuGunGorunur());
}

TEST_F(TabloZamanlayici, A_tick_in_another_year_leaves_the_frame_as_it_is_shown_or_hidden) {
    agac.KoyMetin(u"Salon A/2013/15.06.2012 - Gece", AnaMetni());
    kullanici.ProgramiAc();
    kullanici.YilSec(u"2013");
    kullanici.Tablo().Command6();
    EXPECT_EQ(GunAraligi(), 300);
    for (const bool gorunen : {true, false}) {
        kullanici.Tablo().BuGun.gorunur = gorunen;
        for (int tik = 0; tik < 3; ++tik) {
            kullanici.ZamanGecir(300);
            EXPECT_EQ(BuGunGorunur(), gorunen) << tik;
        }
    }
}

TEST_F(TabloZamanlayici, Todays_slots_are_looked_for_in_the_folder_of_the_selected_year_on_purpose) {
    agac.KoyMetin(u"Salon A/2013/15.06.2012 - Gece", AnaMetni());
    kullanici.ProgramiAc();
    kullanici.Tablo().Command6();
    EXPECT_EQ(GunAraligi(), 0);
    kullanici.YilSec(u"2013");
    kullanici.Tablo().Command6();
    EXPECT_EQ(GunAraligi(), 300);
    kullanici.YilSec(u"2014");
    kullanici.Tablo().Command6();
    EXPECT_EQ(GunAraligi(), 0);
}

// After a save in another year the frame shows until the next bare pointer move.
TEST_F(TabloZamanlayici, Asking_whether_today_is_taken_shows_the_frame_in_another_year_too_on_purpose) {
    kullanici.ProgramiAc();
    kullanici.YilSec(u"2013");
    kullanici.Tablo().Command6();
    EXPECT_TRUE(BuGunGorunur());
    kullanici.ImleciBosaGotur();
    EXPECT_FALSE(BuGunGorunur());
}

class GeceYarisi : public TabloZamanlayici {
  protected:
    void YarinOlsun(int gun = 1) { kullanici.ortam.simdi += std::chrono::days(gun); }
    void CerceveOlmali(int ay, int gun) {
        const FormTablo& tablo = kullanici.Tablo();
        EXPECT_EQ(tablo.BuGun.ay, ay);
        EXPECT_EQ(tablo.BuGun.gun, gun);
        EXPECT_EQ(tablo.BuGun.yer.sol, tablo.Gunler[gun].yer.sol);
        EXPECT_EQ(tablo.BuGun.yer.ust, tablo.satirlar[Satir(ay, kGece)].ust + 10);
    }
};

TEST_F(GeceYarisi, The_slow_clock_notices_the_new_day_and_places_the_frame_anew) {
    kullanici.ProgramiAc();
    kullanici.ZamanGecir(50'000);
    CerceveOlmali(6, 15);
    YarinOlsun(16);
    CerceveOlmali(6, 15);
    kullanici.ZamanGecir(50'000);
    CerceveOlmali(7, 1);
    EXPECT_TRUE(BuGunGorunur());
}

TEST_F(GeceYarisi, The_colours_of_cells_stay_until_the_next_scan_on_purpose) {
    AyarKoy(28, u"1"); // past days are painted
    kullanici.ProgramiAc();
    const RenkDegeri once = kullanici.Goz(15, 6, kGece).zemin;
    YarinOlsun();
    kullanici.ZamanGecir(50'000);
    EXPECT_EQ(kullanici.Goz(15, 6, kGece).zemin, once);
    kullanici.Tablo().Command1();
    EXPECT_NE(kullanici.Goz(15, 6, kGece).zemin, once);
}

TEST_F(GeceYarisi, A_frame_that_blinked_for_yesterday_is_steady_on_the_new_day) {
    RezervasyonKoy(u"15.06.2012 - Gece");
    kullanici.ProgramiAc();
    kullanici.Tablo().Command6();
    kullanici.ZamanGecir(300);
    EXPECT_FALSE(BuGunGorunur());
    YarinOlsun();
    kullanici.Tablo().Saatsay.Calis();
    EXPECT_EQ(GunAraligi(), 0);
    EXPECT_TRUE(BuGunGorunur());
}

TEST_F(GeceYarisi, The_same_day_leaves_a_blinking_frame_alone) {
    RezervasyonKoy(u"15.06.2012 - Gece");
    kullanici.ProgramiAc();
    kullanici.Tablo().Command6();
    kullanici.ZamanGecir(300);
    kullanici.Tablo().Saatsay.Calis();
    EXPECT_EQ(GunAraligi(), 300);
    EXPECT_FALSE(BuGunGorunur());
}

TEST_F(GeceYarisi, A_change_that_comes_before_the_tick_blinks_the_right_day) {
    RezervasyonKoy(u"16.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    YarinOlsun();
    kullanici.Tablo().DegisikligiGoster();
    CerceveOlmali(6, 16);
    EXPECT_EQ(GunAraligi(), 300);
}

TEST_F(GeceYarisi, On_New_Year_the_table_of_the_old_year_has_no_frame_any_more) {
    kullanici.ProgramiAc();
    YarinOlsun(200);
    kullanici.ZamanGecir(50'000);
    EXPECT_FALSE(BuGunGorunur());
    kullanici.YilSec(u"2013");
    kullanici.ImleciBosaGotur();
    EXPECT_TRUE(BuGunGorunur());
    CerceveOlmali(1, 1);
}

TEST_F(TabloZamanlayici, Pointer_on_the_bare_screen_hides_the_hover_label) {
    kullanici.ProgramiAc();
    kullanici.Tablo().Ekran.gorunur = true;
    kullanici.ImleciBosaGotur();
    EXPECT_FALSE(kullanici.Tablo().Ekran.gorunur);
}

} // namespace velora::test
