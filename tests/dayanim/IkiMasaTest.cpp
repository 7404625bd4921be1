// Two programs that save one reservation at the same time.
#include <array>

#include <gtest/gtest.h>

#include "dayanim/Olcum.h"

namespace velora::dayanim {
namespace {

constexpr std::array<const char*, 2> kMasalar{"masa-bir", "masa-iki"};

/// The three files of the reservation.
Agac Kayit(const Agac& agac) {
    Agac kayit;
    for (const auto& [yol, bayt] : agac)
        if (yol.starts_with("Salon A/2012/23.06.2012 - G"))
            kayit[yol] = bayt;
    return kayit;
}

/// What stands there when one of them has saved alone.
Agac Tekbasina(const Saha& saha, const char* masa) {
    const SurenKosum biri(saha, "masa", masa);
    EXPECT_TRUE(biri.Ver() && biri.Al());
    return Kayit(saha.Oku());
}

} // namespace

TEST(IkiMasa, Of_two_that_save_at_once_each_file_is_of_one_or_the_other) {
    const Saha saha;
    const Saha oteki; // its tree is left alone: the second desk has a journal of its own
    saha.Kur(TemelAgac());
    std::vector<Agac> beklenen;
    beklenen.reserve(kMasalar.size());
    for (const char* masa : kMasalar)
        beklenen.push_back(Tekbasina(saha, masa));
    ASSERT_NE(beklenen[0], beklenen[1]);
    const SurenKosum bir(saha, "masa", kMasalar[0], true);
    const SurenKosum iki(saha, oteki.Durum(), "masa", kMasalar[1], true);
    Kusurlar kusurlar("two desks");
    std::set<std::string> gorulen;
    const int turlar = Uzun() ? 5000 : 200;
    for (int tur = 1; tur <= turlar; ++tur) {
        ASSERT_TRUE(bir.Ver() && iki.Ver());
        ASSERT_TRUE(bir.Al() && iki.Al()) << "one of them has gone";
        saha.Degisti();
        for (const auto& [yol, bayt] : Kayit(saha.Oku())) {
            const bool birin = bayt == beklenen[0][yol];
            kusurlar.Say("round " + std::to_string(tur),
                         birin || bayt == beklenen[1][yol] ? "" : yol + " is of both");
            gorulen.insert(birin ? "one" : "the other");
        }
    }
    EXPECT_EQ(gorulen.size(), 2U) << "both have won";
    EXPECT_EQ(kusurlar.Kosulan(), 3 * turlar);
}

} // namespace velora::dayanim
