#include "maintenance/FormResmiTatil.h"

#include "screen/Program.h"
#include "storage/ListeDosyasi.h"

namespace velora {

FormResmiTatil::FormResmiTatil(Program& program) : program_(program) {
    Liste.basliklar = {u"Tarih", u"Açıklama", u"Tekrar", u""};
}

void FormResmiTatil::Load() {
    Liste.satirlar.clear();
    for (auto& sutunlar :
         SatirlariOku(program_.dosyalar, program_.agac.KokYolu(kTatilDosyasi), Liste.basliklar.size()))
        Liste.satirlar.push_back({std::move(sutunlar), {}, 0});
}

} // namespace velora
