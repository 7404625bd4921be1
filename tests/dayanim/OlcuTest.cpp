// The tools of the proof: that scenarios do what they say, and that a tree that was torn is seen.
#include <gtest/gtest.h>

#include "dayanim/Olcum.h"

namespace velora::dayanim {

class OlcuTest : public SenaryoTest {};

TEST_P(OlcuTest, A_scenario_goes_through_changes_the_tree_and_a_start_behind_it_changes_nothing) {
    const Saha saha;
    const Beklenen beklenen = TemizKosum(saha, *GetParam());
    EXPECT_FALSE(beklenen.Sayililar().empty());
    EXPECT_EQ(Kusur(beklenen, beklenen.once), "");
    EXPECT_EQ(Kusur(beklenen, beklenen.sonra), "");
}

INSTANTIATE_TEST_SUITE_P(Her, OlcuTest, ::testing::ValuesIn(HerSenaryo()), SenaryoAdi);

namespace {

const Senaryo& Uzunu() {
    return *SenaryoBul("uzun-duzenle");
}

/// What is found over the deaths at each call, without a journal.
int OlumlerinKusurlari(std::string_view ad, bool yarim) {
    Saha saha;
    saha.gunluklu = false;
    const Senaryo& senaryo = *SenaryoBul(ad);
    const Beklenen beklenen = TemizKosum(saha, senaryo);
    Kusurlar kusurlar(ad);
    kusurlar.Hosgor();
    for (unsigned no = 1; no < 1000; ++no) {
        saha.Kur(senaryo);
        if (!Kos(saha, ad, {.oldur = no, .yarim = yarim, .yalnizDegisen = true}).oldu)
            break;
        kusurlar.Say("", Kusur(beklenen, saha.Baslat()));
    }
    return kusurlar.Kusurlu();
}

} // namespace

TEST(Olcu, Without_a_journal_deaths_are_seen_to_leave_half_of_a_new_record_and_torn_long_ones) {
    EXPECT_GT(OlumlerinKusurlari("yeni-kayit", false), 0);
    EXPECT_GT(OlumlerinKusurlari("bosa-tasi", false), 0);
    EXPECT_GT(OlumlerinKusurlari("menu-uzun", true), 0) << "a list of one file, cut in its write";
    EXPECT_EQ(OlumlerinKusurlari("menu-ekle", false), 0) << "a short one isn't";
}

TEST(Olcu, The_measure_sees_a_file_too_many_a_lost_a_torn_and_a_foreign_one_and_parts) {
    const Saha saha;
    const Beklenen b = TemizKosum(saha, Uzunu());
    const std::string ana = "Salon A/2012/23.06.2012 - Gündüz";
    const auto kusurlu = [&](const std::function<void(Agac&)>& boz, Olcu olcu) {
        Agac agac = b.sonra;
        boz(agac);
        return !Kusur(b, agac, olcu).empty();
    };
    for (const Olcu olcu : {Olcu::Butun, Olcu::Parca}) {
        EXPECT_TRUE(kusurlu([&](Agac& a) { a[ana + "~"] = ""; }, olcu));
        EXPECT_TRUE(kusurlu([&](Agac& a) { a.erase("Menuler.dat"); }, olcu));
        EXPECT_TRUE(kusurlu([&](Agac& a) { a[ana].resize(4096); }, olcu));
        EXPECT_TRUE(kusurlu([&](Agac& a) { a["Count.dat"] = "\"58\"\r\n"; }, olcu));
        EXPECT_TRUE(kusurlu([&](Agac& a) { a.erase("Salon A/2012/"); }, olcu));
    }
    EXPECT_TRUE(kusurlu([&](Agac& a) { a[ana] = b.once.at(ana); }, Olcu::Butun));
    EXPECT_FALSE(kusurlu([&](Agac& a) { a[ana] = b.once.at(ana); }, Olcu::Parca));
}

TEST(Olcu, The_measure_sees_that_what_was_moved_is_in_neither_place) {
    const Saha saha;
    const Beklenen b = TemizKosum(saha, *SenaryoBul("bosa-tasi"));
    Agac agac = b.sonra;
    agac.erase("Salon A/2012/18.09.2012 - Gece-Odeme");
    EXPECT_EQ(Kusur(b, agac, Olcu::Parca), "the text of Salon A/2012/20.06.2012 - Gündüz-Odeme is lost");
    agac["Salon A/2012/20.06.2012 - Gündüz-Odeme"] = b.once.at("Salon A/2012/20.06.2012 - Gündüz-Odeme");
    EXPECT_EQ(Kusur(b, agac, Olcu::Parca), "");
}

} // namespace velora::dayanim
