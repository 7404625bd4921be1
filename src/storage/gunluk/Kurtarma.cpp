#include "storage/gunluk/Kurtarma.h"

#include <algorithm>
#include <map>
#include <span>
#include <utility>

#include "storage/dosya/Dosyalar.h"
#include "storage/dosya/Sistem.h"
#include "storage/dosya/Yazim.h"

namespace velora {
namespace {

// What a medium writes at once, or not at all.
constexpr std::size_t kBlok = 512;

/// Where the bytes first differ from the text with line ends behind it; their length when they don't.
std::size_t AyniBas(std::string_view bayt, std::string_view metin) {
    const std::size_t ortak = std::min(bayt.size(), metin.size());
    for (std::size_t i = 0; i < ortak; ++i)
        if (bayt[i] != metin[i])
            return i;
    const std::size_t son = bayt.find_first_not_of('\n', ortak);
    return std::min(son, bayt.size());
}

std::string_view Arka(std::string_view metin, std::size_t yer) {
    return metin.substr(std::min(yer, metin.size()));
}

bool BasindanOburune(std::string_view bulunan, std::string_view bas, std::string_view kalan) {
    const std::size_t yer = AyniBas(bulunan, bas);
    const std::string_view gerisi = bulunan.substr(yer);
    return AyniBas(gerisi, Arka(kalan, yer)) == gerisi.size();
}

/// A block may end in NUL bytes: the file has grown, and its last bytes haven't come.
bool BlokUyar(std::string_view blok, std::string_view metin) {
    return Arka(blok, AyniBas(blok, metin)).find_first_not_of('\0') == std::string_view::npos;
}

bool BloklarUyar(std::string_view bulunan, std::string_view once, std::string_view sonra) {
    for (std::size_t yer = 0; yer < bulunan.size(); yer += kBlok) {
        const std::string_view blok = bulunan.substr(yer, kBlok);
        if (!BlokUyar(blok, Arka(once, yer)) && !BlokUyar(blok, Arka(sonra, yer)))
            return false;
    }
    return true;
}

std::string_view Bakis(const DosyaMetni& metin) {
    return metin ? std::string_view(*metin) : std::string_view();
}

/// The files of an action, each once, with all their texts; then the folders that it makes.
struct EylemDosyalari {
    std::vector<MetinZinciri> dosyalar;
    std::vector<Metin> klasorler;

    explicit EylemDosyalari(const EylemKaydi& eylem) {
        std::map<MetinBakis, std::size_t> siralar;
        for (const EylemAdimi& adim : eylem.adimlar) {
            if (adim.tur == EylemAdimi::Tur::Klasor)
                klasorler.push_back(adim.yol);
            else if (const auto [yer, yeni] = siralar.emplace(adim.yol, dosyalar.size()); yeni)
                dosyalar.push_back({adim.yol, adim.onceBilinir, {adim.once, adim.sonra}});
            else
                dosyalar[yer->second].metinler.push_back(adim.sonra);
        }
    }
};

void UstKlasorleriYap(const std::filesystem::path& yol) {
    std::error_code hata;
    std::filesystem::create_directories(yol.parent_path(), hata);
}

bool SonHaleGetir(const std::filesystem::path& yol, const DosyaMetni& sonra) {
    if (!sonra)
        return (sistem::DosyaSil(yol) || !sistem::Var(yol, sistem::Tur::Dosya)) &&
               sistem::AdlariEsitle(yol.parent_path());
    UstKlasorleriYap(yol);
    return yazim::Yaz(yol, *sonra) && sistem::DosyaEsitle(yol) && sistem::AdlariEsitle(yol.parent_path());
}

/// One of the actions, and how far it has come.
class Tamamlama {
  public:
    using Cozucu = std::function<std::optional<std::filesystem::path>(const Metin& yol)>;

    Tamamlama(std::span<const EylemKaydi> hepsi, std::size_t sira, const Cozucu& coz)
        : dosyalar_(hepsi[sira]), oncekiler_(hepsi.first(sira)), sonrakiler_(hepsi.subspan(sira + 1)),
          coz_(coz) {
        for (const MetinZinciri& zincir : dosyalar_.dosyalar)
            haller_.push_back(Bak(zincir));
    }

    /// False: something is left for the next start.
    bool Yap() {
        bool tamam = !Var(BulunanHal::Okunamadi);
        if (!Var(BulunanHal::Sonra) && !Var(BulunanHal::Yarida))
            return tamam;
        for (const Metin& klasor : dosyalar_.klasorler)
            if (const auto yol = coz_(klasor)) {
                UstKlasorleriYap(*yol);
                sistem::KlasorYap(*yol);
            }
        for (std::size_t i = 0; i < haller_.size(); ++i) {
            if (haller_[i] != BulunanHal::Once && haller_[i] != BulunanHal::Yarida)
                continue;
            const MetinZinciri& zincir = dosyalar_.dosyalar[i];
            const auto yol = coz_(zincir.yol);
            const bool oldu = yol && SonHaleGetir(*yol, zincir.metinler.back());
            tamam = tamam && oldu;
            if (oldu)
                isler.push_back((zincir.metinler.back() ? u"+" : u"-") + zincir.yol);
        }
        return tamam;
    }

    std::vector<Metin> isler; ///< what was done: "+" and a path for a text, "-" for a file that went

  private:
    bool Var(BulunanHal hal) const { return std::ranges::find(haller_, hal) != haller_.end(); }
    BulunanHal Bak(const MetinZinciri& zincir) const {
        const auto yol = coz_(zincir.yol);
        if (!yol)
            return BulunanHal::Baska;
        const yazim::Okunan okunan = yazim::Oku(*yol);
        const BulunanHal hal = HalBul(zincir, okunan.okundu, okunan.metin);
        return hal == BulunanHal::Yarida || hal == BulunanHal::Baska
                   ? OtekilereGore(zincir.yol, okunan.metin, hal)
                   : hal;
    }
    /// A text that is none of this action's whole ones may be of another one that isn't done either: one
    /// behind it has gone on from here, or one before it hasn't come as far.
    BulunanHal OtekilereGore(const Metin& yol, const DosyaMetni& bulunan, BulunanHal hal) const {
        const auto birinde = [&](std::span<const EylemKaydi> eylemler, const auto& uyar) {
            return std::ranges::any_of(eylemler, [&](const EylemKaydi& eylem) {
                return std::ranges::any_of(eylem.adimlar, [&](const EylemAdimi& adim) {
                    return adim.tur == EylemAdimi::Tur::Dosya && adim.yol == yol && uyar(adim);
                });
            });
        };
        if (birinde(sonrakiler_, [&](const EylemAdimi& adim) {
                return HalBul({yol, adim.onceBilinir, {adim.once, adim.sonra}}, true, bulunan) !=
                       BulunanHal::Baska;
            }))
            return BulunanHal::Sonra;
        const bool eski = birinde(oncekiler_, [&](const EylemAdimi& adim) {
            return bulunan == adim.sonra || (adim.onceBilinir && bulunan == adim.once);
        });
        return eski ? BulunanHal::Once : hal;
    }

    EylemDosyalari dosyalar_;
    std::span<const EylemKaydi> oncekiler_; // that aren't done, in their order
    std::span<const EylemKaydi> sonrakiler_;
    const Cozucu& coz_;
    std::vector<BulunanHal> haller_;
};

} // namespace

bool Kalinti(std::string_view bulunan, const DosyaMetni& once, const DosyaMetni& sonra) {
    const std::string_view a = Bakis(once);
    const std::string_view b = Bakis(sonra);
    return bulunan.size() <= std::max(a.size(), b.size()) &&
           (BasindanOburune(bulunan, a, b) || BasindanOburune(bulunan, b, a) || BloklarUyar(bulunan, a, b));
}

BulunanHal HalBul(const MetinZinciri& zincir, bool okundu, const DosyaMetni& bulunan) {
    if (!okundu)
        return BulunanHal::Okunamadi;
    const auto& metinler = zincir.metinler;
    const bool once = zincir.onceBilinir && bulunan == metinler.front();
    const bool sonra = bulunan == metinler.back();
    if (once || sonra)
        return once && sonra ? BulunanHal::Ayni : once ? BulunanHal::Once : BulunanHal::Sonra;
    if (!bulunan || std::find(metinler.begin() + 1, metinler.end(), bulunan) != metinler.end())
        return BulunanHal::Yarida;
    for (std::size_t i = 1; i < metinler.size(); ++i)
        if (Kalinti(*bulunan, metinler[i - 1], metinler[i]))
            return BulunanHal::Yarida;
    return BulunanHal::Baska;
}

void YarimlariTamamla(Gunluk& gunluk,
                      const std::function<std::optional<std::filesystem::path>(const Metin& yol)>& coz,
                      const Metin& zaman) {
    const std::vector<EylemKaydi>& yarimlar = gunluk.YarimKalanlar();
    for (std::size_t i = 0; i < yarimlar.size(); ++i) {
        Tamamlama tamamlama(yarimlar, i, coz);
        const bool tamam = tamamlama.Yap();
        if (!tamamlama.isler.empty())
            gunluk.Onarildi({yarimlar[i].no, zaman, std::move(tamamlama.isler)});
        if (tamam)
            gunluk.Bitti(yarimlar[i].no);
    }
    gunluk.Kisalt();
}

} // namespace velora
