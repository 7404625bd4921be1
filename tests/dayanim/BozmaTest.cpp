// Each call fails, once and from then on, or reads and writes less than was asked for.
#include <array>
#include <cerrno>
#include <cstring>

#include <gtest/gtest.h>

#include "dayanim/Olcum.h"

namespace velora::dayanim {
namespace {

/// With what a call may fail.
std::vector<int> Hatalar(Cagri cagri) {
    switch (cagri) {
    case Cagri::Ac:
        return {EMFILE, EACCES, EIO, ENOSPC, EROFS};
    case Cagri::Yaz:
        return {ENOSPC, EIO};
    case Cagri::YerAyir:
        return {ENOSPC, EIO, EOPNOTSUPP};
    case Cagri::Esle:
    case Cagri::HepsiniEsle:
        return {EIO, ENOSPC};
    case Cagri::Kilitle:
        return {EWOULDBLOCK, ENOLCK};
    case Cagri::KlasorAc:
        return {EMFILE, EACCES};
    case Cagri::KlasorYap:
    case Cagri::Bagla:
    case Cagri::Tasi:
        return {ENOSPC, EACCES, EROFS};
    case Cagri::Sil:
    case Cagri::KlasorSil:
        return {EACCES, EROFS, EIO};
    case Cagri::Sor:
        return {EACCES, EIO};
    default:
        return {EIO};
    }
}

/// The numbered calls that are disturbed: all when all are wanted, otherwise those that change something,
/// the first of each kind on each file of the action and of the journal, and one of each kind on others.
class Secim {
  public:
    explicit Secim(const Beklenen& beklenen) : beklenen_(beklenen) {}

    /// `sonra`: and all behind it.
    bool Denenir(const KayitliCagri& cagri, bool sonra = false) {
        constexpr int kEnCok = 1;
        if (Uzun() || cagri.Degistirir())
            return true;
        if (sonra && cagri.bas.cagri != Cagri::Ac)
            return false;
        const bool onun = cagri.bas.durumda != 0 || Eylemin(cagri.yol);
        const std::string anahtar =
            std::string(CagriAdi(cagri.bas.cagri)) + (onun ? cagri.yol : std::string());
        return ++gorulen_[anahtar] <= (onun ? kEnCok : 1);
    }

  private:
    /// Whether the file with this path is one of those that the action changes.
    bool Eylemin(const std::string& yol) const {
        for (const Agac* agac : {&beklenen_.once, &beklenen_.sonra})
            for (const auto& [ad, bayt] : *agac)
                if (yol.ends_with("/" + ad)) {
                    const auto bir = beklenen_.once.find(ad);
                    const auto iki = beklenen_.sonra.find(ad);
                    return bir == beklenen_.once.end() || iki == beklenen_.sonra.end() || *bir != *iki;
                }
        return false;
    }

    const Beklenen& beklenen_;
    std::map<std::string, int> gorulen_;
};

} // namespace

class BozmaTest : public SenaryoTest {
  protected:
    BozmaTest() : beklenen(TemizKosum(saha, *GetParam())), sayililar(beklenen.Sayililar()) {}

    /// What is promised when this call of a run fails. What couldn't be read is asked for again by a user, in
    /// another way; when the journal can't take the action its steps run as they can. Which call has which
    /// number differs a little from run to run: whether a listing may be kept depends on the time.
    static Olcu Sozu(const std::vector<KayitliCagri>& cagrilar, unsigned no) {
        bool alindi = false; // the journal has the action
        for (const KayitliCagri& cagri : cagrilar) {
            if (cagri.bas.no == no && !alindi)
                return cagri.bas.durumda != 0 || cagri.Degistirir() ? Olcu::Parca : Olcu::Satir;
            alindi = alindi || (cagri.bas.no != 0 && cagri.bas.durumda != 0 &&
                                cagri.bas.cagri == Cagri::Esle && cagri.bas.hata == 0);
        }
        return Olcu::Butun;
    }

    void Dene(const Ariza& ariza, const KayitliCagri& cagri, const std::string& nasil) {
        saha.Kur(*GetParam());
        const KosumSonucu sonuc = Kos(saha, GetParam()->ad, ariza, true);
        const Olcu soz = Sozu(sonuc.cagrilar, ariza.boz != 0 ? ariza.boz : ariza.kisa);
        kusurlar.Say(Tarif(cagri) + " " + nasil,
                     sonuc.bitti ? Kusur(beklenen, saha.Baslat(), soz) : "ended by " + sonuc.sonuc);
    }

    /// Each call fails in each way that fits it, or in one of them.
    void HerCagriyiBoz(bool sonra) {
        Secim secim(beklenen);
        for (const KayitliCagri& cagri : sayililar) {
            if (!secim.Denenir(cagri, sonra))
                continue;
            const std::vector<int> hatalar = Hatalar(cagri.bas.cagri);
            for (std::size_t i = 0; i < hatalar.size(); ++i)
                if (Uzun() || i == cagri.bas.no % hatalar.size())
                    Dene({.boz = cagri.bas.no, .hata = hatalar[i], .sonra = sonra}, cagri,
                         ::strerror(hatalar[i]));
        }
        EXPECT_GT(kusurlar.Kosulan(), 0);
    }

    /// The start that mends these fails at each of its calls.
    void OnarimiBoz(const Agac& kalan, const Agac& durum, const std::vector<KayitliCagri>& cagrilar) {
        Secim secim(beklenen);
        for (const KayitliCagri& cagri : cagrilar)
            for (const bool sonra : {false, true}) {
                if (!secim.Denenir(cagri, sonra))
                    continue;
                const std::vector<int> hatalar = Hatalar(cagri.bas.cagri);
                const int hata = hatalar[cagri.bas.no % hatalar.size()];
                saha.Kur(kalan);
                saha.DurumKur(durum);
                const KosumSonucu sonuc =
                    Kos(saha, "ac", {.boz = cagri.bas.no, .hata = hata, .sonra = sonra});
                kusurlar.Say(Tarif(cagri) + " of the mending" + (sonra ? " and all behind it" : ""),
                             sonuc.bitti ? Kusur(beklenen, saha.Baslat()) : "ended by " + sonuc.sonuc);
            }
    }

    Saha saha;
    Beklenen beklenen;
    std::vector<KayitliCagri> sayililar;
    Kusurlar kusurlar{GetParam()->ad};
};

TEST_P(BozmaTest, A_call_that_fails_once_costs_nothing_that_was_there) {
    HerCagriyiBoz(false);
}

TEST_P(BozmaTest, Calls_that_fail_from_one_on_cost_nothing_that_was_there) {
    HerCagriyiBoz(true);
}

TEST_P(BozmaTest, A_short_read_or_write_changes_nothing) {
    Secim secim(beklenen);
    for (const KayitliCagri& cagri : sayililar)
        if ((cagri.bas.cagri == Cagri::Oku || cagri.bas.cagri == Cagri::Yaz) && secim.Denenir(cagri))
            Dene({.kisa = cagri.bas.no}, cagri, "is short");
}

TEST_P(BozmaTest, A_call_that_fails_while_a_start_mends_is_made_up_for_by_the_next_start) {
    // A death in the middle of what the action changes.
    std::size_t degisen = 0;
    for (const KayitliCagri& cagri : sayililar)
        degisen += cagri.Degistirir() && cagri.bas.durumda == 0 ? 1 : 0;
    for (unsigned no = static_cast<unsigned>(degisen / 2) + 2; no > 0; --no) {
        saha.Kur(*GetParam());
        Kos(saha, GetParam()->ad, {.oldur = no, .yalnizDegisen = true});
        const Agac kalan = saha.Oku();
        const Agac durum = saha.DurumOku();
        if (saha.Baslat() == kalan)
            continue; // nothing to mend
        saha.Kur(kalan);
        saha.DurumKur(durum);
        const KosumSonucu temiz = Kos(saha, "ac", {}, true);
        OnarimiBoz(kalan, durum, temiz.cagrilar);
        if (!Uzun())
            return;
    }
}

INSTANTIATE_TEST_SUITE_P(Her, BozmaTest, ::testing::ValuesIn(HerSenaryo()), SenaryoAdi);

} // namespace velora::dayanim
