#pragma once

namespace velora {

/// The Backspace key, as the character it types.
inline constexpr char16_t kGeriSilTusu = 8;

/// The key filter of number fields: whether a key that types this character gets through. Only the digits 0
/// to 9 and Backspace do. Filters bind typing and pasting alone; a text set by code stands whole.
constexpr bool YalnizRakam(char16_t tus) {
    return tus == kGeriSilTusu || (u'0' <= tus && tus <= u'9');
}

} // namespace velora
