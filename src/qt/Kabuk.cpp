#include "qt/Kabuk.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QString>
#include <QUrl>

namespace velora {

bool DosyaAc(const std::filesystem::path& yol) {
    const QString ad = QString::fromStdU16String(yol.u16string());
    return QDesktopServices::openUrl(QUrl::fromLocalFile(ad)) && QFileInfo::exists(ad);
}

} // namespace velora
