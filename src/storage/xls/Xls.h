#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "storage/Metin.h"

namespace velora {

/// A table for a spreadsheet program. The texts stay the caller's.
struct XlsTablosu {
    std::vector<Metin> basliklar;                 ///< of the columns
    std::vector<std::span<const Metin>> satirlar; ///< cell texts; an empty one is an empty cell
    std::vector<int> sayiSutunlari;               ///< columns, from 0, whose plain numbers become numbers
};

/// The bytes of a true .xls file (BIFF8 records in a compound file) that shows the table: the headings bold
/// on yellow, and they stay in view; columns as wide as what they hold, within limits; on paper A4 across,
/// no page beside another.
///
/// Every cell is a text, also one that looks like a formula, a date or a number; in the columns named above a
/// text is a number when `DuzSayi` says so. Texts are cut as `XlsMetni` tells. What doesn't fit into the
/// 65,536 rows of a sheet goes on in the next one, under the headings again. Columns behind the 256th are
/// left out. `arada` runs behind each sheet.
std::string XlsYaz(
    const XlsTablosu& tablo, const std::function<void()>& arada = [] {});

} // namespace velora
