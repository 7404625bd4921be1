#include "qt/Klasorler.h"

#include <QStandardPaths>

namespace velora {

QString AyarKlasoru() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
}

QString BelgeKlasoru() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace velora
