#include "storage/dosya/KlasorBellegi.h"

#include <algorithm>

namespace velora {

namespace {

// More than any year needs; whatever is beyond it is read each time.
constexpr std::size_t kEnUzunSaklanan = std::size_t{256} << 10U;
constexpr std::size_t kEnCokSaklanan = std::size_t{16} << 20U;

} // namespace

void KlasorBellegi::Basla(const std::filesystem::path& klasor) {
    Unut();
    klasor_ = klasor;
    gozcu_.Izle(klasor_); // before the first listing: no change gets lost
}

void KlasorBellegi::Unut() {
    gozcu_.Birak();
    klasor_.clear();
    acik_.reset();
    adlar_ = {};
    icerikler_.clear();
}

bool KlasorBellegi::Tazele() {
    std::vector<Metin> degisenler;
    if (!gozcu_.Degisenler([&](MetinBakis ad) { degisenler.emplace_back(ad); }))
        return false;
    if (acik_ == nullptr || !degisenler.empty())
        Listele(degisenler);
    // What a link leads to lies elsewhere.
    return !acik_->BaglantiVar();
}

/// Lists anew and takes over what is known of the names that haven't changed.
void KlasorBellegi::Listele(const std::vector<Metin>& degisenler) {
    acik_ = std::make_unique<sistem::Klasor>(klasor_);
    AdListesi yeni;
    Metin ad;
    while (acik_->Sonraki(ad, sistem::Tur::Dosya))
        yeni.Ekle(ad);
    yeni.Sirala();
    std::vector<std::optional<std::string>> icerikler(yeni.Sayi());
    bayt_ = 0;
    // Both are in the same order: a name that is in both stands behind the ones that are gone.
    std::size_t eski = 0;
    for (std::size_t i = 0; i < yeni.Sayi(); ++i) {
        std::size_t yer = eski;
        while (yer < adlar_.Sayi() && adlar_.Diskteki(yer) != yeni.Diskteki(i))
            ++yer;
        if (yer == adlar_.Sayi())
            continue; // a new one
        eski = yer + 1;
        if (icerikler_[yer] && std::ranges::find(degisenler, yeni.Diskteki(i)) == degisenler.end()) {
            icerikler[i] = std::move(icerikler_[yer]);
            bayt_ += icerikler[i]->size();
        }
    }
    adlar_ = std::move(yeni);
    icerikler_ = std::move(icerikler);
}

std::optional<std::string_view> KlasorBellegi::Oku(std::size_t sira, std::size_t enCok, std::string& tampon,
                                                   std::size_t& okunan) {
    auto& icerik = icerikler_[sira];
    if (icerik)
        return *icerik;
    ++okunan;
    const auto bayt = acik_->Oku(adlar_.Diskteki(sira), enCok, tampon);
    // A failure may be over at the next reading without a change in the folder.
    if (bayt && bayt->size() <= kEnUzunSaklanan && bayt_ + bayt->size() <= kEnCokSaklanan) {
        icerik.emplace(*bayt);
        bayt_ += bayt->size();
    }
    return bayt;
}

} // namespace velora
