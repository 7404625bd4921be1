#pragma once

#include <chrono>
#include <optional>

#include "storage/Metin.h"

namespace velora {

/// A civil day of the calendar, never an instant.
using Gun = std::chrono::year_month_day;

/// Characters of a date dd.mm.yyyy.
inline constexpr std::size_t kTarihUzunlugu = 10;

/// The day that a text of the form dd.mm.yyyy names. One-digit days and months are taken too. Empty when the
/// text has another form or the calendar has no such day.
std::optional<Gun> TarihCoz(MetinBakis metin);

/// The day of a date literal, #yyyy-mm-dd#. Empty for a text of another form.
std::optional<Gun> TarihDegeriCoz(MetinBakis metin);

/// #yyyy-mm-dd#
Metin TarihDegeri(const Gun& gun);

/// The number of the last day of the day's month, 28 to 31.
unsigned AyinSonGunu(const Gun& gun);

/// dd.mm.yyyy
Metin TarihMetni(const Gun& gun);

/// A date text through one of the patterns "ddd", "dddd", "dd.mm.yyyy", "yyyy", "mm", "dd". Day names are
/// Turkish, short (Pzt) and long (Pazartesi). A text that is no real date comes back unchanged, and so does
/// one asked for in another pattern.
Metin Bicimle(MetinBakis tarih, MetinBakis desen);

} // namespace velora
