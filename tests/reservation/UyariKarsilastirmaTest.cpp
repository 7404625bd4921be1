// The warnings read only what is near; the plain loop reads everything. Both list the same.
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
    /// Two halls around today; one record in four isn't to be reminded of.
    void AgaciYap() {
        RastgeleAgac rastgele(agac, GetParam());
        const auto metin = [&](MetinBakis ek) {
            return rastgele.KayitMetni(
                ek, {.ad = u"Ad " + SayiMetni(rastgele.Sec(1000)), .check18 = rastgele.Sec(4) == 0 ? 0 : 1});
        };
        rastgele.Yap({.adet = 60,
                      .salonlar = {u"Salon A", u"Salon B"},
                      .yillar = {u"2012", u"2012", u"2013"},
                      .ilkAy = 5,
                      .sonAy = 7,
                      .adlar = {u"0x.foreign", u"17.06", u"31.06.2012 - Gece", u"Gider.dat", u"18.06.2012"},
                      .metin = metin});
    }
};

TEST_P(UyariKarsilastirma, Reading_only_what_is_near_lists_what_the_plain_loop_lists) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    AgaciYap();
    const auto tablo = Prog().FormTablo.Tut();
    std::vector<std::vector<Metin>> satirlar;
    for (const ListeSatiri& satir : tablo->Liste.satirlar)
        satirlar.push_back(satir.sutun);
    EXPECT_EQ(satirlar, ReferansUyarilar(Prog(), 5, 10));
    EXPECT_FALSE(satirlar.empty()) << "the tree must hold rows to compare";
}

INSTANTIATE_TEST_SUITE_P(Agaclar, UyariKarsilastirma, ::testing::Range(0U, 25U));

} // namespace velora::test
