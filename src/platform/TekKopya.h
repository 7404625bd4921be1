#pragma once

#include "screen/Ortam.h"

namespace velora {

/// Takes the place that there is once for each user on each machine, and holds it until this process ends,
/// however that comes: the system itself gives it free again. False when another process has it. True also
/// where the system can't tell, for that must keep nobody from his work.
bool TekKopyaMi();

/// Puts that into the outside world of a program.
void KopyayiBagla(Ortam& ortam);

} // namespace velora
