// Clicks and timers that arrive while a scan lets events run.
#include "maintenance/FormResmiTatil.h"
#include "table/TabloTest.h"

namespace velora::test {

class Olay : public TabloTest {
  protected:
    Olay() { agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n"); }

    std::string TabloResmi() {
        std::string resim;
        for (const TabloSatiri& satir : kullanici.Tablo().satirlar)
            for (const Hucre& hucre : satir.gun) {
                resim += std::to_string(hucre.zemin) + ' ' + std::to_string(hucre.yazi) + ' ';
                for (const char16_t harf : hucre.tag)
                    resim += std::to_string(harf) + ',';
            }
        return resim;
    }
};

TEST_F(Olay, Hall_chosen_in_the_middle_of_a_scan_is_the_one_that_shows_in_the_end) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    KayitKoy(agac, u"Salon B/2012/06.02.2012 - Gece", {.ad = u"B Müşterisi"}, true);
    kullanici.ProgramiAc();
    kullanici.SalonSec(u"Salon B");
    const std::string yalinB = TabloResmi();
    // Each point of a scan at which events run, one after the other.
    for (int nokta = 1; nokta <= 5; ++nokta) {
        kullanici.SalonSec(u"Salon A");
        const int ilk = kullanici.ortam.olaySayisi;
        kullanici.ortam.olayda = [&](int sira) {
            if (sira == ilk + nokta) {
                kullanici.ortam.olayda = nullptr;
                kullanici.SalonSec(u"Salon B");
            }
        };
        kullanici.Tablo().Command1();
        kullanici.ortam.olayda = nullptr;
        EXPECT_EQ(kullanici.Tablo().Salon.Metni(), u"Salon B");
        EXPECT_EQ(TabloResmi(), yalinB) << "event point " << nokta;
    }
}

TEST_F(Olay, Settings_and_holidays_unloaded_in_the_middle_of_a_scan_leave_nothing_dangling) {
    RezervasyonKoy(u"05.01.2012 - Gündüz");
    agac.KoyMetin(u"Tatiller.dll", u"\"06.01.2012\",\"Bayram\",\"Evet\",\"Genel\"\r\n");
    kullanici.ProgramiAc();
    kullanici.ortam.olayda = [&](int) {
        kullanici.Prog().FormAyarlar.Bosalt();
        kullanici.Prog().FormResmiTatil.Bosalt();
    };
    kullanici.Tablo().Command1();
    kullanici.Tablo().CetvelSil();
    kullanici.Boyutla(1000, 500);
    kullanici.ortam.olayda = nullptr;
    RenkOlmali(5, 1, kGunduz, 6, 7);
    EXPECT_EQ(kullanici.Goz(6, 1, kGunduz).ipucu, u"Bayram");
}

TEST_F(Olay, Resize_in_the_middle_of_a_resize_wins) {
    kullanici.ProgramiAc();
    kullanici.Boyutla(1600, 900);
    const Yer beklenen = kullanici.Tablo().HucreYeri(AralikGece, 31);
    kullanici.ortam.olayda = [&](int) {
        kullanici.ortam.olayda = nullptr;
        kullanici.Boyutla(1600, 900);
    };
    kullanici.Boyutla(1000, 500);
    EXPECT_EQ(kullanici.Tablo().HucreYeri(AralikGece, 31), beklenen);
}

} // namespace velora::test
