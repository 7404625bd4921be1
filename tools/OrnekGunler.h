#pragma once

#include <vector>

#include "storage/VeriAgaci.h"
#include "tools/OrnekFirma.h"
#include "tools/OrnekRastgele.h"

namespace velora::ornek {

/// A slot of a year. With `Istek::tumAdlar` its day may be one that the month hasn't got.
struct Dilim {
    Gun gun{};
    GunduzGece dilim = GunduzGece::Gunduz;
};

/// The number of a day on one time line; a day beyond its month's end counts into the next month.
int GunNo(const Gun& gun);

/// The day with this number.
Gun GunuBul(int no);

/// Draws the slots of a hall's year that are to be taken, each at most once, in the order of the year. More
/// near today, at weekends, in the evening and in the wedding season. All slots when there are no more than
/// wanted.
std::vector<Dilim> DilimleriSec(const Istek& istek, int yil, Rastgele& rastgele);

} // namespace velora::ornek
