// The warnings read only what is near; the plain loop reads everything. Both list the same.
#include "destek/OndenIzi.h"
#include "destek/RastgeleAgac.h"
#include "reservation/KayitTest.h"
#include "reservation/Uyarilar.h"
#include "storage/RezervasyonDosyalari.h"
#include "storage/Sayi.h"
#include "storage/Tarih.h"

namespace velora::test {

namespace {

/// The rows of the plain loop: two files for each name, and their values live through all of them.
std::vector<std::vector<Metin>> ReferansUyarilar(Program& program, double kesin, double on) {
    std::vector<std::vector<Metin>> satirlar;
    AnaDegerler ana;
    DetayDegerler detay;
    double kalan = 0;
    const auto tablo = program.FormTablo.Tut();
    for (const Metin& salon : tablo->Salon.ogeler)
        for (const Metin& yil : tablo->Sene.ogeler)
            for (const Metin& ad : program.dosyalar.Listele(program.agac.YilKlasoru(salon, yil))) {
                if (!GunDosyasiDeseni(ad))
                    continue;
                const Metin yol = program.agac.GunYolu(salon, yil, ad);
                AnaOku(program.dosyalar, yol, ana);
                DetayOku(program.dosyalar, yol + Metin(kDetayEki), detay);
                if (const auto gun = TarihCoz(AnahtarTarihi(ad)))
                    kalan = static_cast<double>(
                        (std::chrono::sys_days(*gun) - std::chrono::sys_days(program.Bugun())).count());
                const bool aday = kalan > 0 && !EslikDosyasi(ad) && ana.No(19) == u"1";
                if (aday && kalan <= kesin && detay.No(36) == u"1" && ana.No(3) != u"0")
                    satirlar.push_back({ad, salon, ana.No(1), ana.No(3), ana.No(5), ana.No(6), u"Kesin"});
                if (aday && kalan <= on && detay.No(37) == u"1")
                    satirlar.push_back({ad, salon, ana.No(1), ana.No(3), ana.No(5), ana.No(6), u"Ön"});
            }
    return satirlar;
}

} // namespace

class UyariKarsilastirma : public KayitTest, public ::testing::WithParamInterface<unsigned> {
  protected:
    /// Some halls around today; one record in four isn't to be reminded of.
    void AgaciYap() {
        RastgeleAgac rastgele(agac, GetParam());
        const auto metin = [&](MetinBakis ek) {
            return rastgele.KayitMetni(
                ek, {.ad = u"Ad " + SayiMetni(rastgele.Sec(1000)), .check18 = rastgele.Sec(4) == 0 ? 0 : 1});
        };
        rastgele.Yap({.adet = 60,
                      .salonlar = rastgele.SalonlariKoy(GetParam() % 3 == 0),
                      .yillar = {u"2012", u"2012", u"2013"},
                      .ilkAy = 5,
                      .sonAy = 7,
                      .adlar = {u"0x.foreign", u"17.06", u"31.06.2012 - Gece", u"Gider.dat", u"18.06.2012"},
                      .metin = metin});
    }
};

TEST_P(UyariKarsilastirma, Reading_only_what_is_near_lists_what_the_plain_loop_lists) {
    AgaciYap();
    const auto tablo = Prog().FormTablo.Tut();
    const auto satirlar = [&] {
        std::vector<std::vector<Metin>> liste;
        for (const ListeSatiri& satir : tablo->Liste.satirlar)
            liste.push_back(satir.sutun);
        return liste;
    };
    const auto beklenen = ReferansUyarilar(Prog(), 5, 10);
    EXPECT_FALSE(beklenen.empty()) << "the tree must hold rows to compare";
    EXPECT_EQ(satirlar(), beklenen);
    const OndenIzi iz(Prog().dosyalar);
    tablo->Liste.satirlar = {};
    tablo->UyariGoster();
    EXPECT_EQ(satirlar(), beklenen) << "again, from memory";
    EXPECT_EQ(iz.Goruldu(), tablo->Salon.ogeler.size() > 2);
}

INSTANTIATE_TEST_SUITE_P(Agaclar, UyariKarsilastirma, ::testing::Range(0U, 25U));

} // namespace velora::test
