#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

// The fields that the reports have in common, filled from the table and the clock.

/// The halls of the table, with the one that is chosen there.
void SalonlariAl(Program& program, AcilirListe& salonlar);

/// The first and the last day of this month.
void BuAyiSec(const Program& program, TarihSecici& ilk, TarihSecici& son);

/// Holds a date in the year of the table; outside of it, it goes to the nearer end.
void YilaSinirla(Program& program, TarihSecici& secici);

} // namespace velora
