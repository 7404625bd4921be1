#include "qt/Kabuk.h"

#include <QDesktopServices>
#include <QProcess>
#include <QString>
#include <QUrl>

#include "qt/Ceviri.h"

namespace velora {

namespace {

/// While one stands, what is started begins in that folder; it stays where it was if it can't.
class CalismaKlasoru {
  public:
    explicit CalismaKlasoru(const std::filesystem::path& klasor)
        : onceki_(std::filesystem::current_path(hata_)) {
        std::filesystem::current_path(klasor, hata_);
    }
    CalismaKlasoru(const CalismaKlasoru&) = delete;
    CalismaKlasoru& operator=(const CalismaKlasoru&) = delete;
    ~CalismaKlasoru() { std::filesystem::current_path(onceki_, hata_); }

  private:
    std::error_code hata_;
    std::filesystem::path onceki_;
};

} // namespace

bool DosyaAc(const std::filesystem::path& yol) {
    const QString ad = QString::fromStdU16String(yol.u16string());
    const CalismaKlasoru klasor(yol.parent_path());
    std::error_code hata;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(ad)) && std::filesystem::exists(yol, hata);
}

bool ProgramCalistir(const std::filesystem::path& yol) {
    const auto metin = [](const std::filesystem::path& p) {
        return QString::fromStdU16String(p.u16string());
    };
    return QProcess::startDetached(metin(yol), {}, metin(yol.parent_path()));
}

bool AdresAc(const Metin& adres) {
    const QUrl sayfa(QMetin(adres), QUrl::StrictMode);
    const bool web = sayfa.scheme() == QStringLiteral("http") || sayfa.scheme() == QStringLiteral("https");
    return web && !sayfa.host().isEmpty() && QDesktopServices::openUrl(sayfa);
}

} // namespace velora
