// What the listed reservations add up to.
#include "accounts/BakiyeTest.h"

namespace velora::test {

class BakiyeToplami : public BakiyeTest {
  protected:
    /// A reservation of this kind and these amounts, on the next free evening from 1 June on.
    void Koy(const Metin& nitelik, const Metin& ucret, const Metin& alinan = u"0",
             const Metin& kalan = u"0") {
        RezervasyonKoy(GunAnahtari(++gun_, 6, u"2012", kGece),
                       {.nitelik = nitelik, .ucret = ucret, .alinan = alinan, .kalan = kalan});
    }

  private:
    unsigned gun_ = 0;
};

TEST_F(BakiyeToplami, Nothing_in_the_range_shows_zeros_and_a_box_on_purpose) {
    RaporAc([&] {
        BosKutuBekle();
        Rapor().ListeleGun();
        EXPECT_EQ(TurToplamlari(), kBosTurler);
        GenelOlmali(u": 0 TL", u": 0 TL", u": 0 TL");
        SayacOlmali(u": 0", u": 0", u": 0");
    });
}

TEST_F(BakiyeToplami, Each_kind_has_its_total_and_every_other_one_shares_the_last) {
    int tutar = 1000;
    for (const char16_t* nitelik : {u"Düğün", u"Sünnet", u"Toplantı", u"Kına", u"Nişan", u"Kokteyl",
                                    u"Konferans", u"Diğer", u"Balo", u""})
        Koy(nitelik, SayiMetni(tutar++));
    Koy(u"Düğün", u"500");
    YiliListele([&] {
        EXPECT_EQ(TurToplamlari(), u": 1.500 TL / : 1.001 TL / : 1.002 TL / : 1.003 TL / : 1.004 TL / "
                                   u": 1.005 TL / : 1.006 TL / : 3.024 TL");
        EXPECT_EQ(Rapor().Toplam.baslik, u": 10.545 TL");
    });
}

TEST_F(BakiyeToplami, A_kind_in_other_letters_or_with_blanks_counts_as_another_one_on_purpose) {
    for (const char16_t* nitelik : {u"DÜĞÜN", u"düğün", u" Düğün", u"Düğün "})
        Koy(nitelik, u"10");
    YiliListele([&] {
        EXPECT_EQ(Rapor().DTop[1].baslik, u": 0 TL");
        EXPECT_EQ(Rapor().DTop[8].baslik, u": 40 TL");
    });
}

TEST_F(BakiyeToplami, Price_taken_and_left_are_added_up_from_the_stored_texts) {
    Koy(u"Düğün", u"5000", u"1500", u"3500");
    Koy(u"Nişan", u"2000", u"3000", u"-1000");
    YiliListele([&] { GenelOlmali(u": 7.000 TL", u": 4.500 TL", u": 2.500 TL"); });
}

TEST_F(BakiyeToplami, What_is_left_may_be_below_zero) {
    Koy(u"Düğün", u"1000", u"3000", u"-2000");
    YiliListele([&] { EXPECT_EQ(Rapor().Kalan.baslik, u": -2.000 TL"); });
}

TEST_F(BakiyeToplami, A_row_shows_the_exact_text_of_an_amount_and_the_totals_no_decimals) {
    Koy(u"Düğün", u"1250.50");
    Koy(u"Düğün", u"0.25");
    YiliListele([&] {
        EXPECT_EQ(Sutun(2), (std::vector<Metin>{u"1250.50", u"0.25"}));
        EXPECT_EQ(Rapor().Toplam.baslik, u": 1.251 TL");
    });
}

TEST_F(BakiyeToplami, A_total_below_half_a_lira_reads_as_zero) {
    Koy(u"Düğün", u"0.4");
    YiliListele([&] { EXPECT_EQ(Rapor().Toplam.baslik, u": 0 TL"); });
}

TEST_F(BakiyeToplami, Amounts_are_read_up_to_the_first_sign_that_is_no_number) {
    // 1250.5 + 1.25 + 1 + 0 + 70 + 3
    for (const char16_t* tutar : {u"1250.50", u"1.250", u"1 250", u"", u"  70 TL", u"3.0.9"})
        Koy(u"Düğün", tutar);
    YiliListele([&] { EXPECT_EQ(Rapor().Toplam.baslik, u": 1.326 TL"); });
}

// The files hold no comma, but one from elsewhere may.
TEST_F(BakiyeToplami, A_comma_ends_an_amount) {
    Koy(u"Düğün", u"1,250");
    YiliListele([&] {
        EXPECT_EQ(Rapor().Toplam.baslik, u": 1 TL");
        EXPECT_EQ(Sutun(2), std::vector<Metin>{u"1,250"});
    });
}

TEST_F(BakiyeToplami, A_report_of_preliminary_ones_counts_no_firm_one) {
    RezervasyonKoy(u"01.06.2012 - Gece", {}, true);
    RezervasyonKoy(u"02.06.2012 - Gece", {}, false);
    YiliListele([&] {
        TipSec(1);
        Rapor().ListeleGun();
        SayacOlmali(u": 0", u": 1", u": 1");
        GenelOlmali(u": 5.000 TL", u": 1.000 TL", u": 4.000 TL");
    });
}

TEST_F(BakiyeToplami, A_second_listing_starts_from_zero) {
    Koy(u"Düğün", u"100");
    YiliListele([&] {
        Rapor().ListeleGun();
        EXPECT_EQ(Rapor().Toplam.baslik, u": 100 TL");
        EXPECT_EQ(Rapor().Liste.satirlar.size(), 1U);
    });
}

TEST_F(BakiyeToplami, Both_slots_of_almost_a_whole_year_are_added_up) {
    for (unsigned ay = 1; ay <= 12; ++ay)
        for (unsigned gun = 1; gun <= 28; ++gun)
            for (const auto dilim : {kGunduz, kGece})
                RezervasyonKoy(GunAnahtari(gun, ay, u"2012", dilim), {.ucret = u"1000.5"});
    YiliListele([&] {
        EXPECT_EQ(Rapor().Label19.baslik, u": 672");
        EXPECT_EQ(Rapor().Toplam.baslik, u": 672.336 TL");
    });
}

} // namespace velora::test
