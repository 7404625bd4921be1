// What a search finds.
#include "reservation/AramaTest.h"
#include "storage/Desen.h"

namespace velora::test {

TEST_F(AramaTest, The_texts_of_the_screen) {
    const FormArama& arama = Arama();
    EXPECT_EQ(arama.baslik, u"Kayıt Arama");
    EXPECT_EQ(arama.Command1.baslik, u"Detaylar");
    EXPECT_EQ(arama.Command2.baslik, u"Kapat");
    EXPECT_EQ(arama.Command3.baslik, u"Ara");
    EXPECT_EQ(arama.Liste.basliklar,
              (Adlar{u"Tarih", u"Salon", u"Ad Soyad", u"Gelin Damat", u"Telefon", u"Cep"}));
    EXPECT_EQ(kullanici.Tablo().Girdi(Komut::Arasss).baslik, u"Kayıt Ara");
}

TEST_F(AramaTest, A_row_shows_the_file_its_hall_and_its_customer_and_keeps_the_path) {
    Koy(u"Salon B/2012/20.06.2012 - Gece", {.ad = u"Şükran Öz"});
    Ara(kAd, u"şükran");
    ASSERT_EQ(Arama().Liste.satirlar.size(), 1U);
    const ListeSatiri& satir = Arama().Liste.satirlar[0];
    EXPECT_EQ(satir.sutun,
              (Adlar{u"20.06.2012 - Gece", u"Salon B", u"Şükran Öz", u"Ayşe / Can", u"0212", u"0532"}));
    EXPECT_EQ(satir.tag, Prog().dosyalar.Kok() + u"\\Salon B\\2012\\20.06.2012 - Gece");
}

TEST_F(AramaTest, Names_are_found_by_a_part_of_them_and_numbers_only_whole) {
    agac.KoyMetin(
        u"Salon A/2012/20.06.2012 - Gece",
        Degerler({{1, u"Ali Veli"}, {3, u"Ayşe / Can"}, {5, u"0212 55"}, {6, u"0532 44"}, {14, u"57a"}}));
    const std::vector<std::pair<Alan, Metin>> bulanlar{{kAd, u"i ve"},
                                                       {kGelinDamat, u"şe /"},
                                                       {kTelefon, u"0212 55"},
                                                       {kCep, u"0532 44"},
                                                       {kSozlesmeNo, u"57A"}};
    for (const auto& [alan, olcut] : bulanlar) {
        Ara(alan, olcut);
        EXPECT_EQ(Bulunanlar(), Adlar{u"20.06.2012 - Gece"}) << alan;
    }
    for (const Alan alan : {kTelefon, kCep, kSozlesmeNo})
        Bulamaz(alan, u"5");
}

TEST_F(AramaTest, A_phone_number_stored_with_other_spacing_is_not_found) {
    Koy(u"Salon A/2012/20.06.2012 - Gece", {});
    Ara(kTelefon, u"0212");
    EXPECT_EQ(Bulunanlar().size(), 1U);
    Bulamaz(kTelefon, u"0 212");
    Bulamaz(kTelefon, u"0212 ");
}

TEST_F(AramaTest, Case_makes_no_difference_and_the_dot_of_the_Turkish_i_does) {
    Koy(u"Salon A/2012/20.06.2012 - Gece", {.ad = u"Işıl İNCİ ÇIĞ"});
    for (const char16_t* olcut : {u"IŞIL", u"ışıl", u"inci", u"İnci", u"çığ"}) {
        Ara(kAd, olcut);
        EXPECT_EQ(Bulunanlar().size(), 1U) << ::testing::PrintToString(Metin(olcut));
    }
    Bulamaz(kAd, u"işil");
    Bulamaz(kAd, u"INCI");
}

TEST_F(AramaTest, The_signs_of_a_pattern_keep_their_meaning_in_names_and_not_in_numbers) {
    Koy(u"Salon A/2012/20.06.2012 - Gece", {.ad = u"Ali Veli 2"});
    for (const char16_t* olcut : {u"a*v", u"v?l", u"#", u"[vw]eli", u"[!b]li", u"*"}) {
        Ara(kAd, olcut);
        EXPECT_EQ(Bulunanlar().front(), u"20.06.2012 - Gece") << ::testing::PrintToString(Metin(olcut));
    }
    Bulamaz(kAd, u"##");
    Bulamaz(kTelefon, u"02*");
}

TEST_F(AramaTest, A_malformed_pattern_finds_nothing_and_the_other_criteria_go_on) {
    Koy(u"Salon A/2012/20.06.2012 - Gece", {.ad = u"Ali [Veli"});
    Bulamaz(kAd, u"[veli");
    Ara({{kAd, u"[veli"}, {kTelefon, u"0212"}});
    EXPECT_EQ(Bulunanlar(), Adlar{u"20.06.2012 - Gece"});
}

TEST_F(AramaTest, A_record_found_by_two_criteria_is_listed_twice_on_purpose) {
    Koy(u"Salon A/2012/20.06.2012 - Gece", {});
    Ara({{kAd, u"ali"}, {kTelefon, u"0212"}});
    EXPECT_EQ(Bulunanlar(), (Adlar{u"20.06.2012 - Gece", u"20.06.2012 - Gece"}));
    Ara({{kAd, u"ali"}, {kTelefon, u"başka"}});
    EXPECT_EQ(Bulunanlar().size(), 1U) << "one of them is enough";
    Ara({{kAd, u"a"}, {kGelinDamat, u"a"}, {kTelefon, u"0212"}, {kCep, u"0532"}, {kSozlesmeNo, u"7"}});
    EXPECT_EQ(Bulunanlar().size(), 5U);
}

TEST_F(AramaTest, Nothing_typed_finds_nothing) {
    Koy(u"Salon A/2012/20.06.2012 - Gece", {.ad = u""});
    BulunamadiBekle();
    Ara({});
    EXPECT_TRUE(Bulunanlar().empty());
}

TEST_F(AramaTest, The_number_zero_is_refused_and_the_list_stays) {
    Koy(u"Salon A/2012/20.06.2012 - Gece", {.no = u"0"});
    Ara(kAd, u"ali");
    KutuBekle(u"Lütfen geçerli bir sözleşme numarası giriniz!");
    Ara({{kAd, u"yok"}, {kSozlesmeNo, u"0"}});
    EXPECT_EQ(Bulunanlar().size(), 1U);
}

TEST_F(AramaTest, A_zero_with_a_blank_is_not_refused_on_purpose_and_finds_what_equals_it) {
    Bulamaz(kSozlesmeNo, u" 0");
    Koy(u"Salon A/2012/20.06.2012 - Gece", {.no = u"0"});
    Bulamaz(kSozlesmeNo, u" 0");
    Koy(u"Salon A/2012/21.06.2012 - Gece", {.no = u" 0"});
    Ara(kSozlesmeNo, u" 0");
    EXPECT_EQ(Bulunanlar(), Adlar{u"21.06.2012 - Gece"});
}

TEST_F(AramaTest, Companions_and_expenses_are_read_as_records_on_purpose) {
    Koy(u"Salon A/2012/20.06.2012 - Gece", {.no = u"7"});
    Metin detay = DetayMetni(false);
    detay[3 * 13] = u'1';
    agac.KoyMetin(u"Salon A/2012/20.06.2012 - Gece-Detay", detay);
    agac.KoyMetin(u"Salon A/2012/20.06.2012 - Gece-Odeme",
                  Degerler({{1, u"01.06.2012"}, {3, u"kapora"}, {14, u"1"}}));
    agac.KoyMetin(u"Salon A/2012/Gider.dat", Degerler({{3, u"Elektrik"}, {14, u"x"}}));
    Prog().FormTablo->Sene.ogeler = {u"2012"};
    Ara(kSozlesmeNo, u"1");
    EXPECT_EQ(Bulunanlar(), (Adlar{u"20.06.2012 - Gece-Detay", u"20.06.2012 - Gece-Odeme"}));
    EXPECT_EQ(Sutun(3), (Adlar{u"0", u"kapora"}));
    Ara(kGelinDamat, u"elektrik");
    EXPECT_EQ(Bulunanlar(), Adlar{u"Gider.dat"});
}

TEST_F(AramaTest, Rows_come_hall_by_hall_in_the_order_of_each_listing) {
    for (const char16_t* yol : {u"Salon B/2012/01.01.2012 - Gece", u"Salon A/2012/02.01.2012 - Gündüz",
                                u"Salon A/2012/02.01.2012 - Gece", u"Salon A/2012/01.02.2012 - Gece"})
        Koy(yol, {});
    agac.KlasorKoy(u"Salon A/2012/00 klasör");
    Ara(kAd, u"ali");
    EXPECT_EQ(Bulunanlar(), (Adlar{u"01.02.2012 - Gece", u"02.01.2012 - Gece", u"02.01.2012 - Gündüz",
                                   u"01.01.2012 - Gece"}));
    EXPECT_EQ(Sutun(1), (Adlar{u"Salon A", u"Salon A", u"Salon A", u"Salon B"}));
}

TEST_F(AramaTest, A_search_replaces_what_the_last_one_found) {
    Koy(u"Salon A/2012/20.06.2012 - Gece", {});
    Ara(kAd, u"ali");
    Isaretle(0);
    Ara(kAd, u"ali");
    EXPECT_EQ(Bulunanlar().size(), 1U);
    EXPECT_EQ(Arama().Liste.secili, -1);
    Bulamaz(kAd, u"yok");
}

TEST_F(AramaTest, Without_a_hall_nothing_is_found) {
    agac.KoyMetin(u"Salon.dat", u"");
    Koy(u"Salon A/2012/20.06.2012 - Gece", {});
    Bulamaz(kAd, u"ali");
}

// --- names that don't stand in the selected year, files that can't be read ---

TEST_F(AramaTest, A_record_of_another_year_is_found_only_when_that_year_is_selected) {
    Koy(u"Salon A/2011/20.06.2011 - Gece", {});
    Bulamaz(kAd, u"ali");
    kullanici.Tablo().Sene.Sec(MetinBakis(u"2011"));
    Ara(kAd, u"ali");
    EXPECT_EQ(Bulunanlar(), Adlar{u"20.06.2011 - Gece"});
}

TEST_F(AramaTest, Names_of_later_years_come_with_the_data_of_the_last_file_on_purpose) {
    Koy(u"Salon A/2011/05.05.2011 - Gece", {.ad = u"Önceki"});
    Koy(u"Salon A/2012/20.06.2012 - Gece", {.ad = u"Ali"});
    Koy(u"Salon B/2013/07.07.2013 - Gece", {.ad = u"Sonraki"});
    Koy(u"Salon A/2014/08.08.2014 - Gece", {.ad = u"Daha sonraki"});
    Ara(kAd, u"ali");
    EXPECT_EQ(Bulunanlar(), (Adlar{u"20.06.2012 - Gece", u"07.07.2013 - Gece", u"08.08.2014 - Gece"}));
    EXPECT_EQ(Sutun(1), (Adlar{u"Salon A", u"Salon B", u"Salon A"}));
    EXPECT_EQ(Sutun(2), (Adlar{u"Ali", u"Ali", u"Ali"}));
    EXPECT_EQ(Arama().Liste.satirlar[1].tag, Prog().dosyalar.Kok() + u"\\Salon B\\2012\\07.07.2013 - Gece");
    Bulamaz(kAd, u"sonraki");
}

TEST_F(AramaTest, A_name_that_stands_in_two_years_is_read_in_the_selected_one_both_times_on_purpose) {
    agac.KoyMetin(u"Salon A/2011/Gider.dat", Degerler({{1, u"eski"}}));
    agac.KoyMetin(u"Salon A/2012/Gider.dat", Degerler({{1, u"yeni"}}));
    Ara(kAd, u"yeni");
    EXPECT_EQ(Bulunanlar(), (Adlar{u"Gider.dat", u"Gider.dat"}));
    Bulamaz(kAd, u"eski");
}

TEST_F(AramaTest, A_file_that_can_not_be_opened_is_listed_with_the_data_before_it_on_purpose) {
    for (const char16_t* ad : {u"20.06.2012 - Gece", u"21.06.2012 - Gece", u"22.06.2012 - Gece"})
        Koy(u"Salon A/2012/" + Metin(ad), {.ad = u"Müşteri " + Metin(ad).substr(0, 2)});
    Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Oku && yol.ends_with(u"21.06.2012 - Gece");
    };
    Ara(kAd, u"müşteri");
    EXPECT_EQ(Sutun(2), (Adlar{u"Müşteri 20", u"Müşteri 20", u"Müşteri 22"}));
}

TEST_F(AramaTest, A_short_file_is_filled_up_from_the_one_before_it_on_purpose) {
    agac.KoyMetin(u"Salon A/2012/20.06.2012 - Gece",
                  Degerler({{1, u"Ali"}, {3, u"A"}, {5, u"0212"}, {6, u"0532"}, {14, u"5"}}));
    agac.KoyMetin(u"Salon A/2012/21.06.2012 - Gece", u"\"Veli\",\"\",\"B\",\"\",\"0216\"\r\n");
    agac.KoyMetin(u"Salon A/2012/22.06.2012 - Gece", u"\r\n");
    Ara(kSozlesmeNo, u"5");
    EXPECT_EQ(Sutun(2), (Adlar{u"Ali", u"Veli", u"Veli"}));
    EXPECT_EQ(Sutun(4), (Adlar{u"0212", u"0216", u"0216"}));
    EXPECT_EQ(Sutun(5), (Adlar{u"0532", u"0532", u"0532"}));
}

TEST_F(AramaTest, A_star_lists_names_before_any_file_was_read_too_on_purpose) {
    Koy(u"Salon A/2011/05.05.2011 - Gece", {});
    Ara(kAd, u"*");
    EXPECT_EQ(Bulunanlar(), Adlar{u"05.05.2011 - Gece"});
    EXPECT_EQ(Sutun(2), Adlar{u""});
}

TEST_F(AramaTest, A_pattern_is_taken_apart_once_for_all_files) {
    for (int gun = 10; gun < 28; ++gun)
        KayitKoy(agac, u"Salon B/2012/" + SayiMetni(gun) + u".06.2012 - Gece", {.ad = u"Nur Ak"});
    Prog();
    const std::size_t once = HazirDesen::Cozulen();
    Ara({{kAd, u"nur?a[k-l]"}, {kGelinDamat, u"*"}, {kTelefon, u"yok"}});
    EXPECT_GT(Arama().Liste.satirlar.size(), 18U);
    EXPECT_EQ(HazirDesen::Cozulen() - once, 2U) << "one for each field that is a pattern";
}

TEST_F(AramaTest, A_search_writes_nothing) {
    KayitKoy(agac, u"Salon B/2012/20.06.2012 - Gece");
    Prog();
    const std::string once = agac.Resim();
    Ara(kAd, u"ali");
    EXPECT_EQ(agac.Resim(), once);
}

TEST_F(AramaTest, A_long_record_is_found_by_what_stands_at_its_end) {
    agac.KoyMetin(u"Salon B/2012/20.06.2012 - Gece",
                  Degerler({{1, u"Nur"}, {7, Metin(200'000, u'ş')}, {14, u"4711"}}));
    Ara(kSozlesmeNo, u"4711");
    EXPECT_EQ(Bulunanlar(), Adlar{u"20.06.2012 - Gece"});
}

TEST_F(AramaTest, A_new_search_marks_nothing) {
    KayitKoy(agac, u"Salon B/2012/20.06.2012 - Gece", {.ad = u"Nur Ak"});
    Ara(kAd, u"nur");
    Isaretle(0);
    EXPECT_TRUE(Arama().Command1.etkin);
    Ara(kAd, u"ak");
    EXPECT_EQ(Bulunanlar(), Adlar{u"20.06.2012 - Gece"});
    EXPECT_EQ(Arama().Liste.secili, -1);
    EXPECT_FALSE(Arama().Command1.etkin);
}

TEST_F(AramaTest, The_path_is_of_the_selected_year_and_the_names_are_of_every_year_on_purpose) {
    agac.KoyMetin(u"Salon A/2012/Gider.dat", u"\"01.02.2012\",\"70\",\"x\",\"\"\r\n");
    Koy(u"Salon A/2013/01.02.2013 - Gece", {.ad = u"Nur"});
    agac.KoyMetin(u"Salon A/2013/01.02.2013 - Gece-Detay", DetayMetni(false));
    Ara(kGelinDamat, u"x");
    EXPECT_EQ(Bulunanlar(), (Adlar{u"Gider.dat", u"01.02.2013 - Gece", u"01.02.2013 - Gece-Detay"}));
    EXPECT_EQ(Sutun(3), (Adlar{u"x", u"x", u"x"}));
    for (const ListeSatiri& satir : Arama().Liste.satirlar)
        EXPECT_EQ(satir.tag, Yol(satir.sutun[0])) << "under 2012, whatever year lists the name";
}

TEST_F(AramaTest, Three_criteria_that_match_give_three_equal_rows_on_purpose) {
    Koy(u"Salon B/2012/20.06.2012 - Gece", {.no = u"7"});
    Koy(u"Salon A/2012/21.06.2012 - Gece", {.ad = u"Başka", .no = u"8"});
    Ara({{kAd, u"ali"}, {kCep, u"0532"}, {kSozlesmeNo, u"7"}});
    ASSERT_EQ(Bulunanlar(), (Adlar{u"21.06.2012 - Gece", u"20.06.2012 - Gece", u"20.06.2012 - Gece",
                                   u"20.06.2012 - Gece"}));
    for (const std::size_t sira : {2U, 3U}) {
        EXPECT_EQ(Arama().Liste.satirlar[sira].sutun, Arama().Liste.satirlar[1].sutun);
        EXPECT_EQ(Arama().Liste.satirlar[sira].tag, Arama().Liste.satirlar[1].tag);
    }
}

// Only a text of no length takes no part.
TEST_F(AramaTest, A_blank_is_a_criterion_like_any_other_on_purpose) {
    Koy(u"Salon A/2012/20.06.2012 - Gece", {.ad = u"Ali Veli"});
    Koy(u"Salon A/2012/21.06.2012 - Gece", {.ad = u"Nur"});
    Ara(kAd, u" ");
    EXPECT_EQ(Bulunanlar(), Adlar{u"20.06.2012 - Gece"});
    Bulamaz(kTelefon, u" ");
}

TEST_F(AramaTest, Patterns_of_ten_thousand_signs_come_to_an_end_and_find_what_they_mean) {
    Koy(u"Salon A/2012/20.06.2012 - Gece", {.ad = u"Ali 7 Veli"});
    Koy(u"Salon A/2012/21.06.2012 - Gece", {.ad = Metin(9'999, u'a') + u"b"});
    // Not typed: so many keys would take longer than the searches.
    const auto araUzun = [this](Alan alan, MetinBakis parca) {
        Metin& metin = Arama().Text[alan].metin;
        metin.clear();
        while (metin.size() + parca.size() <= 10'000)
            metin += parca;
        VELORA_BAS(Prog().FormArama, Command3);
        return Bulunanlar();
    };
    EXPECT_GE(araUzun(kAd, u"*").size(), 2U);
    for (const char16_t* parca : {u"?", u"[!z]", u"a*"})
        EXPECT_EQ(araUzun(kAd, parca), Adlar{u"21.06.2012 - Gece"}) << ::testing::PrintToString(Metin(parca));
    for (const char16_t* parca : {u"#", u"[", u"]", u"[a", u"*#*", u"!", u"*a*z"}) {
        BulunamadiBekle();
        EXPECT_EQ(araUzun(kAd, parca), Adlar()) << ::testing::PrintToString(Metin(parca));
    }
    Arama().Text[kAd].metin.clear();
    BulunamadiBekle();
    EXPECT_EQ(araUzun(kTelefon, u"*"), Adlar());
}

TEST_F(AramaTest, In_a_tree_of_which_nothing_can_be_read_only_a_star_lists_its_names_on_purpose) {
    KayitKoy(agac, u"Salon B/2012/20.06.2012 - Gece");
    Prog().dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Oku; };
    Bulamaz(kAd, u"ali");
    Ara(kAd, u"*");
    EXPECT_EQ(Bulunanlar(), (Adlar{u"20.06.2012 - Gece", u"20.06.2012 - Gece-Detay"}));
    EXPECT_EQ(Sutun(2), (Adlar{u"", u""}));
}

} // namespace velora::test
