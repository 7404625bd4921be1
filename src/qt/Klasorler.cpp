#include "qt/Klasorler.h"

#include <QStandardPaths>

namespace velora {

QString AyarKlasoru() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
}

QString BelgeKlasoru() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString EvKlasoru() {
    return QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
}

std::filesystem::path YedekKlasoru() {
    constexpr bool kSuruculu = std::filesystem::path::preferred_separator == '\\';
    return std::filesystem::path(kSuruculu ? std::u16string(u"C:\\") : EvKlasoru().toStdU16String()) /
           u"VRYedek";
}

} // namespace velora
