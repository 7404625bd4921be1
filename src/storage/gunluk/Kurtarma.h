#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "storage/gunluk/Gunluk.h"

/// What a start makes of an action that a death has cut through.
namespace velora {

/// Whether this is what a death can leave of a file whose text was being turned from one into the other:
/// nothing at all, a beginning of either, a beginning of one with the rest of the other, line ends behind,
/// and blocks of the medium that hold the one, the other or NUL bytes. Either may be none: the file was just
/// made, or was to go.
bool Kalinti(std::string_view bulunan, const DosyaMetni& once, const DosyaMetni& sonra);

/// Every text that a file had or was to have in an action, in their order.
struct MetinZinciri {
    Metin yol;
    bool onceBilinir = true;
    std::vector<DosyaMetni> metinler; ///< the one before first; at least two
};

enum class BulunanHal {
    Once,     ///< the text before: nothing has happened to this file
    Sonra,    ///< the last text
    Ayni,     ///< both of them: it says nothing of the action
    Yarida,   ///< a text in between, or what a death leaves
    Baska,    ///< another whole text: somebody has changed it since
    Okunamadi ///< it is there and can't be read
};

/// What a file on the disk is beside its texts; `okundu` is false when it is there and couldn't be read.
BulunanHal HalBul(const MetinZinciri& zincir, bool okundu, const DosyaMetni& bulunan);

/// Makes each unfinished action of the journal be there wholly, or not at all: as soon as a file of it holds
/// its last text, or what a death leaves, those that hold the text before get theirs. Where more than one has
/// touched a file, a text of an earlier one counts as that before, and one of a later one as the last. What
/// somebody else has changed since is left alone. What can't be written now is for the next start.
///
/// `coz` gives a file's own path for one below the root, or nothing when that leads out of the tree; `zaman`
/// is the time that the journal keeps with it.
void YarimlariTamamla(Gunluk& gunluk,
                      const std::function<std::optional<std::filesystem::path>(const Metin& yol)>& coz,
                      const Metin& zaman);

} // namespace velora
