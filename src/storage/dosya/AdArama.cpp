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

/// When the folder was last changed. Nothing when that can't be told, or is so near that another change
/// might bear the same time.
std::optional<std::filesystem::file_time_type> GuvenilirDegisim(const std::filesystem::path& klasor) {
    std::error_code hata;
    const auto zaman = std::filesystem::last_write_time(klasor, hata);
    if (hata || std::filesystem::file_time_type::clock::now() - zaman < kDegisimAdimi)
        return {};
    return zaman;
}

} // namespace

std::filesystem::path AdArama::Coz(const std::filesystem::path& kok,
                                   const std::vector<std::filesystem::path>& adlar, sistem::Tur tur) {
    tam_ = true;
    std::filesystem::path tam = kok;
    for (const auto& ad : adlar)
        tam /= ad;
    if (sistem::Var(tam, tur))
        return tam;
    std::filesystem::path yol = kok;
    bool var = true; // what `yol` has come to is there
    for (std::size_t i = 0; i < adlar.size(); ++i) {
        const sistem::Tur buTur = i + 1 < adlar.size() ? sistem::Tur::Klasor : tur;
        std::filesystem::path ad = adlar[i];
        if (var && !sistem::Var(yol / ad, buTur)) {
            const auto bulunan = Bul({yol, buTur}, ad);
            var = bulunan.has_value();
            ad = bulunan.value_or(ad);
        }
        yol /= ad;
    }
    return yol;
}

std::optional<std::filesystem::path> AdArama::Bul(const Anahtar& klasor, const std::filesystem::path& ad) {
    const Metin aranan = AdAnahtari(YolMetni(ad));
    const auto& adlar = Listesi(klasor);
    const auto yer = std::lower_bound(adlar.begin(), adlar.end(), aranan,
                                      [](const Ad& a, const Metin& anahtar) { return a.anahtar < anahtar; });
    if (yer == adlar.end() || yer->anahtar != aranan)
        return {};
    return yer->diskteki;
}

const std::vector<AdArama::Ad>& AdArama::Listesi(const Anahtar& klasor) {
    if (icerikler_.size() >= kEnCokKlasor && !icerikler_.contains(klasor))
        icerikler_.clear();
    // Asked before the listing: what changes during it is seen the next time.
    const auto degisim = GuvenilirDegisim(klasor.first);
    Icerik& icerik = icerikler_[klasor];
    if (degisim && icerik.degisim == degisim)
        return icerik.adlar;
    ++listelenen_;
    icerik = {.degisim = {}, .adlar = {}};
    sistem::Klasor acik(klasor.first);
    AdListesi liste;
    for (sistem::ListeOgesi oge; acik.Sonraki(oge, klasor.second);)
        liste.Ekle(oge);
    liste.Sirala();
    icerik.adlar.reserve(liste.Sayi());
    for (std::size_t i = 0; i < liste.Sayi(); ++i)
        icerik.adlar.push_back({AdAnahtari(liste[i]), std::filesystem::path(liste.Diskteki(i))});
    std::stable_sort(icerik.adlar.begin(), icerik.adlar.end(),
                     [](const Ad& bir, const Ad& iki) { return bir.anahtar < iki.anahtar; });
    tam_ = tam_ && acik.Tam();
    if (acik.Tam())
        icerik.degisim = degisim;
    return icerik.adlar;
}

} // namespace velora
