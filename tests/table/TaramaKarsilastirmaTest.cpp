#include <random>

#include "table/ReferansTarama.h"
#include "table/TabloTest.h"

namespace velora::test {

namespace {

/// Random trees: whole, missing, short, empty and foreign files, and folders in their place.
class RastgeleAgac {
  public:
    RastgeleAgac(const GeciciAgac& agac, unsigned tohum) : agac_(agac), rastgele_(tohum) {}

    void Yap() {
        for (int i = 0; i < 120; ++i) {
            const auto dilim = Sec(2) == 0 ? kGunduz : kGece;
            const Metin ad = u"Salon A/2012/" + GunAnahtari(1 + Sec(31), 1 + Sec(12), u"2012", dilim);
            Koy(ad, AnaMetni(Kayit()));
            Koy(ad + u"-Detay", DetayMetni(Sec(2) == 0));
            if (Sec(3) == 0)
                Koy(ad + u"-Odeme", u"\"01.01.2012\",\"5\",\"x\"\r\n");
        }
        for (const MetinBakis ad : {u"Gider.dat", u"0", u"zz", u"05.01.2012", u"aa.bb.2012 - Gece", u"İnce Ğ",
                                    u"01.01.2011 - Gece", u"01.13.2012 - Gece"})
            Koy(u"Salon A/2012/" + Metin(ad), AnaMetni(Kayit()));
    }

  private:
    unsigned Sec(unsigned adet) { return std::uniform_int_distribution<unsigned>(0, adet - 1)(rastgele_); }

    OrnekKayit Kayit() {
        OrnekKayit kayit{.ad = u"Müşteri " + SayiMetni(Sec(1000)), .no = SayiMetni(Sec(1000))};
        kayit.hatirlat = Sec(12) == 0 ? u"15.06.2012" : u"__.__.____";
        kayit.check19 = static_cast<int>(Sec(2));
        return kayit;
    }

    void Koy(const Metin& yol, Metin metin) {
        switch (Sec(10)) {
        case 0:
            return;
        case 1:
            metin.clear();
            break;
        case 2:
            metin.resize(Sec(static_cast<unsigned>(metin.size())));
            break;
        case 3:
            metin.insert(Sec(static_cast<unsigned>(metin.size())), u"\"");
            break;
        case 4:
            metin.insert(Sec(static_cast<unsigned>(metin.size())), u"\r\n,");
            break;
        default:
            break;
        }
        if (std::filesystem::exists(agac_.Yol(yol)))
            return;
        if (Sec(15) == 0)
            agac_.KlasorKoy(yol);
        else
            agac_.KoyMetin(yol, metin);
    }

    const GeciciAgac& agac_;
    std::mt19937 rastgele_;
};

} // namespace

class TaramaKarsilastirma : public TabloTest, public ::testing::WithParamInterface<unsigned> {};

TEST_P(TaramaKarsilastirma, Fast_scan_shows_what_the_plain_scan_shows) {
    RastgeleAgac(agac, GetParam()).Yap();
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
