// A new expense: what is asked for, and the bytes that it leaves.
#include "accounts/KasaTest.h"

namespace velora::test {

class KasaEkle : public KasaTest {
  protected:
    /// A new expense is entered from the cash book of hall A.
    void KasadanEkle(const Is& is) {
        EkleBekle(is);
        VELORA_BAS(Prog().FormKasa, Command6);
    }
};

TEST_F(KasaEkle, Opens_on_the_hall_of_the_cash_book_and_today_and_waits_for_an_amount) {
    KasaAc([&] {
        ListedenSec(Kasa().Combo2, u"Salon B");
        KasadanEkle([&] {
            EXPECT_EQ(Ekle().baslik, u"Gider Ekle");
            EXPECT_EQ(Ekle().Combo1.ogeler, (std::vector<Metin>{u"Salon A", u"Salon B"}));
            EXPECT_EQ(Ekle().Combo1.Metni(), u"Salon B");
            EXPECT_EQ(TarihMetni(Ekle().DTPicker1.deger), u"15.06.2012");
            EXPECT_EQ(TarihMetni(Ekle().DTPicker1.enKucuk.value()), u"01.01.2012");
            EXPECT_EQ(TarihMetni(Ekle().DTPicker1.enBuyuk.value()), u"31.12.2012");
            EXPECT_FALSE(Ekle().Command1.etkin);
            EXPECT_EQ(Ekle().Combo1.baslik, u"Salon Adı");
            EXPECT_EQ(Ekle().DTPicker1.baslik, u"Tarih");
            EXPECT_EQ(Ekle().Tutar.baslik + u'/' + Ekle().Tutar.sonra, u"Gider/TL");
            EXPECT_EQ(Ekle().Aciklama.baslik, u"Açıklama");
            EXPECT_EQ(Ekle().Command1.baslik + u'/' + Ekle().Command2.baslik, u"Tamam/İptal");
            EXPECT_EQ(Ekle().Ornek.baslik, u"(Örn : Piyanist, Elektrik, Su Faturası)");
        });
    });
}

TEST_F(KasaEkle, In_another_year_the_date_is_pulled_to_its_nearer_end) {
    struct Sinir {
        MetinBakis yil;
        MetinBakis gun;
    };
    for (const Sinir& sinir : {Sinir{u"2013", u"01.01.2013"}, Sinir{u"2010", u"31.12.2010"}}) {
        Prog();
        kullanici.YilSec(sinir.yil);
        KasaAc([&] { KasadanEkle([&] { EXPECT_EQ(TarihMetni(Ekle().DTPicker1.deger), sinir.gun); }); });
    }
}

TEST_F(KasaEkle, Only_digits_get_into_the_amount_and_blanks_are_none) {
    KasaAc([&] {
        KasadanEkle([&] {
            const AlanOlaylari olaylar{.degisti = [&] { Ekle().Tutar_Change(); }};
            AlanaYaz(Ekle().Tutar, u"1.2,5a-0", olaylar);
            EXPECT_EQ(Ekle().Tutar.metin, u"1250");
            EXPECT_TRUE(Ekle().Command1.etkin);
            Ekle().Tutar.metin = u"   ";
            Ekle().Tutar_Change();
            EXPECT_FALSE(Ekle().Command1.etkin);
        });
    });
}

TEST_F(KasaEkle, An_expense_goes_to_the_end_of_the_file_with_its_day_as_a_literal_on_purpose) {
    agac.Koy(kGiderYolu, "\"15.06.2012\",\"7\",\"a\"\r\n");
    KasaAc([&] {
        KasadanEkle([&] {
            TarihSec(Ekle().DTPicker1, TarihCoz(u"03.05.2012").value());
            GiderGir(u"150", u"Elektrik, ışık");
            EXPECT_FALSE(Prog().FormKasaEkle.Yuklu());
        });
        EXPECT_EQ(agac.Bayt(kGiderYolu),
                  "\"15.06.2012\",\"7\",\"a\"\r\n#2012-05-03#,\"150\",\"Elektrik, \xFD\xFE\xFDk\"\r\n");
        EXPECT_EQ(Okunan(Kasa().Liste), (Satirlar{{u"15.06.2012", u"7", u"Gider", u"a"}}))
            << "listed anew, and out of this month";
        EXPECT_EQ(Kasa().Giderler.baslik, u": 7 TL");
    });
}

TEST_F(KasaEkle, For_another_hall_it_is_written_and_the_cash_book_is_not_listed_anew_on_purpose) {
    agac.Koy(kGiderYolu, "\"15.06.2012\",\"7\",\"a\"\r\n");
    Prog();
    agac.KlasorKoy(u"Salon B/2012");
    KasaAc([&] {
        KasadanEkle([&] {
            ListedenSec(Ekle().Combo1, u"Salon B");
            GiderGir(u"80", u"Su");
        });
        EXPECT_EQ(agac.Bayt(u"Salon B/2012/Gider.dat"), "#2012-06-15#,\"80\",\"Su\"\r\n");
        EXPECT_TRUE(Kasa().Liste.satirlar.empty());
        EXPECT_EQ(Kasa().Giderler.baslik, u": 0");
    });
}

TEST_F(KasaEkle, Without_a_description_it_asks_in_these_letters_on_purpose_and_stays) {
    agac.KlasorKoy(u"Salon A/2012");
    KasaAc([&] {
        KasadanEkle([&] {
            KutuBekle(u"Lüften açıklama giriniz!");
            GiderGir(u"150", u"");
            EXPECT_EQ(kullanici.ortam.odaklar.back(), u"Aciklama");
            EXPECT_TRUE(Prog().FormKasaEkle.Yuklu());
            EXPECT_FALSE(agac.Var(kGiderYolu));
            VELORA_BAS(Prog().FormKasaEkle, Command2);
            EXPECT_FALSE(Prog().FormKasaEkle.Yuklu());
        });
        EXPECT_FALSE(agac.Var(kGiderYolu));
    });
}

TEST_F(KasaEkle, A_description_of_blanks_is_one_on_purpose) {
    agac.KlasorKoy(u"Salon A/2012");
    KasaAc([&] {
        KasadanEkle([&] {
            GiderGir(u"150", u"  ");
            EXPECT_FALSE(Prog().FormKasaEkle.Yuklu());
        });
        EXPECT_EQ(agac.Bayt(kGiderYolu), "#2012-06-15#,\"150\",\"  \"\r\n");
    });
}

TEST_F(KasaEkle, In_a_year_without_a_folder_nothing_is_written_nothing_said_and_it_closes_on_purpose) {
    Prog();
    kullanici.YilSec(u"2011");
    std::filesystem::remove_all(agac.Yol(u"Salon A/2011"));
    KasaAc([&] {
        const std::string once = agac.Resim();
        KasadanEkle([&] {
            GiderGir(u"150", u"Su");
            EXPECT_FALSE(Prog().FormKasaEkle.Yuklu());
        });
        EXPECT_EQ(agac.Resim(), once);
        EXPECT_FALSE(agac.Var(u"Salon A/2011"));
    });
}

TEST_F(KasaEkle, On_a_full_disk_the_file_keeps_what_it_had) {
    agac.Koy(kGiderYolu, "\"15.06.2012\",\"7\",\"a\"\r\n");
    KasaAc([&] {
        Prog().dosyalar.bosYer = 3;
        KasadanEkle([&] { GiderGir(u"150", u"Su"); });
        EXPECT_EQ(agac.Bayt(kGiderYolu), "\"15.06.2012\",\"7\",\"a\"\r\n");
    });
}

TEST_F(KasaEkle, A_quote_in_a_description_is_not_cleaned_and_slides_the_expenses_behind_it_on_purpose) {
    KasaAc([&] {
        KasaAraligi(u"01.05.2012", u"31.05.2012");
        const auto ekle = [&](MetinBakis gun, MetinBakis tutar, MetinBakis aciklama) {
            KasadanEkle([&, gun, tutar, aciklama] {
                TarihSec(Ekle().DTPicker1, TarihCoz(gun).value());
                GiderGir(tutar, aciklama);
            });
        };
        ekle(u"03.05.2012", u"150", u"5\" boru");
        EXPECT_EQ(agac.Bayt(kGiderYolu), "#2012-05-03#,\"150\",\"5\" boru\"\r\n");
        ekle(u"04.05.2012", u"90", u"Su");
        const Satirlar satirlar = Okunan(Kasa().Liste);
        ASSERT_FALSE(satirlar.empty());
        EXPECT_EQ(satirlar.front(), (std::vector<Metin>{u"03.05.2012", u"150", u"Gider", u"5"}));
        for (const auto& satir : satirlar)
            EXPECT_NE(satir[1], u"90") << "what lies behind the quote isn't seen any more";
    });
}

} // namespace velora::test
