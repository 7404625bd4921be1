// The list of a year's expenses, and the file that it leaves.
#include "accounts/KasaTest.h"
#include "destek/Ariza.h"
#include "documents/FormMakbuzPrint.h"

namespace velora::test {

class GiderlerTesti : public KasaTest {
  protected:
    static constexpr const char* kUcAy = "\"10.05.2012\",\"20\",\"a\"\r\n#2012-06-11#,\"300\",\"b\"\r\n"
                                         "\"12.06.2012\",\"4000\",\"c\"\r\n\"13.07.2012\",\"50\",\"d\"\r\n";
};

TEST_F(GiderlerTesti, Opens_on_the_hall_of_the_cash_book_and_the_whole_of_this_year) {
    agac.Koy(u"Salon B/2012/Gider.dat", kUcAy);
    KasaAc([&] {
        ListedenSec(Kasa().Combo2, u"Salon B");
        EkranBekle(EkranAdi::FormGiderler, [&] {
            EXPECT_EQ(Giderler().baslik, u"Gider Listesi");
            EXPECT_EQ(Giderler().Combo2.ogeler, (std::vector<Metin>{u"Salon A", u"Salon B"}));
            EXPECT_EQ(Giderler().Combo2.Metni(), u"Salon B");
            EXPECT_EQ(TarihMetni(Giderler().DTPicker4.deger), u"15.06.2012");
            EXPECT_EQ(TarihMetni(Giderler().DTPicker1.deger), u"01.01.2012");
            EXPECT_EQ(TarihMetni(Giderler().DTPicker2.deger), u"31.12.2012");
            EXPECT_EQ(Okunan(Giderler().Liste), (Satirlar{{u"10.05.2012", u"20", u"Gider", u"a"},
                                                          {u"11.06.2012", u"300", u"Gider", u"b"},
                                                          {u"12.06.2012", u"4000", u"Gider", u"c"},
                                                          {u"13.07.2012", u"50", u"Gider", u"d"}}));
            EXPECT_EQ(Giderler().Giderler.baslik, u": 4.370 TL");
            EXPECT_EQ(Giderler().Label4.baslik, u"2012 Yılı");
            EXPECT_FALSE(Giderler().Command4.etkin);
        });
        VELORA_BAS(Prog().FormKasa, Command3);
        Prog().FormGiderler.Bosalt();
    });
}

TEST_F(GiderlerTesti, Captions) {
    EXPECT_EQ(Giderler().Combo2.baslik, u"Salon Adı");
    EXPECT_EQ(Giderler().DTPicker3.baslik, u"Yıl");
    EXPECT_EQ(Giderler().DTPicker1.baslik, u"Başlangıç Tarihi");
    EXPECT_EQ(Giderler().DTPicker2.baslik, u"Bitiş Tarihi");
    EXPECT_EQ(Giderler().DTPicker4.baslik, u"Bu Gün");
    EXPECT_EQ(Giderler().Giderler.once, u"Gider Toplamı");
    Metin dugmeler;
    for (const Dugme* dugme : {&Giderler().Listele, &Giderler().Command3, &Giderler().Command4,
                               &Giderler().Kaydet, &Giderler().Command2, &Giderler().Command1})
        dugmeler += dugme->baslik + u" / ";
    EXPECT_EQ(dugmeler, u"Listele / Ekle / Sil / Kaydet / Makbuz / Kapat / ");
    EXPECT_EQ(Giderler().Liste.basliklar, (std::vector<Metin>{u"Tarih", u"Tutar", u"İşlem", u"Açıklama"}));
}

TEST_F(GiderlerTesti, Loading_lists_without_a_hall_and_the_choice_of_one_lists_again_on_purpose) {
    agac.Koy(kGiderYolu, kUcAy);
    EXPECT_EQ(Giderler().Combo2.Metni(), u"");
    EXPECT_TRUE(Giderler().Liste.satirlar.empty());
    EXPECT_EQ(Giderler().Label4.baslik, u"2012 Yılı");
    EXPECT_EQ(Giderler().Giderler.baslik, u":  TL");
    Giderler().Combo2.Sec(u"Salon A");
    EXPECT_EQ(Giderler().Liste.satirlar.size(), 4U);
}

TEST_F(GiderlerTesti, Shown_without_a_hall_it_takes_that_of_the_table) {
    agac.Koy(u"Salon B/2012/Gider.dat", "\"10.05.2012\",\"20\",\"a\"\r\n");
    Prog();
    kullanici.SalonSec(u"Salon B");
    EkranBekle(EkranAdi::FormGiderler, [&] {
        EXPECT_EQ(Giderler().Combo2.Metni(), u"Salon B");
        EXPECT_EQ(Giderler().Liste.satirlar.size(), 1U);
    });
    Prog().FormGiderler.GosterModal();
    Prog().FormGiderler.Bosalt();
}

TEST_F(GiderlerTesti, Another_year_lists_the_whole_of_it) {
    agac.Koy(kGiderYolu, kUcAy);
    agac.Koy(u"Salon A/2013/Gider.dat", "\"10.05.2013\",\"8\",\"x\"\r\n\"10.05.2012\",\"9\",\"y\"\r\n");
    GiderleriAc([&] {
        GiderAraligi(u"01.06.2012", u"30.06.2012");
        TarihSec(Giderler().DTPicker3, TarihCoz(u"04.08.2013").value());
        EXPECT_EQ(TarihMetni(Giderler().DTPicker1.deger), u"01.01.2013");
        EXPECT_EQ(TarihMetni(Giderler().DTPicker2.deger), u"31.12.2013");
        EXPECT_EQ(Okunan(Giderler().Liste), (Satirlar{{u"10.05.2013", u"8", u"Gider", u"x"}}));
        EXPECT_EQ(Giderler().Label4.baslik, u"2013 Yılı");
        TarihSec(Giderler().DTPicker3, TarihCoz(u"04.08.2014").value());
        EXPECT_TRUE(Giderler().Liste.satirlar.empty()) << "and no box";
        EXPECT_EQ(Giderler().Giderler.baslik, u":  TL");
    });
}

TEST_F(GiderlerTesti,
       The_same_expense_is_listed_alike_here_and_in_the_cash_book_before_and_after_a_save_on_purpose) {
    agac.Koy(kGiderYolu, "#2012-05-03#,\"150\",\"Elektrik\"\r\n");
    const Satirlar beklenen{{u"03.05.2012", u"150", u"Gider", u"Elektrik"}};
    GiderleriAc([&] {
        KasaAraligi(u"01.05.2012", u"31.05.2012");
        Kasa().ListeleGun();
        EXPECT_EQ(Okunan(Kasa().Liste), beklenen);
        EXPECT_EQ(Okunan(Giderler().Liste), beklenen);
        VELORA_BAS(Prog().FormGiderler, Kaydet);
        EXPECT_EQ(agac.Bayt(kGiderYolu), "\"03.05.2012\",\"150\",\"Elektrik\"\r\n");
        EXPECT_EQ(Okunan(Kasa().Liste), beklenen);
        EXPECT_EQ(Okunan(Giderler().Liste), beklenen);
    });
}

TEST_F(GiderlerTesti, The_range_is_inclusive_and_a_deletion_drops_all_that_lies_outside_of_it_on_purpose) {
    agac.Koy(kGiderYolu, kUcAy);
    GiderleriAc([&] {
        GiderAraligi(u"11.06.2012", u"12.06.2012");
        Giderler().ListeleGun();
        EXPECT_EQ(Giderler().Giderler.baslik, u": 4.300 TL");
        GideriSil(0, Cevap::Evet);
        EXPECT_EQ(agac.Bayt(kGiderYolu), "\"12.06.2012\",\"4000\",\"c\"\r\n");
        EXPECT_EQ(Okunan(Giderler().Liste), (Satirlar{{u"12.06.2012", u"4000", u"Gider", u"c"}}));
        EXPECT_FALSE(Giderler().Command4.etkin);
        EXPECT_EQ(Kasa().Giderler.baslik, u": 4.000 TL") << "the cash book is listed anew";
    });
}

TEST_F(GiderlerTesti, A_save_of_rows_that_the_new_range_does_not_hold_loses_the_whole_file_on_purpose) {
    agac.Koy(kGiderYolu, kUcAy);
    GiderleriAc([&] {
        GiderAraligi(u"01.02.2012", u"28.02.2012"); // and not listed
        VELORA_BAS(Prog().FormGiderler, Kaydet);
        EXPECT_FALSE(agac.Var(kGiderYolu));
        EXPECT_TRUE(Giderler().Liste.satirlar.empty());
    });
}

TEST_F(GiderlerTesti, A_no_deletes_nothing_and_the_row_has_to_be_clicked_again) {
    agac.Koy(kGiderYolu, kUcAy);
    GiderleriAc([&] {
        GideriSil(1, Cevap::Hayir);
        EXPECT_EQ(agac.Bayt(kGiderYolu), kUcAy);
        EXPECT_FALSE(Giderler().Command4.etkin);
        EXPECT_EQ(kullanici.ortam.hayirdaBaslayanlar.size(), 1U);
        EXPECT_TRUE(Kasa().Liste.satirlar.empty());
    });
}

TEST_F(GiderlerTesti, A_receipt_is_of_the_clicked_row_by_the_active_user) {
    agac.KoyMetin(u"Firma.dll",
                  u"\"Gül\",\"b\",\"c\",\"d\",\"e\",\"f\",\"g\",\"ADANA\",\"i\",\"j\",\"k\",\"l\",\"4\"\r\n");
    agac.Koy(kGiderYolu, kUcAy);
    GiderleriAc([&] {
        kullanici.Tablo().UserNamem = u"zeynep";
        EXPECT_FALSE(Giderler().Command2.etkin);
        SatiraTikla(Giderler().Liste, 1, [&] { Giderler().Liste_Click(); });
        EkranBekle(EkranAdi::FormMakbuzPrint, [&] {
            const auto makbuz = Prog().FormMakbuzPrint.Tut();
            Metin yazilar;
            for (const Etiket* etiket :
                 {&makbuz->Firma, &makbuz->Label1, &makbuz->Label3, &makbuz->AdSoyad, &makbuz->Label4,
                  &makbuz->Tarih, &makbuz->Label5, &makbuz->Aciklama, &makbuz->Label6, &makbuz->Tutar})
                yazilar += etiket->baslik + u"|";
            EXPECT_EQ(yazilar, u"Gül|GİDER MAKBUZU|DÜZENLEYEN|: zeynep|GİDER TARİHİ|: 11.06.2012|"
                               u"GİDER AÇIKLAMASI|: b|GİDER BEDELİ|: 300 TL|");
            EXPECT_EQ(makbuz->isAdi, u"11.06.2012 - Salon A - b - Gider Makbuzu");
            VELORA_BAS(Prog().FormMakbuzPrint, Command2);
        });
        VELORA_BAS(Prog().FormGiderler, Command2);
        EXPECT_FALSE(Giderler().Command2.etkin) << "the screen has come to the front again";
        EXPECT_FALSE(Giderler().Command4.etkin);
        EXPECT_EQ(agac.Bayt(kGiderYolu), kUcAy);
    });
}

TEST_F(GiderlerTesti, The_last_row_takes_the_file_with_it) {
    agac.Koy(kGiderYolu, "\"10.05.2012\",\"20\",\"a\"\r\n");
    GiderleriAc([&] {
        GideriSil(0, Cevap::Evet);
        EXPECT_FALSE(agac.Var(kGiderYolu));
        EXPECT_EQ(Giderler().Giderler.baslik, u":  TL");
    });
}

TEST_F(GiderlerTesti, A_date_in_another_form_is_listed_and_written_back_as_it_stood) {
    agac.Koy(kGiderYolu, "\"5.1.2012\",\"20\",\"a\"\r\n#2012-02-03#,\"300\",\"b\"\r\n");
    GiderleriAc([&] {
        EXPECT_EQ(Okunan(Giderler().Liste),
                  (Satirlar{{u"5.1.2012", u"20", u"Gider", u"a"}, {u"03.02.2012", u"300", u"Gider", u"b"}}));
        VELORA_BAS(Prog().FormGiderler, Kaydet);
        EXPECT_EQ(agac.Bayt(kGiderYolu), "\"5.1.2012\",\"20\",\"a\"\r\n\"03.02.2012\",\"300\",\"b\"\r\n");
    });
}

// An empty file would list the payment before it a second time, as an expense.
TEST_F(GiderlerTesti, With_the_last_expense_its_file_goes_before_the_cash_book_is_listed_anew) {
    agac.Koy(u"Salon A/2012/20.06.2012 - Gece-Odeme", "\"10.06.2012\",\"100\",\"7 - Ali\"\r\n");
    agac.Koy(kGiderYolu, "\"11.06.2012\",\"20\",\"a\"\r\n");
    GiderleriAc([&] {
        Kasa().ListeleGun();
        EXPECT_EQ(Kasa().Liste.satirlar.size(), 2U);
        GideriSil(0, Cevap::Evet);
        EXPECT_EQ(Okunan(Kasa().Liste), (Satirlar{{u"10.06.2012", u"100", u"Gelir", u"7 - Ali"}}));
        ToplamOlmali(u": 100 TL", u":  TL", u": 100 TL");
    });
}

TEST_F(GiderlerTesti, After_a_change_of_the_hall_no_row_is_clicked_and_its_buttons_are_off) {
    agac.Koy(kGiderYolu, kUcAy);
    agac.Koy(u"Salon B/2012/Gider.dat", "\"10.05.2012\",\"20\",\"a\"\r\n");
    GiderleriAc([&] {
        SatiraTikla(Giderler().Liste, 0, [&] { Giderler().Liste_Click(); });
        EXPECT_TRUE(Giderler().Command4.etkin && Giderler().Command2.etkin);
        ListedenSec(Giderler().Combo2, u"Salon B");
        EXPECT_FALSE(Giderler().Command4.etkin);
        EXPECT_FALSE(Giderler().Command2.etkin);
        EXPECT_EQ(Giderler().Liste.secili, -1);
    });
}

TEST_F(GiderlerTesti, A_save_of_a_year_without_a_file_leaves_none) {
    agac.KlasorKoy(u"Salon A/2012");
    GiderleriAc([&] {
        std::vector<DosyaIsi> isler;
        Prog().dosyalar.ariza = [&](DosyaIsi is, const Metin& yol) {
            if (yol.ends_with(kGiderDosyasi) && (is == DosyaIsi::Yaz || is == DosyaIsi::Sil))
                isler.push_back(is);
            return false;
        };
        VELORA_BAS(Prog().FormGiderler, Kaydet);
        EXPECT_EQ(isler, (std::vector{DosyaIsi::Yaz, DosyaIsi::Sil}));
        EXPECT_FALSE(agac.Var(kGiderYolu));
    });
}

TEST_F(GiderlerTesti, A_save_in_a_year_without_a_folder_writes_nothing_and_says_nothing) {
    GiderleriAc([&] {
        TarihSec(Giderler().DTPicker3, TarihCoz(u"07.03.2031").value());
        const std::string once = agac.Resim();
        VELORA_BAS(Prog().FormGiderler, Kaydet);
        EXPECT_EQ(agac.Resim(), once);
        EXPECT_FALSE(agac.KlasorVar(u"Salon A/2031"));
        EXPECT_TRUE(Prog().FormGiderler.Yuklu());
        EXPECT_EQ(Giderler().Giderler.baslik, u":  TL");
    });
}

TEST_F(GiderlerTesti, For_another_hall_than_its_own_the_cash_book_is_not_listed_anew) {
    agac.Koy(kGiderYolu, kUcAy);
    agac.Koy(u"Salon B/2012/Gider.dat", "\"10.05.2012\",\"20\",\"a\"\r\n");
    GiderleriAc([&] {
        ListedenSec(Giderler().Combo2, u"Salon B");
        EXPECT_EQ(Giderler().Liste.satirlar.size(), 1U) << "the change lists";
        VELORA_BAS(Prog().FormGiderler, Kaydet);
        EXPECT_EQ(Kasa().Giderler.baslik, u": 0");
        ListedenSec(Giderler().Combo2, u"Salon A");
        VELORA_BAS(Prog().FormGiderler, Kaydet);
        EXPECT_EQ(Kasa().Giderler.baslik, u": 4.300 TL");
    });
}

TEST_F(GiderlerTesti, An_expense_that_is_added_from_here_is_listed_at_once_and_survives_the_next_save) {
    agac.Koy(kGiderYolu, "\"10.05.2012\",\"20\",\"a\"\r\n");
    GiderleriAc([&] {
        SatiraTikla(Giderler().Liste, 0, [&] { Giderler().Liste_Click(); });
        EXPECT_TRUE(Giderler().Command4.etkin);
        EkleBekle([&] { GiderGir(u"70", u"Su"); });
        VELORA_BAS(Prog().FormGiderler, Command3);
        EXPECT_FALSE(Giderler().Command4.etkin);
        EXPECT_EQ(Giderler().Giderler.baslik, u": 90 TL");
        VELORA_BAS(Prog().FormGiderler, Kaydet);
        EXPECT_EQ(agac.Bayt(kGiderYolu), "\"10.05.2012\",\"20\",\"a\"\r\n\"15.06.2012\",\"70\",\"Su\"\r\n");
    });
}

TEST_F(GiderlerTesti, A_new_expense_goes_to_the_hall_of_the_cash_book_also_from_here_on_purpose) {
    agac.Koy(u"Salon B/2012/Gider.dat", "\"10.05.2012\",\"20\",\"a\"\r\n");
    GiderleriAc([&] {
        ListedenSec(Giderler().Combo2, u"Salon B");
        EkleBekle([&] { EXPECT_EQ(Ekle().Combo1.Metni(), u"Salon A"); });
        VELORA_BAS(Prog().FormGiderler, Command3);
    });
}

TEST_F(GiderlerTesti, A_file_that_can_not_be_read_is_not_written_over) {
    agac.Koy(kGiderYolu, kUcAy);
    GiderleriAc([&] {
        Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
            return is == DosyaIsi::Oku && yol.ends_with(kGiderDosyasi);
        };
        Giderler().ListeleGun();
        EXPECT_TRUE(Giderler().Liste.satirlar.empty());
        VELORA_BAS(Prog().FormGiderler, Kaydet);
        EXPECT_EQ(agac.Bayt(kGiderYolu), kUcAy);
    });
}

TEST_F(GiderlerTesti, A_file_that_can_not_be_read_back_behind_a_save_is_not_deleted) {
    agac.Koy(kGiderYolu, kUcAy);
    GiderleriAc([&] {
        const std::size_t satir = Giderler().Liste.satirlar.size();
        BirKezOkunmaz(Prog().dosyalar, kGiderDosyasi);
        GideriSil(0, Cevap::Evet);
        EXPECT_TRUE(Giderler().Liste.satirlar.empty()) << "of " << satir;
        EXPECT_NE(agac.Bayt(kGiderYolu), kUcAy);
        EXPECT_NE(agac.Bayt(kGiderYolu), "");
        VELORA_BAS(Prog().FormGiderler, Kaydet);
        EXPECT_NE(agac.Bayt(kGiderYolu), "") << "nor by the next one";
        EXPECT_EQ(Giderler().Liste.satirlar.size(), satir - 1);
    });
}

TEST_F(GiderlerTesti, On_a_full_disk_the_rows_of_the_file_come_back_and_nothing_is_lost) {
    agac.Koy(kGiderYolu, kUcAy);
    GiderleriAc([&] {
        Prog().dosyalar.ariza = [](DosyaIsi is, const Metin& yol) {
            return is == DosyaIsi::Yaz && yol.ends_with(kGiderDosyasi);
        };
        GideriSil(0, Cevap::Evet);
        EXPECT_EQ(agac.Bayt(kGiderYolu), kUcAy);
        EXPECT_EQ(Giderler().Liste.satirlar.size(), 4U);
        EXPECT_EQ(Kasa().Giderler.baslik, u": 0");
    });
}

TEST_F(GiderlerTesti, A_damaged_file_shows_what_can_be_read_and_a_record_without_a_date_repeats) {
    agac.Koy(kGiderYolu,
             "\x01\x02,\"9\",\"z\"\r\n\"10.05.2012\",\"20\",\"a\"\r\n\"??\",\"30\",\"b\"\r\n\"11.");
    GiderleriAc([&] {
        EXPECT_EQ(Okunan(Giderler().Liste), (Satirlar{{u"10.05.2012", u"20", u"Gider", u"a"},
                                                      {u"10.05.2012", u"20", u"Gider", u"a"},
                                                      {u"10.05.2012", u"20", u"Gider", u"a"}}));
    });
}

TEST_F(GiderlerTesti, Kapat_unloads_it_and_leaves_the_cash_book) {
    GiderleriAc([&] {
        VELORA_BAS(Prog().FormGiderler, Command1);
        EXPECT_FALSE(Prog().FormGiderler.Yuklu());
        EXPECT_TRUE(Prog().FormKasa.Yuklu());
    });
}

} // namespace velora::test
