#pragma once

#include <string>
#include <string_view>

namespace velora {

/// The text of the whole system. One unit is one character, as one byte is in the files, so that "characters
/// 4 and 5" of a text are a plain substring.
using Metin = std::u16string;
using MetinBakis = std::u16string_view;

/// The text without the blanks (U+0020) at both ends. Tabs and line ends stay: they are part of the text.
MetinBakis Kirp(MetinBakis metin);

/// `adet` characters from `ilk` on, counted from 1. What lies outside the text is left out; never fails.
MetinBakis Parca(MetinBakis metin, std::size_t ilk, std::size_t adet);

/// The last `adet` characters, or the whole text when it is shorter.
MetinBakis Son(MetinBakis metin, std::size_t adet);

/// Decimal digits of a whole number, with a minus when negative.
Metin SayiMetni(long long sayi);

/// `sayi` with at least two digits: 5 gives "05", 12 gives "12". For days and months.
Metin IkiHane(unsigned sayi);

} // namespace velora
