#pragma once

#include <filesystem>

class QString;

namespace velora {

/// The user's folder for the settings of this program. Empty where the system has none.
QString AyarKlasoru();

/// Where the user keeps documents.
QString BelgeKlasoru();

/// The user's own folder.
QString EvKlasoru();

/// Where backups go as long as nothing else is said: on the first drive, or in the user's own folder where a
/// system has no drives.
std::filesystem::path YedekKlasoru();

} // namespace velora
