#include "qt/documents/BaskiPencereleri.h"

#include "documents/FormMakbuzPrint.h"
#include "documents/FormTabloPrint.h"

namespace velora {

namespace {

// Large enough for the half sheet of a receipt, and for the whole sheet of the table.
constexpr QSize kMakbuzBoyu(680, 600);
constexpr QSize kTabloSayfasiBoyu(1180, 900);

} // namespace

MakbuzPenceresi::MakbuzPenceresi(Program& program)
    : BaskiPenceresi(program.FormMakbuzPrint.Tut(), program.ortam.kagit.olcer, kMakbuzBoyu) {}

TabloPrintPenceresi::TabloPrintPenceresi(Program& program)
    : BaskiPenceresi(program.FormTabloPrint.Tut(), program.ortam.kagit.olcer, kTabloSayfasiBoyu) {}

} // namespace velora
