#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "storage/dosya/Yazim.h"
#include "storage/gunluk/Esitleyici.h"
#include "storage/gunluk/Gunluk.h"

namespace velora {

/// Who works, and what time it is: what the journal keeps with an action.
struct EylemSahibi {
    std::function<Metin()> kim;
    std::function<std::chrono::local_seconds()> simdi;
};

/// What a step makes of a file.
struct Degisiklik {
    enum class Tur { Koy, Ekle, Kaldir };

    Tur tur = Tur::Koy;
    std::string_view bayt{}; ///< the new text, or what comes behind the old one

    DosyaMetni Sonra(const DosyaMetni& once) const;
};

/// The actions that run, the innermost last, and how they come into the journal. An action begins within
/// another one when events run in that one; the inner one ends first.
///
/// Paths are the files' own ones, below the root.
class EylemDefteri {
  public:
    EylemDefteri(std::shared_ptr<Gunluk> gunluk, std::filesystem::path kok, EylemSahibi sahip);

    /// Begins an action. `adimlar`, if there is one, is run at once and comes to nothing but `Planla`,
    /// `KlasorPlanla` and `Bak`: what it plans is put down in one piece, and waited for once. True: it has
    /// begun.
    bool Ac(const Metin& ad, const std::function<void()>& adimlar);
    /// Begins one of which nothing is put down.
    bool DisindaAc();
    /// Ends the innermost. When all of its steps went through, what they wrote is seen to the medium on a
    /// thread of its own, and then the action is marked; otherwise the next start looks after it.
    void Kapat();

    /// True while the steps of an action are planned: nothing may be written then.
    bool Planda() const { return planda_; }
    bool Bos() const { return yigin_.empty(); }

    /// What a file will hold when the plan so far has been carried out.
    yazim::Okunan Bak(const std::filesystem::path& yol) const;
    void Planla(const std::filesystem::path& yol, const Degisiklik& degisiklik);
    void KlasorPlanla(const std::filesystem::path& yol);

    /// Before a step is made: puts it down, unless it stands there as planned.
    void Once(const std::filesystem::path& yol, const Degisiklik& degisiklik);
    void KlasorOnce(const std::filesystem::path& yol);
    /// A step of the innermost action didn't go through, or is left to the next start.
    void Olmadi();

    /// Waits until all that is done is marked, a time at most. False when something isn't.
    bool Bekle() const { return esitleyici_.Bekle(); }

    Gunluk& Defter() { return *gunluk_; }
    Metin Zaman() const;

  private:
    struct Eylem {
        Metin ad;
        bool disinda = false;            ///< nothing of it is put down, or nothing more can be
        bool olmadi = false;             ///< a step failed
        std::optional<std::uint64_t> no; ///< once it stands in the journal
        std::vector<EylemAdimi> adimlar;
        std::size_t siradaki = 0;                ///< of the planned ones
        std::map<Metin, std::size_t> sonAdimlar; ///< by path
        std::size_t bayt = 0;                    ///< of its texts
    };

    Metin Anahtar(const std::filesystem::path& yol) const;
    std::optional<EylemAdimi> YeniAdim(const std::filesystem::path& yol, const Degisiklik& degisiklik) const;
    bool Planlandi(const EylemAdimi& adim);
    bool Planlandi(const std::filesystem::path& yol, const Degisiklik& degisiklik);
    void Al(EylemAdimi adim);
    void Koy(std::vector<EylemAdimi> adimlar);
    void Esitle(const Eylem& eylem);

    std::shared_ptr<Gunluk> gunluk_;
    std::filesystem::path kok_;
    EylemSahibi sahip_;
    std::vector<Eylem> yigin_;
    bool planda_ = false;
    Esitleyici esitleyici_;
};

} // namespace velora
