#pragma once

#include <vector>

#include "storage/Metin.h"
#include "storage/dosya/Dosyalar.h"

namespace velora {

/// The firm's list files: one record after another, each of the same number of texts, the list's columns.
using SutunMetinleri = std::vector<Metin>;

/// Reads the records, `sutun` values each. One whose first value is blank is left out. A cut off last record
/// keeps the values of the record before, also when that one was left out. A missing file gives no records.
std::vector<SutunMetinleri> SatirlariOku(const Dosyalar& dosyalar, const Metin& yol, std::size_t sutun);

/// Makes the file hold these records, one on a line, texts uncleaned. False when it can't; what the disk held
/// then stays.
bool SatirlariYaz(const Dosyalar& dosyalar, const Metin& yol, const std::vector<SutunMetinleri>& satirlar);

} // namespace velora
