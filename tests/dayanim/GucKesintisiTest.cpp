// The power goes at each moment of a run: every state of the disk that could be left is built and started on.
#include <algorithm>

#include <gtest/gtest.h>

#include "dayanim/DiskModeli.h"

namespace velora::dayanim {
namespace {

/// What tells two states apart.
std::string Parmakizi(const DiskHali& hal) {
    std::string iz;
    for (const Agac* agac : {&hal.agac, &hal.durum})
        for (const auto& [yol, bayt] : *agac)
            iz += yol + '\n' + std::to_string(bayt.size()) + '\n' + bayt;
    return std::to_string(std::hash<std::string>()(iz)) + "-" + std::to_string(iz.size());
}

/// Without the folders: one that is empty is made again by who looks at it. And without a file of which the
/// journal takes no notice.
Agac Dosyalari(Agac agac, const std::string& disinda) {
    std::erase_if(agac, [&](const auto& oge) { return oge.first.ends_with('/') || oge.first == disinda; });
    return agac;
}

/// Tells the model the calls of a run; `anda` is called where something has changed, from the first call of
/// the action on, with what was called last.
void Yurut(DiskModeli& disk, const Beklenen& beklenen, const std::function<void(const KayitliCagri&)>& anda) {
    bool basladi = false;
    for (const KayitliCagri& cagri : beklenen.cagrilar) {
        basladi = basladi || cagri.bas.no != 0;
        if (disk.Uygula(cagri) && basladi)
            anda(cagri);
    }
}

} // namespace

class GucKesintisiTest : public SenaryoTest {
  protected:
    GucKesintisiTest() : beklenen(TemizKosum(saha, *GetParam())), disk(saha, beklenen.once, {}) {}

    static std::size_t EnCok() { return Uzun() ? 2000 : 12; }
    /// Each state is tried once, whenever it could be left.
    void Dene(const DiskHali& hal, const std::string& nerede) {
        constexpr int kYeter = 250; // then every so many states do
        constexpr std::size_t kSeyrek = 5;
        if (!denenen.insert(Parmakizi(hal)).second)
            return;
        if (!Uzun() && kusurlar.Kosulan() > kYeter && denenen.size() % kSeyrek != 0)
            return;
        saha.Kur(hal.agac);
        saha.DurumKur(hal.durum);
        const std::string kusur = Kusur(beklenen, saha.Baslat());
        kusurlar.Say(nerede, kusur.empty() && BozukVar() ? "the journal was set aside" : kusur);
    }
    bool BozukVar() const {
        const Agac durum = saha.DurumOku();
        return std::any_of(durum.begin(), durum.end(),
                           [](const auto& oge) { return oge.first.ends_with(".bozuk"); });
    }

    Saha saha;
    Beklenen beklenen;
    DiskModeli disk;
    std::set<std::string> denenen;
    Kusurlar kusurlar{GetParam()->ad};
};

TEST_P(GucKesintisiTest, Whatever_it_leaves_all_of_an_action_or_nothing_stands_there) {
    Yurut(disk, beklenen, [&](const KayitliCagri& cagri) {
        disk.Haller(EnCok(), [&](const DiskHali& hal) { Dene(hal, "behind " + Tarif(cagri)); });
    });
    EXPECT_GT(kusurlar.Kosulan(), 0);
}

TEST_P(GucKesintisiTest, Behind_the_end_of_the_program_nothing_of_an_action_can_be_lost) {
    Yurut(disk, beklenen, [](const KayitliCagri&) {});
    disk.Haller(EnCok(), [&](const DiskHali& hal) {
        saha.Kur(hal.agac);
        saha.DurumKur(hal.durum);
        kusurlar.Say("at the end",
                     Dosyalari(saha.Baslat(), beklenen.disinda) == Dosyalari(beklenen.sonra, beklenen.disinda)
                         ? ""
                         : "it isn't the tree behind the action");
    });
}

TEST_P(GucKesintisiTest, A_second_one_while_the_first_is_mended_changes_nothing_of_that) {
    const std::size_t atlanan = Uzun() ? 10 : 250; // every so many states that a start has to mend
    std::vector<DiskHali> onarilacaklar;
    Yurut(disk, beklenen, [&](const KayitliCagri&) {
        disk.Haller(EnCok(), [&](const DiskHali& hal) {
            if (Dosyalari(hal.agac, beklenen.disinda) != Dosyalari(beklenen.once, beklenen.disinda) &&
                denenen.insert(Parmakizi(hal)).second)
                onarilacaklar.push_back(hal);
        });
    });
    for (std::size_t i = onarilacaklar.size() / 2 % atlanan; i < onarilacaklar.size(); i += atlanan) {
        const DiskHali& ilk = onarilacaklar[i];
        saha.Kur(ilk.agac);
        saha.DurumKur(ilk.durum);
        const KosumSonucu onarim = Kos(saha, "ac", {}, true);
        DiskModeli ikinci(saha, ilk.agac, ilk.durum);
        for (const KayitliCagri& cagri : onarim.cagrilar)
            if (ikinci.Uygula(cagri))
                ikinci.Haller(EnCok(), [&](const DiskHali& hal) {
                    Dene(hal, std::to_string(i) + ", then behind " + Tarif(cagri));
                });
    }
}

INSTANTIATE_TEST_SUITE_P(Her, GucKesintisiTest, ::testing::ValuesIn(HerSenaryo()), SenaryoAdi);

} // namespace velora::dayanim
