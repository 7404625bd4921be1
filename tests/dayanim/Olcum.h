#pragma once

#include <vector>

#include <gtest/gtest.h>

#include "dayanim/Kosum.h"

namespace velora::dayanim {

/// What a scenario does to the tree.
struct Beklenen {
    Agac once;
    Agac sonra;
    std::vector<KayitliCagri> cagrilar; ///< of a run that nothing disturbs
    bool ayri = false;                  ///< as in `Senaryo`
    Agac yokGibi;                       ///< the same
    std::string disinda;                ///< the same

    /// The numbered calls.
    std::vector<KayitliCagri> Sayililar() const;
};

/// Runs the scenario once with nothing disturbed. Fails the test when that doesn't go as it should.
Beklenen TemizKosum(const Saha& saha, const Senaryo& senaryo);

/// How much may be left of a scenario that was cut through.
enum class Olcu {
    Butun, ///< all of it or nothing
    Parca, ///< of each file the text before or the text behind it
    Satir  ///< of its files may be made what a user has to make of what couldn't be read, but each line that
           ///< was there before and is there behind is still there
};

/// What is wrong with a tree that was left; empty: nothing.
std::string Kusur(const Beklenen& beklenen, const Agac& kalan, Olcu olcu = Olcu::Butun);

/// True: `./test --long` wants all there is.
bool Uzun();

/// Gathers what is wrong over many runs, and fails the test once, with the first few of them.
class Kusurlar {
  public:
    explicit Kusurlar(std::string_view konu) : konu_(konu) {}
    ~Kusurlar();
    Kusurlar(const Kusurlar&) = delete;
    Kusurlar& operator=(const Kusurlar&) = delete;

    /// One run more; empty text: nothing is wrong with it.
    void Say(const std::string& nerede, const std::string& kusur);
    int Kosulan() const { return kosulan_; }
    int Kusurlu() const { return kusurlu_; }
    /// What is wrong is wanted: it fails no test.
    void Hosgor() { hosgorulur_ = true; }

  private:
    std::string konu_;
    std::string ilkler_;
    int kosulan_ = 0;
    int kusurlu_ = 0;
    bool hosgorulur_ = false;
};

/// All scenarios, as parameters of tests, and their names there.
class SenaryoTest : public ::testing::TestWithParam<const Senaryo*> {};
std::vector<const Senaryo*> HerSenaryo();
std::string SenaryoAdi(const ::testing::TestParamInfo<const Senaryo*>& bilgi);

} // namespace velora::dayanim
