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
    const int dolu =
        ReferansGibiOlmali(kullanici.Prog(), ReferansTara(kullanici.Prog(), u"Salon A", u"2012", u""));
    EXPECT_GT(dolu, 50) << "the tree must hold reservations to compare";
}

INSTANTIATE_TEST_SUITE_P(RandomTrees, TaramaKarsilastirma, ::testing::Range(1U, 21U));

} // namespace velora::test
