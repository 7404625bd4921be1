#pragma once

#include "storage/Metin.h"

namespace velora {

/// Whether the whole text has the form of the pattern, letter by letter with regard to case. In a pattern
///
/// - `*` stands for any run of characters, also for none; `?` for any one; `#` for one digit, 0 to 9;
/// - `[list]` for one character of the list, `[!list]` for one that isn't in it. "a-f" in a list is the range
/// from a
///   to f by character code; a "-" at either end of a list is itself. `[]` stands for nothing, `[!]` for a
///   "!".
/// - Anything else stands for itself, a "]" without a list too.
///
/// A malformed pattern, with a list that never ends or a range that runs backwards, fits no text.
bool DeseneUyar(MetinBakis metin, MetinBakis desen);

} // namespace velora
