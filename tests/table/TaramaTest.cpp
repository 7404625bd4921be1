#include "table/TabloTest.h"

namespace velora::test {

class Tarama : public TabloTest {};

TEST_F(Tarama, Free_weekday_shows_the_free_colours_of_its_slot) {
    kullanici.ProgramiAc();
    RenkOlmali(5, 1, kGunduz, 2, 3); // a Thursday
    RenkOlmali(5, 1, kGece, 4, 5);
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).tag, u"");
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).baslik, u"Per");
}

TEST_F(Tarama, Saturday_and_Sunday_show_the_weekend_colours) {
    kullanici.ProgramiAc();
    for (const int gun : {7, 8}) {
        RenkOlmali(gun, 1, kGunduz, 8, 9);
        RenkOlmali(gun, 1, kGece, 10, 11);
    }
    RenkOlmali(9, 1, kGunduz, 2, 3);
}

TEST_F(Tarama, Firm_and_pre_reservation_show_their_colours_in_both_slots) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    RezervasyonKoy(u"05.01.2012 - Gece", {}, true);
    RezervasyonKoy(u"06.01.2012 - Gündüz", {}, true);
    RezervasyonKoy(u"06.01.2012 - Gece");
    kullanici.ProgramiAc();
    RenkOlmali(5, 1, kGunduz, 6, 7);
    RenkOlmali(5, 1, kGece, 21, 22);
    RenkOlmali(6, 1, kGunduz, 19, 20);
    RenkOlmali(6, 1, kGece, 12, 13);
}

TEST_F(Tarama, Tag_holds_ten_parts_in_order) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    RezervasyonKoy(u"05.01.2012 - Gece", {.check18 = 0});
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).tag, u"|11:00|Düğün|Gündüz|5000|1000|4000|Ali Veli|7|1");
    kullanici.Tablo().UserNamem = u"admin";
    kullanici.Tablo().Command1();
    EXPECT_EQ(kullanici.Goz(5, 1, kGece).tag, u"admin|11:00|Düğün|Gece|5000|1000|4000|Ali Veli|7|0");
}

TEST_F(Tarama, Bar_in_a_customers_name_stays_in_the_tag_unescaped_on_purpose) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {.ad = u"Ali|Veli"});
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).tag, u"|11:00|Düğün|Gündüz|5000|1000|4000|Ali|Veli|7|1");
    RenkOlmali(5, 1, kGunduz, 6, 7);
}

TEST_F(Tarama, Reservation_on_a_Saturday_hides_the_weekend_until_its_files_are_gone) {
    RezervasyonKoy(u"07.01.2012 - Gündüz");
    kullanici.ProgramiAc();
    RenkOlmali(7, 1, kGunduz, 6, 7);
    std::filesystem::remove(agac.Yol(u"Salon A/2012/07.01.2012 - Gündüz"));
    kullanici.Tablo().Command1();
    RenkOlmali(7, 1, kGunduz, 8, 9);
    EXPECT_EQ(kullanici.Goz(7, 1, kGunduz).tag, u"");
}

// Kept over on purpose: the targets of the reading live as long as the scan.
TEST_F(Tarama, Main_file_without_details_keeps_the_state_of_the_slot_before_it_on_purpose) {
    RezervasyonKoy(u"05.01.2012 - Gece", {}, true);
    agac.KoyMetin(u"Salon A/2012/06.01.2012 - Gündüz", AnaMetni());
    kullanici.ProgramiAc();
    RenkOlmali(6, 1, kGunduz, 19, 20);
    std::filesystem::remove(agac.Yol(u"Salon A/2012/05.01.2012 - Gece"));
    kullanici.Tablo().Command1();
    RenkOlmali(6, 1, kGunduz, 6, 7); // the first slot of a scan counts as firm
}

TEST_F(Tarama, Short_main_file_keeps_the_values_of_the_slot_before_it_in_the_tag_on_purpose) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {.ucret = u"900", .no = u"41", .check18 = 0});
    agac.KoyMetin(u"Salon A/2012/06.01.2012 - Gündüz", u"\"Kısa Kayıt\",\"Bolu\",\"x\"\r\n");
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Goz(6, 1, kGunduz).tag, u"|11:00|Düğün|Gündüz|900|1000|4000|Kısa Kayıt|41|0");
}

TEST_F(Tarama, Empty_main_file_takes_the_slot_and_keeps_everything_on_purpose) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {}, true);
    agac.Koy(u"Salon A/2012/31.12.2012 - Gece", "");
    kullanici.ProgramiAc();
    RenkOlmali(31, 12, kGece, 21, 22);
    EXPECT_EQ(kullanici.Goz(31, 12, kGece).tag, u"|11:00|Düğün|Gece|5000|1000|4000|Ali Veli|7|1");
}

TEST_F(Tarama, Kept_over_state_follows_month_day_and_slot_not_the_listing_on_purpose) {
    // By name 01.02 stands before 02.01; the scan goes month by month.
    RezervasyonKoy(u"01.02.2012 - Gündüz", {}, true);
    agac.KoyMetin(u"Salon A/2012/02.01.2012 - Gündüz", AnaMetni());
    kullanici.ProgramiAc();
    RenkOlmali(2, 1, kGunduz, 6, 7);
}

TEST_F(Tarama, Nothing_is_kept_from_one_scan_to_the_next) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {}, true);
    kullanici.ProgramiAc();
    std::filesystem::remove(agac.Yol(u"Salon A/2012/05.01.2012 - Gündüz-Detay"));
    agac.Koy(u"Salon A/2012/05.01.2012 - Gündüz", "");
    kullanici.Tablo().Command1();
    RenkOlmali(5, 1, kGunduz, 6, 7);
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).tag, u"|||Gündüz||||||");
}

TEST_F(Tarama, Details_without_a_main_file_leave_the_day_free_on_purpose) {
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gündüz-Detay", DetayMetni(true));
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gündüz-Odeme", u"\"01.01.2012\",\"5\",\"x\"\r\n");
    agac.KoyMetin(u"Salon A/2012/Gider.dat", u"\"x\",5\r\n");
    kullanici.ProgramiAc();
    RenkOlmali(5, 1, kGunduz, 2, 3);
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).tag, u"");
}

TEST_F(Tarama, State_value_may_stand_quoted_or_bare) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    Metin detay = DetayMetni(true);
    detay.replace(detay.find(u"\"0\",\"1\""), 7, u"0,1");
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gündüz-Detay", detay);
    kullanici.ProgramiAc();
    RenkOlmali(5, 1, kGunduz, 19, 20);
}

TEST_F(Tarama, Name_with_dots_and_blanks_at_its_end_takes_its_slot_as_a_question_for_it_says) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {.ad = u"Can"});
    RezervasyonKoy(u"06.01.2012 - Gece", {.ad = u"Ece"}, true);
    const auto adlandir = [&](MetinBakis eski, MetinBakis yeni) {
        std::filesystem::rename(agac.Yol(u"Salon A/2012/" + Metin(eski)),
                                agac.Yol(u"Salon A/2012/" + Metin(yeni)));
    };
    adlandir(u"05.01.2012 - Gündüz", u"05.01.2012 - Gündüz. .");
    adlandir(u"06.01.2012 - Gece-Detay", u"06.01.2012 - Gece-Detay ");
    kullanici.ProgramiAc();
    EXPECT_TRUE(kullanici.Prog().agac.RezervasyonVarMi(
        kullanici.Prog().agac.GunYolu(u"Salon A", u"2012", u"05.01.2012 - Gündüz")));
    RenkOlmali(5, 1, kGunduz, 6, 7);
    EXPECT_TRUE(kullanici.Goz(5, 1, kGunduz).tag.ends_with(u"|Can|7|1"));
    RenkOlmali(6, 1, kGece, 21, 22);
}

TEST_F(Tarama, Folder_in_the_place_of_a_file_is_no_reservation) {
    agac.KlasorKoy(u"Salon A/2012/05.01.2012 - Gündüz");
    RezervasyonKoy(u"06.01.2012 - Gündüz");
    std::filesystem::remove(agac.Yol(u"Salon A/2012/06.01.2012 - Gündüz-Detay"));
    agac.KlasorKoy(u"Salon A/2012/06.01.2012 - Gündüz-Detay");
    kullanici.ProgramiAc();
    RenkOlmali(5, 1, kGunduz, 2, 3);
    RenkOlmali(6, 1, kGunduz, 6, 7);
}

TEST_F(Tarama, File_that_cant_be_read_takes_its_slot_with_the_values_before_it_on_purpose) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {}, true);
    RezervasyonKoy(u"06.01.2012 - Gündüz", {.ad = u"Gizli"});
    kullanici.ProgramiAc();
    kullanici.Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Oku && yol.find(u"06.01.2012") != Metin::npos;
    };
    kullanici.Tablo().Command1();
    RenkOlmali(6, 1, kGunduz, 19, 20);
    EXPECT_EQ(kullanici.Goz(6, 1, kGunduz).tag, u"|11:00|Düğün|Gündüz|5000|1000|4000|Ali Veli|7|1");
}

TEST_F(Tarama, Garbage_and_huge_files_are_lived_through) {
    std::string cop(3'000'000, '\xFF');
    for (std::size_t i = 0; i < cop.size(); i += 7)
        cop[i] = static_cast<char>(i);
    agac.Koy(u"Salon A/2012/05.01.2012 - Gündüz", cop);
    agac.Koy(u"Salon A/2012/05.01.2012 - Gündüz-Detay", cop);
    agac.Koy(u"Salon A/2012/99.99.9999 - Gündüz", cop);
    agac.Koy(u"Salon A/2012/x", std::string(3, '\0'));
    RezervasyonKoy(u"06.01.2012 - Gündüz");
    kullanici.ProgramiAc();
    RenkOlmali(6, 1, kGunduz, 6, 7);
    EXPECT_EQ(kullanici.Goz(6, 1, kGunduz).tag, u"|11:00|Düğün|Gündüz|5000|1000|4000|Ali Veli|7|1");
}

TEST_F(Tarama, Day_that_the_month_doesnt_have_is_coloured_but_hidden_on_purpose) {
    RezervasyonKoy(u"31.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    EXPECT_FALSE(kullanici.Goz(31, 6, kGunduz).gorunur);
    RenkOlmali(31, 6, kGunduz, 6, 7);
}

// A hidden month is scanned all the same: publishing reads its tags.
TEST_F(Tarama, Month_that_is_off_is_scanned_though_nothing_shows_on_purpose) {
    AyKapat(5);
    RezervasyonKoy(u"05.05.2012 - Gece");
    kullanici.ProgramiAc();
    EXPECT_FALSE(kullanici.Goz(5, 5, kGece).gorunur);
    EXPECT_EQ(kullanici.Goz(5, 5, kGece).tag, u"|11:00|Düğün|Gece|5000|1000|4000|Ali Veli|7|1");
    RenkOlmali(5, 5, kGece, 12, 13);
}

TEST_F(Tarama, Year_folder_with_only_expenses_shows_a_free_table) {
    agac.KoyMetin(u"Salon A/2012/Gider.dat", u"#2012-05-03#,\"Kira\",900\r\n");
    kullanici.ProgramiAc();
    for (const TabloSatiri& satir : kullanici.Tablo().satirlar)
        for (const Hucre& hucre : satir.gun)
            EXPECT_EQ(hucre.tag, u"");
}

TEST_F(Tarama, File_of_another_year_in_the_folder_is_not_looked_for) {
    agac.KoyMetin(u"Salon A/2012/05.01.2013 - Gündüz", AnaMetni());
    kullanici.ProgramiAc();
    RenkOlmali(5, 1, kGunduz, 2, 3);
}

TEST_F(Tarama, Customers_name_stands_in_the_tag_only) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    kullanici.ProgramiAc();
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).baslik, u"Per");
}

class Hatirlatma : public TabloTest {};

TEST_F(Hatirlatma, Reminder_of_today_shows_the_bell_and_blinks) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {.hatirlat = u"15.06.2012", .check19 = 1});
    kullanici.ProgramiAc();
    EXPECT_TRUE(kullanici.Tablo().Image3);
    EXPECT_EQ(kullanici.Tablo().OzelHatirlatTimer.aralik, 500);
    const bool resim = kullanici.Tablo().Image3a;
    kullanici.ZamanGecir(500);
    EXPECT_NE(kullanici.Tablo().Image3a, resim);
    std::filesystem::remove(agac.Yol(u"Salon A/2012/05.01.2012 - Gündüz"));
    kullanici.Tablo().Command1();
    EXPECT_FALSE(kullanici.Tablo().Image3);
    EXPECT_EQ(kullanici.Tablo().OzelHatirlatTimer.aralik, 0);
}

TEST_F(Hatirlatma, Date_without_its_switch_or_of_another_day_is_silent) {
    RezervasyonKoy(u"05.01.2012 - Gündüz", {.hatirlat = u"15.06.2012", .check19 = 0});
    RezervasyonKoy(u"06.01.2012 - Gündüz", {.hatirlat = u"16.06.2012", .check19 = 1});
    kullanici.ProgramiAc();
    EXPECT_FALSE(kullanici.Tablo().Image3);
}

// Companions are read as main records, on purpose: value 18 of the details is the note of the first service
// and value 20 that of the third.
TEST_F(Hatirlatma, Details_file_that_looks_like_a_reminder_raises_it_on_purpose) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    Metin detay;
    for (int i = 1; i <= 17; ++i)
        detay += u"1\r\n";
    detay += u"\"15.06.2012\"\r\n\"\"\r\n\"1\"\r\n";
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gündüz-Detay", detay);
    kullanici.ProgramiAc();
    EXPECT_TRUE(kullanici.Tablo().Image3);
    EXPECT_EQ(kullanici.Tablo().OzelHatirlatTimer.aralik, 500);
}

TEST_F(Hatirlatma, Short_file_keeps_the_reminder_values_of_the_file_before_it_on_purpose) {
    // The first file brings the date, the second has 19 values and keeps the switch of a third that stands
    // before.
    RezervasyonKoy(u"01.01.2012 - Gece", {.hatirlat = u"14.06.2012", .check19 = 1});
    Metin kisa = AnaMetni({.hatirlat = u"15.06.2012"});
    kisa.erase(kisa.rfind(u','));
    agac.KoyMetin(u"Salon A/2012/x", kisa);
    kullanici.ProgramiAc();
    EXPECT_FALSE(kullanici.Tablo().Image3) << "the details before it ended with another value 20";
    std::filesystem::remove(agac.Yol(u"Salon A/2012/01.01.2012 - Gece-Detay"));
    kullanici.Tablo().Command1();
    EXPECT_TRUE(kullanici.Tablo().Image3);
}

TEST_F(Hatirlatma, Scan_of_the_reservations_leaves_its_values_to_the_reminder_scan_on_purpose) {
    // The folder begins with a file of 19 values; the switch it keeps is the one of the last reservation
    // scanned.
    Metin kisa = AnaMetni({.hatirlat = u"15.06.2012"});
    kisa.erase(kisa.rfind(u','));
    agac.KoyMetin(u"Salon A/2012/00", kisa);
    RezervasyonKoy(u"01.01.2012 - Gece", {.check19 = 1});
    kullanici.ProgramiAc();
    EXPECT_TRUE(kullanici.Tablo().Image3);
}

TEST_F(Tarama, A_record_as_long_as_it_may_get_shows_what_stands_at_its_end) {
    Metin detay = DetayMetni(true);
    const Metin bosNot = u"\"\"\r\n";
    for (std::size_t yer = detay.find(bosNot), boy = 75; yer != Metin::npos; boy = yer > 1200 ? 5000 : 75) {
        detay.insert(yer + 1, boy, u'ş');
        yer = detay.find(bosNot, yer + boy + bosNot.size());
    }
    Metin ana = AnaMetni({.no = u"4711"});
    ana.insert(ana.find(u"\"Düğün\"") + 1, 200'000, u'ç');
    RezervasyonKoy(u"05.01.2012 - Gece");
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gece", ana);
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gece-Detay", detay);
    ASSERT_GT(detay.size(), 6000U);
    kullanici.ProgramiAc();
    RenkOlmali(5, 1, kGece, 21, 22);
    EXPECT_TRUE(kullanici.Goz(5, 1, kGece).tag.ends_with(u"|Ali Veli|4711|1"));
}

} // namespace velora::test
