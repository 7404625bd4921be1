#include <array>

#include "destek/OndenIzi.h"
#include "destek/RastgeleAgac.h"
#include "reservation/AramaTest.h"
#include "reservation/ReferansArama.h"

namespace velora::test {

namespace {

/// Three years of some halls, in words and criteria so few that the criteria find something.
class AramaAgaci : public RastgeleAgac {
  public:
    using RastgeleAgac::RastgeleAgac;

    void Doldur(bool cokSalon) {
        Yap({.adet = 90,
             .salonlar = SalonlariKoy(cokSalon),
             .yillar = {u"2011", u"2012", u"2013"},
             .adlar = {u"Gider.dat", u"05.05.2012 - Gece", u"zz", u"İnce Ğ", u"gider.dat"},
             .metin = [this](MetinBakis) { return Degerler(); }});
    }
    Metin Kelime() {
        constexpr std::array kKelimeler{u"Ali",  u"ALİ", u"İnci", u"ışık", u"7",
                                        u"0212", u"0",   u"1",    u"",     u" "};
        return kKelimeler[Sec(kKelimeler.size())];
    }
    Metin Olcut() {
        constexpr std::array kDesenler{u"", u"", u"", u"*", u"?", u"[a-l]", u"[", u"#", u"l?"};
        return Sec(2) == 0 ? Kelime() : Metin(kDesenler[Sec(kDesenler.size())]);
    }

  private:
    /// Values up to the end of a record, or fewer.
    Metin Degerler() {
        const unsigned adet = Sec(2) == 0 ? 20 : Sec(20);
        Metin metin;
        for (unsigned i = 0; i < adet; ++i)
            metin += Sec(9) == 0 ? Kelime() + u"\r\n" : u"\"" + Kelime() + u"\",";
        return metin;
    }
};

} // namespace

class AramaKarsilastirma : public AramaTest, public ::testing::WithParamInterface<unsigned> {};

TEST_P(AramaKarsilastirma, Fast_search_lists_what_the_plain_search_lists) {
    AramaAgaci rastgele(agac, GetParam());
    rastgele.Doldur(GetParam() % 3 == 0);
    const OndenIzi iz(Prog().dosyalar);
    const FormTablo& tablo = *Prog().FormTablo.Tut();
    std::size_t toplam = 0;
    for (int arama = 0; arama < 20; ++arama) {
        std::array<Metin, 5> olcutler;
        for (std::size_t i = 0; i < olcutler.size(); ++i)
            Arama().Text[static_cast<int>(i) + 1].metin = olcutler[i] = rastgele.Olcut();
        if (olcutler[4] == u"0")
            continue;
        const auto beklenen =
            ReferansAra(Prog(), tablo.Salon.ogeler, tablo.Sene.ogeler, tablo.Sene.Metni(), olcutler);
        if (beklenen.empty())
            BulunamadiBekle();
        VELORA_BAS(Prog().FormArama, Command3);
        const auto& bulunan = Arama().Liste.satirlar;
        ASSERT_EQ(bulunan.size(), beklenen.size()) << ::testing::PrintToString(olcutler);
        for (std::size_t i = 0; i < beklenen.size(); ++i) {
            ASSERT_EQ(bulunan[i].sutun, beklenen[i].sutun) << i;
            ASSERT_EQ(bulunan[i].tag, beklenen[i].tag) << i;
        }
        toplam += beklenen.size();
    }
    EXPECT_GT(toplam, 50U) << "the searches must find rows to compare";
    EXPECT_EQ(iz.Goruldu(), tablo.Salon.ogeler.size() > 2);
}

INSTANTIATE_TEST_SUITE_P(RandomTrees, AramaKarsilastirma, ::testing::Range(1U, 21U));

} // namespace velora::test
