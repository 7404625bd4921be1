#include "access/Kullanicilar.h"

#include <utility>

#include "screen/Program.h"
#include "storage/ListeDosyasi.h"

namespace velora {

SatirListesi KullanicilariOku(const Program& program, Koken* koken) {
    SatirListesi kullanicilar;
    for (auto& degerler : SatirlariOku(program.dosyalar, program.agac.KokYolu(kKullaniciDosyasi),
                                       kKullaniciDegerSayisi, koken))
        kullanicilar.push_back({std::move(degerler), {}, 0});
    return kullanicilar;
}

void KullanicilariYaz(const Program& program, const SatirListesi& kullanicilar, const Koken& koken) {
    std::vector<SutunMetinleri> satirlar;
    for (const ListeSatiri& kullanici : kullanicilar)
        satirlar.push_back(kullanici.sutun);
    const Dosyalar::Eylem eylem(program.dosyalar, u"Kullanıcı kaydı");
    SatirlariYaz(program.dosyalar, program.agac.KokYolu(kKullaniciDosyasi), satirlar, koken);
}

ListeSatiri KullaniciSatiri(const Metin& ad, const Metin& parola,
                            const std::array<Metin, kYetkiSayisi>& yetkiler) {
    ListeSatiri satir{{ad, parola}, {}, 0};
    satir.sutun.insert(satir.sutun.end(), yetkiler.begin(), yetkiler.end());
    return satir;
}

} // namespace velora
