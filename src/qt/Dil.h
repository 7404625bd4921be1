#pragma once

namespace velora {

/// Turkish, whatever the system speaks: dates and calendars, and what the toolkit itself says, as the menus
/// of its fields do. Where the toolkit's Turkish texts aren't installed, these menus stay English. Called
/// once, before the first window.
void DiliKur();

} // namespace velora
