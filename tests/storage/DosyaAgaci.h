#pragma once

#include "destek/GeciciAgac.h"
#include "storage/dosya/Dosyalar.h"

namespace velora::test {

/// A temporary tree and the door under test over its root. The tree's own functions go past that door.
struct DosyaAgaci : GeciciAgac {
    Dosyalar dosyalar{Kok()};

    /// The path of a name in the root as the door takes it.
    Metin TamYol(MetinBakis ad) const { return dosyalar.Kok() + u"\\" + Metin(ad); }
};

} // namespace velora::test
