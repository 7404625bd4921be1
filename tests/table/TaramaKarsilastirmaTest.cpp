#include "destek/RastgeleAgac.h"
#include "table/ReferansTarama.h"
#include "table/TabloTest.h"

namespace velora::test {

namespace {

/// A year of hall A: some reservations are to be reminded of today.
void YiliDoldur(const GeciciAgac& agac, unsigned tohum) {
    RastgeleAgac rastgele(agac, tohum);
    const auto metin = [&](MetinBakis ek) {
        OrnekKayit kayit{.ad = u"Müşteri " + SayiMetni(rastgele.Sec(1000)),
                         .no = SayiMetni(rastgele.Sec(1000))};
        kayit.hatirlat = rastgele.Sec(12) == 0 ? u"15.06.2012" : u"__.__.____";
        kayit.check19 = static_cast<int>(rastgele.Sec(2));
        return rastgele.KayitMetni(ek, kayit);
    };
    rastgele.Yap({.adet = 120,
                  .salonlar = {u"Salon A"},
                  .yillar = {u"2012"},
                  .adlar = {u"Gider.dat", u"0", u"zz", u"05.01.2012", u"aa.bb.2012 - Gece", u"İnce Ğ",
                            u"01.01.2011 - Gece", u"01.13.2012 - Gece"},
                  .metin = metin});
}

} // namespace

class TaramaKarsilastirma : public TabloTest, public ::testing::WithParamInterface<unsigned> {};

TEST_P(TaramaKarsilastirma, Fast_scan_shows_what_the_plain_scan_shows) {
    YiliDoldur(agac, GetParam());
    kullanici.ProgramiAc();
    FormTablo& tablo = kullanici.Tablo();
    const auto ayarlar = kullanici.Prog().FormAyarlar.Tut();
    const ReferansSonuc beklenen = ReferansTara(kullanici.Prog(), u"Salon A", u"2012", u"");
    EXPECT_EQ(tablo.Image3, beklenen.hatirlatma);
    int dolu = 0;
    for (int ay = 1; ay <= kAySayisi; ++ay)
        for (int gun = 1; gun <= kGunSayisi; ++gun)
            for (const auto dilim : {kGunduz, kGece}) {
                const auto& dilimBeklenen =
                    beklenen.dilimler[static_cast<std::size_t>(ay - 1)][static_cast<std::size_t>(gun - 1)]
                                     [static_cast<std::size_t>(dilim)];
                const Hucre& hucre = tablo.Gozu(ay, dilim, gun);
                const bool gunduz = dilim == kGunduz;
                EXPECT_EQ(hucre.tag, dilimBeklenen ? dilimBeklenen->tag : Metin());
                const bool kesin = hucre.zemin == ayarlar->Renk(gunduz ? 6 : 12);
                const bool on = hucre.zemin == ayarlar->Renk(gunduz ? 19 : 21);
                EXPECT_EQ(on, dilimBeklenen && dilimBeklenen->on) << gun << '.' << ay;
                EXPECT_EQ(kesin, dilimBeklenen && !dilimBeklenen->on) << gun << '.' << ay;
                dolu += dilimBeklenen ? 1 : 0;
            }
    EXPECT_GT(dolu, 50) << "the tree must hold reservations to compare";
}

INSTANTIATE_TEST_SUITE_P(RandomTrees, TaramaKarsilastirma, ::testing::Range(1U, 21U));

} // namespace velora::test
