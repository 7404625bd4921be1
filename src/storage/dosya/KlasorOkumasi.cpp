#include "storage/dosya/KlasorOkumasi.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "storage/dosya/Dosyalar.h"
#include "storage/dosya/OkumaBellegi.h"
#include "storage/dosya/OndenListe.h"
#include "storage/dosya/Sessiz.h"

namespace velora {

void KlasorOkumasi::Ac(const std::filesystem::path& klasor) {
    // Asked before the first reading: what is written from here on is younger.
    sinir_ = dosyalar_->bellek_->Sinir();
    const auto bellek = dosyalar_->bellek_->Al(klasor);
    auto listelenen = dosyalar_->onden_ ? dosyalar_->onden_->Al(klasor) : std::nullopt;
    // Who watches a folder must have begun before its listing. One that failed may do better now.
    if (listelenen && listelenen->acik->Tam() && !bellek->Izleniyor()) {
        acik_ = bellek->Al(std::move(*listelenen));
        bellek_ = bellek;
        return;
    }
    bellek->Tazele([&]() -> sistem::Klasor& {
        acik_ = std::make_unique<sistem::Klasor>(klasor);
        return *acik_;
    });
    bellek_ = bellek;
}

sistem::Klasor& KlasorOkumasi::Acik() {
    // Known names don't need the folder; it is opened for the first file, and tried again when that failed.
    if (acik_ == nullptr || !acik_->Acildi())
        acik_ = std::make_unique<sistem::Klasor>(bellek_->Klasor());
    return *acik_;
}

KlasorOkumasi::KlasorOkumasi(KlasorOkumasi&& baska) noexcept
    : dosyalar_(std::exchange(baska.dosyalar_, nullptr)), yol_(std::move(baska.yol_)), sinir_(baska.sinir_),
      acik_(std::move(baska.acik_)), bellek_(std::move(baska.bellek_)), tampon_(std::move(baska.tampon_)) {}

KlasorOkumasi::~KlasorOkumasi() {
    if (bellek_)
        Sessiz([&] { dosyalar_->bellek_->Okundu(bellek_); });
}

bool KlasorOkumasi::BiriUyar(std::size_t boy, const std::function<bool(MetinBakis bas)>& uyar) const {
    constexpr unsigned kYediBit = 0x80;
    Metin bas;
    for (std::size_t i = 0; bellek_ && i < bellek_->GelenAdlar().Sayi(); ++i) {
        const sistem::DiskAdi ad = bellek_->GelenAdlar().GelenAd(i).substr(0, boy);
        const auto kisa = [](sistem::AdHarfi harf) {
            return static_cast<std::make_unsigned_t<sistem::AdHarfi>>(harf) < kYediBit;
        };
        bas.resize(ad.size());
        std::ranges::copy(ad, bas.begin());
        if (!std::ranges::all_of(ad, kisa) || uyar(bas))
            return true;
    }
    return false;
}

std::optional<std::string_view> KlasorOkumasi::Oku(std::size_t sira) {
    return Sessiz([&]() -> std::optional<std::string_view> {
        if (dosyalar_->okurken)
            dosyalar_->okurken();
        if (dosyalar_->ariza && dosyalar_->ariza(DosyaIsi::Oku, yol_ + kAyrac + Metin((*this)[sira])))
            return {};
        return BelleginOkumasi(sira);
    });
}

std::optional<std::string_view> KlasorOkumasi::BelleginOkumasi(std::size_t sira) {
    const AdListesi& adlar = bellek_->Adlar(); // in their order, whether or not one was asked for before
    if (const auto bayt = bellek_->Bilinen(sira))
        return bayt;
    std::optional<sistem::Kimlik> kimlik;
    if (const auto bayt = bellek_->Hatirla(Acik(), sira, kimlik))
        return bayt;
    ++dosyalar_->okunan_;
    const auto bayt = Acik().Oku(adlar.Diskteki(sira).data(), kEnUzunOkuma, tampon_);
    if (bayt)
        bellek_->Sakla(sira, *bayt, kimlik, sinir_);
    return bayt;
}

std::optional<std::string_view> KlasorOkumasi::Oku(MetinBakis ad) {
    if (const auto sira = Bul(ad))
        return Oku(*sira);
    auto bayt = dosyalar_->Oku(yol_ + kAyrac + Metin(ad));
    if (!bayt)
        return {};
    tampon_ = std::move(*bayt);
    return tampon_;
}

std::optional<std::string_view> KlasorOkumasi::EsiniOku(std::size_t sira, MetinBakis ek) {
    if (bellek_->Adlar().EsiArkada(sira, ek))
        return Oku(sira + 1);
    return Oku(Metin((*this)[sira]) + Metin(ek));
}

} // namespace velora
