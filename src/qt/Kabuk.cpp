#include "qt/Kabuk.h"

#include <QDesktopServices>
#include <QString>
#include <QUrl>

#include "qt/Ceviri.h"

namespace velora {

bool DosyaAc(const std::filesystem::path& yol) {
    const QString ad = QString::fromStdU16String(yol.u16string());
    std::error_code hata;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(ad)) && std::filesystem::exists(yol, hata);
}

bool AdresAc(const Metin& adres) {
    const QUrl sayfa(QMetin(adres), QUrl::StrictMode);
    const bool web = sayfa.scheme() == QStringLiteral("http") || sayfa.scheme() == QStringLiteral("https");
    return web && !sayfa.host().isEmpty() && QDesktopServices::openUrl(sayfa);
}

} // namespace velora
