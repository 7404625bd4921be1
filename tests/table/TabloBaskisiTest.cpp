// The year table for paper: what is copied from the screen, and when.
#include "destek/Eylemler.h"
#include "documents/FormTabloPrint.h"
#include "online/FormFirma.h"
#include "screen/Bayrak.h"
#include "table/TabloTest.h"

namespace velora::test {

namespace {

using namespace std::chrono_literals;

Metin FirmaProfili(MetinBakis ad) {
    return u"\"" + Metin(ad) +
           u"\",\"Ayşe\",\"0282 651 11 22\",\"0532 333 44 55\",\"gul.test\",\"a@gul.test\",\"Çay Sk.\","
           u"\"TEKIRDAG\",\"Ergene\",\"Velora 1.0\",\"01.01.2012\",\"yedek\",\"4\"\r\n";
}

} // namespace

class TabloBaskisi : public TabloTest {
  protected:
    TabloBaskisi() {
        agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Nergis Salonu\"\r\n");
        agac.KoyMetin(u"Firma.dll", FirmaProfili(u"Gül Düğün Salonları"));
        agac.Koy(u"Tatiller.dll", "\"30.08.2012\",\"Zafer Bayram\xFD\",\"Evet\"\r\n");
    }

    FormTabloPrint& Baski() { return *kullanici.Prog().FormTabloPrint.Tut(); }
    BaskiIsareti IsaretOf(SatirAdi satir, int gun) { return Baski().Gozu(satir, gun).isaret; }
    /// Opens it from the menu; `is` is done on it.
    void Ac(const std::function<void()>& is) {
        kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormTabloPrint, is});
        kullanici.KomutSec(Komut::rezrapor);
    }
    int Isaretliler() {
        int adet = 0;
        for (const auto& satir : Baski().satirlar)
            for (const BaskiGozu& goz : satir)
                adet += goz.isaret == BaskiIsareti::Yok ? 0 : 1;
        return adet;
    }
};

TEST_F(TabloBaskisi, Each_cell_has_caption_colours_and_visibility_of_the_screen) {
    AyarKoy(28, u"1"); // past days
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    RezervasyonKoy(u"21.06.2012 - Gece", {}, true);
    kullanici.ProgramiAc();
    kullanici.Goz(7, 9, kGece).baslik = u"Özel";
    kullanici.Goz(8, 9, kGunduz).yazi = 0x123456;
    Ac([&] {
        for (int no = 0; no < kSatirSayisi; ++no)
            for (int gun = 1; gun <= kGunSayisi; ++gun) {
                const Hucre& goz = kullanici.Tablo().Gozu(static_cast<SatirAdi>(no), gun);
                const BaskiGozu& baski = Baski().Gozu(static_cast<SatirAdi>(no), gun);
                EXPECT_TRUE(goz.baslik == baski.baslik && goz.gorunur == baski.gorunur &&
                            goz.zemin == baski.zemin && goz.yazi == baski.yazi)
                    << no << ' ' << gun;
            }
        EXPECT_EQ(Baski().Gozu(EylulGece, 7).baslik, u"Özel");
        EXPECT_EQ(Baski().Gozu(OcakGunduz, 3).zemin, 12632256) << "a past day";
        EXPECT_FALSE(Baski().Gozu(SubatGece, 30).gorunur);
        EXPECT_EQ(Baski().ALabel[17].baslik, u"17");
        EXPECT_EQ(Baski().AyAdi[8].baslik, u"AĞUSTOS");
    });
}

TEST_F(TabloBaskisi, A_taken_slot_has_a_mark_beside_its_colour_and_no_other_has_one) {
    AyarKoy(28, u"1");
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    RezervasyonKoy(u"21.06.2012 - Gündüz", {}, true);
    RezervasyonKoy(u"22.06.2012 - Gece");
    RezervasyonKoy(u"30.08.2012 - Gece", {}, true); // on a holiday
    RezervasyonKoy(u"05.01.2012 - Gündüz");         // past: its colour says no more than that
    kullanici.ProgramiAc();
    Ac([&] {
        EXPECT_EQ(IsaretOf(HaziranGunduz, 20), BaskiIsareti::Kesin);
        EXPECT_EQ(IsaretOf(HaziranGunduz, 21), BaskiIsareti::On);
        EXPECT_EQ(IsaretOf(HaziranGece, 22), BaskiIsareti::Kesin);
        EXPECT_EQ(IsaretOf(AgustosGece, 30), BaskiIsareti::On);
        EXPECT_EQ(Isaretliler(), 4);
    });
}

TEST_F(TabloBaskisi,
       Where_two_states_share_a_colour_the_free_one_holds_and_before_the_provisional_the_firm_one) {
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    RezervasyonKoy(u"21.06.2012 - Gece", {}, true);
    RezervasyonKoy(u"22.06.2012 - Gece");
    kullanici.ProgramiAc();
    const auto ayarlar = kullanici.Prog().FormAyarlar.Tut();
    ayarlar->renkler[2] = ayarlar->Renk(6);
    ayarlar->renkler[21] = ayarlar->Renk(12);
    kullanici.Tablo().Command1();
    Ac([&] {
        EXPECT_EQ(IsaretOf(HaziranGunduz, 20), BaskiIsareti::Yok);
        EXPECT_EQ(IsaretOf(HaziranGece, 21), BaskiIsareti::Kesin);
        EXPECT_EQ(Isaretliler(), 2);
    });
}

TEST_F(TabloBaskisi, The_legend_has_the_grounds_of_both_slots_the_upper_one_first) {
    AyarKoy(30, u"\"Gündüz / Gece\"");
    kullanici.ProgramiAc();
    const auto ayarlar = kullanici.Prog().FormAyarlar.Tut();
    Ac([&] {
        EXPECT_EQ(Baski().aciklamalar[0].isaret, BaskiIsareti::Kesin);
        EXPECT_EQ(Baski().aciklamalar[0].ad, u"Kesin rezervasyon");
        EXPECT_EQ(Baski().aciklamalar[0].zeminler, (std::array{ayarlar->Renk(6), ayarlar->Renk(12)}));
        EXPECT_EQ(Baski().aciklamalar[1].isaret, BaskiIsareti::On);
        EXPECT_EQ(Baski().aciklamalar[1].ad, u"Ön rezervasyon");
        EXPECT_EQ(Baski().aciklamalar[1].zeminler, (std::array{ayarlar->Renk(19), ayarlar->Renk(21)}));
    });
    ayarlar->GunduzGece.MetinAta(u"Gece / Gündüz"); // for the next start
    kullanici.Tablo().Resize(17800, 8500);
    Ac([&] {
        EXPECT_EQ(Baski().aciklamalar[1].zeminler, (std::array{ayarlar->Renk(19), ayarlar->Renk(21)}));
    });
    AyarKoy(30, u"\"Gece / Gündüz\"");
    kullanici.ProgramiAc();
    Ac([&] {
        EXPECT_EQ(Baski().aciklamalar[1].zeminler, (std::array{kullanici.Prog().FormAyarlar->Renk(21),
                                                               kullanici.Prog().FormAyarlar->Renk(19)}));
    });
}

TEST_F(TabloBaskisi, A_hidden_month_is_hidden_with_its_name_and_the_others_are_not) {
    AyKapat(4);
    RezervasyonKoy(u"20.04.2012 - Gündüz");
    kullanici.ProgramiAc();
    Ac([&] {
        for (int ay = 1; ay <= kAySayisi; ++ay) {
            EXPECT_EQ(Baski().AyAdi[ay].gorunur, ay != 4) << ay;
            EXPECT_EQ(Baski().AyZemin[ay].gorunur, ay != 4) << ay;
            EXPECT_EQ(Baski().Gozu(Satir(ay, kGece), 20).gorunur, ay != 4) << ay;
        }
    });
}

TEST_F(TabloBaskisi, The_slot_order_is_that_of_the_screen_at_that_moment_month_by_month) {
    AyarKoy(30, u"\"Gündüz / Gece\"");
    kullanici.ProgramiAc();
    kullanici.Tablo().GunduzGece[5].resim = SiraResmi::Image2;
    kullanici.Prog().FormAyarlar->GunduzGece.MetinAta(u"Gece / Gündüz"); // for the next start
    Ac([&] {
        for (int ay = 1; ay <= kAySayisi; ++ay)
            EXPECT_EQ(Baski().gunduzUstte[ay], ay != 5) << ay;
    });
}

TEST_F(TabloBaskisi, The_heads_have_the_colours_of_the_settings_also_while_the_ruler_has_marked_them) {
    AyarKoy(1, u"4660");
    kullanici.ProgramiAc();
    kullanici.GunBasligina(7);
    kullanici.AyBasligina(9);
    kullanici.Prog().FormAyarlar->renkler[1] = 77;
    Ac([&] {
        EXPECT_EQ(Baski().ALabel[7].zemin, 4660);
        EXPECT_EQ(Baski().AyZemin[9].zemin, 4660);
        EXPECT_EQ(Baski().ALabel[3].yazi, 77);
        EXPECT_EQ(Baski().AyAdi[11].yazi, 77);
    });
    EXPECT_EQ(kullanici.Tablo().HizliGun, 7) << "an entry of a menu leaves the ruler";
}

TEST_F(TabloBaskisi, The_texts_name_firm_hall_year_telephones_and_the_time_of_building) {
    agac.KoyMetin(u"Adresler.dat", u"\"s\",\"t\",\"y\",\"Rezervasyonlarınız için gul.test\"\r\n");
    kullanici.ProgramiAc();
    kullanici.SalonSec(u"Nergis Salonu");
    kullanici.YilSec(u"2013");
    kullanici.ortam.simdi = std::chrono::local_days(2012y / 7 / 9) + 8h + 4min + 59s;
    Ac([&] {
        kullanici.ortam.simdi += 26h;
        EXPECT_EQ(Baski().Unvan.baslik, u"Gül Düğün Salonları");
        EXPECT_EQ(Baski().Salon.baslik, u"Nergis Salonu - 2013 Yılı Rezervasyon Tablosu");
        EXPECT_EQ(Baski().Label1.baslik,
                  u"Not : Lütfen Salonumuzu 0282 651 11 22 veya 0532 333 44 55 nolu numaramızdan arayarak "
                  u"belirlediğiniz gün için onay alınız.");
        EXPECT_EQ(Baski().Tarih.baslik, u"Tarih : 09.07.2012 - Saat : 08:04");
        EXPECT_EQ(Baski().Label2.baslik, u"Rezervasyonlarınız için gul.test");
        EXPECT_EQ(Baski().baslik, u"Rezervasyon Tablosu");
        kullanici.ortam.Bekle(
            BeklenenBaski{.isAdi = u"2013 - Nergis Salonu - Rezervasyon Tablosu", .is = [&] {
                              EXPECT_EQ(Baski().Tarih.baslik, u"Tarih : 09.07.2012 - Saat : 08:04")
                                  << "not of the printing";
                          }});
        VELORA_BAS(kullanici.Prog().FormTabloPrint, Command1);
    });
}

TEST_F(TabloBaskisi, Each_opening_fills_it_afresh) {
    kullanici.ProgramiAc();
    Ac([&] {
        EXPECT_EQ(Baski().Label2.baslik, u"") << "no line is configured";
        EXPECT_EQ(Isaretliler(), 0);
        Baski().Command1.gorunur = false; // left open without its buttons
    });
    RezervasyonKoy(u"20.06.2012 - Gündüz");
    agac.KoyMetin(u"Firma.dll", FirmaProfili(u"Nergis"));
    kullanici.Prog().FormFirma.Bosalt();
    kullanici.Tablo().Command1();
    Ac([&] {
        EXPECT_EQ(Baski().Unvan.baslik, u"Nergis") << "not from the template that was read before";
        EXPECT_EQ(Isaretliler(), 1);
        EXPECT_TRUE(Baski().Command1.gorunur && Baski().Command2.gorunur);
    });
}

TEST_F(TabloBaskisi,
       Asked_for_again_while_it_stands_or_in_the_middle_of_a_scan_it_comes_once_and_breaks_nothing) {
    kullanici.ProgramiAc();
    Ac([&] {
        for (int i = 0; i < 3; ++i)
            kullanici.Tablo().rezrapor_Click(); // nothing is expected to come
        VELORA_BAS(kullanici.Prog().FormTabloPrint, Command2);
    });
    int acilan = 0;
    bool acik = false;
    kullanici.ortam.olayda = [&](int /*sira*/) {
        if (acik) // the table comes to the front again
            return kullanici.Tablo().rezrapor_Click();
        const Bayrak aciliyor(acik);
        kullanici.ortam.Bekle(BeklenenEkran{EkranAdi::FormTabloPrint, [&] {
                                                ++acilan;
                                                VELORA_BAS(kullanici.Prog().FormTabloPrint, Command2);
                                            }});
        kullanici.Tablo().rezrapor_Click();
    };
    kullanici.Tablo().Command1();
    kullanici.ortam.olayda = nullptr;
    EXPECT_GE(acilan, 4);
    EXPECT_FALSE(kullanici.Prog().FormTabloPrint.Yuklu());
}

TEST_F(TabloBaskisi, Without_halls_and_without_a_profile_it_stands_all_the_same) {
    std::filesystem::remove(agac.Yol(u"Salon.dat"));
    std::filesystem::remove(agac.Yol(u"Firma.dll"));
    kullanici.ProgramiAc();
    Ac([&] {
        EXPECT_EQ(Baski().Salon.baslik, u" - 2012 Yılı Rezervasyon Tablosu");
        EXPECT_EQ(Baski().isAdi, u"2012 - Rezervasyon Tablosu");
        EXPECT_EQ(Baski().Unvan.baslik, u"");
        EXPECT_EQ(Baski().Sayfalar(kullanici.Prog().ortam.kagit.olcer).size(), 1U);
    });
}

} // namespace velora::test
