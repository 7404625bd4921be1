#include "reservation/AramaOkumasi.h"

namespace velora {

bool AramaOkumasi::Oku(MetinBakis ad, AramaDegerleri& hedef) {
    const bool sirada = siradaki_ < okuma_.Sayi() && okuma_[siradaki_] == ad;
    const auto sira = sirada ? std::optional(siradaki_) : okuma_.Bul(ad);
    if (!sira)
        return false;
    siradaki_ = *sira + 1;
    const auto bayt = okuma_.Oku(*sira);
    return bayt && DegerleriAl(*bayt, kAramaNumaralari, hedef) > 0;
}

} // namespace velora
