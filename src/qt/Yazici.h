#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include <QString>

#include "screen/Sayfa.h"

namespace velora {

// Each may stand still for as long as the print system or the disk does: work for a thread of its own. Nobody
// may wait for it any more when it goes on: it asks before each step that can't be taken back.

/// Whether nobody waits any more; asked in the thread of the work.
using Vazgecildi = std::function<bool()>;

/// Prints the pages in one job of that name on the user's default printer. False: there is none, or the
/// system didn't take the job.
bool YaziciyaBas(const std::vector<Sayfa>& sayfalar, const QString& isAdi, const Vazgecildi& vazgecildi);

/// Writes the pages as a PDF file of that title, its texts as texts. False: what stood there is as it was.
bool PdfYaz(const std::vector<Sayfa>& sayfalar, const QString& isAdi, const std::filesystem::path& dosya,
            const Vazgecildi& vazgecildi);

} // namespace velora
