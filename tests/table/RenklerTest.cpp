#include "table/TabloTest.h"

namespace velora::test {

/// Which of the colours paints what: each has a value of its own.
class TabloRenkleri : public TabloTest {
  protected:
    TabloRenkleri() {
        Metin satir;
        for (int n = 0; n < kRenkSayisi; ++n)
            satir += SayiMetni(Deger(n)) + u',';
        const Metin varsayilan = AyarMetni(28, u"1"); // past days are painted
        std::size_t bas = 0;
        for (int n = 0; n < kRenkSayisi; ++n)
            bas = varsayilan.find(u',', bas) + 1;
        agac.KoyMetin(u"Settings.dll", satir + varsayilan.substr(bas));
        agac.KoyMetin(u"Visible.dll", u"1,1,1,1,1,1,1,1,1,1,1,1,1\r\n");
        agac.KoyMetin(u"Tatiller.dll", u"\"23.11.2000\",\"Şenlik\",\"Evet\",\"Özel\"\r\n");
        RezervasyonKoy(u"20.11.2012 - Gündüz");
        RezervasyonKoy(u"20.11.2012 - Gece");
        RezervasyonKoy(u"21.11.2012 - Gündüz", {}, true);
        RezervasyonKoy(u"21.11.2012 - Gece", {}, true);
        RezervasyonKoy(u"12.03.2012 - Gece");
        kullanici.ProgramiAc();
    }

    static RenkDegeri Deger(int n) { return 70'001 + 10'007 * n; }
    void GozOlmali(int gun, int ay, velora::GunduzGece dilim, int zemin, int yazi) {
        EXPECT_EQ(kullanici.Goz(gun, ay, dilim).zemin, Deger(zemin)) << gun << '.' << ay;
        EXPECT_EQ(kullanici.Goz(gun, ay, dilim).yazi, Deger(yazi)) << gun << '.' << ay;
    }
};

TEST_F(TabloRenkleri, Each_state_of_a_day_has_the_two_colours_of_its_slot) {
    GozOlmali(19, 11, kGunduz, 2, 3); // a Monday
    GozOlmali(19, 11, kGece, 4, 5);
    GozOlmali(20, 11, kGunduz, 6, 7);
    GozOlmali(24, 11, kGunduz, 8, 9); // a Saturday
    GozOlmali(24, 11, kGece, 10, 11);
    GozOlmali(20, 11, kGece, 12, 13);
    GozOlmali(21, 11, kGunduz, 19, 20);
    GozOlmali(21, 11, kGece, 21, 22);
    GozOlmali(23, 11, kGunduz, 23, 24);
    GozOlmali(23, 11, kGece, 23, 24);
}

TEST_F(TabloRenkleri, A_past_day_has_the_two_colours_of_the_past_in_both_slots_taken_or_not) {
    GozOlmali(12, 3, kGunduz, 17, 18);
    GozOlmali(12, 3, kGece, 17, 18);
    GozOlmali(14, 6, kGunduz, 17, 18);
    GozOlmali(14, 6, kGece, 17, 18);
}

TEST_F(TabloRenkleri, Heads_of_days_and_months_have_the_two_first_colours) {
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        EXPECT_EQ(kullanici.Tablo().Gunler[gun].zemin, Deger(0)) << gun;
        EXPECT_EQ(kullanici.Tablo().ALabel[gun].yazi, Deger(1)) << gun;
    }
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        EXPECT_EQ(kullanici.Tablo().AyZemin[ay].zemin, Deger(0)) << ay;
        EXPECT_EQ(kullanici.Tablo().AyAdi[ay].yazi, Deger(1)) << ay;
    }
}

TEST_F(TabloRenkleri, The_panel_of_warnings_has_colour_fourteen_and_its_title_fifteen) {
    EXPECT_EQ(kullanici.Tablo().Picture1.zemin, Deger(14));
    EXPECT_EQ(kullanici.Tablo().UyariBaslik.yazi, Deger(15));
}

} // namespace velora::test
