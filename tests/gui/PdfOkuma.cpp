#include "gui/PdfOkuma.h"

#include <QProcess>

namespace velora::test {

namespace {

constexpr int kProgramMs = 20'000;

QString DosyaAdi(const std::filesystem::path& dosya) {
    return QString::fromStdU16String(dosya.u16string());
}

} // namespace

QByteArray Cikti(const QString& program, const QStringList& sozler) {
    QProcess surec;
    surec.start(program, sozler, QIODevice::ReadOnly);
    const bool tamam = surec.waitForFinished(kProgramMs) && surec.exitStatus() == QProcess::NormalExit &&
                       surec.exitCode() == 0;
    if (!tamam)
        qWarning("%s: %s", qPrintable(program), surec.readAllStandardError().constData());
    return tamam ? surec.readAllStandardOutput() : QByteArray();
}

QString PdfMetni(const std::filesystem::path& dosya) {
    return QString::fromUtf8(Cikti(QStringLiteral("pdftotext"),
                                   {QStringLiteral("-layout"), DosyaAdi(dosya), QStringLiteral("-")}));
}

QString PdfBilgisi(const std::filesystem::path& dosya) {
    return QString::fromUtf8(
        Cikti(QStringLiteral("pdfinfo"), {QStringLiteral("-f"), QStringLiteral("1"), QStringLiteral("-l"),
                                          QStringLiteral("99"), DosyaAdi(dosya)}));
}

QImage PdfResmi(const std::filesystem::path& dosya, int sayfa, int incelik) {
    const QString no = QString::number(sayfa);
    return QImage::fromData(Cikti(QStringLiteral("pdftoppm"),
                                  {QStringLiteral("-f"), no, QStringLiteral("-l"), no, QStringLiteral("-r"),
                                   QString::number(incelik), QStringLiteral("-png"), DosyaAdi(dosya)}),
                            "PNG");
}

} // namespace velora::test
