// A program that dies before, or in, each of its calls.
#include <gtest/gtest.h>

#include "dayanim/Olcum.h"

namespace velora::dayanim {
namespace {

constexpr unsigned kEnCokCagri = 5000; // a run that has more goes on for ever

/// What stands behind a death, before anything is started anew. Nothing when the run ended by itself.
std::optional<Agac> OlumdenKalan(const Saha& saha, const Senaryo& senaryo, const Ariza& ariza) {
    saha.Kur(senaryo);
    const KosumSonucu sonuc = Kos(saha, senaryo.ad, ariza);
    EXPECT_TRUE(sonuc.oldu || sonuc.bitti) << sonuc.sonuc;
    return sonuc.oldu ? std::optional(saha.Oku()) : std::nullopt;
}

} // namespace

class OldurmeTest : public SenaryoTest {
  protected:
    /// Before each call, or in the middle of its long writes. A death before a call that changes nothing
    /// leaves what one before the next call leaves that does: those are left out unless all are wanted.
    void HerCagridaOldur(bool yarim) {
        const Saha saha;
        const Beklenen beklenen = TemizKosum(saha, *GetParam());
        Kusurlar kusurlar(GetParam()->ad);
        for (unsigned no = 1; no < kEnCokCagri; ++no) {
            const Ariza ariza{.oldur = no, .yarim = yarim, .yalnizDegisen = !Uzun()};
            if (!OlumdenKalan(saha, *GetParam(), ariza))
                break;
            kusurlar.Say("death at call " + std::to_string(no), Kusur(beklenen, saha.Baslat()));
        }
        EXPECT_TRUE(yarim || kusurlar.Kosulan() > 0);
    }
};

TEST_P(OldurmeTest, A_death_before_any_call_leaves_all_of_an_action_or_nothing) {
    HerCagridaOldur(false);
}

TEST_P(OldurmeTest, A_death_within_a_long_write_leaves_all_of_an_action_or_nothing) {
    HerCagridaOldur(true);
}

TEST_P(OldurmeTest, A_second_death_while_the_first_is_mended_changes_nothing_of_that) {
    const Saha saha;
    const Beklenen beklenen = TemizKosum(saha, *GetParam());
    Kusurlar kusurlar(GetParam()->ad);
    for (unsigned no = 1; no < kEnCokCagri; ++no) {
        const auto kalan = OlumdenKalan(saha, *GetParam(), {.oldur = no, .yalnizDegisen = true});
        if (!kalan)
            break;
        const Agac durum = saha.DurumOku();
        if (saha.Baslat() == *kalan)
            continue; // nothing to mend
        for (unsigned ikinci = 1; ikinci < kEnCokCagri; ++ikinci) {
            saha.Kur(*kalan);
            saha.DurumKur(durum);
            if (!Kos(saha, "ac", {.oldur = ikinci, .yalnizDegisen = !Uzun()}).oldu)
                break;
            kusurlar.Say("deaths at " + std::to_string(no) + " and " + std::to_string(ikinci),
                         Kusur(beklenen, saha.Baslat()));
        }
        if (!Uzun())
            break; // one for each scenario
    }
}

INSTANTIATE_TEST_SUITE_P(Her, OldurmeTest, ::testing::ValuesIn(HerSenaryo()), SenaryoAdi);

} // namespace velora::dayanim
