#pragma once

namespace velora {

/// A key that is held down too long confirms or cancels once, not once more in the window that came up
/// meanwhile: repeats of Enter and Esc reach nothing but fields of many lines. Called once, before the first
/// window.
void TusTekrariniKes();

} // namespace velora
