#include "table/TabloTest.h"

namespace velora::test {

class Cetvel : public TabloTest {
  protected:
    void IsaretOlmali(int gun, int ay) {
        for (int i = 1; i <= kGunSayisi; ++i)
            EXPECT_EQ(kullanici.Tablo().Gunler[i].zemin, i == gun ? 33023 : 32768) << i;
        for (int i = 1; i <= kAySayisi; ++i)
            EXPECT_EQ(kullanici.Tablo().AyZemin[i].zemin, i == ay ? 33023 : 32768) << i;
    }
};

TEST_F(Cetvel, One_pick_marks_its_head_and_shows_no_frame) {
    kullanici.ProgramiAc();
    kullanici.GunBasligina(5);
    IsaretOlmali(5, 0);
    EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur);
    EXPECT_EQ(kullanici.Tablo().CetvelTimer.aralik, 0);
}

TEST_F(Cetvel, Second_pick_starts_the_frame_at_the_crossing) {
    kullanici.ProgramiAc();
    kullanici.AyBasligina(3);
    kullanici.GunBasligina(5);
    const FormTablo& tablo = kullanici.Tablo();
    IsaretOlmali(5, 3);
    EXPECT_TRUE(tablo.HizliSecim.gorunur);
    EXPECT_EQ(tablo.CetvelTimer.aralik, 300);
    const Yer hucre = tablo.HucreYeri(OcakGunduz, 1);
    EXPECT_EQ(tablo.HizliSecim.yer, (Yer{tablo.ALabel[5].yer.sol + 20, tablo.AyZemin[3].yer.ust,
                                         hucre.genislik + 10, 2 * hucre.yukseklik + 30}));
}

TEST_F(Cetvel, Frame_is_thirty_lower_with_the_day_slot_on_top) {
    AyarKoy(30, u"\"Gündüz / Gece\"");
    kullanici.ProgramiAc();
    kullanici.AyBasligina(3);
    kullanici.GunBasligina(5);
    EXPECT_EQ(kullanici.Tablo().HizliSecim.yer.yukseklik,
              2 * kullanici.Tablo().HucreYeri(OcakGunduz, 1).yukseklik);
}

TEST_F(Cetvel, Frame_follows_its_crossing_at_each_layout) {
    kullanici.ProgramiAc();
    kullanici.AyBasligina(10);
    kullanici.GunBasligina(27);
    for (const auto& [genislik, yukseklik] : {std::pair{1701, 803}, {1003, 571}}) {
        const Yer once = kullanici.Tablo().HizliSecim.yer;
        kullanici.Boyutla(genislik, yukseklik);
        const FormTablo& tablo = kullanici.Tablo();
        const Yer hucre = tablo.HucreYeri(OcakGunduz, 1);
        EXPECT_EQ(tablo.HizliSecim.yer, (Yer{tablo.ALabel[27].yer.sol + 20, tablo.AyZemin[10].yer.ust,
                                             hucre.genislik + 10, 2 * hucre.yukseklik + 30}));
        EXPECT_NE(tablo.HizliSecim.yer, once);
        EXPECT_TRUE(tablo.HizliSecim.gorunur);
    }
}

TEST_F(Cetvel, Layout_shows_no_frame_for_one_pick) {
    kullanici.ProgramiAc();
    kullanici.AyBasligina(10);
    kullanici.Boyutla(1701, 803);
    EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur);
    EXPECT_EQ(kullanici.Tablo().HizliSecim.yer, Yer());
}

TEST_F(Cetvel, Second_click_on_the_same_head_changes_nothing) {
    kullanici.ProgramiAc();
    kullanici.AyBasligina(3);
    kullanici.GunBasligina(5);
    kullanici.ZamanGecir(300);
    EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur);
    kullanici.GunBasligina(5);
    EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur) << "the ruler opens only when a pick changes";
    IsaretOlmali(5, 3);
}

TEST_F(Cetvel, Click_on_another_head_moves_mark_and_frame) {
    kullanici.ProgramiAc();
    kullanici.AyBasligina(3);
    kullanici.GunBasligina(5);
    kullanici.GunBasligina(9);
    IsaretOlmali(9, 3);
    EXPECT_EQ(kullanici.Tablo().HizliSecim.yer.sol, kullanici.Tablo().ALabel[9].yer.sol + 20);
}

TEST_F(Cetvel, Frame_blinks_with_its_timer) {
    kullanici.ProgramiAc();
    kullanici.AyBasligina(3);
    kullanici.GunBasligina(5);
    kullanici.ZamanGecir(300);
    EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur);
    kullanici.ZamanGecir(300);
    EXPECT_TRUE(kullanici.Tablo().HizliSecim.gorunur);
}

TEST_F(Cetvel, A_tick_with_nothing_picked_hides_the_frame_and_with_one_pick_it_blinks_on_purpose) {
    kullanici.ProgramiAc();
    FormTablo& tablo = kullanici.Tablo();
    tablo.HizliSecim.gorunur = false; // a tick alone would show it
    tablo.CetvelTimer_Tick();
    EXPECT_FALSE(tablo.HizliSecim.gorunur);
    for (const auto& [ay, gun] : {std::pair{4, 0}, std::pair{0, 7}}) {
        tablo.HizliAy = ay;
        tablo.HizliGun = gun;
        tablo.HizliSecim.gorunur = false;
        tablo.CetvelTimer_Tick();
        EXPECT_TRUE(tablo.HizliSecim.gorunur) << ay << '/' << gun;
    }
}

TEST_F(Cetvel, Frame_can_stand_over_a_month_that_is_off) {
    AyKapat(3);
    kullanici.ProgramiAc();
    kullanici.AyBasligina(3);
    kullanici.GunBasligina(5);
    EXPECT_TRUE(kullanici.Tablo().HizliSecim.gorunur);
}

class CetvelSonu : public Cetvel, public ::testing::WithParamInterface<void (*)(Kullanici&)> {};

TEST_P(CetvelSonu, Clears_marks_picks_and_frame) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    kullanici.ProgramiAc();
    kullanici.AyBasligina(3);
    kullanici.GunBasligina(5);
    GetParam()(kullanici);
    IsaretOlmali(0, 0);
    EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur);
    EXPECT_EQ(kullanici.Tablo().HizliAy, 0);
    EXPECT_EQ(kullanici.Tablo().HizliGun, 0);
    EXPECT_EQ(kullanici.Tablo().CetvelTimer.aralik, 0);
}

INSTANTIATE_TEST_SUITE_P(CellHallOrYear, CetvelSonu,
                         ::testing::Values([](Kullanici& k) { k.Goze(); },
                                           [](Kullanici& k) { k.SalonSec(u"Salon B"); },
                                           [](Kullanici& k) { k.YilSec(u"2013"); }));

// What is picked while the ruler goes starts its timer again: it is stopped twice for that reason.
TEST_F(Cetvel, Pick_that_comes_in_between_leaves_the_timer_off_on_purpose) {
    for (int nokta = 1; nokta <= 2; ++nokta) {
        kullanici.ProgramiAc();
        kullanici.AyBasligina(3);
        kullanici.GunBasligina(5);
        const int ilk = kullanici.ortam.olaySayisi;
        kullanici.ortam.olayda = [&](int sira) {
            if (sira == ilk + nokta)
                kullanici.GunBasligina(6);
        };
        kullanici.Tablo().CetvelSil();
        kullanici.ortam.olayda = nullptr;
        EXPECT_EQ(kullanici.Tablo().CetvelTimer.aralik, 0) << nokta;
        EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur) << nokta;
    }
}

// A tick that was already on its way shows the frame once more; the ruler hides it twice for that reason.
TEST_F(Cetvel, Tick_that_comes_in_between_leaves_the_frame_hidden_on_purpose) {
    for (int nokta = 1; nokta <= 3; ++nokta) {
        kullanici.ProgramiAc();
        kullanici.AyBasligina(3);
        kullanici.GunBasligina(5);
        const int ilk = kullanici.ortam.olaySayisi;
        kullanici.ortam.olayda = [&](int sira) {
            if (sira == ilk + nokta)
                kullanici.Tablo().CetvelTimer_Tick();
        };
        kullanici.Tablo().CetvelSil();
        kullanici.ortam.olayda = nullptr;
        EXPECT_FALSE(kullanici.Tablo().HizliSecim.gorunur) << nokta;
        EXPECT_EQ(kullanici.Tablo().HizliAy, 0);
    }
}

} // namespace velora::test
