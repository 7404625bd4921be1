#include <gtest/gtest.h>

#include "storage/DosyaAgaci.h"
#include "storage/RezervasyonDosyalari.h"

// What the readers make of files, sound ones and others.
namespace velora {
namespace {

using test::DosyaAgaci;

AnaDegerler Onceki() {
    AnaDegerler degerler;
    for (std::size_t i = 0; i < degerler.deger.size(); ++i)
        degerler.deger[i] = u"eski " + SayiMetni(static_cast<long long>(i) + 1);
    return degerler;
}

std::string DetayBaytlari(const std::string& son) {
    std::string bayt;
    for (int i = 1; i <= kHizmetSayisi; ++i)
        bayt += i % 2 == 0 ? "1\r\n" : "0\r\n";
    for (int i = 1; i <= kHizmetSayisi; ++i)
        bayt += "\"not " + std::to_string(i) + "\"\r\n";
    return bayt + son;
}

std::vector<Odeme> OdemeleriOku(const std::string& bayt) {
    const DosyaAgaci kok;
    kok.Koy(u"a-Odeme", bayt);
    std::vector<Odeme> odemeler;
    EXPECT_TRUE(OdemeOku(kok.dosyalar, kok.TamYol(u"a-Odeme"), odemeler));
    return odemeler;
}

} // namespace

TEST(AnaOku, Fills_20_values_by_their_numbers) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "\"k1\",\"k2\",\"k3\",\"k4\",\"k5\",\"k6\",\"k7\r\nk7\",\"k8\",\"k9\",\"k10\",\"k11\","
                  "\"k12\",\"k13\","
                  "\"k14\",\"k15\",\"k16\",\"k17\",\"__.__.____\",1,0\r\n");
    AnaDegerler degerler;
    ASSERT_TRUE(AnaOku(kok.dosyalar, kok.TamYol(u"a"), degerler));
    EXPECT_EQ(degerler.No(1), u"k1");
    EXPECT_EQ(degerler.No(7), u"k7\r\nk7");
    EXPECT_EQ(degerler.No(17), u"k17");
    EXPECT_EQ(degerler.No(18), kBosTarih);
    EXPECT_EQ(degerler.No(19), u"1");
    EXPECT_EQ(degerler.No(20), u"0");
}

TEST(AnaOku, A_short_file_is_filled_up_from_the_record_before_on_purpose) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "\"k1\",\"k2\",\"k3\"\r\n");
    AnaDegerler degerler = Onceki();
    ASSERT_TRUE(AnaOku(kok.dosyalar, kok.TamYol(u"a"), degerler));
    EXPECT_EQ(degerler.No(3), u"k3");
    EXPECT_EQ(degerler.No(4), u"eski 4");
    EXPECT_EQ(degerler.No(20), u"eski 20");
}

TEST(AnaOku, A_missing_file_leaves_the_values_of_the_record_before_on_purpose) {
    const DosyaAgaci kok;
    AnaDegerler degerler = Onceki();
    EXPECT_FALSE(AnaOku(kok.dosyalar, kok.TamYol(u"yok"), degerler));
    EXPECT_EQ(degerler.deger, Onceki().deger);
}

TEST(AnaOku, An_empty_file_can_be_opened_and_fills_nothing) {
    const DosyaAgaci kok;
    kok.Koy(u"a", "");
    AnaDegerler degerler = Onceki();
    EXPECT_TRUE(AnaOku(kok.dosyalar, kok.TamYol(u"a"), degerler));
    EXPECT_EQ(degerler.deger, Onceki().deger);
}

TEST(AnaOku, A_details_file_read_as_a_main_record_gives_values_in_other_places_and_no_error) {
    const DosyaAgaci kok;
    kok.Koy(u"a-Detay", DetayBaytlari(""));
    AnaDegerler degerler;
    ASSERT_TRUE(AnaOku(kok.dosyalar, kok.TamYol(u"a-Detay"), degerler));
    EXPECT_EQ(degerler.No(2), u"1");
    EXPECT_EQ(degerler.No(18), u"not 1");
    EXPECT_EQ(degerler.No(20), u"not 3");
}

TEST(DetayOku, Values_behind_a_text_with_line_breaks_keep_their_places) {
    const DosyaAgaci kok;
    kok.Koy(u"a-Detay",
            DetayBaytlari("\"bir\r\niki\r\n\"\r\n\"0\",\"1\"\r\n\"Men\xFC\"\r\n\"\xC7orba,\r\nPilav\"\r\n"));
    DetayDegerler degerler;
    ASSERT_TRUE(DetayOku(kok.dosyalar, kok.TamYol(u"a-Detay"), degerler));
    EXPECT_EQ(degerler.No(2), u"1");
    EXPECT_EQ(degerler.No(17), u"0");
    EXPECT_EQ(degerler.No(34), u"not 17");
    EXPECT_EQ(degerler.No(35), u"bir\r\niki\r\n");
    EXPECT_EQ(degerler.No(36), u"0");
    EXPECT_EQ(degerler.No(37), u"1");
    EXPECT_EQ(degerler.No(38), u"Menü");
    EXPECT_EQ(degerler.No(39), u"Çorba,\r\nPilav");
}

TEST(DetayOku, The_two_states_read_the_same_on_lines_of_their_own) {
    const DosyaAgaci kok;
    kok.Koy(u"a-Detay", DetayBaytlari("\"\"\r\n1\r\n0\r\n\"Men\xFC\"\r\n\"x\"\r\n"));
    DetayDegerler degerler;
    ASSERT_TRUE(DetayOku(kok.dosyalar, kok.TamYol(u"a-Detay"), degerler));
    EXPECT_EQ(degerler.No(36), u"1");
    EXPECT_EQ(degerler.No(37), u"0");
    EXPECT_EQ(degerler.No(39), u"x");
}

TEST(DetayOku, A_quote_in_a_menu_ends_its_text_early_on_purpose) {
    const DosyaAgaci kok;
    DetayKaydi kayit;
    kayit.combo1 = u"A\"B";
    kayit.label20 = u"x";
    ASSERT_TRUE(DetayYaz(kok.dosyalar, kok.TamYol(u"a-Detay"), kayit));
    DetayDegerler degerler;
    ASSERT_TRUE(DetayOku(kok.dosyalar, kok.TamYol(u"a-Detay"), degerler));
    EXPECT_EQ(degerler.No(38), u"A");
    EXPECT_EQ(degerler.No(39), u"B\"");
}

TEST(OdemeOku, Adds_each_payment_to_the_list) {
    const DosyaAgaci kok;
    kok.Koy(u"a-Odeme", "\"02.01.2012\",\"500\",\"17 - Ay\xFE"
                        "e\"\r\n\"03.01.2012\",\"250.5\",\"\"\r\n");
    std::vector<Odeme> odemeler{{u"01.01.2012", u"1", u"önce"}};
    ASSERT_TRUE(OdemeOku(kok.dosyalar, kok.TamYol(u"a-Odeme"), odemeler));
    ASSERT_EQ(odemeler.size(), 3U);
    EXPECT_EQ(odemeler[1].aciklama, u"17 - Ayşe");
    EXPECT_EQ(odemeler[2].tarih, u"03.01.2012");
    EXPECT_EQ(odemeler[2].tutar, u"250.5");
    EXPECT_EQ(odemeler[2].aciklama, u"");
}

TEST(OdemeOku, A_trailing_blank_line_gives_no_further_payment) {
    EXPECT_EQ(OdemeleriOku("\"02.01.2012\",\"500\",\"x\"\r\n\r\n").size(), 1U);
    EXPECT_EQ(OdemeleriOku("\"02.01.2012\",\"500\",\"x\"\r\n\n\n\n\n").size(), 1U);
}

TEST(OdemeOku, A_payment_whose_date_is_blank_adds_nothing) {
    const auto odemeler =
        OdemeleriOku("\"  \",\"500\",\"x\"\r\n\"02.01.2012\",\"1\",\"y\"\r\n\"\",\"2\",\"z\"\r\n");
    ASSERT_EQ(odemeler.size(), 1U);
    EXPECT_EQ(odemeler[0].tutar, u"1");
}

TEST(OdemeOku, A_last_record_cut_short_keeps_the_values_of_the_one_before_on_purpose) {
    const auto odemeler = OdemeleriOku("\"02.01.2012\",\"500\",\"x\"\r\n\"03.01.2012\"");
    ASSERT_EQ(odemeler.size(), 2U);
    EXPECT_EQ(odemeler[1].tarih, u"03.01.2012");
    EXPECT_EQ(odemeler[1].tutar, u"500");
    EXPECT_EQ(odemeler[1].aciklama, u"x");
}

TEST(OdemeOku, A_missing_file_is_an_empty_list) {
    const DosyaAgaci kok;
    std::vector<Odeme> odemeler;
    EXPECT_FALSE(OdemeOku(kok.dosyalar, kok.TamYol(u"yok-Odeme"), odemeler));
    EXPECT_TRUE(odemeler.empty());
    EXPECT_TRUE(OdemeleriOku("").empty());
    EXPECT_TRUE(OdemeleriOku("\r\n\r\n").empty());
}

TEST(OdemeOku, A_quote_typed_in_a_note_slides_the_values_behind_it_on_purpose) {
    const auto odemeler = OdemeleriOku("\"02.01.2012\",\"500\",\"a\"b\"\r\n\"03.01.2012\",\"1\",\"y\"\r\n");
    ASSERT_EQ(odemeler.size(), 3U);
    EXPECT_EQ(odemeler[0].aciklama, u"a");
    EXPECT_EQ(odemeler[1].tarih, u"b\"");
    EXPECT_EQ(odemeler[1].tutar, u"03.01.2012");
    EXPECT_EQ(odemeler[2].tarih, u"y");
    EXPECT_EQ(odemeler[2].aciklama, u"1");
}

} // namespace velora
