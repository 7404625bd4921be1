#include "storage/dosya/AdArama.h"

#include <algorithm>
#include <chrono>

#include "storage/dosya/AdBicimi.h"
#include "storage/dosya/AdListesi.h"
#include "storage/dosya/Dosyalar.h"
#include "storage/dosya/Sistem.h"

namespace velora {
namespace {

// A file system may give two changes within so long the same time.
constexpr std::chrono::milliseconds kDegisimAdimi{100};

// The listings kept: more folders than a search walks through at once.
constexpr std::size_t kEnCokKlasor = 256;

// The names of a folder that is simply listed again: to watch one isn't worth less.
constexpr std::size_t kEnCokListelenen = 250;

/// When the folder was last changed. Nothing when that can't be told, or is so near that another change
/// might bear the same time.
std::optional<std::filesystem::file_time_type> GuvenilirDegisim(const std::filesystem::path& klasor) {
    std::error_code hata;
    const auto zaman = std::filesystem::last_write_time(klasor, hata);
    if (hata || std::filesystem::file_time_type::clock::now() - zaman < kDegisimAdimi)
        return {};
    return zaman;
}

Metin DisktekininAnahtari(sistem::DiskAdi ad) {
    Metin metin;
    sistem::AdiCoz(ad, metin);
    return AdAnahtari(metin);
}

} // namespace

std::filesystem::path AdArama::Coz(const std::filesystem::path& kok,
                                   const std::vector<std::filesystem::path>& adlar, sistem::Tur tur) {
    tam_ = true;
    bulundu_ = true;
    std::filesystem::path tam = kok;
    for (const auto& ad : adlar)
        tam /= ad;
    if (sistem::Var(tam, tur))
        return tam;
    std::filesystem::path yol = kok; // as long as it is `bulundu_`, it is there
    for (std::size_t i = 0; i < adlar.size(); ++i) {
        const sistem::Tur buTur = i + 1 < adlar.size() ? sistem::Tur::Klasor : tur;
        std::filesystem::path ad = adlar[i];
        const bool sorulan = i + 1 == adlar.size() && yol / ad == tam; // and it isn't there
        if (bulundu_ && (sorulan || !sistem::Var(yol / ad, buTur))) {
            const auto bulunan = Bul({yol, buTur}, ad);
            bulundu_ = bulunan.has_value();
            ad = bulunan.value_or(ad);
        }
        yol /= ad;
    }
    return yol;
}

std::optional<std::filesystem::path> AdArama::Bul(const Anahtar& klasor, const std::filesystem::path& ad) {
    const auto [ilk, son] = Listesi(klasor).equal_range(AdAnahtari(YolMetni(ad)));
    if (ilk == son)
        return {};
    AdListesi uyanlar;
    for (auto uyan = ilk; uyan != son; ++uyan)
        uyanlar.Ekle({uyan->second});
    uyanlar.Sirala();
    return std::filesystem::path(uyanlar.Diskteki(0));
}

/// Takes over what has changed in the folder that is watched. False: it must be listed.
bool AdArama::IzlenenTaze(const Anahtar& klasor) {
    if (izlenen_ != klasor)
        return false;
    Icerik& icerik = icerikler_[klasor];
    bool baglanti = false;
    const bool taze = gozcu_.Degisenler([&](sistem::DiskAdi ad) {
        if (ad.empty())
            return; // who may list it isn't asked for a name that was listed
        icerik.degisim.reset();
        const Metin anahtar = DisktekininAnahtari(ad);
        const auto [ilk, son] = icerik.adlar.equal_range(anahtar);
        const auto eski = std::find_if(ilk, son, [ad](const auto& biri) { return biri.second == ad; });
        if (eski != son)
            icerik.adlar.erase(eski);
        const std::filesystem::path yol = klasor.first / ad;
        std::error_code hata;
        baglanti = baglanti || std::filesystem::is_symlink(yol, hata);
        if (sistem::Var(yol, klasor.second))
            icerik.adlar.emplace(anahtar, ad);
    });
    // What a link leads to lies elsewhere.
    if (!taze || baglanti)
        izlenen_.reset();
    return izlenen_.has_value();
}

void AdArama::YerAc() {
    if (icerikler_.size() >= kEnCokKlasor)
        std::erase_if(icerikler_, [this](const auto& icerik) { return icerik.first != izlenen_; });
}

const AdArama::Adlar& AdArama::Listesi(const Anahtar& klasor) {
    if (IzlenenTaze(klasor))
        return icerikler_[klasor].adlar;
    if (!icerikler_.contains(klasor))
        YerAc();
    // Asked before the listing: what changes during it is seen the next time.
    const auto degisim = GuvenilirDegisim(klasor.first);
    Icerik& icerik = icerikler_[klasor];
    if (degisim && icerik.degisim == degisim)
        return icerik.adlar;
    const bool izle = icerik.adlar.size() > kEnCokListelenen;
    if (izle)
        gozcu_.Izle(klasor.first); // before the listing, too
    ++listelenen_;
    icerik = {.degisim = {}, .adlar = {}};
    sistem::Klasor acik(klasor.first);
    for (sistem::ListeOgesi oge; acik.Sonraki(oge, klasor.second);)
        icerik.adlar.emplace(DisktekininAnahtari(oge.ad), oge.ad);
    tam_ = tam_ && acik.Tam();
    if (acik.Tam())
        icerik.degisim = degisim;
    if (izle)
        izlenen_ = acik.Tam() && !acik.BaglantiVar() ? std::optional(klasor) : std::nullopt;
    return icerik.adlar;
}

} // namespace velora
