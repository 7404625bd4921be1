#pragma once

#include <filesystem>

#include "storage/Metin.h"
#include "storage/Tarih.h"

namespace velora {

// Paths of the backup are texts as the system writes them, for the user reads and types them. `ayrac` is the
// separator between their names.

/// The one of this system.
inline constexpr auto kSistemAyraci = static_cast<char16_t>(std::filesystem::path::preferred_separator);

/// The folder "VRYedek" in the one that was chosen. In the whole text each doubled separator then becomes
/// one, once: so the root of a drive works, and a folder of the network ("\\\\...") doesn't.
Metin HedefYolu(MetinBakis secilen, char16_t ayrac = kSistemAyraci);

/// The folder of a day's backup, as "...\22_11_2026".
Metin GunlukYol(MetinBakis hedef, const Gun& gun, char16_t ayrac = kSistemAyraci);

/// Whether a path can only have come here from another system, with the data: one with a drive's letter or
/// a first backslash where names stand between "/", one with a first "/" where it is the other way round.
bool BaskaSistemin(MetinBakis yol, char16_t ayrac = kSistemAyraci);

} // namespace velora
