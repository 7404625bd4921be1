// A program that writes without end and is killed at random moments.
#include <chrono>
#include <random>
#include <thread>

#include <gtest/gtest.h>

#include "dayanim/Olcum.h"

namespace velora::dayanim {
namespace {

/// The tree without the file that only grows.
Agac Gerisi(Agac agac, std::string_view uzayan) {
    agac.erase(std::string(uzayan));
    return agac;
}

/// The trees between the pieces of such a writing, from the first one on.
std::vector<Agac> Duraklar(const Saha& saha, const Tekrar& tekrar) {
    constexpr int kParca = 4;
    saha.Kur(BaslangicAgaci(tekrar.degisik));
    saha.DurumKur({});
    std::vector<Agac> duraklar{Gerisi(saha.Oku(), tekrar.uzayan)};
    Masa masa(saha.Kok(), saha.Durum());
    for (int sira = 1; sira <= kParca; ++sira) {
        tekrar.yap(masa, sira);
        saha.Degisti();
        duraklar.push_back(Gerisi(saha.Oku(), tekrar.uzayan));
    }
    EXPECT_EQ(duraklar[3], duraklar[1]) << tekrar.ad << " doesn't come back";
    EXPECT_EQ(duraklar[4], duraklar[2]);
    EXPECT_NE(duraklar[1], duraklar[2]);
    duraklar.resize(3);
    return duraklar;
}

/// What is wrong with the file that only grows: its lines are whole, and none that was there has gone.
std::string UzayaninKusuru(const Agac& ilk, const Agac& kalan, std::string_view uzayan) {
    if (uzayan.empty())
        return {};
    const std::string ad(uzayan);
    const std::string& bayt = kalan.contains(ad) ? kalan.at(ad) : std::string();
    return bayt.starts_with(ilk.at(ad)) && bayt.ends_with("\r\n") && bayt.find('\0') == std::string::npos
               ? ""
               : ad + " is torn";
}

} // namespace

class RastgeleOlumTest : public ::testing::TestWithParam<const Tekrar*> {};

TEST_P(RastgeleOlumTest, A_program_killed_at_any_moment_leaves_whole_pieces_of_its_work) {
    const Tekrar& tekrar = *GetParam();
    const int olumler = Uzun() ? 10'000 : 30;
    constexpr int kTazele = 300; // deaths, before tree and journal begin anew
    const Saha saha;
    const std::vector<Agac> duraklar = Duraklar(saha, tekrar);
    const Agac ilk = BaslangicAgaci(tekrar.degisik);
    Kusurlar kusurlar(tekrar.ad);
    std::mt19937 rastgele(static_cast<unsigned>(tekrar.ad.size()));
    std::uniform_int_distribution<int> mikrosaniye(0, 9000);
    for (int no = 0; no < olumler; ++no) {
        saha.Kur(ilk);
        if (no % kTazele == 0)
            saha.DurumKur({});
        SurenKosum kosum(saha, "tekrar", tekrar.ad);
        ASSERT_TRUE(kosum.Al()) << "it doesn't begin";
        std::this_thread::sleep_for(std::chrono::microseconds(mikrosaniye(rastgele)));
        ASSERT_TRUE(kosum.Oldur()) << "it had ended by itself";
        const Agac& kalan = saha.Baslat();
        const bool durak =
            std::find(duraklar.begin(), duraklar.end(), Gerisi(kalan, tekrar.uzayan)) != duraklar.end();
        kusurlar.Say("death " + std::to_string(no),
                     durak ? UzayaninKusuru(ilk, kalan, tekrar.uzayan) : "it is no tree between two pieces");
    }
}

namespace {

std::vector<const Tekrar*> HerTekrar() {
    std::vector<const Tekrar*> hepsi;
    for (const Tekrar& tekrar : Tekrarlar())
        if (!tekrar.ad.starts_with("masa"))
            hepsi.push_back(&tekrar);
    return hepsi;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Her, RastgeleOlumTest, ::testing::ValuesIn(HerTekrar()), [](const auto& bilgi) {
    std::string ad(bilgi.param->ad);
    std::replace(ad.begin(), ad.end(), '-', '_');
    return ad;
});

} // namespace velora::dayanim
