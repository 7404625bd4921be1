#include "reservation/AramaOkumasi.h"

#include <algorithm>

#include "storage/YazimBicimi.h"

namespace velora {

namespace {

/// Fills the values that the file holds and says how many of them there are.
std::size_t DegerleriOku(std::string_view bayt, AramaDegerleri& degerler) {
    DegerOkuyucu okuyucu(bayt);
    int okunan = 0;
    std::size_t adet = 0;
    for (const int no : kAramaNumaralari) {
        okunan += okuyucu.Atla(no - 1 - okunan);
        if (okunan < no - 1 || !okuyucu.Oku(degerler[adet]))
            break;
        ++okunan;
        ++adet;
    }
    return adet;
}

} // namespace

AramaOkumasi::AramaOkumasi(const Dosyalar& dosyalar, const Metin& klasor) {
    dosyalar.KlasoruOku(klasor, [this](const Dosyalar::OkunanDosya& okunan) {
        Dosya dosya{Metin(okunan.ad), 0, {}};
        dosya.adet = DegerleriOku(okunan.bayt, dosya.deger);
        dosyalari_.push_back(std::move(dosya));
    });
}

const AramaOkumasi::Dosya* AramaOkumasi::Bul(MetinBakis ad) {
    if (siradaki_ < dosyalari_.size() && dosyalari_[siradaki_].ad == ad)
        return &dosyalari_[siradaki_++];
    auto yer =
        std::lower_bound(dosyalari_.begin(), dosyalari_.end(), ad,
                         [](const Dosya& dosya, MetinBakis aranan) { return AdSirasi(dosya.ad, aranan); });
    if (yer != dosyalari_.end() && yer->ad == ad) {
        siradaki_ = static_cast<std::size_t>(yer - dosyalari_.begin()) + 1;
        return &*yer;
    }
    // Names that differ only in case stand side by side: the first of them.
    while (yer != dosyalari_.begin() && AyniAd(std::prev(yer)->ad, ad))
        --yer;
    return yer != dosyalari_.end() && AyniAd(yer->ad, ad) ? &*yer : nullptr;
}

bool AramaOkumasi::Oku(MetinBakis ad, AramaDegerleri& hedef) {
    const Dosya* dosya = Bul(ad);
    if (dosya == nullptr)
        return false;
    std::copy_n(dosya->deger.begin(), dosya->adet, hedef.begin());
    return dosya->adet > 0;
}

} // namespace velora
