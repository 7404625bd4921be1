#pragma once

#include "qt/table/TabloDuzeni.h"

namespace velora {

/// True for the keys that move the pointer cell: arrows, Home, End, PgUp, PgDn.
bool GezinmeTusu(int tus);

/// The cell from which the keys start when the pointer has been nowhere: today's, or the first one shown.
/// Bare when the table shows no cell.
TabloIsabeti IlkGoz(const FormTablo& tablo, const Gun& bugun);

/// The shown cell to which a key moves from another. Left and right go by days within the row, Home and End
/// to its ends, up and down by rows as they stand on the screen, PgUp and PgDn by months. In a shorter month
/// it is the last day; at the edge of the table it is the cell itself.
TabloIsabeti TusunGozu(const FormTablo& tablo, const TabloIsabeti& goz, int tus);

} // namespace velora
