#pragma once

#include <string>

#include "tools/OrnekFirma.h"
#include "tools/OrnekRastgele.h"

namespace velora::ornek {

/// The bytes of the expenses of a hall's year, by date, as entering them one by one leaves them: the date a
/// bare literal #yyyy-mm-dd#. The year's insurance stands on its second day; all others lie no later than
/// today.
std::string GiderBayt(const Istek& istek, int yil, Rastgele& rastgele);

} // namespace velora::ornek
