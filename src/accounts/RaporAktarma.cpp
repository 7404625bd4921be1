#include "accounts/RaporAktarma.h"

#include "screen/Program.h"
#include "storage/xls/Xls.h"

namespace velora {

void RaporAktar(Program& program, std::vector<Metin> basliklar, const ListeGorunumu& liste) {
    const Metin yol = program.agac.KokYolu(kRaporDosyasi);
    const Dosyalar::GunlukDisi gecici(program.dosyalar);
    program.dosyalar.Sil(yol);
    XlsTablosu tablo{.basliklar = std::move(basliklar), .satirlar = {}, .sayiSutunlari = liste.sayiSutunlari};
    tablo.satirlar.reserve(liste.satirlar.size());
    for (const ListeSatiri& satir : liste.satirlar)
        tablo.satirlar.emplace_back(satir.sutun);
    program.dosyalar.Yaz(yol, XlsYaz(tablo, program.ortam.olaylar.nefes));
    if (const auto sistemYolu = program.dosyalar.SistemYolu(yol))
        program.ortam.kabuk.dosyaAc(*sistemYolu);
}

} // namespace velora
