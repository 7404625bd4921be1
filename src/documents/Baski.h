#pragma once

#include <initializer_list>

#include "screen/Sayfa.h"

namespace velora {

struct Program;

/// What a page is called: as a job of the printer, and, with ".pdf" behind it, as the file that is offered.
/// The parts that aren't empty, with " - " between them; what no file name may hold becomes a blank.
Metin BaskiAdi(std::initializer_list<MetinBakis> parcalar);

/// Prints the pages on the default printer. False: there is none, or it didn't take them.
bool Yazdir(const Program& program, const std::vector<Sayfa>& sayfalar, const Metin& ad);

/// Asks for a place and saves the pages there as PDF. A box tells when the file can't be written; cancelled,
/// nothing happens.
void PdfKaydet(const Program& program, const std::vector<Sayfa>& sayfalar, const Metin& ad);

} // namespace velora
