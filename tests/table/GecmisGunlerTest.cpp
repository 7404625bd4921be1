#include "table/TabloTest.h"

namespace velora::test {

class GecmisGunler : public TabloTest {
  protected:
    GecmisGunler() { AyarKoy(28, u"1"); }

    void Bugun(int yil, unsigned ay, unsigned gun) {
        kullanici.ortam.simdi = std::chrono::local_days(
            Gun{std::chrono::year{yil}, std::chrono::month{ay}, std::chrono::day{gun}});
        kullanici.ProgramiAc();
    }
    bool Gecmis(int gun, int ay) {
        const auto ayarlar = kullanici.Prog().FormAyarlar.Tut();
        const Hucre& gunduz = kullanici.Goz(gun, ay, kGunduz);
        const Hucre& gece = kullanici.Goz(gun, ay, kGece);
        EXPECT_EQ(gunduz.zemin == ayarlar->Renk(17), gece.zemin == ayarlar->Renk(17));
        return gunduz.zemin == ayarlar->Renk(17) && gunduz.yazi == ayarlar->Renk(18);
    }
    /// Every day before this one is past, and none from it on.
    void GecmisOlmali(int ay, int gun) {
        for (int a = 1; a <= kAySayisi; ++a)
            for (int g = 1; g <= kGunSayisi; ++g)
                EXPECT_EQ(Gecmis(g, a), a < ay || (a == ay && g < gun)) << g << '.' << a;
    }
};

TEST_F(GecmisGunler, No_day_is_past_on_the_first_of_January) {
    Bugun(2012, 1, 1);
    GecmisOlmali(1, 1);
}

TEST_F(GecmisGunler, Fourteen_days_of_January_are_past_on_the_fifteenth) {
    Bugun(2012, 1, 15);
    GecmisOlmali(1, 15);
}

TEST_F(GecmisGunler, January_and_February_are_past_on_the_first_of_March) {
    Bugun(2012, 3, 1);
    GecmisOlmali(3, 1);
}

TEST_F(GecmisGunler, Today_itself_is_not_past) {
    Bugun(2012, 6, 15);
    GecmisOlmali(6, 15);
}

TEST_F(GecmisGunler, November_is_past_and_no_day_of_December_on_the_first_of_December) {
    Bugun(2012, 12, 1);
    GecmisOlmali(12, 1);
}

TEST_F(GecmisGunler, Fourteen_days_of_December_are_past_on_the_fifteenth) {
    Bugun(2012, 12, 15);
    GecmisOlmali(12, 15);
}

TEST_F(GecmisGunler, Past_year_is_wholly_past_and_a_future_year_not_at_all) {
    Bugun(2012, 6, 15);
    kullanici.YilSec(u"2011");
    GecmisOlmali(13, 1);
    kullanici.YilSec(u"2013");
    GecmisOlmali(1, 1);
}

TEST_F(GecmisGunler, Switch_off_leaves_every_year_alone) {
    AyarKoy(28, u"0");
    Bugun(2012, 6, 15);
    GecmisOlmali(1, 1);
    kullanici.YilSec(u"2011");
    GecmisOlmali(1, 1);
}

TEST_F(GecmisGunler, Stored_two_is_not_on_on_purpose) {
    AyarKoy(28, u"2");
    Bugun(2012, 6, 15);
    GecmisOlmali(1, 1);
}

// A past reservation looks like a past free day; only its tag still tells of it.
TEST_F(GecmisGunler, Past_reservation_loses_its_colours_and_keeps_its_tag_on_purpose) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    Bugun(2012, 6, 15);
    EXPECT_TRUE(Gecmis(5, 1));
    EXPECT_EQ(kullanici.Goz(5, 1, kGunduz).tag, u"|11:00|Düğün|Gündüz|5000|1000|4000|Ali Veli|7|1");
}

} // namespace velora::test
