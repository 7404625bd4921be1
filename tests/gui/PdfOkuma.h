#pragma once

#include <filesystem>

#include <QImage>
#include <QString>
#include <QStringList>

namespace velora::test {

/// What a program writes to its output. Empty when it fails, or doesn't end in time.
QByteArray Cikti(const QString& program, const QStringList& sozler);

// A PDF file through the eyes of a reader that isn't ours.

/// Its texts, as somebody finds them who searches in it.
QString PdfMetni(const std::filesystem::path& dosya);

/// What it tells of itself: title, and the size of each page.
QString PdfBilgisi(const std::filesystem::path& dosya);

/// A page, counted from 1, as it is seen, so many pixels an inch.
QImage PdfResmi(const std::filesystem::path& dosya, int sayfa, int incelik);

} // namespace velora::test
