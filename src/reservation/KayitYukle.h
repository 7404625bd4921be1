#pragma once

#include <optional>

#include "storage/Metin.h"

namespace velora {

struct ListeSatiri;
struct Program;

/// Opens an existing reservation: fills `FormKayit` from the three files behind `yol`, the path of the main
/// file, and shows it over the others. Returns when it has closed.
///
/// `tarih` is the date heading of the record, a day file name; without it the heading is `SeciliTarih` of
/// `FormTablo`. With the main file missing the screen holds a new record; with its details missing too, or
/// only those missing, nothing is shown, no message says so, and `FormKayit` ends unloaded.
void KayitYukle(Program& program, const Metin& yol, const std::optional<Metin>& tarih = {});

/// Opens the reservation of a list's row as an existing one: its first column is the day file name, its tag
/// the path. First the table goes to that hall and that year; an empty one leaves it. A row without a text
/// opens nothing. The row is taken as it is now: what runs meanwhile may list anew.
void SatiriAc(Program& program, ListeSatiri satir, const Metin& salon, const Metin& yil = {});

} // namespace velora
