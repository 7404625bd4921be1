#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <vector>

#include "storage/dosya/Sistem.h"

namespace velora {

/// What the comparison says of a file. The bits from `KaynakYeni` on combine.
namespace EslemeDurumu {
inline constexpr int YalnizKaynakta = -2;
inline constexpr int YalnizHedefte = -1;
inline constexpr int Ayni = 0;
inline constexpr int KaynakYeni = 1; ///< by a second or more
inline constexpr int HedefYeni = 2;  ///< by a second or more
inline constexpr int BoyFarkli = 4;
inline constexpr int OzellikFarkli = 8;
} // namespace EslemeDurumu

struct EslemeSatiri {
    std::filesystem::path ad; ///< of the file, without its folder
    int durum = EslemeDurumu::Ayni;

    bool operator==(const EslemeSatiri&) const = default;
};

/// The files and folders of a folder, sorted by name.
using KlasorIcerigi = std::vector<sistem::Oge>;

/// What can't be listed or asked about isn't there, and neither is what a crash has left half.
KlasorIcerigi KlasoruListele(const std::filesystem::path& klasor);

inline bool DosyaMi(const sistem::Oge& oge) {
    return oge.bilgi.tur == sistem::Tur::Dosya;
}

/// The files of two folders, one after the other: first all of the source, then those that only the target
/// has, each part sorted by name. The listings must stand as long as this is asked.
class EslemeSirasi {
  public:
    struct Satir {
        const sistem::Oge& oge;
        int durum;
    };

    EslemeSirasi(const KlasorIcerigi& kaynak, const KlasorIcerigi& hedef) : kaynak_(kaynak), hedef_(hedef) {}
    /// None behind the last.
    std::optional<Satir> Sonraki();

  private:
    void HedeftekiniGec();

    std::span<const sistem::Oge> kaynak_; // what is left of it
    std::span<const sistem::Oge> hedef_;
    std::vector<const sistem::Oge*> yalnizHedefte_; // passed so far
    std::size_t geriye_ = 0;                        // the next of these
};

/// Two folders' files, without those below them, brought in line by single steps.
class DosyaEslemesi {
  public:
    struct Klasor {
        const std::filesystem::path& yol;
        const KlasorIcerigi& icerik;
    };

    /// From the source to the target, unless the target's is the newer one; with `ikiYonlu` that one, and
    /// what only the target has, is copied back. Both listings must stand meanwhile.
    DosyaEslemesi(const Klasor& kaynak, const Klasor& hedef, bool ikiYonlu);
    /// Deals with the next file. False: there was none.
    bool Adim();

  private:
    EslemeSirasi sira_;
    sistem::Kopyaci ileri_;
    sistem::Kopyaci geri_;
    bool ikiYonlu_;
};

} // namespace velora
