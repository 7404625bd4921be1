#pragma once

#include <vector>

#include "storage/Koken.h"
#include "storage/Metin.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

/// The firm's list files: one record after another, each of the same number of texts, the list's columns.
using SutunMetinleri = std::vector<Metin>;

/// Reads the records, `sutun` values each. One whose first value is blank is left out. A cut off last record
/// keeps the values of the record before, also when that one was left out. A missing file, and one that
/// can't be read, gives no records: who writes back what comes of it wants the difference in `koken`.
std::vector<SutunMetinleri> SatirlariOku(const Dosyalar& dosyalar, const Metin& yol, std::size_t sutun,
                                         Koken* koken = nullptr);

/// Makes the file hold these records, one on a line, texts uncleaned. False when it can't, and where
/// `koken` lets nothing be written; what the disk held then stays.
bool SatirlariYaz(const Dosyalar& dosyalar, const Metin& yol, const std::vector<SutunMetinleri>& satirlar,
                  const Koken& koken = {});

} // namespace velora
