#include "storage/dosya/KlasorBellegi.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace velora {

namespace {

// Whatever is longer is read each time.
constexpr std::size_t kEnUzunSaklanan = std::size_t{1} << 20U;

// No year needs it, and places are 32 bits.
constexpr std::size_t kEnCokSaklanan = std::size_t{64} << 20U;

/// Whether nothing has touched the file since.
bool Eski(const sistem::Kimlik& kimlik, SistemAni sinir) {
    return SistemAni(std::chrono::nanoseconds(std::max(kimlik.yazma, kimlik.durum))) <= sinir;
}

} // namespace

std::unique_ptr<sistem::Gozcu> KlasorBellegi::Izlet(std::unique_ptr<sistem::Gozcu> gozcu) {
    for (Kayit& kayit : kayitlar_)
        kayit.sorulsun = true;
    return std::exchange(gozcu_, std::move(gozcu));
}

void KlasorBellegi::Tazele(const std::function<sistem::Klasor&()>& ac) {
    if (gozcu_ == nullptr || !Degismedi())
        Listele(ac());
}

/// Whether it is sure that the folder is as it was when it was listed last. Files that may have changed are
/// asked about when they are wanted.
bool KlasorBellegi::Degismedi() {
    std::unordered_set<std::basic_string<sistem::AdHarfi>> degisenler;
    const bool emin = gozcu_->Degisenler([&](sistem::DiskAdi ad) { degisenler.emplace(ad); });
    if (emin && degisenler.empty())
        return true;
    for (std::size_t i = 0; i < kayitlar_.size(); ++i)
        if (!emin || degisenler.contains({}) ||
            degisenler.contains(std::basic_string<sistem::AdHarfi>(adlar_.Diskteki(i))))
            kayitlar_[i].sorulsun = true;
    if (!emin)
        gozcu_->Izle(klasor_); // before the listing: no change gets lost
    return false;
}

void KlasorBellegi::Listele(sistem::Klasor& acik) {
    const auto kimlik = acik.Sor();
    const auto yeri = [](const sistem::Kimlik& k) { return std::pair(k.disk, k.no); };
    if (!kimlik || yeri(*kimlik) != yeri(kimlik_))
        for (Kayit& kayit : kayitlar_)
            Birak(kayit);
    kimlik_ = kimlik.value_or(sistem::Kimlik());
    AdListesi yeni;
    std::size_t ayni = 0; // so many came as they did the last time, and no other
    bool degisti = false;
    for (sistem::ListeOgesi oge; acik.Sonraki(oge, sistem::Tur::Dosya);) {
        if (!degisti && adlar_.Gelen(ayni, oge)) {
            ++ayni;
            continue;
        }
        if (!std::exchange(degisti, true))
            yeni.BastanEkle(adlar_, ayni);
        yeni.Ekle(oge);
    }
    if (!degisti && ayni == adlar_.Sayi())
        return;
    if (!degisti)
        yeni.BastanEkle(adlar_, ayni);
    yeni.Sirala();
    AdlariDegistir(std::move(yeni));
}

void KlasorBellegi::AdlariDegistir(AdListesi yeni) {
    std::vector<Kayit> kayitlar(yeni.Sayi());
    if (saklanan_ > 0) {
        std::unordered_map<sistem::DiskAdi, std::size_t> yerler;
        for (std::size_t i = 0; i < yeni.Sayi(); ++i)
            yerler.emplace(yeni.Diskteki(i), i);
        for (std::size_t i = 0; i < kayitlar_.size(); ++i)
            if (const auto yer = yerler.find(adlar_.Diskteki(i)); yer != yerler.end())
                kayitlar[yer->second] = kayitlar_[i];
            else
                Birak(kayitlar_[i]);
    }
    adlar_ = std::move(yeni);
    kayitlar_ = std::move(kayitlar);
}

bool KlasorBellegi::Taze(Kayit& kayit, const sistem::Kimlik& simdi) const {
    if (kayit.kimlik)
        return simdi == *kayit.kimlik;
    // Nobody asked about it when it was read. It was this file, and it hasn't been touched since before then.
    if (simdi.disk != kimlik_.disk || simdi.no != kayit.no || simdi.boy != kayit.uzunluk ||
        !Eski(simdi, kayit.sinir))
        return false;
    kayit.kimlik = simdi;
    return true;
}

std::optional<std::string_view> KlasorBellegi::Bilinen(std::size_t sira) const {
    const Kayit& kayit = kayitlar_[sira];
    if (!kayit.var || kayit.sorulsun)
        return {};
    return std::string_view(baytlar_).substr(kayit.bas, kayit.uzunluk);
}

std::optional<std::string_view> KlasorBellegi::Hatirla(const sistem::Klasor& acik, std::size_t sira,
                                                       std::optional<sistem::Kimlik>& simdi) {
    Kayit& kayit = kayitlar_[sira];
    if (!kayit.var && adlar_.No(sira) != 0)
        return {};
    simdi = acik.Sor(adlar_.Diskteki(sira).data());
    if (!kayit.var || !simdi || !Taze(kayit, *simdi))
        return {};
    // Where a link leads to nobody watches.
    kayit.sorulsun = gozcu_ == nullptr || adlar_.No(sira) == 0;
    return std::string_view(baytlar_).substr(kayit.bas, kayit.uzunluk);
}

bool KlasorBellegi::Sakla(std::size_t sira, std::string_view bayt,
                          const std::optional<sistem::Kimlik>& kimlik, SistemAni sinir) {
    Kayit& kayit = kayitlar_[sira];
    Birak(kayit);
    const bool guvenilir = kimlik ? kimlik->boy == bayt.size() && Eski(*kimlik, sinir) : adlar_.No(sira) != 0;
    if (!guvenilir || bayt.size() > kEnUzunSaklanan)
        return false;
    if (baytlar_.size() > 2 * kullanilan_ + kEnUzunSaklanan)
        Sikistir();
    if (baytlar_.size() + bayt.size() > kEnCokSaklanan)
        return false;
    const auto bas = static_cast<std::uint32_t>(baytlar_.size());
    baytlar_ += bayt;
    kayit = {.kimlik = kimlik,
             .no = adlar_.No(sira),
             .sinir = sinir,
             .bas = bas,
             .uzunluk = static_cast<std::uint32_t>(bayt.size()),
             .var = true};
    ++saklanan_;
    kullanilan_ += bayt.size();
    return true;
}

void KlasorBellegi::Unut(sistem::DiskAdi ad) {
    for (std::size_t i = 0; i < kayitlar_.size(); ++i)
        if (adlar_.Diskteki(i) == ad)
            Birak(kayitlar_[i]);
}

void KlasorBellegi::Birak(Kayit& kayit) {
    if (!std::exchange(kayit.var, false))
        return;
    --saklanan_;
    kullanilan_ -= kayit.uzunluk;
}

/// Gives back the room of what isn't kept any more.
void KlasorBellegi::Sikistir() {
    std::string yeni;
    yeni.reserve(kullanilan_);
    for (Kayit& kayit : kayitlar_) {
        if (!kayit.var)
            continue;
        const auto bas = static_cast<std::uint32_t>(yeni.size());
        yeni.append(baytlar_, kayit.bas, kayit.uzunluk);
        kayit.bas = bas;
    }
    baytlar_ = std::move(yeni);
}

std::size_t KlasorBellegi::Bayt() const {
    return adlar_.Bayt() + kayitlar_.capacity() * sizeof(Kayit) + baytlar_.capacity();
}

} // namespace velora
