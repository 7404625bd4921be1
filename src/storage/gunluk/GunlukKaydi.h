#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "storage/Metin.h"

/// The records of the journal and their bytes.
namespace velora {

/// What a file holds; nothing when it isn't there.
using DosyaMetni = std::optional<std::string>;

/// One step of an action: a file that gets another text, comes or goes, or a folder that is made.
struct EylemAdimi {
    enum class Tur : char { Dosya = 'D', Klasor = 'K' };

    Tur tur = Tur::Dosya;
    Metin yol;               ///< below the root, a backslash before each name, names as on the disk
    bool onceBilinir = true; ///< false: what stood there couldn't be read
    DosyaMetni once;         ///< of a folder, as `sonra`, always nothing
    DosyaMetni sonra;

    bool operator==(const EylemAdimi&) const = default;
};

/// What a user did, and all that it changes.
struct EylemKaydi {
    std::uint64_t no = 0; ///< rises from one action to the next
    Metin ad;             ///< what was done, in the user's words
    Metin kim;            ///< the user's name; empty before a login
    Metin zaman;          ///< local time, yyyy-mm-dd hh:mm:ss
    std::vector<EylemAdimi> adimlar;

    bool operator==(const EylemKaydi&) const = default;
};

/// More steps of an action that has begun.
struct EkKaydi {
    std::uint64_t no = 0;
    std::vector<EylemAdimi> adimlar;

    bool operator==(const EkKaydi&) const = default;
};

/// All steps of the action stand on the medium, or nothing of it will ever be done.
struct BittiKaydi {
    std::uint64_t no = 0;

    bool operator==(const BittiKaydi&) const = default;
};

/// What a start has done for an action that a death had cut through: paths, and what came of each.
struct OnarimKaydi {
    std::uint64_t no = 0;
    Metin zaman;
    std::vector<Metin> isler;

    bool operator==(const OnarimKaydi&) const = default;
};

using GunlukKaydi = std::variant<EylemKaydi, EkKaydi, BittiKaydi, OnarimKaydi>;

/// CRC-32, as archives and network frames have it.
std::uint32_t Crc32(std::string_view bayt);

/// A record with its frame: its kind, its length and a checksum before it, a line end behind.
std::string KayitBaytlari(const GunlukKaydi& kayit);

/// The record that begins at this place of the bytes; `konum` moves behind it. Nothing, and it stays, where
/// no whole record stands or its checksum is another one.
std::optional<GunlukKaydi> KayitOku(std::string_view bayt, std::size_t& konum);

/// The first line of a journal, and its tree. Only a file that begins with it is obeyed.
std::string GunlukBasi(const Metin& kok);

} // namespace velora
