#pragma once

namespace velora {

/// Twips in one logical pixel of a view.
inline constexpr double kTwipPikseli = 15;

// The layout of the table works from an inner width and height of the screen. A view that wants the table to
// fill its own width or height asks here which inner length it has to report. All lengths are twips.

/// The inner width at which the last day column ends `genislik` from the left, less a small margin.
double TabloIcGenisligi(double genislik);

/// The inner height at which the last row ends `yukseklik` below the upper edge of the heads, less a small
/// margin.
double TabloIcYuksekligi(double yukseklik);

} // namespace velora
