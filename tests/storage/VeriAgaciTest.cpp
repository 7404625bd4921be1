#include "storage/VeriAgaci.h"

#include <gtest/gtest.h>

#include "storage/DosyaAgaci.h"

namespace velora {

using test::DosyaAgaci;

TEST(GunAnahtari, Day_9_gives_09_and_day_10_gives_10) {
    EXPECT_EQ(GunAnahtari(9, 1, u"2012", GunduzGece::Gece), u"09.01.2012 - Gece");
    EXPECT_EQ(GunAnahtari(10, 1, u"2012", GunduzGece::Gece), u"10.01.2012 - Gece");
}

TEST(GunAnahtari, The_month_never_loses_its_leading_zero) {
    EXPECT_EQ(AyEki(1), u".01.");
    EXPECT_EQ(AyEki(9), u".09.");
    EXPECT_EQ(AyEki(12), u".12.");
}

TEST(GunAnahtari, The_day_slot_word_has_its_letter) {
    EXPECT_EQ(GunAnahtari(5, 1, u"2012", GunduzGece::Gunduz), u"05.01.2012 - Gündüz");
    EXPECT_EQ(GunAnahtari(5, 1, u"2012", GunduzGece::Gunduz) + Metin(kDetayEki),
              u"05.01.2012 - Gündüz-Detay");
    EXPECT_EQ(GunAnahtari(5, 1, u"2012", GunduzGece::Gece) + Metin(kOdemeEki), u"05.01.2012 - Gece-Odeme");
}

TEST(GunAnahtari, The_year_stands_in_the_name_as_it_is) {
    EXPECT_EQ(GunAnahtari(5, 1, u"", GunduzGece::Gece), u"05.01. - Gece");
}

TEST(AnahtarTarihi, Takes_the_date_out_by_position) {
    EXPECT_EQ(AnahtarTarihi(u"05.01.2012 - Gündüz-Detay"), u"05.01.2012");
    EXPECT_EQ(AnahtarTarihi(u"05x01x2012"), u"05.01.2012");
    EXPECT_EQ(AnahtarTarihi(u"05"), u"05..");
    EXPECT_EQ(AnahtarTarihi(u""), u"..");
}

TEST(AnahtarYili, Takes_the_year_out_by_position) {
    EXPECT_EQ(AnahtarYili(u"05.01.2013 - Gündüz"), u"2013");
    EXPECT_EQ(AnahtarYili(u"05.01.20"), u"20");
    EXPECT_EQ(AnahtarYili(u""), u"");
}

TEST(AnahtarDilimi, The_last_three_characters_decide) {
    EXPECT_EQ(AnahtarDilimi(u"05.01.2012 - Gündüz"), GunduzGece::Gunduz);
    EXPECT_EQ(AnahtarDilimi(u"düz"), GunduzGece::Gunduz);
    EXPECT_EQ(AnahtarDilimi(u"05.01.2012 - Gece"), GunduzGece::Gece);
    EXPECT_EQ(AnahtarDilimi(u""), GunduzGece::Gece);
    EXPECT_EQ(AnahtarDilimi(u"05.01.2012 - GÜNDÜZ"), GunduzGece::Gece);
}

TEST(AnahtarDilimi, A_companion_of_the_day_slot_counts_as_evening_on_purpose) {
    EXPECT_EQ(AnahtarDilimi(u"05.01.2012 - Gündüz-Detay"), GunduzGece::Gece);
}

TEST(EslikDosyasi, A_name_ending_in_Detay_or_Odeme_is_never_a_main_record) {
    EXPECT_TRUE(EslikDosyasi(u"05.01.2012 - Gündüz-Detay"));
    EXPECT_TRUE(EslikDosyasi(u"05.01.2012 - Gece-Odeme"));
    EXPECT_TRUE(EslikDosyasi(u"30.kopyaDetay"));
    EXPECT_TRUE(EslikDosyasi(u"Odeme"));
    EXPECT_FALSE(EslikDosyasi(u"05.01.2012 - Gece"));
    EXPECT_FALSE(EslikDosyasi(u"05.01.2012 - Gece-Detay2"));
    EXPECT_FALSE(EslikDosyasi(u"etay"));
}

TEST(GunDosyasiDeseni, Wants_a_digit_to_3_one_sign_and_a_dot) {
    for (const MetinBakis ad :
         {u"05.01.2012 - Gece", u"05.txt", u"10.kopya", u"3x.", u"0..", u"29.01.2012 - Gece-Detay"})
        EXPECT_TRUE(GunDosyasiDeseni(ad)) << testing::PrintToString(ad);
    for (const MetinBakis ad : {u"Gider.dat", u"4x.a", u"5.01", u"05", u"", u"0", u"050.a", u"٠5.a"})
        EXPECT_FALSE(GunDosyasiDeseni(ad)) << testing::PrintToString(ad);
}

TEST(VeriAgaci, Paths_are_joined_as_they_stand) {
    const DosyaAgaci kok;
    const VeriAgaci agac(kok.dosyalar);
    const Metin k = kok.dosyalar.Kok();
    EXPECT_EQ(agac.KokYolu(u"Salon.dat"), k + u"\\Salon.dat");
    EXPECT_EQ(agac.SalonKlasoru(u"Büyük Salon"), k + u"\\Büyük Salon");
    EXPECT_EQ(agac.YilKlasoru(u"A", u"2012"), k + u"\\A\\2012");
    EXPECT_EQ(agac.YilKlasoru(u"", u"2012"), k + u"\\\\2012");
    EXPECT_EQ(agac.GunYolu(u"A", u"2012", u"05.01.2012 - Gece"), k + u"\\A\\2012\\05.01.2012 - Gece");
}

TEST(VeriAgaci, A_hall_name_with_a_dot_or_blank_in_it_needs_no_treatment) {
    const DosyaAgaci kok;
    const VeriAgaci agac(kok.dosyalar);
    agac.KlasorHazirla(u"Salon A.Ş. no 1", u"2012");
    const Metin yol = agac.GunYolu(u"Salon A.Ş. no 1", u"2012", u"05.01.2012 - Gündüz");
    EXPECT_FALSE(agac.RezervasyonVarMi(yol));
    ASSERT_TRUE(kok.dosyalar.Yaz(yol, "x"));
    EXPECT_TRUE(kok.Var(u"Salon A.Ş. no 1/2012/05.01.2012 - Gündüz"));
    EXPECT_TRUE(agac.RezervasyonVarMi(yol));
}

TEST(VeriAgaci, The_two_slots_of_a_day_are_independent) {
    const DosyaAgaci kok;
    const VeriAgaci agac(kok.dosyalar);
    kok.KlasorKoy(u"A/2012");
    kok.Koy(u"A/2012/05.01.2012 - Gece", "x");
    EXPECT_TRUE(agac.RezervasyonVarMi(agac.GunYolu(u"A", u"2012", u"05.01.2012 - Gece")));
    EXPECT_FALSE(agac.RezervasyonVarMi(agac.GunYolu(u"A", u"2012", u"05.01.2012 - Gündüz")));
}

TEST(VeriAgaci, Companions_never_decide_whether_a_slot_is_taken) {
    const DosyaAgaci kok;
    const VeriAgaci agac(kok.dosyalar);
    kok.KlasorKoy(u"A/2012");
    kok.Koy(u"A/2012/05.01.2012 - Gece-Detay", "x");
    kok.Koy(u"A/2012/05.01.2012 - Gece-Odeme", "x");
    EXPECT_FALSE(agac.RezervasyonVarMi(agac.GunYolu(u"A", u"2012", u"05.01.2012 - Gece")));
}

TEST(VeriAgaci, A_folder_of_that_name_or_a_missing_year_is_a_free_day) {
    const DosyaAgaci kok;
    const VeriAgaci agac(kok.dosyalar);
    kok.KlasorKoy(u"A/2012/05.01.2012 - Gece");
    EXPECT_FALSE(agac.RezervasyonVarMi(agac.GunYolu(u"A", u"2012", u"05.01.2012 - Gece")));
    EXPECT_FALSE(agac.RezervasyonVarMi(agac.GunYolu(u"A", u"2013", u"05.01.2013 - Gece")));
}

TEST(KlasorHazirla, Passes_over_what_is_there_and_makes_what_was_removed) {
    const DosyaAgaci kok;
    const VeriAgaci agac(kok.dosyalar);
    agac.KlasorHazirla(u"A", u"2012");
    agac.KlasorHazirla(u"A", u"2013");
    EXPECT_TRUE(kok.Var(u"A/2012"));
    EXPECT_TRUE(kok.Var(u"A/2013"));
    std::filesystem::remove_all(kok.Yol(u"A"));
    agac.KlasorHazirla(u"A", u"2012");
    EXPECT_TRUE(kok.Var(u"A/2012"));
}

TEST(KlasorHazirla, Tries_each_folder_on_its_own) {
    DosyaAgaci kok;
    const VeriAgaci agac(kok.dosyalar);
    kok.KlasorKoy(u"A");
    kok.dosyalar.ariza = [&](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::KlasorYap && yol == kok.TamYol(u"A");
    };
    agac.KlasorHazirla(u"A", u"2012");
    EXPECT_TRUE(kok.Var(u"A/2012"));
}

} // namespace velora
