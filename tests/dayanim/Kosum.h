#pragma once

#include <string>
#include <vector>

#include "dayanim/CagriKaydi.h"
#include "dayanim/Saha.h"

namespace velora::dayanim {

/// What is done to the calls of a run.
struct Ariza {
    unsigned oldur = 0; ///< the number of the call before which it is killed
    bool yarim = false; ///< only writes longer than a page have numbers, and it dies in the middle of one
    unsigned boz = 0;   ///< that fails
    int hata = 0;       ///< with this errno
    bool sonra = false; ///< and so does all behind it
    unsigned kisa = 0;  ///< that is short
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

/// A run of a `Tekrar` that goes on by itself; it is killed at the end at the latest.
class SurenKosum {
  public:
    /// `kip`: "tekrar" or "masa". `yavas`: its writes are cut into pieces, and slow.
    SurenKosum(const Saha& saha, std::string_view kip, std::string_view tekrar, bool yavas = false)
        : SurenKosum(saha, saha.Durum(), kip, tekrar, yavas) {}
    /// With a journal elsewhere.
    SurenKosum(const Saha& saha, const std::filesystem::path& durum, std::string_view kip,
               std::string_view tekrar, bool yavas);
    ~SurenKosum() { Oldur(); }
    SurenKosum(const SurenKosum&) = delete;
    SurenKosum& operator=(const SurenKosum&) = delete;

    /// Gives it a byte; waits for one. False when it has gone.
    bool Ver() const;
    bool Al() const;
    /// Kills it. False when it had gone already.
    bool Oldur();

  private:
    int cocuk_ = -1;
    int giden_ = -1, gelen_ = -1;
};

const char* CagriAdi(Cagri cagri);
/// A call in words: its number, its name, its file.
std::string Tarif(const KayitliCagri& cagri);

} // namespace velora::dayanim
