#include <random>

#include "reservation/AramaTest.h"
#include "reservation/ReferansArama.h"

namespace velora::test {

namespace {

/// Random trees of three years and two halls: whole, short, empty and foreign files, names that stand in
/// several years, folders in the place of files. The words are few, so that the criteria find something.
class RastgeleAgac {
  public:
    RastgeleAgac(const GeciciAgac& agac, unsigned tohum) : agac_(agac), rastgele_(tohum) {}

    void Yap() {
        for (int i = 0; i < 90; ++i) {
            const auto dilim = Sec(2) == 0 ? kGunduz : kGece;
            const Metin yil = SayiMetni(2011 + Sec(3));
            Koy(GunAnahtari(1 + Sec(28), 1 + Sec(12), yil, dilim), yil);
        }
        for (const MetinBakis ad : {u"Gider.dat", u"05.05.2012 - Gece", u"zz", u"İnce Ğ", u"gider.dat"})
            for (const MetinBakis yil : {u"2011", u"2012", u"2013"})
                Koy(Metin(ad), Metin(yil));
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
    unsigned Sec(std::size_t adet) {
        return std::uniform_int_distribution<unsigned>(0, static_cast<unsigned>(adet) - 1)(rastgele_);
    }

    void Koy(const Metin& ad, const Metin& yil) {
        for (const Metin& ek : {Metin(), Metin(kDetayEki), Metin(kOdemeEki)}) {
            const Metin yol = (Sec(2) == 0 ? u"Salon A/" : u"Salon B/") + yil + u"/" + ad + ek;
            if (Sec(3) == 0 || std::filesystem::exists(agac_.Yol(yol)))
                continue;
            if (Sec(15) == 0)
                agac_.KlasorKoy(yol);
            else
                agac_.KoyMetin(yol, Metinler());
        }
    }
    /// Values up to the end of a record, or fewer.
    Metin Metinler() {
        const unsigned adet = Sec(2) == 0 ? 20 : Sec(20);
        Metin metin;
        for (unsigned i = 0; i < adet; ++i)
            metin += Sec(9) == 0 ? Kelime() + u"\r\n" : u"\"" + Kelime() + u"\",";
        return metin;
    }

    const GeciciAgac& agac_;
    std::mt19937 rastgele_;
};

} // namespace

class AramaKarsilastirma : public AramaTest, public ::testing::WithParamInterface<unsigned> {};

TEST_P(AramaKarsilastirma, Fast_search_lists_what_the_plain_search_lists) {
    RastgeleAgac rastgele(agac, GetParam());
    rastgele.Yap();
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
}

INSTANTIATE_TEST_SUITE_P(RandomTrees, AramaKarsilastirma, ::testing::Range(1U, 21U));

} // namespace velora::test
