#pragma once

#include "storage/Metin.h"

namespace velora {

/// Names of a tree that was carried over from another machine. On its way the letters of a name may have
/// become the bytes of Windows-1254, or a plain letter with its mark behind it.

/// Brings a name from the disk into the form that the program's own names have: bytes that are no UTF-8 are
/// taken as Windows-1254, and a letter with its mark behind it becomes one letter. False: it has that form
/// already and stays.
bool AdDuzelt(Metin& ad);

/// What is the same for two names exactly when a Windows machine would take them for one: the form above,
/// without regard to case, and without the dots and blanks at the end, which that system drops.
Metin AdAnahtari(MetinBakis ad);

} // namespace velora
