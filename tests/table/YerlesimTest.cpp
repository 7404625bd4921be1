#include "table/Yerlesim.h"
#include "table/TabloTest.h"

namespace velora::test {

namespace {
constexpr double kW = 500; // column width
constexpr double kH = 400; // row height
constexpr double kIcGenislik = 33 * kW + 1300;
constexpr double kIcYukseklik = 23 * kH + 1150;
} // namespace

class Yerlesim : public TabloTest {
  protected:
    void Ac() {
        kullanici.ProgramiAc();
        kullanici.Tablo().Resize(kIcGenislik, kIcYukseklik);
    }
    const TabloSatiri& Sira(SatirAdi ad) { return kullanici.Tablo().satirlar[ad]; }
};

TEST_F(Yerlesim, Columns_stand_side_by_side_from_fourteen_hundred_on) {
    Ac();
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        EXPECT_DOUBLE_EQ(kullanici.Tablo().Gunler[gun].yer.sol, 1400 + gun * kW);
        EXPECT_DOUBLE_EQ(kullanici.Tablo().Gunler[gun].yer.genislik, kW);
        EXPECT_DOUBLE_EQ(kullanici.Tablo().ALabel[gun].yer.sol, 1400 + gun * kW);
        EXPECT_DOUBLE_EQ(kullanici.Tablo().ALabel[gun].yer.genislik, kW - 1);
        EXPECT_DOUBLE_EQ(kullanici.Tablo().HucreYeri(KasimGece, gun).sol, 1400 + gun * kW);
    }
}

TEST_F(Yerlesim, Evening_on_top_gives_equal_rows_that_overlap_by_a_hundred_and_by_twenty) {
    Ac();
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        const TabloSatiri& gece = Sira(Satir(ay, kGece));
        const TabloSatiri& gunduz = Sira(Satir(ay, kGunduz));
        EXPECT_DOUBLE_EQ(gece.yukseklik, kH);
        EXPECT_DOUBLE_EQ(gunduz.yukseklik, kH);
        EXPECT_DOUBLE_EQ(gunduz.ust, gece.ust + kH - 100);
        if (ay < kAySayisi) {
            EXPECT_DOUBLE_EQ(Sira(Satir(ay + 1, kGece)).ust, gunduz.ust + kH - 20);
        }
        EXPECT_EQ(kullanici.Tablo().GunduzGece[ay].resim, SiraResmi::Image2);
    }
}

TEST_F(Yerlesim, Day_on_top_gives_a_lower_day_row_and_overlaps_of_ninety_and_twenty) {
    AyarKoy(30, u"\"Gündüz / Gece\"");
    Ac();
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        const TabloSatiri& gunduz = Sira(Satir(ay, kGunduz));
        const TabloSatiri& gece = Sira(Satir(ay, kGece));
        EXPECT_DOUBLE_EQ(gunduz.yukseklik, kH - 20);
        EXPECT_DOUBLE_EQ(gece.yukseklik, kH);
        EXPECT_DOUBLE_EQ(gece.ust, gunduz.ust + gunduz.yukseklik - 90);
        if (ay < kAySayisi) {
            EXPECT_DOUBLE_EQ(Sira(Satir(ay + 1, kGunduz)).ust, gece.ust + kH - 20);
        }
        EXPECT_EQ(kullanici.Tablo().GunduzGece[ay].resim, SiraResmi::Image1);
    }
}

TEST_F(Yerlesim, Any_other_text_of_the_order_counts_as_evening_on_top) {
    AyarKoy(30, u"\"gündüz / gece\"");
    Ac();
    EXPECT_LT(Sira(OcakGece).ust, Sira(OcakGunduz).ust);
    EXPECT_EQ(kullanici.Tablo().GunduzGece[1].resim, SiraResmi::Image2);
}

// What the settings say when they are saved: it comes with the next start. A larger window turns nothing
// over.
TEST_F(Yerlesim, Changed_order_shows_only_after_a_new_start_on_purpose) {
    Ac();
    kullanici.Prog().FormAyarlar->GunduzGece.MetinAta(kGunduzGeceSirasi);
    kullanici.Tablo().Command1();
    kullanici.Tablo().Resize(kIcGenislik + kW, kIcYukseklik);
    EXPECT_LT(Sira(OcakGece).ust, Sira(OcakGunduz).ust);
    EXPECT_EQ(kullanici.Tablo().GunduzGece[7].resim, SiraResmi::Image2);
    kullanici.GunBasligina(7);
    kullanici.AyBasligina(9);
    EXPECT_DOUBLE_EQ(kullanici.Tablo().HizliSecim.yer.yukseklik, 2 * kH + 30);
    AyarKoy(30, u"\"Gündüz / Gece\"");
    Ac();
    EXPECT_LT(Sira(OcakGunduz).ust, Sira(OcakGece).ust);
    EXPECT_EQ(kullanici.Tablo().GunduzGece[7].resim, SiraResmi::Image1);
}

TEST_F(Yerlesim, Month_heads_cover_their_two_rows_and_carry_name_and_picture) {
    Ac();
    const FormTablo& tablo = kullanici.Tablo();
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        EXPECT_DOUBLE_EQ(tablo.AyZemin[ay].yer.ust, Sira(Satir(ay, kGece)).ust);
        EXPECT_DOUBLE_EQ(tablo.AyAdi[ay].yer.ust + tablo.AyAdi[ay].yer.yukseklik / 2,
                         tablo.AyZemin[ay].yer.ust + tablo.AyZemin[ay].yer.yukseklik / 2);
        EXPECT_DOUBLE_EQ(tablo.GunduzGece[ay].yer.ust + tablo.GunduzGece[ay].yer.yukseklik / 2,
                         tablo.AyZemin[ay].yer.ust + tablo.AyZemin[ay].yer.yukseklik / 2);
        EXPECT_LT(tablo.AyZemin[ay].yer.Sag(), tablo.Gunler[1].yer.sol);
    }
    EXPECT_EQ(tablo.AyAdi[1].baslik, u"OCAK");
    EXPECT_EQ(tablo.AyAdi[2].baslik, u"ŞUBAT");
    EXPECT_EQ(tablo.AyAdi[12].baslik, u"ARALIK");
}

TEST_F(Yerlesim, Months_keep_the_length_of_their_year) {
    Ac();
    const std::array<int, 12> gunler{31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int ay = 1; ay <= kAySayisi; ++ay)
        for (int gun = 1; gun <= kGunSayisi; ++gun)
            for (const auto dilim : {kGunduz, kGece}) {
                const bool var = gun <= gunler[static_cast<std::size_t>(ay - 1)];
                EXPECT_EQ(kullanici.Goz(gun, ay, dilim).gorunur, var) << gun << '.' << ay;
                EXPECT_EQ(kullanici.Goz(gun, ay, dilim).baslik.empty(), !var) << gun << '.' << ay;
            }
    kullanici.YilSec(u"2013");
    EXPECT_FALSE(kullanici.Goz(29, 2, kGece).gorunur);
    EXPECT_TRUE(kullanici.Goz(28, 2, kGece).gorunur);
}

TEST_F(Yerlesim, Cells_bear_the_short_weekday_names) {
    Ac();
    const std::array<MetinBakis, 7> adlar{u"Paz", u"Pzt", u"Sal", u"Çar", u"Per", u"Cum", u"Cmt"};
    for (int gun = 1; gun <= 14; ++gun) // 1 January 2012 was a Sunday
        EXPECT_EQ(kullanici.Goz(gun, 1, kGunduz).baslik, adlar[static_cast<std::size_t>((gun - 1) % 7)]);
}

TEST_F(Yerlesim, Month_that_is_off_leaves_its_band_empty_and_moves_no_row) {
    Ac();
    const double haziran = Sira(HaziranGece).ust;
    AyKapat(5);
    Ac();
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        EXPECT_FALSE(kullanici.Goz(gun, 5, kGunduz).gorunur);
        EXPECT_EQ(kullanici.Goz(gun, 5, kGunduz).baslik, u"");
    }
    EXPECT_FALSE(kullanici.Tablo().AyAdi[5].gorunur);
    EXPECT_FALSE(kullanici.Tablo().AyZemin[5].gorunur);
    EXPECT_FALSE(kullanici.Tablo().GunduzGece[5].gorunur);
    EXPECT_TRUE(kullanici.Tablo().AyAdi[6].gorunur);
    EXPECT_DOUBLE_EQ(Sira(HaziranGece).ust, haziran);
}

TEST_F(Yerlesim, Resize_touches_no_colour_and_no_tag) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    Ac();
    const auto once = kullanici.Tablo().satirlar;
    kullanici.Tablo().Resize(2 * kIcGenislik, kIcYukseklik);
    for (std::size_t satir = 0; satir < once.size(); ++satir)
        for (int gun = 1; gun <= kGunSayisi; ++gun) {
            const Hucre& simdi = kullanici.Tablo().satirlar[satir].gun[gun];
            EXPECT_EQ(simdi.zemin, once[satir].gun[gun].zemin);
            EXPECT_EQ(simdi.yazi, once[satir].gun[gun].yazi);
            EXPECT_EQ(simdi.tag, once[satir].gun[gun].tag);
        }
}

TEST_F(Yerlesim, Todays_frame_stands_on_the_upper_row_of_the_month) {
    Ac();
    EXPECT_EQ(kullanici.Tablo().BuGun.yer,
              (Yer{1400 + 15 * kW, Sira(HaziranGece).ust + 10, kW + 10, 2 * kH}));
    AyarKoy(30, u"\"Gündüz / Gece\"");
    Ac();
    EXPECT_EQ(kullanici.Tablo().BuGun.yer,
              (Yer{1400 + 15 * kW, Sira(HaziranGunduz).ust, kW + 10, 2 * (kH - 20)}));
}

TEST_F(Yerlesim, Warning_panel_is_centred) {
    kullanici.ProgramiAc();
    kullanici.Tablo().Picture1.yer.genislik = 6000;
    kullanici.Tablo().Resize(kIcGenislik, kIcYukseklik);
    EXPECT_DOUBLE_EQ(kullanici.Tablo().Picture1.yer.sol, kIcGenislik / 2 - 3000);
}

TEST_F(Yerlesim, Warning_panel_stands_in_the_half_without_todays_month) {
    for (const unsigned ay : {1U, 6U, 7U, 12U}) {
        kullanici.ortam.simdi = std::chrono::local_days(
            Gun{std::chrono::year{2012}, std::chrono::month{ay}, std::chrono::day{9}});
        kullanici.ProgramiAc();
        kullanici.Tablo().Resize(kIcGenislik, 2 * kIcYukseklik);
        const FormTablo& tablo = kullanici.Tablo();
        const Yer& panel = tablo.Picture1.yer;
        EXPECT_EQ(panel.ust >= tablo.AyZemin[7].yer.ust, ay <= 6) << ay;
        EXPECT_EQ(panel.Alt() <= tablo.AyZemin[6].yer.Alt(), ay > 6) << ay;
        EXPECT_GE(panel.ust, tablo.AyZemin[1].yer.ust);
        EXPECT_LE(panel.Alt(), tablo.AyZemin[12].yer.Alt());
        EXPECT_DOUBLE_EQ(panel.yukseklik, 4200);
    }
}

TEST_F(Yerlesim, Warning_panel_is_no_higher_than_half_of_a_low_table) {
    kullanici.ProgramiAc();
    kullanici.Tablo().Resize(kIcGenislik, kIcYukseklik / 2);
    const FormTablo& tablo = kullanici.Tablo();
    EXPECT_DOUBLE_EQ(tablo.Picture1.yer.yukseklik, tablo.AyZemin[12].yer.Alt() - tablo.AyZemin[7].yer.ust);
    kullanici.Tablo().Resize(kIcGenislik, 2 * kIcYukseklik);
    EXPECT_DOUBLE_EQ(tablo.Picture1.yer.yukseklik, 4200);
}

TEST_F(Yerlesim, Inner_lengths_that_are_asked_for_fill_the_given_ones) {
    for (const MetinBakis sira : {u"\"Gündüz / Gece\"", u"\"Gece / Gündüz\""}) {
        AyarKoy(30, sira);
        kullanici.ProgramiAc();
        kullanici.Tablo().Resize(TabloIcGenisligi(19'200), TabloIcYuksekligi(9'000));
        const FormTablo& tablo = kullanici.Tablo();
        const double alt =
            std::max(tablo.HucreYeri(AralikGunduz, 31).Alt(), tablo.HucreYeri(AralikGece, 31).Alt());
        EXPECT_LE(alt, 9'000);
        EXPECT_GT(alt, 8'800);
        EXPECT_DOUBLE_EQ(tablo.HucreYeri(AralikGece, 31).Sag(), 19'140);
    }
}

} // namespace velora::test
