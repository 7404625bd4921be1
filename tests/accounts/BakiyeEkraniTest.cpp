// The report as it opens: its hall, its dates, its buttons.
#include "accounts/BakiyeTest.h"

namespace velora::test {

class BakiyeEkrani : public BakiyeTest {
  protected:
    void TarihOlmali(MetinBakis ilk, MetinBakis son) {
        EXPECT_EQ(TarihMetni(Rapor().DTPicker1.deger), ilk);
        EXPECT_EQ(TarihMetni(Rapor().DTPicker2.deger), son);
    }
    void SinirOlmali(MetinBakis ilk, MetinBakis son) {
        for (const TarihSecici* secici : {&Rapor().DTPicker1, &Rapor().DTPicker2}) {
            EXPECT_EQ(secici->enKucuk, TarihCoz(ilk));
            EXPECT_EQ(secici->enBuyuk, TarihCoz(son));
        }
    }
};

TEST_F(BakiyeEkrani, Opens_on_the_halls_of_the_table_all_types_and_this_month_with_nothing_listed) {
    RezervasyonKoy(Metin(kGun));
    RaporAc([&] {
        EXPECT_EQ(Rapor().baslik, u"Rezervasyon Raporu");
        EXPECT_EQ(Rapor().Combo2.ogeler, (std::vector<Metin>{u"Salon A", u"Salon B"}));
        EXPECT_EQ(Rapor().Combo2.Metni(), u"Salon A");
        EXPECT_EQ(Rapor().Combo1.ogeler,
                  (std::vector<Metin>{u"(Tümü)", u"Ön Rezervasyonlar", u"Kesin Rezervasyonlar"}));
        EXPECT_EQ(Rapor().Combo1.Metni(), u"(Tümü)");
        EXPECT_EQ(Rapor().Liste.basliklar,
                  (std::vector<Metin>{u"Tarih", u"Ad Soyad", u"Toplam", u"Alınan", u"Kalan", u"Tipi",
                                      u"Salon", u"Niteliği", u"Davetli", u"Ön Açıklama"}));
        EXPECT_TRUE(Rapor().Liste.satirlar.empty());
        TarihOlmali(u"01.06.2012", u"30.06.2012");
        SayacOlmali(u": 0", u": 0", u": 0");
    });
}

TEST_F(BakiyeEkrani, A_save_before_it_was_ever_open_does_not_load_it_and_it_opens_on_the_hall_of_then) {
    YeniKayit([&] {
        Doldur();
        KaydeteBas();
    });
    EXPECT_TRUE(AnaVar());
    EXPECT_FALSE(Prog().FormBakiye.Yuklu());
    kullanici.SalonSec(u"Salon B");
    RaporAc([&] {
        EXPECT_EQ(Rapor().Combo2.Metni(), u"Salon B");
        TarihOlmali(u"01.06.2012", u"30.06.2012");
        EXPECT_EQ(Rapor().acikmi, 1);
    });
    EXPECT_FALSE(Prog().FormBakiye.Yuklu());
}

TEST_F(BakiyeEkrani, The_second_of_two_halls_of_the_same_name_stays_the_second) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n\"Salon B\"\r\n");
    Prog();
    kullanici.Tablo().Salon.Sec(2);
    RaporAc([&] { EXPECT_EQ(Rapor().Combo2.secili, 2); });
}

TEST_F(BakiyeEkrani, Without_any_hall_it_opens_and_finds_nothing) {
    agac.KoyMetin(u"Salon.dat", u"");
    RaporAc([&] {
        EXPECT_EQ(Rapor().Combo2.Metni(), u"");
        BosKutuBekle();
        Rapor().ListeleGun();
    });
}

TEST_F(BakiyeEkrani, The_dates_are_held_in_the_year_of_the_table) {
    RaporAc([&] { SinirOlmali(u"01.01.2012", u"31.12.2012"); });
}

TEST_F(BakiyeEkrani, In_another_year_the_dates_of_this_month_are_pulled_to_its_nearer_end) {
    Prog();
    kullanici.YilSec(u"2013");
    RaporAc([&] {
        SinirOlmali(u"01.01.2013", u"31.12.2013");
        TarihOlmali(u"01.01.2013", u"01.01.2013");
    });
    kullanici.YilSec(u"2010");
    RaporAc([&] { TarihOlmali(u"31.12.2010", u"31.12.2010"); });
}

TEST_F(BakiyeEkrani, February_of_a_leap_year_ends_on_the_29th) {
    kullanici.ortam.simdi = std::chrono::local_days(std::chrono::year(2012) / 2 / 10);
    RaporAc([&] { TarihOlmali(u"01.02.2012", u"29.02.2012"); });
    ProgramiKapat();
    kullanici.ortam.simdi = std::chrono::local_days(std::chrono::year(2013) / 2 / 10);
    RaporAc([&] { TarihOlmali(u"01.02.2013", u"28.02.2013"); });
}

TEST_F(BakiyeEkrani, Loaded_but_never_shown_it_does_not_count_as_open) {
    EXPECT_EQ(Rapor().acikmi, 0);
}

TEST_F(BakiyeEkrani, Each_opening_starts_afresh) {
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] { EXPECT_EQ(Rapor().Liste.satirlar.size(), 1U); });
    RaporAc([&] {
        EXPECT_TRUE(Rapor().Liste.satirlar.empty());
        TarihOlmali(u"01.06.2012", u"30.06.2012");
    });
}

TEST_F(BakiyeEkrani, Kapat_unloads_it) {
    RaporAc([&] {
        VELORA_BAS(Prog().FormBakiye, Command1);
        EXPECT_FALSE(Prog().FormBakiye.Yuklu());
    });
}

} // namespace velora::test
