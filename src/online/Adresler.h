#pragma once

#include "storage/Metin.h"

namespace velora {

struct Program;

/// What the firm that sells the program tells it of its places on the network.
struct Adresler {
    Metin servis; ///< where the scripts of the service are
    Metin site;   ///< the product site
    Metin yardim; ///< the help page
    Metin satir;  ///< the line that stands below the printed table
};

/// Reads `Adresler.dat`. With no such file, or one of fewer than four values, all are empty and the program
/// is offline. Blanks about an address don't count.
Adresler AdresleriOku(const Program& program);

/// The address of a script or a file at one of these places: the place, a "/" where it doesn't end with one,
/// and the name. Empty without a place.
Metin YerAdresi(Metin yer, MetinBakis ad);

} // namespace velora
