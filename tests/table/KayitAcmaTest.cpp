// The screen of a reservation, opened from a cell.
#include "reservation/FormKayit.h"
#include "table/TabloTest.h"

namespace velora::test {

class KayitAcma : public TabloTest {
  protected:
    /// The screen of the reservation is expected next. What `bak` sees while it is open; it is then closed
    /// without saving.
    void AcilincaBak(const std::function<void(FormKayit&)>& bak) {
        kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormKayit, [this, bak] {
                                                bak(*kullanici.Prog().FormKayit.Tut());
                                                kullanici.Prog().FormKayit.Bosalt();
                                            }});
    }
    void YeniKayit(const TabloGozu& goz) {
        ASSERT_TRUE(kullanici.SagTikla(goz));
        ASSERT_TRUE(kullanici.Tablo().Girdi(Komut::newkay).etkin);
        kullanici.KomutSec(Komut::newkay);
    }
};

TEST_F(KayitAcma, Double_click_opens_the_reservation_of_the_cell_with_its_day_as_heading) {
    RezervasyonKoy(u"20.06.2012 - Gece", {.ad = u"Şükran Öz"});
    kullanici.ProgramiAc();
    AcilincaBak([](const FormKayit& kayit) {
        EXPECT_EQ(kayit.KayitAc, 1);
        EXPECT_EQ(kayit.Kay[1].metin, u"Şükran Öz");
        EXPECT_EQ(kayit.Tarih, u"20.06.2012 - Gece");
        EXPECT_TRUE(kayit.Tag.ends_with(u"\\Salon A\\2012\\20.06.2012 - Gece"));
    });
    kullanici.CiftTikla({20, 6, kGece});
}

TEST_F(KayitAcma, A_second_opening_does_nothing_wherever_it_comes_into_the_load_of_the_first) {
    RezervasyonKoy(u"20.06.2012 - Gece", {.ad = u"Şükran Öz"});
    RezervasyonKoy(u"22.07.2012 - Gündüz", {.ad = u"Başkası"});
    kullanici.ProgramiAc();
    int araya = 0;
    const auto herOlayda = [&](int) {
        ++araya;
        kullanici.Tablo().SeciliTarih = u"23.08.2012 - Gece";
        kullanici.Tablo().newkay_Click();
        kullanici.CiftTikla({22, 7, kGunduz});
    };
    for (const bool yeni : {true, false}) {
        AcilincaBak([&](const FormKayit& kayit) {
            kullanici.ortam.olayda = {};
            EXPECT_EQ(kayit.Tarih, yeni ? u"24.09.2012 - Gündüz" : u"20.06.2012 - Gece");
            EXPECT_EQ(kayit.Kay[AnaNo::AdiSoyadi].metin, yeni ? u"" : u"Şükran Öz");
        });
        if (yeni) {
            ASSERT_TRUE(kullanici.SagTikla({24, 9, kGunduz}));
        }
        kullanici.ortam.olayda = herOlayda;
        if (yeni)
            kullanici.KomutSec(Komut::newkay);
        else
            kullanici.CiftTikla({20, 6, kGece});
    }
    EXPECT_GE(araya, 2) << "nothing came in between";
}

TEST_F(KayitAcma, Double_click_on_a_free_cell_does_nothing) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    kullanici.ProgramiAc();
    kullanici.CiftTikla({20, 6, kGunduz});
    kullanici.CiftTikla({21, 6, kGece});
    EXPECT_FALSE(kullanici.Prog().FormKayit.Yuklu());
}

TEST_F(KayitAcma, Double_click_goes_by_the_file_so_a_past_reservation_opens_and_a_past_free_day_does_not) {
    AyarKoy(28, u"1");
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    kullanici.ProgramiAc();
    RenkOlmali(5, 1, kGunduz, 17, 18);
    kullanici.CiftTikla({6, 1, kGunduz});
    AcilincaBak([](const FormKayit& kayit) { EXPECT_EQ(kayit.Tarih, u"05.01.2012 - Gündüz"); });
    kullanici.CiftTikla({5, 1, kGunduz});
}

TEST_F(KayitAcma, Double_click_opens_a_file_that_came_after_the_last_scan) {
    kullanici.ProgramiAc();
    RezervasyonKoy(u"20.06.2012 - Gece");
    AcilincaBak([](const FormKayit&) {});
    kullanici.CiftTikla({20, 6, kGece});
}

TEST_F(KayitAcma, Failed_opening_leaves_no_ghost_behind_for_the_next_new_reservation) {
    agac.KoyMetin(u"Salon A/2012/20.06.2012 - Gece", AnaMetni({.ad = u"Ayrıntısız"}));
    kullanici.ProgramiAc();
    kullanici.CiftTikla({20, 6, kGece});
    AcilincaBak([](const FormKayit& kayit) {
        EXPECT_EQ(kayit.baslik, u"Yeni Kayıt");
        EXPECT_EQ(kayit.KayitAc, 0);
        EXPECT_EQ(kayit.Kay[1].metin, u"");
        EXPECT_EQ(kayit.Tag, u"");
    });
    YeniKayit({21, 6, kGece});
}

TEST_F(KayitAcma, New_reservation_starts_at_eleven_in_the_day_row_and_at_eight_in_the_evening_row) {
    kullanici.ProgramiAc();
    const auto bekle = [this](MetinBakis tarih, MetinBakis saat) {
        AcilincaBak([tarih, saat](const FormKayit& kayit) {
            EXPECT_EQ(kayit.Tarih, tarih);
            EXPECT_EQ(kayit.Kay[12].metin, saat);
            EXPECT_EQ(kayit.KayitAc, 0);
        });
    };
    bekle(u"05.07.2012 - Gündüz", u"11:00");
    YeniKayit({5, 7, kGunduz});
    bekle(u"05.07.2012 - Gece", u"20:00");
    YeniKayit({5, 7, kGece});
}

TEST_F(KayitAcma, New_reservation_has_its_price_open_also_without_the_right_to_change_amounts) {
    kullanici.ProgramiAc();
    kullanici.Tablo().TutarDegistir = 0;
    AcilincaBak([](const FormKayit& kayit) { EXPECT_FALSE(kayit.Kay[8].kilitli); });
    YeniKayit({5, 7, kGunduz});
}

TEST_F(KayitAcma, New_reservation_takes_the_day_last_moved_over_and_not_the_pressed_one_on_purpose) {
    kullanici.ProgramiAc();
    AcilincaBak([](const FormKayit& kayit) { EXPECT_EQ(kayit.Tarih, u"06.07.2012 - Gece"); });
    kullanici.SagTikla({5, 7, kGunduz});
    kullanici.Uzerine({6, 7, kGece});
    kullanici.KomutSec(Komut::newkay);
}

// The loading of the screen lets events run: a waiting movement of the mouse arrives there.
TEST_F(KayitAcma, Pointer_that_moves_on_while_the_screen_loads_leaves_a_new_reservation_on_its_day) {
    kullanici.ProgramiAc();
    ASSERT_TRUE(kullanici.SagTikla({20, 6, kGunduz}));
    kullanici.ortam.olayda = [this](int) { kullanici.Uzerine({9, 8, kGece}); };
    AcilincaBak([](const FormKayit& kayit) {
        EXPECT_EQ(kayit.Tarih, u"20.06.2012 - Gündüz");
        EXPECT_EQ(kayit.Kay[12].metin, u"11:00");
    });
    kullanici.KomutSec(Komut::newkay);
}

TEST_F(KayitAcma, Pointer_that_moves_on_while_the_screen_loads_leaves_a_record_with_its_own_payments) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    agac.KoyMetin(u"Salon A/2012/20.06.2012 - Gece-Odeme", u"\"01.01.2012\",\"100\",\"x\"\r\n");
    agac.KoyMetin(u"Salon A/2012/09.08.2012 - Gece-Odeme", u"\"01.01.2012\",\"999\",\"x\"\r\n");
    kullanici.ProgramiAc();
    kullanici.Uzerine({20, 6, kGece});
    kullanici.ortam.olayda = [this](int) { kullanici.Uzerine({9, 8, kGece}); };
    AcilincaBak([](const FormKayit& kayit) {
        EXPECT_EQ(kayit.Tarih, u"20.06.2012 - Gece");
        EXPECT_EQ(kayit.Kay[9].metin, u"100");
    });
    kullanici.Tablo().Hucre_DblClick(Satir(6, kGece), 20);
}

TEST_F(KayitAcma, Hall_of_blanks_counts_as_none) {
    kullanici.ProgramiAc();
    kullanici.Tablo().Salon.ogeler[0] = u"  ";
    kullanici.ortam.Bekle(
        BeklenenKutu{u"Velora", u"Lütfen Önce Salon Tanımı yapınız!", Simge::Kritik, Cevap::Tamam});
    kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormSalonTanim});
    kullanici.KomutSec(Komut::newkay);
    EXPECT_FALSE(kullanici.Prog().FormKayit.Yuklu());
}

TEST_F(KayitAcma, Without_a_hall_the_list_of_halls_opens_in_its_place) {
    agac.KoyMetin(u"Salon.dat", u"");
    kullanici.ProgramiAc();
    ASSERT_TRUE(kullanici.SagTikla({5, 7, kGunduz}));
    kullanici.ortam.Bekle(BeklenenKutu{
        .baslik = u"Velora", .metin = u"Lütfen Önce Salon Tanımı yapınız!", .simge = Simge::Kritik});
    kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormSalonTanim});
    kullanici.KomutSec(Komut::newkay);
    EXPECT_FALSE(kullanici.Prog().FormKayit.Yuklu());
}

} // namespace velora::test
