#include "documents/FormMakbuzPrint.h"
#include "reservation/KayitTest.h"

namespace velora::test {

/// The payments of a reservation.
class OdemelerTest : public KayitTest {
  protected:
    void OdemeKoy(const std::string& bayt) { agac.Koy(u"Salon A/2012/" + Metin(kGun) + u"-Odeme", bayt); }
    /// An existing record with one payment, opened by a user who may delete it and does.
    void TekOdemeyiSil(const Is& sonra) {
        RezervasyonKoy(Metin(kGun));
        OdemeKoy("\"01.01.2012\",\"1000\",\"x\"\r\n");
        Prog();
        kullanici.Tablo().TutarDegistir = 1;
        KayitAc([&] {
            OdemeSec(0);
            SilmeSorusuBekle(Cevap::Evet);
            VELORA_BAS(Prog().FormKayit, Command7);
            EXPECT_EQ(kullanici.ortam.hayirdaBaslayanlar.size(), 1U);
            sonra();
        });
    }
    void ToplamOlmali(MetinBakis alinan, MetinBakis kalan, MetinBakis alinanGoz, MetinBakis kalanGoz) {
        EXPECT_EQ(Kayit().Kay[9].metin, alinan);
        EXPECT_EQ(Kayit().Kay[10].metin, kalan);
        EXPECT_EQ(Kayit().Kayam9.baslik, alinanGoz);
        EXPECT_EQ(Kayit().Kayam10.baslik, kalanGoz);
    }
};

TEST_F(OdemelerTest, Without_payments_the_sum_is_zero_and_shows_nothing) {
    YeniKayit([&] {
        ToplamOlmali(u"0", u"0", u"", u"");
        Gir(8, u"5000");
        ToplamOlmali(u"0", u"5000", u"", u"5.000");
    });
}

TEST_F(OdemelerTest, Name_and_price_come_before_the_first_payment) {
    YeniKayit([&] {
        VELORA_BAS(Prog().FormKayit, Command4);
        Gir(1, u"  ");
        KutuBekle(u"Lütfen önce adı soyadı giriniz!");
        VELORA_BAS(Prog().FormKayit, Command8);
        EXPECT_EQ(Kayit().SSTab1, 1);
        EXPECT_EQ(kullanici.ortam.odaklar.back(), u"Kay1");
        VELORA_BAS(Prog().FormKayit, Command4);
        Gir(1, u"Ali");
        KutuBekle(u"Lütfen önce toplam ücreti giriniz!");
        VELORA_BAS(Prog().FormKayit, Command8);
        EXPECT_EQ(Kayit().SSTab1, 1);
        EXPECT_EQ(kullanici.ortam.odaklar.back(), u"Kay8");
        EXPECT_FALSE(Prog().FormOdemeAl.Yuklu());
    });
}

TEST_F(OdemelerTest, The_dialogue_offers_today_and_a_note_and_waits_for_an_amount) {
    YeniKayit([&] {
        Doldur();
        EkranBekle(EkranAdi::FormOdemeAl, [this] {
            const auto odeme = Prog().FormOdemeAl.Tut();
            EXPECT_EQ(odeme->baslik, u"Ödeme Ekle");
            EXPECT_EQ(TarihMetni(odeme->DTPicker1.deger), u"15.06.2012");
            EXPECT_EQ(odeme->Aciklama.metin, u"58 - ali usta");
            EXPECT_FALSE(odeme->Command1.etkin);
            EXPECT_EQ(odeme->Text1.enUzun, 6);
            EXPECT_FALSE(odeme->Text1.suzgec(u'a'));
            AlanaYaz(odeme->Text1, u"5", {.degisti = [&] { odeme->Text1_Change(); }});
            EXPECT_TRUE(odeme->Command1.etkin);
            AlanaYaz(odeme->Text1, u"", {.degisti = [&] { odeme->Text1_Change(); }});
            EXPECT_FALSE(odeme->Command1.etkin);
            odeme->Text1.metin = u" "; // no key writes it here
            odeme->Text1_Change();
            EXPECT_FALSE(odeme->Command1.etkin);
            VELORA_BAS(Prog().FormOdemeAl, Command2);
        });
        VELORA_BAS(Prog().FormKayit, Command8);
        EXPECT_FALSE(Prog().FormOdemeAl.Yuklu());
        EXPECT_TRUE(Kayit().Liste.satirlar.empty());
    });
}

TEST_F(OdemelerTest, The_day_that_was_picked_and_the_note_that_was_typed_stand_in_the_list_and_in_the_file) {
    YeniKayit([&] {
        Doldur();
        EkranBekle(EkranAdi::FormOdemeAl, [this] {
            const auto odeme = Prog().FormOdemeAl.Tut();
            TarihSec(odeme->DTPicker1, TarihCoz(u"09.03.2011").value());
            AlanaYaz(odeme->Aciklama, u"kapora, elden");
            AlanaYaz(odeme->Text1, u"750", {.degisti = [&] { odeme->Text1_Change(); }});
            VELORA_BAS(Prog().FormOdemeAl, Command1);
        });
        VELORA_BAS(Prog().FormKayit, Command8);
        ASSERT_EQ(Kayit().Liste.satirlar.size(), 1U);
        EXPECT_EQ(Kayit().Liste.satirlar[0].sutun,
                  (std::vector<Metin>{u"09.03.2011", u"750", u"kapora, elden"}));
        KaydeteBas();
    });
    EXPECT_EQ(OdemeBaytlari(), "\"09.03.2011\",\"750\",\"kapora, elden\"\r\n");
}

TEST_F(OdemelerTest, Payments_are_read_where_the_table_stands_though_the_record_lies_elsewhere_on_purpose) {
    KayitKoy(agac, u"Salon B/2011/" + Metin(kGun), {.ad = u"Nur Can"}, false,
             u"\"02.03.2011\",\"40\",\"öteki\"\r\n");
    OdemeKoy("\"05.04.2012\",\"300\",\"buradaki\"\r\n");
    const Metin yol = Prog().agac.GunYolu(u"Salon B", u"2011", kGun);
    EkranBekle(EkranAdi::FormKayit, [&] {
        EXPECT_EQ(Kayit().Tag, yol);
        EXPECT_EQ(Kayit().Kay[AnaNo::AdiSoyadi].metin, u"Nur Can");
        ASSERT_EQ(Kayit().Liste.satirlar.size(), 1U);
        EXPECT_EQ(Kayit().Liste.satirlar[0].sutun, (std::vector<Metin>{u"05.04.2012", u"300", u"buradaki"}));
        KapataBas();
    });
    KayitYukle(Prog(), yol, Metin(kGun));
}

TEST_F(OdemelerTest, Parts_of_an_amount_are_added_up_too) {
    RezervasyonKoy(Metin(kGun));
    OdemeKoy("\"01.01.2012\",\"10.5\",\"x\"\r\n\"03.02.2012\",\"0.25\",\"y\"\r\n");
    KayitAc([&] { ToplamOlmali(u"10.75", u"4989.25", u"11", u"4.989"); });
}

TEST_F(OdemelerTest, The_default_note_without_a_number_starts_with_the_dash) {
    AyarKoy(33, u"1");
    YeniKayit([&] {
        Doldur();
        OdemeAl(u"1");
        EXPECT_EQ(Kayit().Liste.satirlar.at(0).sutun.at(2), u" - ali usta");
    });
}

TEST_F(OdemelerTest, Leading_zeros_go_and_an_amount_of_zero_adds_nothing) {
    YeniKayit([&] {
        Doldur();
        OdemeAl(u"007");
        OdemeAl(u"0");
        ASSERT_EQ(Kayit().Liste.satirlar.size(), 1U);
        EXPECT_EQ(Kayit().Liste.satirlar[0].sutun,
                  (std::vector<Metin>{u"15.06.2012", u"7", u"58 - ali usta"}));
        EXPECT_FALSE(Prog().FormOdemeAl.Yuklu());
        ToplamOlmali(u"7", u"4993", u"7", u"4.993");
    });
}

// The row stays marked, but it has to be clicked again.
TEST_F(OdemelerTest, After_the_dialogue_both_buttons_are_off_though_a_row_is_marked_on_purpose) {
    YeniKayit([&] {
        Doldur();
        OdemeAl(u"100");
        EXPECT_FALSE(Kayit().Command7.etkin);
        OdemeSec(0);
        EXPECT_TRUE(Kayit().Command7.etkin);
        EXPECT_TRUE(Kayit().Command9.etkin);
        OdemeAl(u"200");
        EXPECT_EQ(Kayit().Liste.secili, 0);
        EXPECT_FALSE(Kayit().Command7.etkin);
        EXPECT_FALSE(Kayit().Command9.etkin);
    });
}

TEST_F(OdemelerTest, A_price_below_the_sum_shows_a_negative_rest_and_nothing_refuses_it) {
    YeniKayit([&] {
        Doldur();
        OdemeAl(u"3000");
        Gir(8, u"1000");
        ToplamOlmali(u"3000", u"-2000", u"3.000", u"-2.000");
        KaydeteBas();
    });
    EXPECT_NE(AnaBaytlari().find("\"1000\",\"3000\",\"-2000\""), std::string::npos);
}

TEST_F(OdemelerTest, A_sum_typed_by_hand_moves_the_rest_only_until_the_next_totals) {
    YeniKayit([&] {
        Doldur();
        Kayit().Kay[9].metin = u"100";
        Kayit().Kay9_LostFocus();
        EXPECT_EQ(Kayit().Kay[10].metin, u"4900");
        Kayit().Command12();
        ToplamOlmali(u"0", u"5000", u"", u"5.000");
    });
}

TEST_F(OdemelerTest, A_payment_goes_only_after_a_yes_and_the_buttons_go_off_either_way) {
    YeniKayit([&] {
        Doldur();
        for (const char16_t* tutar : {u"100", u"200", u"300"})
            OdemeAl(tutar);
        OdemeSec(1);
        SilmeSorusuBekle(Cevap::Hayir);
        VELORA_BAS(Prog().FormKayit, Command7);
        EXPECT_EQ(Kayit().Liste.satirlar.size(), 3U);
        EXPECT_FALSE(Kayit().Command7.etkin || Kayit().Command9.etkin);
        OdemeSec(1);
        SilmeSorusuBekle(Cevap::Evet);
        VELORA_BAS(Prog().FormKayit, Command7);
        EXPECT_EQ(Kayit().Liste.satirlar.size(), 2U);
        ToplamOlmali(u"400", u"4600", u"400", u"4.600");
    });
}

TEST_F(OdemelerTest, Without_the_right_an_existing_record_takes_payments_and_gives_none_back) {
    RezervasyonKoy(Metin(kGun));
    OdemeKoy("\"01.01.2012\",\"1000\",\"x\"\r\n");
    Prog();
    kullanici.Tablo().TutarDegistir = 0;
    KayitAc([&] {
        OdemeSec(0);
        KutuBekle(u"Alınan ödemeleri silmeye yetkiniz yok!");
        VELORA_BAS(Prog().FormKayit, Command7);
        EXPECT_FALSE(Kayit().Command7.etkin);
        OdemeAl(u"50");
        KaydeteBas();
    });
    EXPECT_EQ(OdemeBaytlari(), "\"01.01.2012\",\"1000\",\"x\"\r\n\"15.06.2012\",\"50\",\"7 - Ali Veli\"\r\n");
}

TEST_F(OdemelerTest, A_new_record_lets_anyone_delete) {
    YeniKayit([&] {
        Doldur();
        OdemeAl(u"50");
        OdemeSec(0);
        SilmeSorusuBekle(Cevap::Evet);
        VELORA_BAS(Prog().FormKayit, Command7);
        EXPECT_TRUE(Kayit().Liste.satirlar.empty());
    });
}

TEST_F(OdemelerTest, Deleted_payments_come_back_when_the_record_is_closed_unsaved) {
    TekOdemeyiSil([&] {
        EXPECT_EQ(Kayit().Kay[9].metin, u"0");
        KapataBas();
    });
    KayitAc([&] { EXPECT_EQ(Kayit().Kay[9].metin, u"1000"); });
}

TEST_F(OdemelerTest, Saving_the_last_payment_away_removes_the_file) {
    TekOdemeyiSil([&] { KaydeteBas(); });
    EXPECT_FALSE(OdemeVar());
    KayitAc([&] {
        EXPECT_TRUE(Kayit().Liste.satirlar.empty());
        EXPECT_EQ(Kayit().Kay[9].metin, u"0");
    });
}

TEST_F(OdemelerTest, A_delete_without_a_marked_row_removes_nothing_and_totals_all_the_same) {
    YeniKayit([&] {
        Doldur();
        OdemeAl(u"50");
        Kayit().Kay[9].metin = u"?";
        Kayit().Liste.secili = -1; // a click beside the rows
        Kayit().Liste_ItemClick();
        SilmeSorusuBekle(Cevap::Evet);
        VELORA_BAS(Prog().FormKayit, Command7);
        EXPECT_EQ(Kayit().Liste.satirlar.size(), 1U);
        EXPECT_EQ(Kayit().Kay[9].metin, u"50");
    });
}

TEST_F(OdemelerTest, A_receipt_is_of_the_marked_row_saved_or_not_and_a_row_must_be_clicked_again) {
    agac.KoyMetin(u"Firma.dll",
                  u"\"Gül\",\"b\",\"c\",\"d\",\"e\",\"f\",\"g\",\"ADANA\",\"i\",\"j\",\"k\",\"l\",\"4\"\r\n");
    YeniKayit([&] {
        Doldur();
        OdemeAl(u"50");
        OdemeAl(u"1750");
        EXPECT_FALSE(Kayit().Command9.etkin);
        OdemeSec(1);
        EkranBekle(EkranAdi::FormMakbuzPrint, [&] {
            const auto makbuz = Prog().FormMakbuzPrint.Tut();
            EXPECT_EQ(makbuz->Firma.baslik, u"Gül");
            EXPECT_EQ(makbuz->Label1.baslik, u"A L I N D I   M A K B U Z U");
            EXPECT_EQ(makbuz->Tarih.baslik, u": 15.06.2012");
            EXPECT_EQ(makbuz->Tutar.baslik, u": 1.750 TL");
            EXPECT_EQ(makbuz->Aciklama.baslik, u": 58 - ali usta");
            EXPECT_EQ(makbuz->AdSoyad.baslik, u": ali usta");
            EXPECT_EQ(makbuz->isAdi, u"15.06.2012 - Salon A - ali usta - Makbuz");
            EXPECT_TRUE(makbuz->Command1.gorunur && makbuz->Command2.gorunur);
            VELORA_BAS(Prog().FormMakbuzPrint, Command2);
        });
        VELORA_BAS(Prog().FormKayit, Command9);
        EXPECT_FALSE(Kayit().Command9.etkin || Kayit().Command7.etkin);
        EXPECT_FALSE(OdemeVar());
    });
}

TEST_F(OdemelerTest, A_receipt_of_an_amount_of_nothing_shows_none_on_purpose) {
    RezervasyonKoy(Metin(kGun));
    OdemeKoy("\"03.04.2012\",\"0\",\"Bedelsiz\"\r\n");
    KayitAc([&] {
        OdemeSec(0);
        EkranBekle(EkranAdi::FormMakbuzPrint, [&] {
            EXPECT_EQ(Prog().FormMakbuzPrint->Tutar.baslik, u":  TL");
            EXPECT_EQ(Prog().FormMakbuzPrint->Tarih.baslik, u": 03.04.2012");
            EXPECT_EQ(Prog().FormMakbuzPrint->Aciklama.baslik, u": Bedelsiz");
        });
        VELORA_BAS(Prog().FormKayit, Command9);
        Kayit().Liste.secili = -1; // a click beside the rows
        Kayit().Liste_ItemClick();
        VELORA_BAS(Prog().FormKayit, Command9); // nothing is expected to come
    });
}

// A note is written as it is: its quotes end the value early, and the reader goes on behind them.
TEST_F(OdemelerTest, Quotes_in_the_default_note_are_written_raw_on_purpose_and_slide_the_list_when_read) {
    YeniKayit([&] {
        Doldur();
        Gir(1, u"Ali \"Usta\"");
        OdemeAl(u"100");
        KaydeteBas();
    });
    EXPECT_EQ(OdemeBaytlari(), "\"15.06.2012\",\"100\",\"58 - Ali \"Usta\"\"\r\n");
    EXPECT_TRUE(AnaBaytlari().starts_with("\"Ali usta\"")) << "the word began with the quote";
    KayitAc([&] {
        ASSERT_EQ(Kayit().Liste.satirlar.size(), 2U);
        EXPECT_EQ(Kayit().Liste.satirlar[0].sutun, (std::vector<Metin>{u"15.06.2012", u"100", u"58 - Ali "}));
        EXPECT_EQ(Kayit().Liste.satirlar[1].sutun[0], u"Usta\"\"");
    });
}

TEST_F(OdemelerTest, A_thousand_payments_are_added_up_and_written) {
    YeniKayit([&] {
        Doldur();
        for (int i = 0; i < 1000; ++i)
            OdemeAl(u"2");
        ToplamOlmali(u"2000", u"3000", u"2.000", u"3.000");
        KaydeteBas();
    });
    const std::string bayt = OdemeBaytlari();
    EXPECT_EQ(std::count(bayt.begin(), bayt.end(), '\n'), 1000);
}

} // namespace velora::test
