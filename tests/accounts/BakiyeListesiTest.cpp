// Which reservations the report lists, in which order, and where its scan stops.
#include "accounts/BakiyeTest.h"

namespace velora::test {

using Adlar = std::vector<Metin>;

class BakiyeListesi : public BakiyeTest {};

TEST_F(BakiyeListesi, A_row_shows_the_fields_of_the_reservation_and_holds_its_path) {
    agac.Koy(u"Salon A/2012/20.06.2012 - G\u00FCnd\u00FCz",
             "\"Ali \xD6z\",\"Bolu\",\"A / B\",\"Ni\xFE"
             "an\",\"0212\",\"0532\",\"Sk 1\r\nNo 2\","
             "\"1250.50\",\"250\",\"1000.50\",\"\xF6n not\",\"11:00\",\"01.01.2012\",\"7\",\"16:00\","
             "\"12345678901\",\"250 ki\xFEi\",\"__.__.____\",1,0\r\n");
    agac.KoyMetin(u"Salon A/2012/20.06.2012 - G\u00FCnd\u00FCz-Detay", DetayMetni(true));
    YiliListele([&] {
        ASSERT_EQ(Rapor().Liste.satirlar.size(), 1U);
        EXPECT_EQ(Rapor().Liste.satirlar[0].sutun,
                  (Adlar{u"20.06.2012 - Gündüz", u"Ali Öz", u"1250.50", u"250", u"1000.50", u"Ön", u"Salon A",
                         u"Nişan", u"250 kişi", u"ön not"}));
        EXPECT_EQ(Rapor().Liste.satirlar[0].tag, Yol(u"20.06.2012 - Gündüz"));
    });
}

TEST_F(BakiyeListesi, Both_slots_of_a_day_are_two_rows) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    RezervasyonKoy(u"20.06.2012 - Gece");
    YiliListele([&] { EXPECT_EQ(Gunler(), (Adlar{u"20.06.2012 - Gece", u"20.06.2012 - Gündüz"})); });
}

TEST_F(BakiyeListesi, Rows_stand_in_the_order_of_the_folder_by_day_before_month_on_purpose) {
    for (const char16_t* gun : {u"02.01.2012 - Gece", u"01.12.2012 - Gece", u"31.05.2012 - Gece"})
        RezervasyonKoy(gun);
    YiliListele([&] {
        EXPECT_EQ(Gunler(), (Adlar{u"01.12.2012 - Gece", u"02.01.2012 - Gece", u"31.05.2012 - Gece"}));
    });
}

TEST_F(BakiyeListesi, The_first_and_the_last_day_of_the_range_are_listed_and_their_neighbours_not) {
    for (const char16_t* gun :
         {u"09.06.2012 - Gece", u"10.06.2012 - Gündüz", u"20.06.2012 - Gece", u"21.06.2012 - Gündüz"})
        RezervasyonKoy(gun);
    RaporAc([&] {
        Aralik(u"10.06.2012", u"20.06.2012");
        Rapor().ListeleGun();
        EXPECT_EQ(Gunler(), (Adlar{u"10.06.2012 - Gündüz", u"20.06.2012 - Gece"}));
    });
}

TEST_F(BakiyeListesi, A_range_that_ends_before_it_begins_holds_nothing) {
    RezervasyonKoy(u"15.06.2012 - Gece");
    RaporAc([&] {
        Aralik(u"20.06.2012", u"10.06.2012");
        BosKutuBekle();
        Rapor().ListeleGun();
        EXPECT_TRUE(Rapor().Liste.satirlar.empty());
    });
}

TEST_F(BakiyeListesi,
       Each_type_lists_its_own_and_a_record_in_neither_state_is_a_firm_one_only_among_all_on_purpose) {
    DurumluKoy(u"01.06.2012 - Gece", u"1", u"0");
    DurumluKoy(u"02.06.2012 - Gece", u"0", u"1");
    DurumluKoy(u"03.06.2012 - Gece", u"0", u"0");
    DurumluKoy(u"04.06.2012 - Gece", u"1", u"1");
    YiliListele([&] {
        EXPECT_EQ(Sutun(5), (Adlar{u"Kesin", u"Ön", u"Kesin", u"Ön"}));
        SayacOlmali(u": 2", u": 2", u": 4");
        TipSec(1);
        Rapor().ListeleGun();
        EXPECT_EQ(Gunler(), (Adlar{u"02.06.2012 - Gece", u"04.06.2012 - Gece"}));
        SayacOlmali(u": 0", u": 2", u": 2");
        TipSec(2);
        Rapor().ListeleGun();
        EXPECT_EQ(Gunler(), (Adlar{u"01.06.2012 - Gece", u"04.06.2012 - Gece"}));
        EXPECT_EQ(Sutun(5), (Adlar{u"Kesin", u"Ön"})) << "in both states it reads as a preliminary one";
        SayacOlmali(u": 1", u": 1", u": 2");
    });
}

TEST_F(BakiyeListesi, The_hall_and_year_are_those_of_the_report_and_the_table) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    KayitKoy(agac, u"Salon B/2012/05.02.2012 - Gece");
    YiliListele([&] {
        ListedenSec(Rapor().Combo2, u"Salon B");
        Rapor().ListeleGun();
        EXPECT_EQ(Gunler(), Adlar{u"05.02.2012 - Gece"});
        EXPECT_EQ(Sutun(6), Adlar{u"Salon B"});
        EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Salon A");
    });
}

TEST_F(BakiyeListesi, A_year_that_changed_under_the_report_is_listed_at_its_next_activation_and_once) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    KayitKoy(agac, u"Salon A/2013/31.12.2013 - Gece");
    KayitKoy(agac, u"Salon A/2013/01.01.2013 - Gece");
    RaporAc([&] {
        kullanici.YilSec(u"2014");
        Rapor().Activate();
        EXPECT_TRUE(Rapor().Liste.satirlar.empty()) << "nothing was listed, so nothing is listed anew";
        kullanici.YilSec(u"2012");
        Rapor().Activate();
        Aralik(u"01.01.2012", u"31.12.2012");
        Rapor().ListeleGun();
        SatirSec(0);
        Aralik(u"02.01.2012", u"03.01.2012");
        Rapor().Activate();
        EXPECT_EQ(Gunler(), Adlar{u"20.06.2012 - Gece"}) << "the same year: the rows stand";
        kullanici.YilSec(u"2013");
        Rapor().Activate();
        EXPECT_EQ(Gunler(), Adlar{u"01.01.2013 - Gece"}) << "the dates were pulled into the year";
        EXPECT_FALSE(Rapor().Command6.etkin);
        EXPECT_EQ(Rapor().Label19.baslik, u": 1");
        Rapor().Liste.satirlar.clear();
        Rapor().Activate();
        EXPECT_TRUE(Rapor().Liste.satirlar.empty());
    });
}

TEST_F(BakiyeListesi, A_save_in_another_year_does_not_keep_the_report_from_listing_that_year) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    KayitKoy(agac, u"Salon A/2013/01.01.2013 - Gece");
    YiliListele([&] {
        kullanici.YilSec(u"2013");
        BosKutuBekle(); // the dates still lie in 2012
        Rapor().ListeleGun();
        Rapor().Activate();
        EXPECT_EQ(Gunler(), Adlar{u"01.01.2013 - Gece"});
    });
}

TEST_F(BakiyeListesi, A_hall_without_a_folder_for_the_year_has_nothing) {
    Prog();
    kullanici.YilSec(u"2013");
    ASSERT_FALSE(agac.KlasorVar(u"Salon B/2013"));
    RaporAc([&] {
        ListedenSec(Rapor().Combo2, u"Salon B"); // only who presses the button is told that there is nothing
        GenelOlmali(u": 0 TL", u": 0 TL", u": 0 TL");
        BosKutuBekle();
        Rapor().ListeleGun();
    });
}

TEST_F(BakiyeListesi, Expenses_payments_details_and_names_outside_the_pattern_are_passed_over) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    agac.Koy(u"Salon A/2012/20.06.2012 - Gece-Odeme", "\"01.01.2012\",\"5\",\"\"\r\n");
    agac.Koy(u"Salon A/2012/Gider.dat", "\"01.01.2012\",\"5\",\"\"\r\n");
    agac.Koy(u"Salon A/2012/4x.yedek", "x");
    agac.Koy(u"Salon A/2012/200.yedek", "x");
    agac.Koy(u"Salon A/2012/30.kopyaDetay", "x");
    YiliListele([&] { EXPECT_EQ(Gunler(), Adlar{u"20.06.2012 - Gece"}); });
}

TEST_F(BakiyeListesi, The_day_of_a_row_is_cut_after_19_signs_and_its_path_is_not_on_purpose) {
    RezervasyonKoy(u"20.06.2012 - Gece eski");
    YiliListele([&] {
        EXPECT_EQ(Gunler(), Adlar{u"20.06.2012 - Gece e"});
        EXPECT_EQ(Rapor().Liste.satirlar.at(0).tag, Yol(u"20.06.2012 - Gece eski"));
    });
}

TEST_F(BakiyeListesi, Files_that_are_too_short_keep_the_values_of_the_one_before_on_purpose) {
    RezervasyonKoy(u"01.06.2012 - Gece", {.ad = u"Ali", .ucret = u"700"}, true);
    agac.KoyMetin(u"Salon A/2012/02.06.2012 - Gece", u"\"Veli\"\r\n");
    agac.Koy(u"Salon A/2012/02.06.2012 - Gece-Detay", "");
    YiliListele([&] {
        EXPECT_EQ(Sutun(1), (Adlar{u"Ali", u"Veli"}));
        EXPECT_EQ(Sutun(2), (Adlar{u"700", u"700"}));
        EXPECT_EQ(Sutun(5), (Adlar{u"Ön", u"Ön"}));
        // A scan begins with none: alone, the short record has nothing to keep.
        Aralik(u"02.06.2012", u"02.06.2012");
        Rapor().ListeleGun();
        EXPECT_EQ(Sutun(2), Adlar{u""});
        EXPECT_EQ(Sutun(5), Adlar{u"Kesin"});
    });
}

/// A scan that has to stop, after one that listed a single reservation of 5000.
class BakiyeDurmasi : public BakiyeTest {
  protected:
    /// Lists, then puts `ad` into the folder between two more reservations and lists again.
    void DurmayiDene(const Is& koy) {
        RezervasyonKoy(u"10.06.2012 - Gece");
        YiliListele([&] {
            RezervasyonKoy(u"09.06.2012 - Gece");
            RezervasyonKoy(u"30.06.2012 - Gece");
            koy();
            SatirSec(0);
            Rapor().ListeleGun(); // no box comes
            EXPECT_EQ(Gunler(), (Adlar{u"09.06.2012 - Gece", u"10.06.2012 - Gece"}));
            GenelOlmali(u": 5.000 TL", u": 1.000 TL", u": 4.000 TL");
            SayacOlmali(u": 1", u": 0", u": 1");
            EXPECT_FALSE(Rapor().Command6.etkin);
        });
    }
};

TEST_F(BakiyeDurmasi, A_name_that_is_no_date_ends_the_scan_and_the_labels_keep_the_last_totals_on_purpose) {
    DurmayiDene([&] { agac.Koy(u"Salon A/2012/20.yedek", "x"); });
}

TEST_F(BakiyeDurmasi, A_day_that_the_calendar_does_not_have_ends_the_scan_on_purpose) {
    DurmayiDene([&] { agac.Koy(u"Salon A/2012/29.02.2013 - Gece", "x"); });
}

TEST_F(BakiyeDurmasi, A_date_by_its_places_but_without_its_dots_ends_the_scan_on_purpose) {
    DurmayiDene([&] { agac.Koy(u"Salon A/2012/20.06x2012 - Gece", "x"); });
}

TEST_F(BakiyeDurmasi, Missing_details_end_the_scan_on_purpose) {
    DurmayiDene([&] { agac.KoyMetin(u"Salon A/2012/20.06.2012 - Gece", AnaMetni()); });
}

TEST_F(BakiyeDurmasi, A_main_file_that_can_not_be_opened_ends_the_scan_on_purpose) {
    DurmayiDene([&] {
        RezervasyonKoy(u"20.06.2012 - Gece");
        Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
            return is == DosyaIsi::Oku && yol.ends_with(u"20.06.2012 - Gece");
        };
    });
}

TEST_F(BakiyeDurmasi, Missing_details_outside_the_range_cost_nothing) {
    agac.KoyMetin(u"Salon A/2012/01.01.2012 - Gece", AnaMetni());
    RezervasyonKoy(u"20.06.2012 - Gece");
    RaporAc([&] {
        Rapor().ListeleGun();
        EXPECT_EQ(Gunler(), Adlar{u"20.06.2012 - Gece"});
        SayacOlmali(u": 1", u": 0", u": 1");
    });
}

TEST_F(BakiyeDurmasi, A_scan_that_stops_before_its_first_row_shows_no_box_on_purpose) {
    agac.Koy(u"Salon A/2012/00.yedek", "x");
    RezervasyonKoy(u"20.06.2012 - Gece");
    YiliListele([&] {
        EXPECT_TRUE(Rapor().Liste.satirlar.empty());
        EXPECT_EQ(TurToplamlari(), kBosTurler);
    });
}

TEST_F(BakiyeListesi, A_new_listing_marks_nothing) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    YiliListele([&] {
        SatirSec(0);
        Rapor().ListeleGun();
        EXPECT_EQ(Gunler(), Adlar{u"20.06.2012 - Gece"});
        EXPECT_EQ(Rapor().Liste.secili, -1);
    });
}

} // namespace velora::test
