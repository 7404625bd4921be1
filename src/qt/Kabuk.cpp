#include "qt/Kabuk.h"

#include <QDesktopServices>
#include <QString>
#include <QUrl>

namespace velora {

bool DosyaAc(const std::filesystem::path& yol) {
    const QString ad = QString::fromStdU16String(yol.u16string());
    std::error_code hata;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(ad)) && std::filesystem::exists(yol, hata);
}

} // namespace velora
