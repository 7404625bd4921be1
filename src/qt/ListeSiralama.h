#pragma once

#include <vector>

#include <Qt>

#include "screen/Kontroller.h"

namespace velora {

/// The indices of a list's rows in the order in which they are seen. By a column: dates as dates, of one day
/// the day slot before the evening slot, in front of all that is no date; columns of numbers as numbers; all
/// else as Turkish texts. Rows that are equal there, and all rows when there is no such column, stand as in
/// the model.
std::vector<int> GorunenSira(const ListeGorunumu& liste, int sutun, Qt::SortOrder yon);

} // namespace velora
