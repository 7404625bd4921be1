// What a cell is called where it isn't seen.
#include "table/TabloTest.h"

namespace velora::test {

class GozAdi : public TabloTest {
  protected:
    Metin Ad(SatirAdi satir, int gun) { return kullanici.Tablo().GozAdi(satir, gun); }
};

TEST_F(GozAdi, Tells_day_weekday_slot_and_the_state_that_the_colour_shows) {
    AyarKoy(28, u"1");
    agac.Koy(u"Tatiller.dll", "\"30.08.2012\",\"Zafer Bayram\xFD\",\"Evet\"\r\n");
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    RezervasyonKoy(u"21.06.2012 - Gündüz", {}, true);
    RezervasyonKoy(u"20.06.2012 - Gece", {}, true);
    RezervasyonKoy(u"21.06.2012 - Gece");
    kullanici.ProgramiAc();
    EXPECT_EQ(Ad(HaziranGunduz, 20), u"20 Haziran 2012 Çarşamba, Gündüz, Kesin rezervasyon");
    EXPECT_EQ(Ad(HaziranGunduz, 21), u"21 Haziran 2012 Perşembe, Gündüz, Ön rezervasyon");
    EXPECT_EQ(Ad(HaziranGece, 20), u"20 Haziran 2012 Çarşamba, Gece, Ön rezervasyon");
    EXPECT_EQ(Ad(HaziranGece, 21), u"21 Haziran 2012 Perşembe, Gece, Kesin rezervasyon");
    EXPECT_EQ(Ad(EylulGunduz, 5), u"5 Eylül 2012 Çarşamba, Gündüz, Boş");
    EXPECT_EQ(Ad(EylulGece, 8), u"8 Eylül 2012 Cumartesi, Gece, Boş, hafta sonu");
    EXPECT_EQ(Ad(AgustosGunduz, 30), u"30 Ağustos 2012 Perşembe, Gündüz, Boş, tatil");
    EXPECT_EQ(Ad(OcakGece, 3), u"3 Ocak 2012 Salı, Gece, Geçmiş");
}

TEST_F(GozAdi, Goes_by_the_painted_colour_and_where_two_are_equal_by_the_free_one_on_purpose) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    kullanici.ProgramiAc();
    const auto ayarlar = kullanici.Prog().FormAyarlar.Tut();
    kullanici.Goz(20, 6, kGunduz).zemin = ayarlar->Renk(19);
    EXPECT_EQ(Ad(HaziranGunduz, 20), u"20 Haziran 2012 Çarşamba, Gündüz, Ön rezervasyon");
    ayarlar->renkler[2] = ayarlar->Renk(19);
    EXPECT_EQ(Ad(HaziranGunduz, 20), u"20 Haziran 2012 Çarşamba, Gündüz, Boş");
    kullanici.Goz(20, 6, kGunduz).zemin = 0x123456;
    EXPECT_EQ(Ad(HaziranGunduz, 20), u"20 Haziran 2012 Çarşamba, Gündüz") << "a colour of no state";
}

TEST_F(GozAdi, A_cell_that_is_not_shown_has_no_name_and_the_label_says_what_it_said_on_the_screen) {
    AyKapat(7);
    kullanici.ProgramiAc();
    EXPECT_EQ(Ad(SubatGunduz, 30), u"");
    EXPECT_EQ(Ad(TemmuzGece, 4), u"");
    kullanici.Uzerine({21, 6, kGece});
    EXPECT_EQ(kullanici.Tablo().EtiketMetni(HaziranGece, 21), u"21.06.2012\n Perşembe - Gece ");
    EXPECT_EQ(kullanici.Tablo().Ekran.baslik, kullanici.Tablo().EtiketMetni(HaziranGece, 21));
}

} // namespace velora::test
