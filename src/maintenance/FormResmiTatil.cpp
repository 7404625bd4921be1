#include "maintenance/FormResmiTatil.h"

#include "screen/Program.h"
#include "storage/YazimBicimi.h"

namespace velora {

FormResmiTatil::FormResmiTatil(Program& program) : program_(program) {
    Liste.basliklar = {u"Tarih", u"Açıklama", u"Tekrar", u""};
}

void FormResmiTatil::Load() {
    Liste.satirlar.clear();
    const auto bayt = program_.dosyalar.Oku(program_.agac.KokYolu(u"Tatiller.dll"));
    if (!bayt)
        return;
    DegerOkuyucu okuyucu(*bayt);
    // One set of targets for the whole file: a cut off last record keeps the values of the one before.
    Metin tarih;
    Metin aciklama;
    Metin tekrar;
    Metin kaynak;
    while (!okuyucu.Sonda()) {
        okuyucu.Oku(tarih, aciklama, tekrar, kaynak);
        if (!Kirp(tarih).empty())
            Liste.satirlar.push_back({{tarih, aciklama, tekrar, kaynak}, {}, 0});
    }
}

} // namespace velora
