#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "dayanim/CagriKaydi.h"
#include "dayanim/Senaryolar.h"

namespace velora::dayanim {

/// A tree and a folder for its journal on the disk, and programs that work on them. They lie in memory where
/// the system has such a folder: nothing here needs a real disk.
class Saha {
  public:
    /// `ustu`, `durumUstu`: the folder to make the tree in, and that for the journal; empty for the usual
    /// one.
    explicit Saha(const std::filesystem::path& ustu = {}, const std::filesystem::path& durumUstu = {});
    ~Saha();
    Saha(const Saha&) = delete;
    Saha& operator=(const Saha&) = delete;

    const std::filesystem::path& Kok() const { return kok_; }
    const std::filesystem::path& Durum() const { return durum_; }

    /// Makes the tree hold just this. What is so already isn't touched.
    void Kur(const Agac& agac) const;
    const Agac& Oku() const;
    /// The same of the journal's folder.
    void DurumKur(const Agac& agac) const { Yaz(durum_, Oku(durum_), agac); }
    Agac DurumOku() const { return Oku(durum_); }

    /// Both as a scenario begins with them; the journal has nothing yet.
    void Kur(const Senaryo& senaryo) const;
    /// A fresh start: the journal is opened, in this process. The tree behind it.
    const Agac& Baslat() const;
    /// Somebody else has changed the tree.
    void Degisti() const { bilinen_.reset(); }
    /// Whether scenarios run with a journal; true unless told otherwise.
    bool gunluklu = true;

  private:
    static void Yaz(const std::filesystem::path& klasor, const Agac& eski, const Agac& agac);
    static Agac Oku(const std::filesystem::path& klasor);

    std::filesystem::path ust_, durumUstu_, kok_, durum_;
    mutable std::optional<Agac> bilinen_; // what the tree holds, so that not all is read again and again
};

/// What is done to the calls of a run.
struct Ariza {
    unsigned oldur = 0;         ///< the number of the call before which it is killed
    bool yarim = false;         ///< or in the middle of it, when it is a long write
    unsigned boz = 0;           ///< that fails
    int hata = 0;               ///< with this errno
    bool sonra = false;         ///< and so does all behind it
    unsigned kisa = 0;          ///< that is short
    bool yalnizDegisen = false; ///< only calls that change something have numbers
};

/// A call of a run.
struct KayitliCagri {
    KayitBasi bas;
    std::string yol; ///< as the system has it
    std::string hedef;
    std::string veri;

    bool Degistirir() const { return dayanim::Degistirir(bas.cagri, bas.ek); }
};

struct KosumSonucu {
    bool bitti = false;                 ///< it ended by itself, all as the scenario says
    bool oldu = false;                  ///< it was killed, as it was asked for
    std::string sonuc;                  ///< in words
    std::vector<KayitliCagri> cagrilar; ///< all of them, in their order
};

/// Runs a scenario, or "ac", in a process of its own. With a log only when it is asked for.
KosumSonucu Kos(const Saha& saha, std::string_view senaryo, const Ariza& ariza = {}, bool kayit = false);

/// Starts one that goes on by itself; who starts it ends it.
int Baslat(const Saha& saha, const std::vector<std::string>& degerler);

const char* CagriAdi(Cagri cagri);
/// A call in words: its number, its name, its file.
std::string Tarif(const KayitliCagri& cagri);

/// What a scenario does to the tree.
struct Beklenen {
    Agac once;
    Agac sonra;
    std::vector<KayitliCagri> cagrilar; ///< of a run that nothing disturbs

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
