#pragma once

#include <cstdint>
#include <fcntl.h>

/// What stands between a program and the system's calls that touch files below two folders: the data tree and
/// the folder of its journal. A shared library, preloaded into the program; what it is to do stands in its
/// environment, one value for each of the names below. It allocates nothing that matters to the program and
/// touches no other file but its log.
namespace velora::dayanim {

inline constexpr const char* kAgacDegiskeni = "VELORA_KAYIT_AGAC";   ///< the tree, without a "/" at its end
inline constexpr const char* kDurumDegiskeni = "VELORA_KAYIT_DURUM"; ///< the folder of the journal
inline constexpr const char* kDosyaDegiskeni = "VELORA_KAYIT_DOSYA"; ///< the log; lies in neither of them
inline constexpr const char* kOldurDegiskeni = "VELORA_KAYIT_OLDUR"; ///< SIGKILL before the call of this
                                                                     ///< number
inline constexpr const char* kYarimDegiskeni = "VELORA_KAYIT_YARIM"; ///< set: only long writes are numbered;
                                                                     ///< it dies in them memory
inline constexpr const char* kBozDegiskeni = "VELORA_KAYIT_BOZ";     ///< the call of this number fails
inline constexpr const char* kSonraDegiskeni = "VELORA_KAYIT_SONRA"; ///< set: and so does each behind it
inline constexpr const char* kHataDegiskeni = "VELORA_KAYIT_HATA";   ///< with this errno
inline constexpr const char* kKisaDegiskeni = "VELORA_KAYIT_KISA";   ///< it reads or writes half of what it
                                                                     ///< should
inline constexpr const char* kYavasDegiskeni = "VELORA_KAYIT_YAVAS"; ///< set: writes are short and slow
inline constexpr const char* kYalnizDegiskeni = "VELORA_KAYIT_YALNIZ"; ///< set: only what changes is numbered

/// Calls are numbered from 1, from here on ...
inline constexpr const char* kBasla = "velora_kayit_basla";
/// ... to here. Both are functions of the library, without arguments and results.
inline constexpr const char* kBitir = "velora_kayit_bitir";

enum class Cagri : std::uint32_t {
    Ac,      ///< `ek`: the flags
    Oku,     ///< `konum`, `ek`: how much was asked for
    Yaz,     ///< `konum`, the bytes
    Kes,     ///< `konum`: the new length
    YerAyir, ///< `konum`: the length
    Sil,     ///< a file
    KlasorSil,
    KlasorYap,
    Tasi,  ///< `yol` to `hedef`
    Bagla, ///< `yol`, or the open file `seri`, gets the name `hedef` too
    Esle,  ///< fsync, fdatasync
    HepsiniEsle,
    Kilitle,
    Kapat,
    Sor, ///< stat and the like
    KlasorAc,
    KlasorOku,
};

/// Whether a call changes what is on the disk or what would be left of it; `ek` as above.
constexpr bool Degistirir(Cagri cagri, std::uint64_t ek) {
    switch (cagri) {
    case Cagri::Ac:
        return (ek & (O_CREAT | O_TRUNC)) != 0 || (ek & O_TMPFILE) == O_TMPFILE;
    case Cagri::Oku:
    case Cagri::Kilitle:
    case Cagri::Kapat:
    case Cagri::Sor:
    case Cagri::KlasorAc:
    case Cagri::KlasorOku:
        return false;
    default:
        return true;
    }
}

/// A line of the log: this head, then the bytes of `yol`, `hedef` and what was written. Paths are absolute.
struct KayitBasi {
    Cagri cagri = Cagri::Sor;
    std::uint32_t no = 0;   ///< 0: outside of what is numbered
    std::int32_t hata = 0;  ///< 0, or the errno of its failure
    std::uint32_t seri = 0; ///< which opening of a file it works on, counted over the run; 0: none
    std::uint64_t konum = 0;
    std::uint64_t ek = 0;
    std::uint32_t yolBoyu = 0;
    std::uint32_t hedefBoyu = 0;
    std::uint32_t veriBoyu = 0; ///< of what was really written
    std::uint32_t durumda = 0;  ///< 1: below the journal's folder
};

} // namespace velora::dayanim
