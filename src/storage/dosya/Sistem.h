#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/Metin.h"

/// What the file module needs of the system. Each system has one file that holds just this; all rules of the
/// file module stand above it. Nothing here checks a path. Plain files only: a folder, a pipe or a device
/// never opens.
namespace velora::sistem {

enum class Kip {
    Oku,      ///< reading
    Guncelle, ///< reading and writing over a file that is there
    Yeni,     ///< writing a file that isn't there yet
    Adsiz,    ///< the same, but where the system can do that the file has its name only from `AdVer` on
    Ozel      ///< reading and writing for the owner alone; it is made when missing, and this process has it
              ///< for itself as long as it is open
};

/// What a name in a folder may stand for; all else counts as nothing.
enum class Tur { Dosya, Klasor };

/// `Yok`: the name isn't in its folder, or the folder isn't there.
enum class Acilis { Acildi, Yok, Olmadi };

class AcikDosya {
  public:
    AcikDosya() = default;
    AcikDosya(const AcikDosya&) = delete;
    AcikDosya& operator=(const AcikDosya&) = delete;
    ~AcikDosya() { Kapat(); }

    /// A file that is written over is locked against other programs that write so. One that stays locked is
    /// waited for, a fifth of a second at most, and then opened all the same where the system allows it.
    Acilis Ac(const std::filesystem::path& yol, Kip kip);

    /// Gives a file of `Kip::Adsiz` its name. False when something of this name is there by now, or it can't
    /// be: then no file is left.
    bool AdVer(const std::filesystem::path& yol);
    /// Whether it has been opened without one.
    bool Adsiz() const { return adsiz_; }

    std::optional<std::uint64_t> Boy() const;

    /// How many bytes were read from `konum` on, 0 at the end of the file. Nothing on failure.
    std::optional<std::size_t> Oku(std::uint64_t konum, char* hedef, std::size_t adet);

    /// Writes at `konum` in one call. How many bytes were taken, 0 on failure.
    std::size_t Yaz(std::uint64_t konum, std::string_view bayt);

    /// Takes room on the disk for a file of this length; its length stays. False only when it is sure that
    /// there is no room: a system that can't tell says true.
    bool YerAyir(std::uint64_t boy);

    /// Cuts the file to this length.
    bool Kes(std::uint64_t boy);

    /// Waits until what was written stands on the medium. False when that can't be said.
    bool Esitle();

    /// False when the system took back what it had promised.
    bool Kapat();

  private:
    static constexpr std::intptr_t kKapali = -1;
    std::intptr_t tutamac_ = kKapali;
    bool adsiz_ = false;
};

/// The name of an entry as the disk has it.
using AdHarfi = std::filesystem::path::value_type;
using DiskAdi = std::basic_string_view<AdHarfi>;

/// An entry of a listing.
struct ListeOgesi {
    DiskAdi ad;
    std::uint64_t no = 0; ///< of the file on the disk of its folder; 0: the listing doesn't tell
};

/// Its text; a byte that belongs to no character stays (storage/dosya/Utf8).
void AdiCoz(DiskAdi ad, Metin& hedef);

/// What differs where a file isn't the one that it was or may hold something else: all is as the system tells
/// it, times in nanoseconds since 1970.
struct Kimlik {
    std::uint64_t disk = 0;
    std::uint64_t no = 0;   ///< of the file on its disk
    std::uint64_t boy = 0;  ///< bytes
    std::int64_t yazma = 0; ///< when it was written to last
    std::int64_t durum = 0; ///< when that, its rights, its length or its name were changed last
    bool operator==(const Kimlik&) const = default;
};

/// A folder that is listed, and whose files are then asked about and read by name. Links are followed.
class Klasor {
  public:
    /// A folder that can't be opened lists nothing, and of its files none need be asked about or read.
    explicit Klasor(const std::filesystem::path& yol);
    Klasor(const Klasor&) = delete;
    Klasor& operator=(const Klasor&) = delete;
    ~Klasor();
    bool Acildi() const { return acildi_; }

    /// The next entry of this kind, in the order of the disk. Its name lasts until the next call. False after
    /// the last.
    bool Sonraki(ListeOgesi& oge, Tur tur);

    /// Whether the names handed over so far are all that there were up to that place. A folder that isn't
    /// there, or that nobody may list, has none.
    bool Tam() const { return tam_; }

    /// Whether an entry that was listed, be it of another kind, may lie elsewhere: a link.
    bool BaglantiVar() const { return baglanti_; }

    /// What the system tells of a file of this folder; nothing where it doesn't. Where a listing tells all
    /// that, it is as old as the listing.
    std::optional<Kimlik> Sor(const AdHarfi* ad) const;
    /// The same of the folder itself.
    std::optional<Kimlik> Sor() const;

    /// The bytes of a file of this folder, in `tampon`, which grows when it must and is there to be used
    /// again. Nothing when the file can't be opened or read, or is longer than `enCok`.
    std::optional<std::string_view> Oku(const AdHarfi* ad, std::size_t enCok, std::string& tampon) const;

  private:
    struct Ic;
    std::unique_ptr<Ic> ic_;
    bool acildi_ = false;
    bool tam_ = true;
    bool baglanti_ = false;
};

/// What the system tells of an entry, links followed.
struct OgeBilgisi {
    Tur tur;
    std::uint64_t boy;     ///< bytes
    std::int64_t degisme;  ///< when it was written to last: nanoseconds, of this system's own beginning of
                           ///< time
    std::uint32_t ozellik; ///< its attributes: who may do what with it, hidden or not
};

/// Nothing for what isn't there or is neither a file nor a folder.
std::optional<OgeBilgisi> Bilgi(const std::filesystem::path& yol);

/// An entry of a folder.
struct Oge {
    std::filesystem::path::string_type ad; ///< as on the disk
    OgeBilgisi bilgi;
};

/// All files and folders of a folder, in the order of the disk, each asked about once. What can't be listed
/// has none, and of what can't be asked about nothing is said.
std::vector<Oge> Ogeler(const std::filesystem::path& klasor);

/// Copies files of one folder into another, under their names.
class Kopyaci {
  public:
    /// What is copied is gathered in the target's folder, under the name `gecici`.
    Kopyaci(const std::filesystem::path& kaynak, const std::filesystem::path& hedef,
            std::filesystem::path gecici);
    Kopyaci(const Kopyaci&) = delete;
    Kopyaci& operator=(const Kopyaci&) = delete;
    ~Kopyaci();

    /// Copies one with its time and attributes. It comes to its name whole and in one step, whoever may write
    /// into a file that is there. One that is written to meanwhile is taken anew; if that doesn't end, its
    /// copy gets the time from before. False: what stood there is as it was.
    bool Kopyala(const std::filesystem::path& ad) const;

  private:
    struct Ic;
    std::unique_ptr<Ic> ic_;
};

/// Whether that is there, under a name that the system takes for this one.
bool Var(const std::filesystem::path& yol, Tur tur);
bool DosyaSil(const std::filesystem::path& yol);
bool KlasorYap(const std::filesystem::path& yol);

/// The same for a folder that is for its owner alone.
bool OzelKlasorYap(const std::filesystem::path& yol);

/// Waits until the bytes of a file stand on the medium. True also when it isn't there any more.
bool DosyaEsitle(const std::filesystem::path& yol);

/// Waits until the names in a folder stand on the medium. True also when it isn't there any more, and where
/// the system keeps names by itself.
bool AdlariEsitle(const std::filesystem::path& klasor);

/// Waits until all that was written to the disk of this folder stands on the medium. False where the system
/// can't be asked for that.
bool DiskiEsitle(const std::filesystem::path& klasor);

} // namespace velora::sistem
