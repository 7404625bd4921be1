#include "access/Baslangic.h"

#include "screen/Program.h"

namespace velora {

void ProgramiHazirla(Program& program) {
    const Metin menuler = program.agac.KokYolu(kMenuDosyasi);
    if (!program.dosyalar.VarMi(menuler))
        program.dosyalar.Yaz(menuler, {});
}

} // namespace velora
