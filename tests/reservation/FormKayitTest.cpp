#include "documents/FormPrint.h"
#include "reservation/KayitTest.h"

namespace velora::test {

/// Opening, fields and closing of the reservation screen.
class FormKayitTest : public KayitTest {
  protected:
    void NumaraOlmali(MetinBakis no, bool acik) {
        EXPECT_EQ(Kayit().Kay[14].metin, no);
        EXPECT_EQ(Kayit().Kay[14].kilitli, !acik);
        EXPECT_EQ(Kayit().Kay[14].beyazZemin, acik);
    }
    /// Puts both settings of contract numbers.
    void NumaraAyari(bool otomatik, bool yok) {
        AyarKoy(29, otomatik ? u"1" : u"0");
        Metin satir = AyarMetni(29, otomatik ? u"1" : u"0");
        satir.replace(satir.rfind(u',') + 1, 1, yok ? u"1" : u"0");
        agac.KoyMetin(u"Settings.dll", satir);
    }
};

TEST_F(FormKayitTest, A_new_record_starts_from_the_design_and_todays_contract_date) {
    YeniKayit([&] {
        const FormKayit& k = Kayit();
        EXPECT_EQ(k.baslik, u"Yeni Kayıt");
        EXPECT_EQ(k.Kay[4].metin, u"Lütfen Seçiniz");
        EXPECT_EQ(k.Kay[4].ogeler, (std::vector<Metin>{u"Lütfen Seçiniz", u"Düğün", u"Nişan", u"Sünnet",
                                                       u"Toplantı", u"Kokteyl", u"Konferans", u"Diğer"}));
        EXPECT_EQ(k.Kay[13].metin, u"15.06.2012");
        EXPECT_EQ(k.Kay[15].metin, u"__:__");
        EXPECT_EQ(k.Kay[18].metin, u"__.__.____");
        EXPECT_FALSE(k.Kay[18].etkin);
        EXPECT_EQ(k.Option1.deger, 1);
        EXPECT_EQ(k.Option2.deger, 0);
        EXPECT_EQ(k.Check18.deger, 1);
        EXPECT_EQ(k.Check19.deger, 0);
        EXPECT_EQ(k.Combo1.Metni(), u"Menü seçiniz...");
        EXPECT_EQ(k.Command1.baslik, u"Oluştur");
        EXPECT_EQ(k.Command1.ipucu, u"Rezervasyonu oluştur");
        EXPECT_FALSE(k.Kay[8].kilitli) << "also for a user who may not change amounts";
        EXPECT_FALSE(k.Command7.etkin);
        EXPECT_FALSE(k.Command9.etkin);
        EXPECT_EQ(k.Kay[9].metin, u"0");
        EXPECT_EQ(k.KayitAc, 0);
    });
}

TEST_F(FormKayitTest, Opening_takes_the_overview_ruler_away) {
    Prog();
    kullanici.AyBasligina(3);
    kullanici.GunBasligina(5);
    YeniKayit([&] { EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur); });
}

TEST_F(FormKayitTest, Opening_gets_the_page_of_the_contract_ready) {
    EXPECT_FALSE(Prog().FormPrint.Yuklu());
    YeniKayit([&] { EXPECT_TRUE(Prog().FormPrint.Yuklu()); });
}

TEST_F(FormKayitTest, With_both_number_settings_off_the_number_is_offered_and_open) {
    NumaraAyari(false, false);
    YeniKayit([&] { NumaraOlmali(u"58", true); });
}

TEST_F(FormKayitTest, With_automatic_numbers_the_number_is_offered_and_locked) {
    NumaraAyari(true, false);
    YeniKayit([&] { NumaraOlmali(u"58", false); });
}

// White and open first, then grey, locked and empty: the second setting wins.
TEST_F(FormKayitTest,
       With_no_numbers_at_all_the_number_is_locked_and_empty_on_purpose_whatever_the_other_says) {
    for (const bool otomatik : {false, true}) {
        NumaraAyari(otomatik, true);
        Prog().FormAyarlar.Bosalt();
        YeniKayit([&] { NumaraOlmali(u"", false); });
    }
}

TEST_F(FormKayitTest, Without_the_counter_the_first_number_is_offered_and_the_menus_stand) {
    NumaraAyari(false, false);
    std::filesystem::remove(agac.Yol(u"Count.dat"));
    YeniKayit([&] {
        NumaraOlmali(u"1", true);
        EXPECT_EQ(Kayit().Combo1.ogeler, (std::vector<Metin>{u"Menü seçiniz...", u"Klasik"}));
        EXPECT_EQ(Kayit().Combo1.secili, 0);
    });
}

TEST_F(FormKayitTest, An_empty_counter_counts_as_missing_and_a_word_as_zero) {
    agac.Koy(u"Count.dat", "\r\n");
    YeniKayit([&] { NumaraOlmali(u"1", false); });
    agac.Koy(u"Count.dat", "\"yok\"\r\n");
    YeniKayit([&] { NumaraOlmali(u"1", false); });
    agac.Koy(u"Count.dat", "\"0099\"\r\n");
    YeniKayit([&] { NumaraOlmali(u"100", false); });
}

// The jump comes before the counter is looked at, and the next save makes it lasting.
TEST_F(FormKayitTest, Missing_menus_offer_the_first_number_on_purpose_and_the_save_resets_the_counter) {
    std::filesystem::remove(agac.Yol(u"Menuler.dat"));
    YeniKayit([&] {
        NumaraOlmali(u"1", false);
        EXPECT_EQ(Kayit().Combo1.secili, -1);
        EXPECT_FALSE(Prog().FormPrint.Yuklu());
        Doldur();
        KaydeteBas();
    });
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"1\"\r\n");
    EXPECT_TRUE(DetayBaytlari().ends_with("\"1\",\"0\"\r\n\"\"\r\n\"\"\r\n")) << "no menu was chosen";
}

TEST_F(FormKayitTest, Missing_menus_offer_the_first_number_on_purpose_even_with_no_numbers_at_all) {
    std::filesystem::remove(agac.Yol(u"Menuler.dat"));
    NumaraAyari(false, true);
    YeniKayit([&] {
        NumaraOlmali(u"1", true);
        Doldur();
        KaydeteBas();
    });
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"57\"\r\n");
}

TEST_F(FormKayitTest, A_menu_without_content_at_the_end_of_the_file_is_a_failed_load_too) {
    agac.Koy(u"Menuler.dat", "\"A\",\"a\"\r\n\"\",\"b\"\r\n\"C\"\r\n");
    YeniKayit([&] {
        NumaraOlmali(u"1", false);
        EXPECT_EQ(Kayit().Combo1.ogeler, (std::vector<Metin>{u"Menü seçiniz...", u"A"}));
        EXPECT_EQ(Kayit().Combo1.secili, -1);
    });
}

TEST_F(FormKayitTest, A_menu_without_a_name_is_left_out_and_a_name_of_blanks_is_not) {
    agac.Koy(u"Menuler.dat", "\"\",\"b\"\r\n\"  \",\"c\"\r\n\r\n");
    YeniKayit([&] {
        EXPECT_EQ(Kayit().Combo1.ogeler, (std::vector<Metin>{u"Menü seçiniz...", u"  "}));
        ListedenSec(Kayit().Combo1, u"  ");
        EXPECT_EQ(Kayit().Label20.metin, u"c");
        NumaraOlmali(u"58", false);
    });
}

TEST_F(FormKayitTest, A_chosen_menu_shows_its_text_and_the_first_entry_empties_it) {
    YeniKayit([&] {
        ListedenSec(Kayit().Combo1, u"Klasik");
        EXPECT_EQ(Kayit().Label20.metin, u"Çorba, Tatlı");
        ListedenSec(Kayit().Combo1, kMenuSeciniz);
        EXPECT_EQ(Kayit().Label20.metin, u"");
    });
}

TEST_F(FormKayitTest, Each_service_opens_its_own_note_and_switched_off_and_on_again_loses_it) {
    YeniKayit([&] {
        for (int no = 1; no <= kHizmetSayisi; ++no) {
            MetinKutusu& not_ = Kayit().TT[no];
            EXPECT_FALSE(not_.etkin || not_.beyazZemin) << no;
            Tikla(Kayit().Check[no]);
            Kayit().Check_MouseUp(no);
            EXPECT_TRUE(not_.etkin && not_.beyazZemin) << no;
            EXPECT_EQ(kullanici.ortam.odaklar.back(), u"TT" + SayiMetni(no));
            AlanaYaz(not_, u"not");
            Tikla(Kayit().Check[no]);
            Kayit().Check_MouseUp(no);
            Tikla(Kayit().Check[no]);
            EXPECT_EQ(not_.metin, u"");
        }
        const auto& odaklar = kullanici.ortam.odaklar;
        EXPECT_EQ(std::count_if(odaklar.begin(), odaklar.end(), [](auto& o) { return o.starts_with(u"TT"); }),
                  kHizmetSayisi)
            << "a service that went off takes no focus";
    });
}

TEST_F(FormKayitTest, The_reminder_opens_its_date_and_unticking_it_keeps_the_date) {
    YeniKayit([&] {
        Tikla(Kayit().Check19);
        Kayit().Check19_MouseUp();
        EXPECT_EQ(kullanici.ortam.odaklar.back(), u"Kay18");
        EXPECT_TRUE(Kayit().Kay[18].etkin && Kayit().Kay[18].beyazZemin);
        Gir(18, u"01.06.2012");
        Tikla(Kayit().Check19);
        EXPECT_FALSE(Kayit().Kay[18].etkin || Kayit().Kay[18].beyazZemin);
        EXPECT_EQ(Kayit().Kay[18].metin, u"01.06.2012");
    });
}

TEST_F(FormKayitTest, Firm_and_pre_reservation_exclude_each_other) {
    YeniKayit([&] {
        Isaretle(Kayit().Option2);
        EXPECT_EQ(Kayit().Option1.deger, 0);
        Isaretle(Kayit().Option1);
        EXPECT_EQ(Kayit().Option2.deger, 0);
    });
}

TEST_F(FormKayitTest, Hours_then_minutes_of_the_start_are_mended_in_order_so_that_25_70_is_midnight) {
    YeniKayit([&] {
        for (const auto& [yazilan, kalan] : std::vector<std::pair<Metin, Metin>>{{u"25:70", u"00:00"},
                                                                                 {u"24:30", u"00:30"},
                                                                                 {u"23:59", u"23:59"},
                                                                                 {u"12:60", u"12:00"},
                                                                                 {u"2_:__", u"2_:__"},
                                                                                 {u"__:75", u"__:00"},
                                                                                 {u"__:__", u"__:__"}}) {
            Gir(12, yazilan);
            EXPECT_EQ(Kayit().Kay[12].metin, kalan);
        }
    });
}

TEST_F(FormKayitTest, The_end_takes_any_digits_on_purpose) {
    YeniKayit([&] {
        Doldur();
        Gir(15, u"99:99");
        KaydeteBas();
    });
    EXPECT_NE(AnaBaytlari().find("\"99:99\""), std::string::npos);
}

TEST_F(FormKayitTest, Fields_know_their_masks_lengths_filters_and_which_are_selected_whole) {
    YeniKayit([&] {
        std::vector<int> secilen;
        std::vector<int> rakam;
        for (int no = 1; no <= kKaySayisi; ++no) {
            if (Kayit().Kay[no].odaktaSecilir)
                secilen.push_back(no);
            if (Kayit().Kay[no].suzgec != nullptr)
                rakam.push_back(no);
        }
        EXPECT_EQ(secilen, (std::vector<int>{1, 2, 3, 5, 6, 8, 12, 13, 15, 16, 17}));
        EXPECT_EQ(rakam, (std::vector<int>{8, 9, 10, 14}));
        EXPECT_FALSE(Kayit().Kay[8].suzgec(u','));
        EXPECT_TRUE(Kayit().Kay[8].suzgec(u'\b'));
        EXPECT_EQ(Kayit().Kay[8].enUzun, 6);
        EXPECT_EQ(Kayit().Kay[16].enUzun, 11);
        for (const int no : {12, 15})
            EXPECT_EQ(Kayit().Kay[no].maske, u"##:##") << no;
        for (const int no : {13, 18})
            EXPECT_EQ(Kayit().Kay[no].maske, u"##.##.####") << no;
        EXPECT_EQ(Kayit().Aciklamalar.enUzun, 5000);
        EXPECT_EQ(Kayit().Label20.enUzun, 5000);
        for (const MetinKutusu& not_ : Kayit().TT)
            EXPECT_EQ(not_.enUzun, 75);
    });
}

TEST_F(FormKayitTest, The_button_of_payments_turns_to_their_page) {
    YeniKayit([&] {
        EXPECT_EQ(Kayit().SSTab1, 1);
        VELORA_BAS(Prog().FormKayit, Command4);
        EXPECT_EQ(Kayit().SSTab1, 2);
    });
}

TEST_F(FormKayitTest, An_unsaved_new_record_closes_only_after_a_yes) {
    const Metin soru = u"Rezervasyonu oluşturmadan kapatıyorsunuz!\n"
                       u"Bu Rezervasyon kaydı oluşturulmayacak emin misiniz?";
    YeniKayit([&] {
        const std::string once = agac.Resim();
        Doldur();
        KutuBekle(soru, Cevap::Hayir, Simge::Uyari, u"Uyarı");
        KapataBas();
        ASSERT_TRUE(Prog().FormKayit.Yuklu());
        EXPECT_EQ(Kayit().Kay[8].metin, u"5000");
        KutuBekle(soru, Cevap::Evet, Simge::Uyari, u"Uyarı");
        KapataBas();
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
        EXPECT_EQ(kullanici.ortam.hayirdaBaslayanlar, (std::vector<Metin>{soru, soru}));
        EXPECT_EQ(agac.Resim(), once);
    });
}

// Required: all edits go without a question.
TEST_F(FormKayitTest, An_existing_record_closes_without_a_question_and_drops_all_edits_on_purpose) {
    RezervasyonKoy(Metin(kGun));
    Prog();
    const std::string once = agac.Resim();
    KayitAc([&] {
        EXPECT_EQ(Kayit().Command2.ipucu, u"Değişiklikleri Kaydetmeden Kapat");
        Gir(1, u"Başka");
        OdemeAl(u"100");
        KapataBas();
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
    });
    EXPECT_EQ(agac.Resim(), once);
}

TEST_F(FormKayitTest, Closing_a_saved_record_asks_nothing) {
    YeniKayit([&] {
        Kayit().Basildi = 1;
        KapataBas();
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
    });
}

TEST_F(FormKayitTest, Every_opening_starts_from_the_design) {
    RezervasyonKoy(Metin(kGun));
    KayitAc([&] {
        Kayit().SSTab1 = 3;
        KapataBas();
    });
    YeniKayit(
        [&] {
            EXPECT_EQ(Kayit().KayitAc, 0);
            EXPECT_EQ(Kayit().Tag, u"");
            EXPECT_EQ(Kayit().SSTab1, 1);
            EXPECT_EQ(Kayit().Kay[1].metin, u"");
            EXPECT_EQ(Kayit().baslik, u"Yeni Kayıt");
        },
        u"21.06.2012 - Gece");
}

} // namespace velora::test
