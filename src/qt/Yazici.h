#pragma once

#include <filesystem>
#include <vector>

#include <QString>

#include "screen/Sayfa.h"

namespace velora {

// Each may stand still for as long as the print system or the disk does: work for a thread of its own.

/// Prints the pages in one job of that name on the user's default printer. False: there is none, or the
/// system didn't take the job.
bool YaziciyaBas(const std::vector<Sayfa>& sayfalar, const QString& isAdi);

/// Writes the pages as a PDF file of that title, its texts as texts. False: what stood there is as it was.
bool PdfYaz(const std::vector<Sayfa>& sayfalar, const QString& isAdi, const std::filesystem::path& dosya);

} // namespace velora
