#pragma once

#include "reservation/FormArama.h"
#include "screen/Program.h"

namespace velora::test {

/// The search in its plain form, kept to compare the fast one with: every name of every folder is opened, and
/// its first 14 values are read into variables that are never cleared. `olcutler` are the five fields. The
/// rows, in order.
std::vector<ListeSatiri> ReferansAra(const Program& program, const std::vector<Metin>& salonlar,
                                     const std::vector<Metin>& seneler, const Metin& sene,
                                     const std::array<Metin, 5>& olcutler);

} // namespace velora::test
