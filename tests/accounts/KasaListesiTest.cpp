// What the cash book lists, in which order, and what it adds up to.
#include "accounts/KasaTest.h"

namespace velora::test {

class KasaListesiTesti : public KasaTest {};

TEST_F(KasaListesiTesti, Opens_on_the_hall_of_the_table_and_this_month_with_nothing_listed) {
    agac.Koy(kGiderYolu, "\"15.06.2012\",\"150\",\"Elektrik\"\r\n");
    Prog();
    kullanici.SalonSec(u"Salon B");
    KasaAc([&] {
        EXPECT_EQ(Kasa().baslik, u"Kasa Raporu");
        EXPECT_EQ(Kasa().Combo2.ogeler, (std::vector<Metin>{u"Salon A", u"Salon B"}));
        EXPECT_EQ(Kasa().Combo2.Metni(), u"Salon B");
        EXPECT_EQ(TarihMetni(Kasa().DTPicker1.deger), u"01.06.2012");
        EXPECT_EQ(TarihMetni(Kasa().DTPicker2.deger), u"30.06.2012");
        EXPECT_EQ(Kasa().Liste.basliklar, (std::vector<Metin>{u"Tarih", u"Tutar", u"İşlem", u"Açıklama"}));
        EXPECT_TRUE(Kasa().Liste.satirlar.empty());
        ToplamOlmali(u": 0", u": 0", u": 0");
        ListedenSec(Kasa().Combo2, u"Salon A");
        EXPECT_TRUE(Kasa().Liste.satirlar.empty());
    });
}

TEST_F(KasaListesiTesti, Captions) {
    EXPECT_EQ(Kasa().Combo2.baslik, u"Salon Adı");
    EXPECT_EQ(Kasa().DTPicker1.baslik, u"Başlangıç Tarihi");
    EXPECT_EQ(Kasa().DTPicker2.baslik, u"Bitiş Tarihi");
    EXPECT_EQ(Kasa().Gelirler.once, u"Gelir Toplam");
    EXPECT_EQ(Kasa().Giderler.once, u"Gider Toplam");
    EXPECT_EQ(Kasa().GenelTop.once, u"Genel Toplam");
    Metin dugmeler;
    for (const Dugme* dugme :
         {&Kasa().Listele, &Kasa().Command2, &Kasa().Command3, &Kasa().Command6, &Kasa().Command1})
        dugmeler += dugme->baslik + u" / ";
    EXPECT_EQ(dugmeler, u"Listele / Excel'e Aktar / Giderler Listesi / Gider Ekle / Kapat / ");
}

TEST_F(KasaListesiTesti,
       Income_and_expenses_of_all_years_stand_in_the_order_of_years_names_and_records_on_purpose) {
    agac.Koy(u"Salon A/2012/20.12.2012 - Gece-Odeme",
             "\"31.12.2012\",\"1250.50\",\"7 - Ali\"\r\n\"02.12.2012\",\"250\",\"7 - Ali\"\r\n");
    agac.Koy(u"Salon A/2012/31.12.2012 - Gece-Odeme", "\"20.12.2012\",\"1.250\",\"8\"\r\n");
    agac.Koy(kGiderYolu, "#2012-12-03#,\"150\",\"Elektrik\"\r\n\"04.12.2012\",\"90\",\"Su\"\r\n");
    agac.Koy(u"Salon A/2013/01.05.2013 - Gece-Odeme", "\"01.01.2013\",\"40\",\"9\"\r\n");
    agac.Koy(u"Salon A/2013/Gider.dat", "\"30.12.2012\",\"5000\",\"Kira\"\r\n");
    KasayiListele(u"01.12.2012", u"31.01.2013", [&] {
        EXPECT_EQ(Okunan(Kasa().Liste), (Satirlar{{u"31.12.2012", u"1250.50", u"Gelir", u"7 - Ali"},
                                                  {u"02.12.2012", u"250", u"Gelir", u"7 - Ali"},
                                                  {u"20.12.2012", u"1.250", u"Gelir", u"8"},
                                                  {u"03.12.2012", u"150", u"Gider", u"Elektrik"},
                                                  {u"04.12.2012", u"90", u"Gider", u"Su"},
                                                  {u"01.01.2013", u"40", u"Gelir", u"9"},
                                                  {u"30.12.2012", u"5000", u"Gider", u"Kira"}}));
        // 1250.50 + 250 + 1.25 + 40, by the numbers that the texts begin with
        ToplamOlmali(u": 1.542 TL", u": 5.240 TL", u": -3.698 TL");
        EXPECT_EQ(Kasa().Ozet.baslik, u"7 kayıt · Salon A");
    });
}

TEST_F(KasaListesiTesti, The_first_and_the_last_day_of_the_range_are_listed_and_their_neighbours_not) {
    agac.Koy(kGiderYolu, "\"09.06.2012\",\"1\",\"a\"\r\n\"10.06.2012\",\"20\",\"b\"\r\n"
                         "\"20.06.2012\",\"300\",\"c\"\r\n\"21.06.2012\",\"4000\",\"d\"\r\n");
    KasayiListele(u"10.06.2012", u"20.06.2012", [&] {
        EXPECT_EQ(Okunan(Kasa().Liste), (Satirlar{{u"10.06.2012", u"20", u"Gider", u"b"},
                                                  {u"20.06.2012", u"300", u"Gider", u"c"}}));
        ToplamOlmali(u":  TL", u": 320 TL", u": -320 TL");
    });
}

TEST_F(KasaListesiTesti, Nothing_in_range_gives_a_box_and_empty_amounts_on_purpose) {
    agac.Koy(kGiderYolu, "\"09.06.2012\",\"1\",\"a\"\r\n");
    KasaAc([&] {
        KasaAraligi(u"09.06.2012", u"09.06.2012");
        Kasa().ListeleGun();
        ToplamOlmali(u":  TL", u": 1 TL", u": -1 TL");
        KasaAraligi(u"10.06.2012", u"20.06.2012");
        BosKasaBekle();
        Kasa().ListeleGun();
        EXPECT_TRUE(Kasa().Liste.satirlar.empty());
        ToplamOlmali(u":  TL", u":  TL", u":  TL");
        Kasa().ListeleGun1(); // says nothing
    });
}

TEST_F(KasaListesiTesti, The_dates_are_not_held_in_the_year_of_the_table_on_purpose) {
    KasaAc([&] {
        for (const TarihSecici* secici : {&Kasa().DTPicker1, &Kasa().DTPicker2}) {
            EXPECT_FALSE(secici->enKucuk.has_value());
            EXPECT_FALSE(secici->enBuyuk.has_value());
        }
    });
}

TEST_F(KasaListesiTesti, A_year_that_the_table_does_not_offer_and_another_hall_are_not_read) {
    agac.Koy(u"Salon A/1950/Gider.dat", "\"15.06.2012\",\"1\",\"a\"\r\n");
    agac.Koy(u"Salon B/2012/Gider.dat", "\"15.06.2012\",\"2\",\"b\"\r\n");
    KasaAc([&] {
        BosKasaBekle();
        Kasa().ListeleGun();
        ListedenSec(Kasa().Combo2, u"Salon B");
        Kasa().ListeleGun();
        EXPECT_EQ(Okunan(Kasa().Liste), (Satirlar{{u"15.06.2012", u"2", u"Gider", u"b"}}));
        EXPECT_EQ(Kasa().Ozet.baslik, u"1 kayıt · Salon B");
    });
}

TEST_F(KasaListesiTesti, Main_files_details_and_others_are_passed_over_and_not_opened) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    agac.Koy(kGiderYolu, "\"15.06.2012\",\"7\",\"a\"\r\n");
    agac.Koy(u"Salon A/2012/gider.dat.eski", "\"15.06.2012\",\"8\",\"b\"\r\n");
    Prog();
    const std::size_t once = Prog().dosyalar.Okunan();
    KasaAc([&] {
        const std::size_t acilista = Prog().dosyalar.Okunan();
        Kasa().ListeleGun();
        EXPECT_EQ(Okunan(Kasa().Liste), (Satirlar{{u"15.06.2012", u"7", u"Gider", u"a"}}));
        EXPECT_EQ(Prog().dosyalar.Okunan(), acilista + 1);
    });
    EXPECT_GT(Prog().dosyalar.Okunan(), once);
}

TEST_F(KasaListesiTesti, A_file_counts_by_the_end_of_its_name) {
    agac.Koy(u"Salon A/2012/eski Gider.dat", "\"15.06.2012\",\"3\",\"a\"\r\n");
    agac.Koy(u"Salon A/2012/xOdeme", "\"16.06.2012\",\"5\",\"b\"\r\n");
    KasayiListele(u"01.06.2012", u"30.06.2012", [&] { ToplamOlmali(u": 5 TL", u": 3 TL", u": 2 TL"); });
}

TEST_F(KasaListesiTesti, An_empty_file_of_expenses_lists_the_last_payment_once_more_as_expense_on_purpose) {
    agac.Koy(u"Salon A/2012/20.06.2012 - Gece-Odeme", "\"10.06.2012\",\"100\",\"7 - Ali\"\r\n");
    agac.Koy(kGiderYolu, "");
    KasayiListele(u"01.06.2012", u"30.06.2012", [&] {
        EXPECT_EQ(Okunan(Kasa().Liste), (Satirlar{{u"10.06.2012", u"100", u"Gelir", u"7 - Ali"},
                                                  {u"10.06.2012", u"100", u"Gider", u"7 - Ali"}}));
        ToplamOlmali(u": 100 TL", u": 100 TL", u":  TL");
    });
}

TEST_F(KasaListesiTesti, The_record_that_an_empty_file_repeats_is_the_one_read_last_in_range_or_not) {
    agac.Koy(u"Salon A/2012/20.06.2012 - Gece-Odeme",
             "\"10.06.2012\",\"100\",\"a\"\r\n\"01.07.2012\",\"30\",\"b\"\r\n");
    agac.Koy(kGiderYolu, "\r\n");
    KasayiListele(u"01.06.2012", u"30.06.2012", [&] { ToplamOlmali(u": 100 TL", u":  TL", u": 100 TL"); });
    // Over the years, too.
    agac.Koy(u"Salon A/2013/Gider.dat", "");
    KasayiListele(u"01.07.2012", u"30.07.2012", [&] {
        EXPECT_EQ(Okunan(Kasa().Liste), (Satirlar{{u"01.07.2012", u"30", u"Gelir", u"b"},
                                                  {u"01.07.2012", u"30", u"Gider", u"b"},
                                                  {u"01.07.2012", u"30", u"Gider", u"b"}}));
    });
}

TEST_F(KasaListesiTesti,
       An_empty_file_before_any_record_gives_no_row_and_a_new_listing_remembers_none_on_purpose) {
    agac.Koy(u"Salon A/2012/01.06.2012 - Gece-Odeme", "");
    agac.Koy(kGiderYolu, "\"15.06.2012\",\"7\",\"a\"\r\n");
    KasayiListele(u"01.06.2012", u"30.06.2012", [&] {
        ToplamOlmali(u":  TL", u": 7 TL", u": -7 TL");
        Kasa().ListeleGun();
        ToplamOlmali(u":  TL", u": 7 TL", u": -7 TL");
    });
}

TEST_F(KasaListesiTesti, A_year_without_a_folder_repeats_nothing_of_the_year_before) {
    agac.Koy(u"Salon A/2012/01.06.2012 - Gece-Odeme", "\"15.06.2012\",\"7\",\"a\"\r\n");
    agac.Koy(u"Salon A/2014/Gider.dat", "\"02.03.2014\",\"90\",\"b\"\r\n");
    EXPECT_FALSE(agac.KlasorVar(u"Salon A/2013"));
    KasayiListele(u"01.01.2012", u"31.12.2014", [&] {
        EXPECT_EQ(Okunan(Kasa().Liste),
                  (Satirlar{{u"15.06.2012", u"7", u"Gelir", u"a"}, {u"02.03.2014", u"90", u"Gider", u"b"}}));
    });
}

TEST_F(KasaListesiTesti, A_file_that_can_not_be_opened_gives_no_row) {
    agac.Koy(u"Salon A/2012/01.06.2012 - Gece-Odeme", "\"15.06.2012\",\"7\",\"a\"\r\n");
    agac.Koy(u"Salon A/2012/02.06.2012 - Gece-Odeme", "\"15.06.2012\",\"80\",\"b\"\r\n");
    agac.Koy(kGiderYolu, "\"16.06.2012\",\"900\",\"c\"\r\n");
    Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Oku && yol.ends_with(u"02.06.2012 - Gece-Odeme");
    };
    KasayiListele(u"01.06.2012", u"30.06.2012", [&] { ToplamOlmali(u": 7 TL", u": 900 TL", u": -893 TL"); });
}

TEST_F(KasaListesiTesti, A_date_in_another_form_stands_as_it_reads) {
    agac.Koy(u"Salon A/2012/20.06.2012 - Gece-Odeme",
             "\"5.1.2012\",\"40\",\"a\"\r\n\"31.12.2011\",\"7\",\"b\"\r\n");
    agac.Koy(kGiderYolu, "\"6.1.2012\",\"300\",\"c\"\r\n");
    KasayiListele(u"05.01.2012", u"06.01.2012", [&] {
        EXPECT_EQ(Okunan(Kasa().Liste),
                  (Satirlar{{u"5.1.2012", u"40", u"Gelir", u"a"}, {u"6.1.2012", u"300", u"Gider", u"c"}}));
    });
}

TEST_F(KasaListesiTesti, A_record_whose_date_is_none_repeats_the_one_before_it_on_purpose) {
    agac.Koy(kGiderYolu, "\"31.02.2012\",\"1\",\"a\"\r\n\"15.06.2012\",\"20\",\"b\"\r\n"
                         "\"yok\",\"300\",\"c\"\r\n#2012-13-01#,\"4\",\"d\"\r\n#2012-06-16#,\"5\",\"e\"\r\n");
    KasayiListele(u"01.06.2012", u"30.06.2012", [&] {
        EXPECT_EQ(Okunan(Kasa().Liste), (Satirlar{{u"15.06.2012", u"20", u"Gider", u"b"},
                                                  {u"15.06.2012", u"20", u"Gider", u"b"},
                                                  {u"15.06.2012", u"20", u"Gider", u"b"},
                                                  {u"16.06.2012", u"5", u"Gider", u"e"}}));
    });
}

TEST_F(KasaListesiTesti, A_record_that_is_cut_short_keeps_the_rest_of_the_one_before_it_on_purpose) {
    agac.Koy(kGiderYolu, "\"14.06.2012\",\"20\",\"b\"\r\n\"15.06.2012\",\"300\"");
    KasayiListele(u"01.06.2012", u"30.06.2012", [&] {
        EXPECT_EQ(Okunan(Kasa().Liste), (Satirlar{{u"14.06.2012", u"20", u"Gider", u"b"},
                                                  {u"15.06.2012", u"300", u"Gider", u"b"}}));
    });
}

TEST_F(KasaListesiTesti, Amounts_in_odd_forms_count_with_the_number_that_they_begin_with) {
    agac.Koy(kGiderYolu, "\"15.06.2012\",\"  12 TL\",\"a\"\r\n\"15.06.2012\",\"1,250\",\"b\"\r\n"
                         "\"15.06.2012\",\"\",\"c\"\r\n\"15.06.2012\",\"abc\",\"d\"\r\n"
                         "\"15.06.2012\",2.5,\"e\"\r\n\"15.06.2012\",\"1.2.3\",\"f\"\r\n");
    KasayiListele(u"01.06.2012", u"30.06.2012", [&] {
        EXPECT_EQ(Kasa().Liste.satirlar.size(), 6U);
        EXPECT_EQ(Kasa().Giderler.baslik, u": 17 TL"); // 12 + 1 + 2.5 + 1.2
    });
}

TEST_F(KasaListesiTesti, Kapat_unloads_it_and_without_any_hall_it_finds_nothing) {
    agac.KoyMetin(u"Salon.dat", u"");
    KasaAc([&] {
        BosKasaBekle();
        Kasa().ListeleGun();
        VELORA_BAS(Prog().FormKasa, Command1);
        EXPECT_FALSE(Prog().FormKasa.Yuklu());
    });
}

} // namespace velora::test
