#pragma once

#include <cstddef>
#include <optional>

#include "storage/Metin.h"

/// What a cell of a spreadsheet makes of a text.
namespace velora {

/// What a cell can show of a text: at most 32,767 characters, line ends as "\n", other control characters as
/// blanks, half a surrogate pair as U+FFFD. A text that isn't empty stays one.
Metin XlsMetni(MetinBakis metin);

/// The number that a text is, where nobody can take it for another one: at most 15 digits with no 0 before
/// them, perhaps a minus, perhaps a point and one or two digits behind it. "1.250" is none: it might be meant
/// as a thousand and more.
std::optional<double> DuzSayi(MetinBakis metin);

/// The widest that a column gets for what it holds, in tenths of a digit's width.
inline constexpr std::size_t kEnGenisXlsSutunu = 600;

struct XlsMetinBoyu {
    std::size_t en = 0;    ///< of the longest line, in tenths of a digit's width
    std::size_t satir = 0; ///< lines that it takes in the widest column
};

/// About how large a text is as `XlsMetni` leaves it.
XlsMetinBoyu XlsBoyu(MetinBakis metin);

} // namespace velora
