#pragma once

#include <optional>

#include "storage/Metin.h"

namespace velora {

struct Program;

/// Opens an existing reservation: fills `FormKayit` from the three files behind `yol`, the path of the main
/// file, and shows it over the others. Returns when it has closed.
///
/// `tarih` is the date heading of the record, a day file name; without it the heading is `SeciliTarih` of
/// `FormTablo`. With the main file missing the screen holds a new record; with its details missing too, or
/// only those missing, nothing is shown, no message says so, and `FormKayit` ends unloaded.
void KayitYukle(Program& program, const Metin& yol, const std::optional<Metin>& tarih = {});

} // namespace velora
