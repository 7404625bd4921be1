#pragma once

#include <vector>

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// Gives a report's list to the user's spreadsheet program: `Rapor.xls` in the program's folder is deleted,
/// written with these headings and the rows as they stand, and opened. Each step runs also when the one
/// before it has failed, and none tells: a file that can't be replaced is opened as it is.
///
/// Opening may let events run, behind all that is done with the list.
void RaporAktar(Program& program, std::vector<Metin> basliklar, const ListeGorunumu& liste);

} // namespace velora
