#include "reservation/AramaOkumasi.h"

namespace velora {

bool AramaOkumasi::Oku(MetinBakis ad, AramaDegerleri& hedef) {
    const bool sirada = siradaki_ < okuma_.Sayi() && okuma_[siradaki_] == ad;
    const auto sira = sirada ? std::optional(siradaki_) : okuma_.Bul(ad);
    return sira && Oku(*sira, hedef);
}

bool AramaOkumasi::Oku(std::size_t sira, AramaDegerleri& hedef) {
    siradaki_ = sira + 1;
    const auto bayt = okuma_.Oku(sira);
    return bayt && DegerleriAl(*bayt, kAramaNumaralari, hedef) > 0;
}

} // namespace velora
