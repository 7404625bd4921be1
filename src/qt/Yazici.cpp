#include "qt/Yazici.h"

#include <QBuffer>
#include <QLibrary>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>

#include "qt/SayfaCizimi.h"

namespace velora {

namespace {

constexpr double kMmInc = 25.4;
constexpr int kPdfInceligi = 1200; // units of an inch

void KagidiVer(QPagedPaintDevice& aygit, const Sayfa& sayfa) {
    aygit.setPageOrientation(sayfa.yon == Yon::Dik ? QPageLayout::Portrait : QPageLayout::Landscape);
}

/// Paints each page on a sheet of its own.
bool SayfalariBas(QPagedPaintDevice& aygit, const std::vector<Sayfa>& sayfalar) {
    if (sayfalar.empty())
        return false;
    aygit.setPageSize(QPageSize(QPageSize::A4));
    KagidiVer(aygit, sayfalar.front());
    QPainter boyaci;
    if (!boyaci.begin(&aygit))
        return false;
    const double olcek = aygit.logicalDpiX() / kMmInc;
    for (const Sayfa& sayfa : sayfalar) {
        if (&sayfa != &sayfalar.front()) {
            KagidiVer(aygit, sayfa);
            if (!aygit.newPage())
                return false;
        }
        SayfayiCiz(boyaci, sayfa, olcek);
    }
    return boyaci.end();
}

/// Whether CUPS took the last job of this thread: the toolkit asks it to and doesn't listen to the answer.
/// Where there is no CUPS, painting would have failed.
bool SistemAldi() {
    constexpr int kIlkHata = 0x100;
    using SonDurum = int (*)();
    static const auto kSonDurum =
        reinterpret_cast<SonDurum>(QLibrary::resolve(QStringLiteral("cups"), 2, "cupsLastError"));
    return kSonDurum == nullptr || kSonDurum() < kIlkHata;
}

} // namespace

bool YaziciyaBas(const std::vector<Sayfa>& sayfalar, const QString& isAdi, const Vazgecildi& vazgecildi) {
    const QPrinterInfo bilgi = QPrinterInfo::defaultPrinter();
    if (bilgi.isNull()) // the toolkit would write a file of its own
        return false;
    QPrinter yazici(bilgi, QPrinter::HighResolution);
    yazici.setDocName(isAdi);
    yazici.setCreator(QStringLiteral("Velora"));
    yazici.setFullPage(true);
    if (vazgecildi())
        return false;
    return SayfalariBas(yazici, sayfalar) && SistemAldi();
}

bool PdfYaz(const std::vector<Sayfa>& sayfalar, const QString& isAdi, const std::filesystem::path& dosya,
            const Vazgecildi& vazgecildi) {
    // A device or a pipe would be replaced by the file.
    std::error_code hata;
    const auto orada = std::filesystem::status(dosya, hata).type();
    if (orada != std::filesystem::file_type::not_found && orada != std::filesystem::file_type::regular)
        return false;
    QBuffer baytlar;
    if (!baytlar.open(QIODevice::WriteOnly))
        return false;
    {
        QPdfWriter pdf(&baytlar);
        pdf.setTitle(isAdi);
        pdf.setCreator(QStringLiteral("Velora"));
        pdf.setResolution(kPdfInceligi);
        pdf.setPageMargins({});
        if (!SayfalariBas(pdf, sayfalar))
            return false;
    }
    // Beside the old file first; it takes its place only when all of it is on the disk. A write that is kept
    // back would fail unseen.
    QSaveFile hedef(QString::fromStdU16String(dosya.u16string()));
    return hedef.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
           hedef.write(baytlar.data()) == baytlar.size() && !vazgecildi() && hedef.commit();
}

} // namespace velora
