#include "storage/ListeDosyasi.h"

#include "storage/YazimBicimi.h"

namespace velora {

std::vector<SutunMetinleri> SatirlariOku(const Dosyalar& dosyalar, const Metin& yol, std::size_t sutun,
                                         Koken* koken) {
    std::vector<SutunMetinleri> satirlar;
    const auto bayt = KokenleOku(dosyalar, yol, koken);
    if (!bayt || sutun == 0)
        return satirlar;
    DegerOkuyucu okuyucu(*bayt);
    SutunMetinleri hedef(sutun);
    while (!okuyucu.Sonda()) {
        for (Metin& deger : hedef)
            okuyucu.Oku(deger);
        if (!Kirp(hedef.front()).empty())
            satirlar.push_back(hedef);
    }
    return satirlar;
}

bool SatirlariYaz(const Dosyalar& dosyalar, const Metin& yol, const std::vector<SutunMetinleri>& satirlar,
                  const Koken& koken) {
    DegerYazici yazici;
    for (const SutunMetinleri& satir : satirlar) {
        for (const Metin& deger : satir)
            yazici.Parca(deger);
        yazici.SatirSonu();
    }
    return koken.Yaz(dosyalar, yol, yazici.Bayt());
}

} // namespace velora
