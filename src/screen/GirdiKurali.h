#pragma once

#include <optional>

#include "storage/Metin.h"

namespace velora {

struct MetinKutusu;

/// What a field makes of the characters that come in. A field holds what a file can hold. Text set by code
/// passes none of these rules.

/// Whether a character may come into a field; null lets all of them in.
using HarfIzni = bool (*)(char16_t);

/// What a field takes.
struct GirdiKurali {
    HarfIzni izin = nullptr; ///< characters without it are dropped
    int enUzun = 0;          ///< the length that its text may reach; 0 for no limit
    bool cokSatirli = false; ///< it takes line breaks, which its text holds as CR LF
};

/// What the field of a screen takes. How many lines it has, its window knows.
GirdiKurali KutununKurali(const MetinKutusu& kutu, bool cokSatirli);

/// What the text of a field becomes when `gelen` comes in, from the keys, the clipboard or by a drop, between
/// the parts of its text that stand. `gelen` is composed: letters and their marks are one character, where
/// there is one. Each character outside the code page, a surrogate pair is one, becomes "?". In a field of
/// one line each line break (CR LF is one) and each other control character becomes a blank. What the rule
/// refuses is left out, and then what goes beyond the limit; a line break counts there as the two characters
/// that it is. A text that was longer before keeps its length.
Metin GirdiyiKoy(MetinBakis ust, MetinBakis gelen, MetinBakis alt, const GirdiKurali& kural);

/// A field of digits takes whole numbers: what came in as an amount is the number that it means, without its
/// groups, its decimals and what stands around it: "12.500,00 TL" is "12500". The last sign between digits
/// begins the decimals, unless three digits stand behind it and no other sign came before. A text of another
/// kind stays as it is.
Metin TutarOlarak(MetinBakis gelen);

/// Of composed characters that are typed those that get into a field: what no file holds and what has no
/// `izin` is dropped; Enter, Tab and other keys that are no characters get through. With none left the key
/// does nothing, not even to the selection.
Metin TuslananMetin(MetinBakis tuslanan, HarfIzni izin = nullptr);

/// In a mask: a digit, or nothing. All else stands as it is.
inline constexpr char16_t kMaskeRakami = u'#';
/// Stands in a masked text where nothing is typed, on the screen and in the files.
inline constexpr char16_t kBosYer = u'_';

/// Whether a key that types this character gets through to a mask: of all signs of the code page that are
/// numbers only the digits 0 to 9 do.
bool MaskeTusu(char16_t harf);

/// What a masked field takes of what it shows now; `eski` is what it showed before. The place of a digit
/// holds 0 to 9 or nothing: whatever else has come in leaves it empty.
Metin MaskeyiSuz(MetinBakis maske, MetinBakis eski, Metin yeni);

/// A text of the clipboard as it is meant in a mask: each of its numbers in the places of one of the mask's,
/// "5.1.2026" as "05.01.2026" and "9.30" as "09:30". Four places take four digits. None when it isn't such a
/// text, or has another number of numbers.
std::optional<Metin> MaskeyeOturt(MetinBakis maske, MetinBakis yapistirilan);

} // namespace velora
