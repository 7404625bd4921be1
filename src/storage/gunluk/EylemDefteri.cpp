#include "storage/gunluk/EylemDefteri.h"

#include <algorithm>
#include <set>
#include <utility>

#include "storage/Tarih.h"
#include "storage/dosya/Dosyalar.h"
#include "storage/dosya/Sessiz.h"

namespace velora {
namespace {

// An action of more text than that is carried out as if there were no journal: it would only cost the memory
// of the machine.
constexpr std::size_t kEnUzunEylem = std::size_t{128} << 20U;

std::size_t Boy(const DosyaMetni& metin) {
    return metin ? metin->size() : 0;
}

} // namespace

DosyaMetni Degisiklik::Sonra(const DosyaMetni& once) const {
    if (tur == Tur::Kaldir)
        return {};
    std::string metin = tur == Tur::Ekle ? once.value_or(std::string()) : std::string();
    return metin += bayt;
}

EylemDefteri::EylemDefteri(std::shared_ptr<Gunluk> gunluk, std::filesystem::path kok, EylemSahibi sahip)
    : gunluk_(std::move(gunluk)), kok_(std::move(kok)), sahip_(std::move(sahip)) {}

Metin EylemDefteri::Zaman() const {
    const auto simdi = sahip_.simdi();
    const auto gun = std::chrono::floor<std::chrono::days>(simdi);
    const std::chrono::hh_mm_ss saat(simdi - gun);
    Metin zaman(TarihDegeri(Gun(gun)), 1, kTarihUzunlugu); // without its marks
    char16_t ayrac = u' ';
    for (const auto sayi : {saat.hours().count(), saat.minutes().count(), saat.seconds().count()}) {
        (zaman += ayrac) += IkiHane(static_cast<unsigned>(sayi));
        ayrac = u':';
    }
    return zaman;
}

/// The path below the root, in the separators of the system inside.
Metin EylemDefteri::Anahtar(const std::filesystem::path& yol) const {
    Metin anahtar;
    for (const auto& parca : yol.lexically_relative(kok_))
        (anahtar += kAyrac) += YolMetni(parca);
    return anahtar;
}

bool EylemDefteri::Ac(const Metin& ad, const std::function<void()>& adimlar) {
    yigin_.emplace_back().ad = ad;
    if (!adimlar)
        return true;
    planda_ = true;
    Sessiz(adimlar);
    planda_ = false;
    if (const auto& planlanan = yigin_.back().adimlar; !planlanan.empty())
        Sessiz([&] { Koy(planlanan); });
    return true;
}

bool EylemDefteri::DisindaAc() {
    yigin_.emplace_back().disinda = true;
    return true;
}

void EylemDefteri::Kapat() {
    const Eylem eylem = std::move(yigin_.back());
    yigin_.pop_back();
    if (eylem.no && !eylem.olmadi)
        Esitle(eylem);
}

void EylemDefteri::Esitle(const Eylem& eylem) {
    std::set<std::filesystem::path> dosyalar;
    std::set<std::filesystem::path> klasorler;
    for (const EylemAdimi& adim : eylem.adimlar) {
        std::filesystem::path yol = kok_;
        for (MetinBakis kalan = adim.yol; !kalan.empty();) {
            kalan.remove_prefix(1);
            const MetinBakis ad = kalan.substr(0, kalan.find(kAyrac));
            yol /= MetinYolu(ad).value_or(std::filesystem::path());
            kalan.remove_prefix(ad.size());
        }
        if (!adim.onceBilinir || adim.once.has_value() != adim.sonra.has_value())
            klasorler.insert(yol.parent_path());
        if (adim.sonra)
            dosyalar.insert(yol);
    }
    esitleyici_.Ver({{dosyalar.begin(), dosyalar.end()},
                     {klasorler.begin(), klasorler.end()},
                     kok_,
                     [gunluk = gunluk_, no = *eylem.no] {
                         gunluk->Bitti(no);
                         gunluk->Kisalt();
                     }});
}

yazim::Okunan EylemDefteri::Bak(const std::filesystem::path& yol) const {
    if (!yigin_.empty()) {
        const Eylem& eylem = yigin_.back();
        const auto son = eylem.sonAdimlar.find(Anahtar(yol));
        if (planda_ && son != eylem.sonAdimlar.end())
            return {true, eylem.adimlar[son->second].sonra};
    }
    return yazim::Oku(yol);
}

/// The step as it is to stand in the journal; nothing when the text before must be known and isn't.
std::optional<EylemAdimi> EylemDefteri::YeniAdim(const std::filesystem::path& yol,
                                                 const Degisiklik& degisiklik) const {
    yazim::Okunan okunan = Bak(yol);
    if (!okunan.okundu && degisiklik.tur == Degisiklik::Tur::Ekle)
        return {};
    EylemAdimi adim{.yol = Anahtar(yol), .onceBilinir = okunan.okundu, .once = {}, .sonra = {}};
    adim.sonra = degisiklik.Sonra(okunan.metin);
    adim.once = std::move(okunan.metin);
    return adim;
}

void EylemDefteri::Al(EylemAdimi adim) {
    Eylem& eylem = yigin_.back();
    eylem.bayt += Boy(adim.once) + Boy(adim.sonra);
    if (eylem.bayt > kEnUzunEylem) {
        eylem.disinda = true;
        eylem.adimlar.clear();
        eylem.sonAdimlar.clear();
    }
    if (eylem.disinda)
        return;
    eylem.sonAdimlar[adim.yol] = eylem.adimlar.size();
    eylem.adimlar.push_back(std::move(adim));
}

void EylemDefteri::Planla(const std::filesystem::path& yol, const Degisiklik& degisiklik) {
    if (yigin_.back().disinda)
        return;
    if (auto adim = YeniAdim(yol, degisiklik))
        Al(std::move(*adim));
}

void EylemDefteri::KlasorPlanla(const std::filesystem::path& yol) {
    if (!sistem::Var(yol, sistem::Tur::Klasor))
        Al({.tur = EylemAdimi::Tur::Klasor, .yol = Anahtar(yol), .once = {}, .sonra = {}});
}

/// Whether the next planned step is this one. Most come as they were planned; one that was left out is passed
/// over.
bool EylemDefteri::Planlandi(const std::filesystem::path& yol, const Degisiklik& degisiklik) {
    Eylem& eylem = yigin_.back();
    const Metin anahtar = Anahtar(yol);
    for (std::size_t i = eylem.siradaki; i < eylem.adimlar.size(); ++i) {
        const EylemAdimi& adim = eylem.adimlar[i];
        if (adim.yol != anahtar || adim.tur != EylemAdimi::Tur::Dosya)
            continue;
        const bool ekle = degisiklik.tur == Degisiklik::Tur::Ekle;
        if (adim.sonra != degisiklik.Sonra(ekle ? yazim::Oku(yol).metin : DosyaMetni()))
            return false;
        eylem.siradaki = i + 1;
        return true;
    }
    return false;
}

void EylemDefteri::Koy(std::vector<EylemAdimi> adimlar) {
    Eylem& eylem = yigin_.back();
    if (eylem.disinda)
        return;
    if (eylem.no) {
        eylem.disinda = !gunluk_->Ekle(*eylem.no, std::move(adimlar));
        return;
    }
    eylem.no = gunluk_->Basla({0, eylem.ad, sahip_.kim(), Zaman(), std::move(adimlar)});
    eylem.disinda = !eylem.no;
}

void EylemDefteri::Once(const std::filesystem::path& yol, const Degisiklik& degisiklik) {
    if (yigin_.back().disinda || Planlandi(yol, degisiklik))
        return;
    const auto adim = YeniAdim(yol, degisiklik);
    if (!adim)
        return;
    Al(*adim);
    yigin_.back().siradaki = yigin_.back().adimlar.size();
    Koy({*adim});
}

void EylemDefteri::KlasorOnce(const std::filesystem::path& yol) {
    const Eylem& eylem = yigin_.back();
    if (eylem.disinda || eylem.sonAdimlar.contains(Anahtar(yol)) || sistem::Var(yol, sistem::Tur::Klasor))
        return;
    const EylemAdimi adim{.tur = EylemAdimi::Tur::Klasor, .yol = Anahtar(yol), .once = {}, .sonra = {}};
    Al(adim);
    Koy({adim});
}

void EylemDefteri::Olmadi() {
    if (!yigin_.empty())
        yigin_.back().olmadi = true;
}

} // namespace velora
