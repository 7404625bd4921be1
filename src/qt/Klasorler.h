#pragma once

class QString;

namespace velora {

/// The user's folder for the settings of this program. Empty where the system has none.
QString AyarKlasoru();

/// Where the user keeps documents.
QString BelgeKlasoru();

} // namespace velora
