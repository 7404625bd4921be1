#include "qt/Kabuk.h"

#include <QDesktopServices>
#include <QString>
#include <QUrl>

namespace velora {

void DosyaAc(const std::filesystem::path& yol) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdU16String(yol.u16string())));
}

} // namespace velora
