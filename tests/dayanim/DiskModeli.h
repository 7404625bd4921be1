#pragma once

#include <functional>
#include <memory>

#include "dayanim/Olcum.h"

namespace velora::dayanim {

/// What a power cut may leave of two folders.
struct DiskHali {
    Agac agac;
    Agac durum;
};

/// A disk to which the calls of a run are told, and which then says in what states a power cut could leave
/// it.
///
/// Changes of names (a file is made, removed, renamed, gets a second name; a folder is made) come to the disk
/// in their order, as journaling file systems have it: any first part of them may stand there. The sync of a
/// folder, or of a file whose name is new, makes them durable up to its own. The bytes of a file are durable
/// with its sync; of those that were written later there may stand nothing, all, no byte, NUL bytes in the
/// full length, a beginning, and a beginning or an end of the new beside the rest of the old or NUL bytes.
class DiskModeli {
  public:
    DiskModeli(const Saha& saha, const Agac& agac, const Agac& durum);

    /// False for a call that leaves what can be left as it is.
    bool Uygula(const KayitliCagri& cagri);

    /// All states that there may be now, at most so many: where there are more, those in which all files fare
    /// alike and those in which one fares otherwise than the rest come first, then others, the same in each
    /// run.
    void Haller(std::size_t enCok, const std::function<void(const DiskHali&)>& ver) const;

  private:
    struct Govde { ///< a file's bytes, whatever its name
        std::string kalici;
        std::string simdi;
        std::size_t kirli = std::string::npos; ///< the first byte that was written to since its sync
    };
    using GovdeNo = std::shared_ptr<Govde>;
    using Adlar = std::map<std::string, GovdeNo>; ///< by whole path; a folder has none, and a "/" at its end

    struct AdIsi {
        std::string klasor;
        GovdeNo govde; ///< whose name it is
        std::function<void(Adlar&)> uygula;
    };

    void AdDegistir(const std::string& yol, GovdeNo govde, std::function<void(Adlar&)> uygula);
    bool AdlariUygula(const KayitliCagri& cagri);
    void Ac(const KayitliCagri& cagri);
    void Esle(const KayitliCagri& cagri);
    static std::vector<std::string> Halleri(const Govde& govde);
    void AdHalindeki(const Adlar& adlar, std::size_t enCok,
                     const std::function<void(const DiskHali&)>& ver) const;
    DiskHali Hal(const Adlar& adlar, const std::map<GovdeNo, std::string>& icerikler) const;

    std::string agacKoku_, durumKoku_;
    Adlar kalici_; ///< the names that are durable
    Adlar simdi_;
    std::vector<AdIsi> bekleyen_; ///< behind the durable ones
    std::map<std::uint32_t, GovdeNo> acik_;
};

} // namespace velora::dayanim
