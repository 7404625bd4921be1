#pragma once

#include <functional>

#include "qt/table/TabloDuzeni.h"

class QAccessibleEvent;

namespace velora {

class TabloGorunumu;

/// The year table for those who can't see it: a table of 24 rows, as they stand on the screen, and 31
/// columns. Each cell is called by its day, slot and state, and described by what the hover label says of it;
/// its holiday is its help. The heads of months and days are the headers. What else stands on the table
/// follows behind them.
///
/// From here on the toolkit asks this program for the tables of it.
void TabloErisiminiTanit();

/// The keys work on another cell now, or on none.
void TabloOdaginiBildir(TabloGorunumu& gorunum, const TabloIsabeti& goz);

/// What is told of that goes here instead of to the system, which not every platform of the toolkit has;
/// empty: to the system again.
void TabloOdaginiDinle(std::function<void(QAccessibleEvent*)> dinleyici);

} // namespace velora
