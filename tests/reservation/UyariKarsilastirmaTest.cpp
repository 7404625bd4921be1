// The warnings read only what is near; the plain loop reads everything. Both list the same.
#include <random>

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
    unsigned Sec(unsigned adet) { return std::uniform_int_distribution<unsigned>(0, adet - 1)(rastgele_); }

    /// Whole, missing, empty and short.
    void Koy(const Metin& yol, Metin metin) {
        const unsigned hal = Sec(6);
        if (hal == 0)
            return;
        if (hal == 1)
            metin.resize(Sec(static_cast<unsigned>(metin.size())));
        agac.KoyMetin(yol, metin);
    }
    void AgaciYap() {
        for (int i = 0; i < 60; ++i) {
            const Metin yil = Sec(3) == 0 ? u"2013" : u"2012";
            const Metin salon = Sec(2) == 0 ? u"Salon A" : u"Salon B";
            const auto dilim = Sec(2) == 0 ? kGunduz : kGece;
            const Metin ad = salon + u"/" + yil + u"/" + GunAnahtari(1 + Sec(31), 5 + Sec(3), yil, dilim);
            Koy(ad, AnaMetni({.ad = u"Ad " + SayiMetni(i), .check18 = Sec(4) == 0 ? 0 : 1}));
            Koy(ad + u"-Detay", DetayMetni(Sec(2) == 0));
            if (Sec(3) == 0)
                Koy(ad + u"-Odeme", u"\"01.01.2012\",\"5\",\"0\"\r\n");
        }
        for (const MetinBakis ad :
             {u"0x.foreign", u"17.06", u"31.06.2012 - Gece", u"Gider.dat", u"18.06.2012"})
            Koy(u"Salon B/2012/" + Metin(ad), AnaMetni({.ad = Metin(ad)}));
    }

  private:
    std::mt19937 rastgele_{GetParam()};
};

TEST_P(UyariKarsilastirma, Reading_only_what_is_near_lists_what_the_plain_loop_lists) {
    agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
    AgaciYap();
    const auto tablo = Prog().FormTablo.Tut();
    std::vector<std::vector<Metin>> satirlar;
    for (const ListeSatiri& satir : tablo->Liste.satirlar)
        satirlar.push_back(satir.sutun);
    EXPECT_EQ(satirlar, ReferansUyarilar(Prog(), 5, 10));
}

INSTANTIATE_TEST_SUITE_P(Agaclar, UyariKarsilastirma, ::testing::Range(0U, 25U));

} // namespace velora::test
