// The bell of today's reminders, and the list behind it.
#include "reservation/FormOzelHatirlatma.h"

#include "reservation/KayitTest.h"

namespace velora::test {

/// Today is 15 June 2012, a firm with two halls.
class OzelHatirlatmaTest : public KayitTest {
  protected:
    using Satir = std::vector<Metin>;

    OzelHatirlatmaTest() { agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n"); }

    static OrnekKayit Bugunku(const Metin& ad) {
        return {.ad = ad, .nitelik = u"Kına", .hatirlat = u"15.06.2012", .check19 = 1};
    }
    FormTablo& Tablo() { return *Prog().FormTablo.Tut(); }
    FormOzelHatirlatma& Hatirlatma() { return *Prog().FormOzelHatirlatma.Tut(); }
    Metin Ad(std::size_t sira) { return Hatirlatma().Liste.satirlar.at(sira).sutun[1]; }
    /// The first column of each row.
    Satir Adlar() {
        Satir adlar;
        for (const ListeSatiri& satir : Hatirlatma().Liste.satirlar)
            adlar.push_back(satir.sutun[0]);
        return adlar;
    }
    /// A click on the bell; `is` is what the user does on the list, which must be shown.
    void ZileTikla(const Is& is) {
        Prog();
        EkranBekle(EkranAdi::FormOzelHatirlatma, is);
        Tablo().Image3_Click();
    }
    void Isaretle(int sira) {
        SatiraTikla(Hatirlatma().Liste, sira, [this] { Hatirlatma().Liste_ItemClick(); });
    }
    /// The row is opened; `is` is what the user does on the record.
    void Goster(int sira, const Is& is) {
        Isaretle(sira);
        EkranBekle(EkranAdi::FormKayit, is);
        VELORA_BAS(Prog().FormOzelHatirlatma, Command4);
    }
    void Kapat() { VELORA_BAS(Prog().FormOzelHatirlatma, Command2); }
};

TEST_F(OzelHatirlatmaTest, The_texts_of_the_screen_and_of_the_bell) {
    EXPECT_EQ(Hatirlatma().baslik, u"Özel Hatırlatmalar");
    EXPECT_EQ(Hatirlatma().Command4.baslik, u"Göster");
    EXPECT_EQ(Hatirlatma().Command2.baslik, u"Kapat");
    EXPECT_EQ(Hatirlatma().Liste.basliklar, (Satir{u"Tarih", u"Ad Soyad", u"Nitelik", u"Telefon", u"Cep"}));
    EXPECT_EQ(Tablo().image3Ipucu, u"Bu Tarihte Hatırlatma Var");
    EXPECT_EQ(Tablo().image3aIpucu, u"Özel Hatırlatma Var");
}

TEST_F(OzelHatirlatmaTest, The_bell_lists_what_is_due_in_the_selected_hall_and_year) {
    RezervasyonKoy(u"20.09.2012 - Gece", Bugunku(u"Nur"));
    RezervasyonKoy(u"05.01.2012 - Gündüz", Bugunku(u"Can"));
    RezervasyonKoy(u"06.01.2012 - Gece", {.ad = u"Kapalı", .hatirlat = u"15.06.2012", .check19 = 0});
    RezervasyonKoy(u"07.01.2012 - Gece", {.ad = u"Dün", .hatirlat = u"14.06.2012", .check19 = 1});
    RezervasyonKoy(u"08.01.2012 - Gece", {.ad = u"Kısa", .hatirlat = u"15.6.2012", .check19 = 1});
    RezervasyonKoy(u"09.01.2012 - Gece", {.ad = u"İki", .hatirlat = u"15.06.2012", .check19 = 2});
    RezervasyonKoy(u"10.01.2012 - Gece", {.ad = u"Boşluklu", .hatirlat = u" 15.06.2012", .check19 = 1});
    KayitKoy(agac, u"Salon B/2012/03.03.2012 - Gece", Bugunku(u"Öteki salon"));
    KayitKoy(agac, u"Salon A/2013/03.03.2013 - Gece", Bugunku(u"Öteki yıl"));
    ZileTikla([&] {
        ASSERT_EQ(Adlar(), (Satir{u"05.01.2012 - Gündüz", u"20.09.2012 - Gece"}));
        const ListeSatiri& satir = Hatirlatma().Liste.satirlar[1];
        EXPECT_EQ(satir.sutun, (Satir{u"20.09.2012 - Gece", u"Nur", u"Kına", u"0212", u"0532"}));
        EXPECT_EQ(satir.tag, Yol(u"20.09.2012 - Gece"));
        EXPECT_FALSE(Hatirlatma().Command4.etkin);
        Kapat();
    });
    EXPECT_FALSE(Prog().FormOzelHatirlatma.Yuklu());
}

TEST_F(OzelHatirlatmaTest, The_bell_rings_for_the_selected_hall_and_year_alone) {
    KayitKoy(agac, u"Salon B/2013/03.03.2013 - Gece", Bugunku(u"Nur"));
    Prog();
    EXPECT_FALSE(Tablo().Image3);
    kullanici.SalonSec(u"Salon B");
    EXPECT_FALSE(Tablo().Image3);
    kullanici.YilSec(u"2013");
    EXPECT_TRUE(Tablo().Image3);
    EXPECT_EQ(Tablo().OzelHatirlatTimer.aralik, 500);
    kullanici.SalonSec(u"Salon A");
    EXPECT_FALSE(Tablo().Image3);
    EXPECT_EQ(Tablo().OzelHatirlatTimer.aralik, 0);
}

TEST_F(OzelHatirlatmaTest, A_day_that_begins_while_the_program_runs_rings_at_the_next_scan) {
    RezervasyonKoy(u"20.09.2012 - Gece", {.hatirlat = u"16.06.2012", .check19 = 1});
    Prog();
    kullanici.ortam.simdi += std::chrono::days(1);
    kullanici.ZamanGecir(120'000);
    EXPECT_FALSE(Tablo().Image3);
    Tablo().Command1();
    EXPECT_TRUE(Tablo().Image3);
    kullanici.ortam.simdi += std::chrono::days(1);
    Tablo().Command1();
    EXPECT_FALSE(Tablo().Image3) << "a date in the past never rings again";
}

// The bell reads every file, the list only those whose names end as a main file's.
TEST_F(OzelHatirlatmaTest, A_companion_that_rings_the_bell_is_not_in_the_list_on_purpose) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    agac.KoyMetin(u"Salon A/2012/05.01.2012 - Gündüz-Odeme", AnaMetni(Bugunku(u"Ödeme")));
    agac.KoyMetin(u"Salon A/2012/Gider.dat", AnaMetni(Bugunku(u"Gider")));
    Prog();
    EXPECT_TRUE(Tablo().Image3);
    Tablo().Image3_Click();
    EXPECT_FALSE(Prog().FormOzelHatirlatma.Yuklu());
    agac.KoyMetin(u"Salon A/2012/Gece", AnaMetni(Bugunku(u"Yalnız son")));
    ZileTikla([&] { EXPECT_EQ(Adlar(), Satir{u"Gece"}); });
}

TEST_F(OzelHatirlatmaTest, A_due_record_before_one_that_can_not_be_read_is_listed_twice_on_purpose) {
    RezervasyonKoy(u"05.01.2012 - Gece", Bugunku(u"Can"));
    RezervasyonKoy(u"06.01.2012 - Gece", {.ad = u"Okunmaz"});
    RezervasyonKoy(u"07.01.2012 - Gece", {.ad = u"Sessiz"});
    Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
        return is == DosyaIsi::Oku && yol.ends_with(u"06.01.2012 - Gece");
    };
    ZileTikla([&] {
        EXPECT_EQ(Adlar(), (Satir{u"05.01.2012 - Gece", u"06.01.2012 - Gece"}));
        EXPECT_EQ(Ad(1), u"Can");
        EXPECT_EQ(Hatirlatma().Liste.satirlar[1].tag, Yol(u"06.01.2012 - Gece"));
    });
}

TEST_F(OzelHatirlatmaTest, A_short_record_is_filled_up_from_the_one_before_it_on_purpose) {
    RezervasyonKoy(u"05.01.2012 - Gece", Bugunku(u"Can"));
    agac.KoyMetin(u"Salon A/2012/06.01.2012 - Gece", u"\"Kısa\",\"Bolu\"\r\n");
    ZileTikla([&] {
        EXPECT_EQ(Adlar(), (Satir{u"05.01.2012 - Gece", u"06.01.2012 - Gece"}));
        EXPECT_EQ(Ad(1), u"Kısa");
    });
}

TEST_F(OzelHatirlatmaTest, With_nothing_due_a_click_on_the_bell_shows_nothing_and_leaves_nothing_loaded) {
    RezervasyonKoy(u"05.01.2012 - Gece");
    Prog();
    const auto once = kullanici.ortam.acilanlar;
    Tablo().Image3_Click();
    EXPECT_EQ(kullanici.ortam.acilanlar, once);
    EXPECT_FALSE(Prog().FormOzelHatirlatma.Yuklu());
    std::filesystem::remove_all(agac.Yol(u"Salon A"));
    Tablo().Image3_Click();
    EXPECT_EQ(kullanici.ortam.acilanlar, once);
}

TEST_F(OzelHatirlatmaTest, An_empty_list_unloads_the_screen_inside_its_own_activation_on_purpose) {
    Prog();
    EkranBekle(EkranAdi::FormOzelHatirlatma, [&] { EXPECT_FALSE(Prog().FormOzelHatirlatma.Yuklu()); });
    Prog().FormOzelHatirlatma.GosterModal();
    EXPECT_EQ(kullanici.ortam.gizlenenler.back(), EkranAdi::FormOzelHatirlatma);
}

TEST_F(OzelHatirlatmaTest, A_row_opens_its_record_once_it_was_clicked) {
    RezervasyonKoy(u"05.01.2012 - Gece", Bugunku(u"Can"));
    RezervasyonKoy(u"20.09.2012 - Gece", Bugunku(u"Nur"));
    ZileTikla([&] {
        Hatirlatma().Liste.secili = 0;
        Hatirlatma().Liste_DblClick(); // no row was clicked yet
        Hatirlatma().Liste.secili = -1;
        Hatirlatma().Command4_Click();
        Goster(1, [&] {
            EXPECT_EQ(Kayit().Tarih, u"20.09.2012 - Gece");
            EXPECT_EQ(Kayit().Kay[AnaNo::AdiSoyadi].metin, u"Nur");
            EXPECT_EQ(Kayit().baslik, u"Kayıt Düzenle");
            KapataBas();
        });
        EXPECT_FALSE(Hatirlatma().Command4.etkin) << "the list came to the front again";
        EXPECT_EQ(Adlar().size(), 2U);
    });
}

TEST_F(OzelHatirlatmaTest, A_record_that_is_reminded_of_no_more_leaves_the_list_and_the_last_one_closes_it) {
    RezervasyonKoy(u"05.01.2012 - Gece", Bugunku(u"Can"));
    RezervasyonKoy(u"20.09.2012 - Gece", Bugunku(u"Nur"));
    const auto sustur = [&] {
        Tikla(Kayit().Check19);
        KaydeteBas();
    };
    ZileTikla([&] {
        Goster(0, sustur);
        EXPECT_EQ(Adlar(), Satir{u"20.09.2012 - Gece"});
        EXPECT_TRUE(Tablo().Image3);
        Goster(0, sustur);
        EXPECT_FALSE(Prog().FormOzelHatirlatma.Yuklu());
    });
    EXPECT_FALSE(Tablo().Image3);
    EXPECT_EQ(Tablo().OzelHatirlatTimer.aralik, 0);
}

TEST_F(OzelHatirlatmaTest, A_row_moves_the_table_to_the_year_of_its_name_and_never_to_another_hall) {
    KayitKoy(agac, u"Salon B/2012/05.01.2013 - Gece", Bugunku(u"Can"));
    Prog();
    kullanici.SalonSec(u"Salon B");
    ZileTikla([&] {
        Goster(0, [&] {
            EXPECT_EQ(Tablo().Sene.Metni(), u"2013");
            EXPECT_EQ(Tablo().Salon.Metni(), u"Salon B");
            EXPECT_EQ(Kayit().Tag, Prog().agac.GunYolu(u"Salon B", u"2012", u"05.01.2013 - Gece"));
            KapataBas();
        });
        EXPECT_FALSE(Prog().FormOzelHatirlatma.Yuklu()) << "nothing of 2013 is due";
    });
}

TEST_F(OzelHatirlatmaTest, Of_two_halls_of_one_name_the_selected_one_stays_selected) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon A\"\r\n");
    RezervasyonKoy(u"05.01.2012 - Gece", Bugunku(u"Can"));
    Prog();
    Tablo().Salon.Sec(1);
    ZileTikla([&] { Goster(0, [&] { KapataBas(); }); });
    EXPECT_EQ(Tablo().Salon.secili, 1);
}

TEST_F(OzelHatirlatmaTest, A_row_whose_files_are_gone_opens_nothing_and_leaves_no_record_behind) {
    RezervasyonKoy(u"05.01.2012 - Gece", Bugunku(u"Can"));
    ZileTikla([&] {
        std::filesystem::remove_all(agac.Yol(u"Salon A/2012"));
        Isaretle(0);
        VELORA_BAS(Prog().FormOzelHatirlatma, Command4);
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
    });
}

TEST_F(OzelHatirlatmaTest, A_tree_of_which_nothing_can_be_read_rings_no_bell_and_lists_nothing) {
    RezervasyonKoy(u"05.01.2012 - Gece", Bugunku(u"Can"));
    Prog().dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Oku; };
    Tablo().Command1();
    EXPECT_FALSE(Tablo().Image3);
    Tablo().Image3_Click();
    EXPECT_FALSE(Prog().FormOzelHatirlatma.Yuklu());
}

} // namespace velora::test
