#pragma once

#include "screen/Sayfa.h"

namespace velora {

struct FormTabloPrint;

/// The margin of the sheet that the year table is printed on, in millimetres: the table fills the rest.
inline constexpr double kTabloKenari = 10;

/// The sheet of the year table: name of the firm and of the hall, heads, the rows of the months in the order
/// of the screen, what the marks mean, notes. A hidden month leaves its band empty.
Sayfa TabloSayfasi(const FormTabloPrint& tablo, const YaziOlcer& olcer);

} // namespace velora
