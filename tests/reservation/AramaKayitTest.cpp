// Opening what a search has found.
#include <algorithm>

#include "reservation/AramaTest.h"

namespace velora::test {

class AramaKayit : public AramaTest {
  protected:
    static constexpr MetinBakis kGece20 = u"20.06.2012 - Gece";

    AramaKayit() { KayitKoy(agac, u"Salon B/2012/" + Metin(kGece20), {.ad = u"Şükran Öz"}); }
};

TEST_F(AramaKayit, Coming_to_the_front_marks_the_screen_open_and_takes_the_button_back) {
    EXPECT_EQ(Arama().acikmi, 0);
    AramaAcikken([&] {
        EXPECT_EQ(Arama().acikmi, 1);
        EXPECT_FALSE(Arama().Command1.etkin);
        Ara(kAd, u"şükran");
        EXPECT_FALSE(Arama().Command1.etkin);
        Isaretle(0);
        EXPECT_TRUE(Arama().Command1.etkin);
        Detaylar(0);
        EXPECT_FALSE(Arama().Command1.etkin) << "the search came to the front again";
        Isaretle(0);
        EXPECT_TRUE(Arama().Command1.etkin);
        VELORA_BAS(Prog().FormArama, Command2);
    });
    EXPECT_FALSE(Prog().FormArama.Yuklu());
}

TEST_F(AramaKayit, Detaylar_opens_the_record_of_the_row) {
    Ara(kAd, u"şükran");
    Detaylar(0, [&] {
        EXPECT_EQ(Kayit().KayitAc, 1);
        EXPECT_EQ(Kayit().baslik, u"Kayıt Düzenle");
        EXPECT_EQ(Kayit().Tarih, kGece20);
        EXPECT_EQ(Kayit().Kay[1].metin, u"Şükran Öz");
        EXPECT_EQ(Kayit().Tag, Arama().Liste.satirlar[0].tag);
        EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Salon B");
    });
    EXPECT_FALSE(Prog().FormKayit.Yuklu()) << "nothing loads it once more behind that";
}

TEST_F(AramaKayit, A_second_Enter_while_a_record_is_opening_does_nothing) {
    Ara(kAd, u"şükran");
    int araya = 0;
    KayitBekle([&] {
        kullanici.ortam.olayda = {};
        EXPECT_EQ(Kayit().Kay[1].metin, u"Şükran Öz");
    });
    Isaretle(0);
    kullanici.ortam.olayda = [&](int) {
        ++araya;
        Arama().Command1_Click();
    };
    VELORA_BAS(Prog().FormArama, Command1);
    EXPECT_GE(araya, 3) << "the table's way to the hall lets events run";
}

TEST_F(AramaKayit, A_double_click_opens_only_while_Detaylar_is_enabled) {
    AramaAcikken([&] {
        Ara(kAd, u"şükran");
        Arama().Liste_DblClick();
        Isaretle(0);
        KayitBekle();
        Arama().Liste_DblClick();
        Arama().Liste_DblClick(); // closing the record took the button back
    });
}

TEST_F(AramaKayit, With_no_row_marked_Detaylar_does_nothing) {
    Ara(kAd, u"şükran");
    Arama().Liste_ItemClick();
    VELORA_BAS(Prog().FormArama, Command1);
    EXPECT_FALSE(Prog().FormKayit.Yuklu());
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Salon A");
}

TEST_F(AramaKayit, A_record_of_another_hall_switches_the_table_there_before_it_opens) {
    Ara(kAd, u"şükran");
    int olaydan = 0;
    kullanici.ortam.olayda = [&](int) {
        if (kullanici.Tablo().Salon.Metni() == u"Salon B" && !Prog().FormKayit.Yuklu())
            olaydan = static_cast<int>(kullanici.Goz(20, 6, kGece).tag.size());
    };
    Detaylar(0);
    EXPECT_GT(olaydan, 0) << "the table of the hall was shown, and events ran, before the record came";
    kullanici.ortam.olayda = nullptr;
    RenkOlmali(20, 6, kGece, 12, 13);
}

TEST_F(AramaKayit, Events_run_before_the_record_comes_and_a_search_among_them_changes_nothing_of_it) {
    KayitKoy(agac, u"Salon A/2012/" + Metin(kGece20), {.ad = u"Ali"});
    Ara(kAd, u"ali");
    AlanaYaz(Arama().Text[kAd], u"yok");
    BulunamadiBekle();
    kullanici.ortam.olayda = [&](int) {
        kullanici.ortam.olayda = nullptr;
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
        VELORA_BAS(Prog().FormArama, Command3);
    };
    Detaylar(0, [&] {
        EXPECT_TRUE(Bulunanlar().empty());
        EXPECT_EQ(Kayit().Kay[1].metin, u"Ali");
    });
}

TEST_F(AramaKayit, A_save_writes_the_payments_into_the_hall_of_the_record) {
    Ara(kAd, u"şükran");
    Detaylar(0, [&] {
        OdemeAl(u"250");
        KaydeteBas();
    });
    EXPECT_EQ(agac.Bayt(u"Salon B/2012/20.06.2012 - Gece-Odeme"),
              "\"15.06.2012\",\"250\",\"7 - \xDE\xFCkran \xD6z\"\r\n");
    EXPECT_FALSE(OdemeVar(kGece20)) << "not in the hall that was shown before";
}

TEST_F(AramaKayit, A_hall_that_is_not_listed_any_more_leaves_the_table_as_it_is) {
    Ara(kAd, u"şükran");
    ListeSatiri satir = Arama().Liste.satirlar[0];
    satir.sutun[1] = u"Salon C";
    Arama().Liste.satirlar.Degistir(0, satir);
    Detaylar(0, [&] { EXPECT_EQ(Kayit().Kay[1].metin, u"Şükran Öz"); });
    EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Salon A");
}

TEST_F(AramaKayit, The_year_is_not_switched_on_purpose_so_a_row_of_another_year_opens_nothing) {
    KayitKoy(agac, u"Salon B/2013/07.07.2013 - Gece");
    Prog();
    std::filesystem::remove(agac.Yol(u"Salon B/2012/20.06.2012 - Gece-Detay"));
    Ara(kAd, u"şükran");
    ASSERT_EQ(Bulunanlar(), (Adlar{Metin(kGece20), u"07.07.2013 - Gece", u"07.07.2013 - Gece-Detay"}));
    DetaylaraBas(1);
    EXPECT_EQ(kullanici.Tablo().Sene.Metni(), u"2012");
}

TEST_F(AramaKayit, A_companion_is_opened_as_a_record_on_purpose_and_so_never_shown) {
    Ara(kGelinDamat, u"0");
    ASSERT_EQ(Bulunanlar(), Adlar{u"20.06.2012 - Gece-Detay"});
    DetaylaraBas(0);
    EXPECT_FALSE(Prog().FormKayit.Yuklu());
}

TEST_F(AramaKayit, A_row_whose_file_is_not_there_leaves_no_ghost_to_the_next_new_record) {
    KayitKoy(agac, u"Salon B/2013/07.07.2013 - Gece");
    agac.KoyMetin(u"Salon B/2012/20.06.2012 - Gece-Detay", u"");
    AramaAcikken([&] {
        Ara(kAd, u"şükran");
        EXPECT_EQ(Arama().Liste.satirlar.at(2).sutun[0], u"07.07.2013 - Gece");
        DetaylaraBas(2);
        VELORA_BAS(Prog().FormArama, Command2);
    });
    const std::string once = agac.Resim();
    EkranBekle(EkranAdi::FormKayit, [this] {
        EXPECT_EQ(Kayit().baslik, u"Yeni Kayıt");
        EXPECT_EQ(Kayit().KayitAc, 0);
        EXPECT_EQ(Kayit().Tag, u"");
        Doldur();
        KaydeteBas();
    });
    ASSERT_TRUE(kullanici.SagTikla({21, 6, kGece}));
    kullanici.KomutSec(Komut::newkay);
    const Metin yeni = u"Salon B/2012/21.06.2012 - Gece";
    EXPECT_TRUE(agac.Bayt(yeni).starts_with("\"Ali Usta\""));
    for (const Metin& ad : {yeni, yeni + u"-Detay"})
        EXPECT_TRUE(std::filesystem::remove(agac.Yol(ad)));
    EXPECT_EQ(agac.Bayt(u"Count.dat"), "\"58\"\r\n");
    agac.Koy(u"Count.dat", "\"57\"\r\n");
    EXPECT_EQ(agac.Resim(), once) << "nothing else changed";
}

TEST_F(AramaKayit, A_search_repeated_while_its_record_is_open_lists_what_stands_now) {
    AramaAcikken([&] {
        Ara(kAd, u"şükran");
        Detaylar(0, [&] {
            Koy(u"Salon A/2012/01.01.2012 - Gece", {.ad = u"Şükran Er"});
            VELORA_BAS(Prog().FormArama, Command3);
        });
        EXPECT_EQ(Sutun(2), (Adlar{u"Şükran Er", u"Şükran Öz"}));
        EXPECT_EQ(Arama().Liste.secili, -1);
        std::filesystem::remove_all(agac.Yol(u"Salon A/2012"));
        std::filesystem::remove_all(agac.Yol(u"Salon B/2012"));
        BulunamadiBekle();
        VELORA_BAS(Prog().FormArama, Command3);
    });
}

TEST_F(AramaKayit, Kapat_forgets_what_was_typed_and_found) {
    AramaAcikken([&] {
        Ara(kAd, u"şükran");
        VELORA_BAS(Prog().FormArama, Command2);
    });
    EXPECT_EQ(Arama().Text[kAd].metin, u"");
    EXPECT_TRUE(Bulunanlar().empty());
    EXPECT_EQ(Arama().acikmi, 0);
}

TEST_F(AramaKayit, A_record_of_the_shown_hall_opens_without_a_scan_on_purpose) {
    KayitKoy(agac, u"Salon A/2012/21.06.2012 - Gece", {.ad = u"Nur"});
    const auto listelenen = [this](const Metin& ad) {
        Ara(kAd, ad);
        KayitBekle();
        return std::ranges::count(DiskteSirasi([this] { DetaylaraBas(0); }), 'l');
    };
    EXPECT_EQ(listelenen(u"nur"), 0);
    EXPECT_GT(listelenen(u"şükran"), 0) << "the other hall is painted first";
}

} // namespace velora::test
