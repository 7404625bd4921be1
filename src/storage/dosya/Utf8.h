#pragma once

#include "storage/Metin.h"

namespace velora {

/// File names as bytes. A byte that belongs to no valid UTF-8 becomes the lone surrogate U+DC00 + byte and
/// goes back to that byte, so that every name survives.

/// Puts the text of the bytes in the place of `hedef`.
void Utf8Coz(std::string_view bayt, Metin& hedef);

/// Puts the bytes of the text behind `hedef`. False when the text holds a lone surrogate that stands for no
/// byte.
bool Utf8Ekle(MetinBakis metin, std::string& hedef);

} // namespace velora
