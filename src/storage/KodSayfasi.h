#pragma once

#include "storage/Metin.h"

namespace velora {

/// Windows-1254, the code page of all record files. The seven bytes that it leaves undefined stand for the
/// control characters of the same number, so that all 256 bytes survive a round trip.

/// The text that the bytes stand for, one unit for each byte.
Metin KodCoz(std::string_view bayt);
/// The same into a text that is there already, so that a loop needs no memory of its own.
void KodCoz(std::string_view bayt, Metin& hedef);

/// The bytes of a text. A character outside the code page becomes "?", a surrogate pair one "?".
std::string KodYaz(MetinBakis metin);

/// The text as it would come back from a file: each character outside the code page is a "?".
Metin KodaSigdir(MetinBakis metin);

/// True when the code page has a byte for the character.
bool KodVar(char16_t harf);

} // namespace velora
