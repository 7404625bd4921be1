// From a row of the report into its record and back.
#include "accounts/BakiyeTest.h"

namespace velora::test {

class BakiyeDetay : public BakiyeTest {
  protected:
    static constexpr MetinBakis kOtekiGun = u"21.06.2012 - Gece";

    void OdemeKoy(MetinBakis gun, const std::string& bayt) {
        agac.Koy(u"Salon A/2012/" + Metin(gun) + u"-Odeme", bayt);
    }
    /// Opens the record of the marked row, which must be shown; `is` is what the user does on it.
    void Detaylar(Is is) {
        EkranBekle(EkranAdi::FormKayit, std::move(is));
        VELORA_BAS(Prog().FormBakiye, Command6);
    }
    /// The same, and the record is closed at once.
    void DetaylarVeKapat() {
        Detaylar([this] { KapataBas(); });
    }
};

TEST_F(BakiyeDetay, The_button_waits_for_a_click_on_a_row) {
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        EXPECT_FALSE(Rapor().Command6.etkin);
        Rapor().Liste.secili = 0;
        Rapor().Liste_DblClick();
        SatirSec(0);
        EXPECT_TRUE(Rapor().Command6.etkin);
        EkranBekle(EkranAdi::FormKayit, [this] { KapataBas(); });
        Rapor().Liste_DblClick();
    });
}

TEST_F(BakiyeDetay, A_row_opens_its_record_as_an_existing_one_on_its_own_day) {
    RezervasyonKoy(Metin(kGun), {.ad = u"Ali Veli"});
    YiliListele([&] {
        SatirSec(0);
        Detaylar([&] {
            EXPECT_EQ(Kayit().KayitAc, 1);
            EXPECT_EQ(Kayit().baslik, u"Kayıt Düzenle");
            EXPECT_EQ(Kayit().Tag, Yol(kGun));
            EXPECT_EQ(Kayit().Tarih, kGun);
            EXPECT_EQ(Kayit().Kay[1].metin, u"Ali Veli");
            KapataBas();
        });
        EXPECT_FALSE(Prog().FormKayit.Yuklu()) << "nothing is set on it afterwards";
    });
}

TEST_F(BakiyeDetay, Payments_shown_and_saved_are_those_of_the_rows_day_wherever_the_pointer_was_on_purpose) {
    RezervasyonKoy(Metin(kGun));
    RezervasyonKoy(Metin(kOtekiGun));
    const std::string gunun = "\"01.02.2012\",\"700\",\"x\"\r\n";
    const std::string otekinin = "\"03.02.2012\",\"55\",\"y\"\r\n";
    OdemeKoy(kGun, gunun);
    OdemeKoy(kOtekiGun, otekinin);
    Prog();
    kullanici.Uzerine({21, 6, kGece});
    ASSERT_EQ(kullanici.Tablo().SeciliTarih, kOtekiGun);
    YiliListele([&] {
        SatirSec(0);
        Detaylar([&] {
            EXPECT_EQ(Kayit().Kay[9].metin, u"700");
            OdemeAl(u"50");
            KaydeteBas();
        });
    });
    EXPECT_EQ(OdemeBaytlari(kGun), gunun + "\"15.06.2012\",\"50\",\"7 - Ali Veli\"\r\n");
    EXPECT_EQ(OdemeBaytlari(kOtekiGun), otekinin);
}

TEST_F(BakiyeDetay, The_table_goes_to_the_hall_of_the_report_before_the_record_opens) {
    KayitKoy(agac, u"Salon B/2012/05.02.2012 - Gece", {.ad = u"B Müşterisi"}, false,
             u"\"01.02.2012\",\"9\",\"x\"\r\n");
    RaporAc([&] {
        Aralik(u"01.01.2012", u"31.12.2012");
        ListedenSec(Rapor().Combo2, u"Salon B");
        Rapor().ListeleGun();
        SatirSec(0);
        EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Salon A");
        Detaylar([&] {
            EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Salon B");
            EXPECT_FALSE(kullanici.Goz(5, 2, kGece).tag.empty()) << "and shows it";
            EXPECT_EQ(Kayit().Kay[1].metin, u"B Müşterisi");
            EXPECT_EQ(Kayit().Kay[9].metin, u"9");
            KapataBas();
        });
    });
}

TEST_F(BakiyeDetay, A_hall_chosen_after_the_listing_lists_anew_so_that_payments_are_those_of_the_row) {
    RezervasyonKoy(Metin(kGun), {.ad = u"Ali Veli"});
    OdemeKoy(kGun, "\"01.02.2012\",\"700\",\"a\"\r\n");
    KayitKoy(agac, u"Salon B/2012/" + Metin(kGun), {.ad = u"B Müşterisi"}, false,
             u"\"02.02.2012\",\"9\",\"b\"\r\n");
    YiliListele([&] {
        SatirSec(0);
        ListedenSec(Rapor().Combo2, u"Salon B");
        EXPECT_EQ(Sutun(1), std::vector<Metin>{u"B Müşterisi"});
        EXPECT_FALSE(Rapor().Command6.etkin) << "the click was on another row";
        SatirSec(0);
        Detaylar([&] {
            EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Salon B");
            EXPECT_EQ(Kayit().SalonAdi.baslik, u"Salon B") << "the hall is named beside the day";
            EXPECT_EQ(Kayit().Tarih, kGun) << "which stays as it is";
            EXPECT_EQ(Kayit().Kay[1].metin, u"B Müşterisi");
            EXPECT_EQ(Kayit().Kay[9].metin, u"9");
            Gir(AnaNo::BitisSaati, u"17:00");
            KaydeteBas();
        });
    });
    EXPECT_EQ(OdemeBaytlari(), "\"01.02.2012\",\"700\",\"a\"\r\n");
    EXPECT_EQ(agac.Bayt(u"Salon B/2012/" + Metin(kGun) + u"-Odeme"), "\"02.02.2012\",\"9\",\"b\"\r\n");
}

TEST_F(BakiyeDetay, The_table_that_is_in_that_hall_already_is_not_scanned_again) {
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        kullanici.Goz(1, 1, kGece).tag = u"untouched";
        SatirSec(0);
        DetaylarVeKapat();
        EXPECT_EQ(kullanici.Goz(1, 1, kGece).tag, u"untouched");
    });
}

TEST_F(BakiyeDetay, The_record_that_was_clicked_opens_though_the_list_is_made_anew_meanwhile) {
    KayitKoy(agac, u"Salon B/2012/05.02.2012 - Gece", {.ad = u"B Müşterisi"});
    Metin acilan;
    RaporAc([&] {
        Aralik(u"01.01.2012", u"31.12.2012");
        ListedenSec(Rapor().Combo2, u"Salon B");
        Rapor().ListeleGun();
        SatirSec(0);
        kullanici.ortam.olayda = [&](int) {
            kullanici.ortam.olayda = nullptr;
            Rapor().Liste.satirlar.clear();
        };
        Detaylar([&] {
            acilan = Kayit().Kay[1].metin;
            KapataBas();
        });
    });
    EXPECT_EQ(acilan, u"B Müşterisi");
}

TEST_F(BakiyeDetay, Without_a_marked_row_nothing_opens) {
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        for (const int sira : {-1, 1}) {
            SatirSec(sira);
            VELORA_BAS(Prog().FormBakiye, Command6);
        }
    });
}

TEST_F(BakiyeDetay, A_record_whose_details_are_gone_meanwhile_does_not_open_and_leaves_no_trace) {
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        std::filesystem::remove(agac.Yol(u"Salon A/2012/" + Metin(kGun) + u"-Detay"));
        SatirSec(0);
        VELORA_BAS(Prog().FormBakiye, Command6);
        EXPECT_FALSE(Prog().FormKayit.Yuklu());
    });
}

// The row stays marked, but it has to be clicked again.
TEST_F(BakiyeDetay, When_the_record_has_closed_the_button_is_off_though_a_row_is_marked_on_purpose) {
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        SatirSec(0);
        DetaylarVeKapat();
        EXPECT_EQ(Rapor().Liste.secili, 0);
        EXPECT_FALSE(Rapor().Command6.etkin);
        EXPECT_EQ(Rapor().Liste.satirlar.size(), 1U);
    });
}

TEST_F(BakiyeDetay, A_new_listing_wants_a_new_click) {
    RezervasyonKoy(Metin(kGun));
    YiliListele([&] {
        SatirSec(0);
        Rapor().ListeleGun();
        EXPECT_EQ(Rapor().Liste.secili, -1);
        EXPECT_FALSE(Rapor().Command6.etkin);
    });
}

TEST_F(BakiyeDetay, A_cancelled_reservation_is_gone_from_the_next_listing_and_a_moved_one_on_its_new_day) {
    RezervasyonKoy(u"20.06.2012 - Gece");
    RezervasyonKoy(u"21.06.2012 - Gece");
    YiliListele([&] {
        for (const char16_t* ek : {u"", u"-Detay"}) {
            std::filesystem::remove(agac.Yol(Metin(u"Salon A/2012/20.06.2012 - Gece") + ek));
            std::filesystem::rename(agac.Yol(Metin(u"Salon A/2012/21.06.2012 - Gece") + ek),
                                    agac.Yol(Metin(u"Salon A/2012/03.07.2012 - Gece") + ek));
        }
        Rapor().ListeleGun();
        EXPECT_EQ(Gunler(), std::vector<Metin>{u"03.07.2012 - Gece"});
    });
}

} // namespace velora::test
