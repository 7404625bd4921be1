#include "access/Baslangic.h"

#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora {

void ProgramiHazirla(Program& program) {
    const Metin menuler = program.agac.KokYolu(kMenuDosyasi);
    if (!program.dosyalar.VarMi(menuler))
        program.dosyalar.Yaz(menuler, {});
    program.FormTablo->TutarDegistir = 1;
}

} // namespace velora
