#include "storage/dosya/Dosyalar.h"

#include <algorithm>
#include <memory>

#include "storage/dosya/AdListesi.h"
#include "storage/dosya/KlasorBellegi.h"
#include "storage/dosya/Sessiz.h"
#include "storage/dosya/Sistem.h"
#include "storage/dosya/Yazim.h"
#include "storage/dosya/YazmaAkisi.h"
#include "storage/gunluk/EylemDefteri.h"

namespace velora {
namespace {

// Folders that are kept at a time: of a search that stands open as many halls.
constexpr std::size_t kEnCokBellek = 4;

/// No system of the two takes these in a name, and a name of dots and blanks alone can mean another folder.
bool AdUygun(MetinBakis ad) {
    const bool yasak = std::any_of(ad.begin(), ad.end(), [](char16_t harf) {
        return harf < u' ' || MetinBakis(u"<>:\"/\\|?*").find(harf) != MetinBakis::npos;
    });
    return !yasak && ad.find_first_not_of(u". ") != MetinBakis::npos;
}

std::filesystem::path Mutlak(const std::filesystem::path& yol) {
    std::error_code hata;
    const auto mutlak = std::filesystem::absolute(yol, hata);
    return hata ? yol : mutlak;
}

AdListesi AdlariAl(sistem::Klasor& klasor) {
    AdListesi adlar;
    Metin ad;
    while (klasor.Sonraki(ad, sistem::Tur::Dosya))
        adlar.Ekle(ad);
    adlar.Sirala();
    return adlar;
}

} // namespace

Dosyalar::Dosyalar(const std::filesystem::path& kok) : kokYolu_(Mutlak(kok)), kok_(YolMetni(kokYolu_)) {
    while (!kok_.empty() &&
           (kok_.back() == u'/' || kok_.back() == std::filesystem::path::preferred_separator))
        kok_.pop_back();
}

Dosyalar::~Dosyalar() = default;

std::optional<std::filesystem::path> Dosyalar::Cevir(DosyaIsi is, const Metin& yol) const {
    const bool yazar =
        is == DosyaIsi::Yaz || is == DosyaIsi::Ekle || is == DosyaIsi::Kopyala || is == DosyaIsi::Sil;
    if (okurken && !yazar)
        okurken();
    if (ariza && ariza(is, yol))
        return {};
    const bool klasor = is == DosyaIsi::Listele || is == DosyaIsi::KlasorYap;
    auto sonuc = Bul(yol, klasor ? sistem::Tur::Klasor : sistem::Tur::Dosya);
    // The root itself can only be listed.
    if (sonuc == kokYolu_ && is != DosyaIsi::Listele)
        return {};
    return sonuc;
}

std::optional<std::filesystem::path> Dosyalar::SistemYolu(const Metin& yol) const {
    return Bul(yol, sistem::Tur::Dosya);
}

std::optional<std::filesystem::path> Dosyalar::Bul(const Metin& yol, sistem::Tur tur) const {
    if (!yol.starts_with(kok_))
        return {};
    std::vector<std::filesystem::path> adlar;
    MetinBakis kalan = MetinBakis(yol).substr(kok_.size());
    while (!kalan.empty()) {
        if (kalan.front() != kAyrac)
            return {};
        kalan.remove_prefix(1);
        const MetinBakis ad = kalan.substr(0, kalan.find(kAyrac));
        kalan.remove_prefix(ad.size());
        if (ad.empty())
            continue;
        auto parca = AdUygun(ad) ? MetinYolu(ad) : std::nullopt;
        if (!parca)
            return {};
        adlar.push_back(std::move(*parca));
    }
    return arama_.Coz(kokYolu_, adlar, tur);
}

bool Dosyalar::AyniKlasor(const Metin& bir, const Metin& iki) const {
    return Sessiz([&] {
        const auto p = Bul(bir, sistem::Tur::Klasor);
        const auto q = Bul(iki, sistem::Tur::Klasor);
        std::error_code hata;
        return p && q && std::filesystem::equivalent(*p, *q, hata);
    });
}

bool Dosyalar::VarMi(const Metin& yol) const {
    return Sessiz([&] {
        const auto p = Cevir(DosyaIsi::VarMi, yol);
        return p && sistem::Var(*p, sistem::Tur::Dosya);
    });
}

std::vector<Metin> Dosyalar::Listele(const Metin& klasor) const {
    return Sessiz([&]() -> std::vector<Metin> {
        const auto p = Cevir(DosyaIsi::Listele, klasor);
        if (!p)
            return {};
        sistem::Klasor acik(*p);
        const AdListesi adlar = AdlariAl(acik);
        std::vector<Metin> liste;
        liste.reserve(adlar.Sayi());
        for (std::size_t i = 0; i < adlar.Sayi(); ++i)
            liste.emplace_back(adlar[i]);
        return liste;
    });
}

OkumaSonucu Dosyalar::SonucluOku(const Metin& yol) const {
    return Sessiz([&]() -> OkumaSonucu {
        const auto p = Cevir(DosyaIsi::Oku, yol);
        if (!p)
            return {};
        const bool tam = arama_.Tam();
        yazim::Okunan okunan = yazim::Oku(*p);
        if (okunan.metin)
            return {.okunus = Okunus::Okundu, .bayt = std::move(*okunan.metin)};
        return {.okunus = okunan.okundu && tam ? Okunus::Yok : Okunus::Okunamadi};
    });
}

std::optional<std::string> Dosyalar::Oku(const Metin& yol) const {
    OkumaSonucu sonuc = SonucluOku(yol);
    if (sonuc.okunus != Okunus::Okundu)
        return {};
    return std::move(sonuc.bayt);
}

/// A folder whose files are read one after the other, from the disk or from what is kept of it.
struct Dosyalar::Okuma {
    explicit Okuma(std::shared_ptr<KlasorBellegi> kalan) : bellek(std::move(kalan)) {}
    explicit Okuma(const std::filesystem::path& yol)
        : klasor(std::make_unique<sistem::Klasor>(yol)), listelenen(AdlariAl(*klasor)) {}

    const AdListesi& Adlar() const { return bellek ? bellek->Adlar() : listelenen; }

    std::optional<std::string_view> Oku(std::size_t sira, std::size_t& okunan) {
        if (bellek)
            return bellek->Oku(sira, kEnUzunOkuma, tampon, okunan);
        ++okunan;
        return klasor->Oku(listelenen.Diskteki(sira), kEnUzunOkuma, tampon);
    }

    std::shared_ptr<KlasorBellegi> bellek;
    std::unique_ptr<sistem::Klasor> klasor;
    AdListesi listelenen;
    std::string tampon;
};

std::unique_ptr<Dosyalar::Okuma> Dosyalar::OkumaBasla(const std::filesystem::path& yol) const {
    if (hatirlayan_ > 0)
        if (auto bellek = Bellek(yol))
            return std::make_unique<Okuma>(std::move(bellek));
    return std::make_unique<Okuma>(yol);
}

/// What is kept of a folder, as it is now; null when nothing can be.
std::shared_ptr<KlasorBellegi> Dosyalar::Bellek(const std::filesystem::path& yol) const {
    auto yer =
        std::find_if(bellekler_.begin(), bellekler_.end(), [&](const auto& b) { return b->Klasor() == yol; });
    if (yer == bellekler_.end())
        yer = std::find_if(bellekler_.begin(), bellekler_.end(),
                           [](const auto& b) { return b->Klasor().empty(); });
    if (yer == bellekler_.end()) {
        if (bellekler_.size() == kEnCokBellek)
            return nullptr;
        yer = bellekler_.insert(yer, std::make_shared<KlasorBellegi>());
    }
    // Somebody reads from it just now, further out: it must not change under his hands.
    if (yer->use_count() > 1)
        return nullptr;
    KlasorBellegi& bellek = **yer;
    if (bellek.Klasor() == yol && bellek.Tazele())
        return *yer;
    bellek.Basla(yol);
    if (bellek.Tazele())
        return *yer;
    bellek.Unut();
    return nullptr;
}

Dosyalar::Hatirlama::Hatirlama(const Dosyalar& dosyalar) : dosyalar_(dosyalar) {
    ++dosyalar_.hatirlayan_;
}

Dosyalar::Hatirlama::~Hatirlama() {
    if (--dosyalar_.hatirlayan_ > 0)
        return;
    // One that is read from further out belongs to its reader.
    std::erase_if(dosyalar_.bellekler_, [](const auto& bellek) { return bellek.use_count() > 1; });
    for (const auto& bellek : dosyalar_.bellekler_)
        bellek->Unut();
}

void Dosyalar::KlasoruOku(const Metin& klasor, const std::function<void(const OkunanDosya&)>& ver,
                          const std::function<bool(MetinBakis ad)>& istenen) const {
    const auto okuma = Sessiz([&]() -> std::unique_ptr<Okuma> {
        const auto p = Cevir(DosyaIsi::Listele, klasor);
        return p ? OkumaBasla(*p) : nullptr;
    });
    for (std::size_t i = 0; okuma && i < okuma->Adlar().Sayi(); ++i) {
        const MetinBakis ad = okuma->Adlar()[i];
        if (istenen && !istenen(ad))
            continue;
        if (okurken)
            okurken();
        const auto bayt = Sessiz([&]() -> std::optional<std::string_view> {
            if (ariza && ariza(DosyaIsi::Oku, klasor + kAyrac + Metin(ad)))
                return {};
            return okuma->Oku(i, okunan_);
        });
        ver({ad, bayt.has_value(), bayt.value_or(std::string_view())});
    }
}

std::unique_ptr<YazmaAkisi> Dosyalar::AkisAc(const Metin& yol, std::uint64_t konum) const {
    return Sessiz([&]() -> std::unique_ptr<YazmaAkisi> {
        const auto p = Cevir(DosyaIsi::Yaz, yol);
        if (!p)
            return nullptr;
        return YazmaAkisi::Ac(*p, konum,
                              {[this, yol] { return ariza && ariza(DosyaIsi::Yaz, yol); }, bosYer});
    });
}

std::optional<std::uint64_t> Dosyalar::BosAlan(const Metin& yol) const {
    return Sessiz([&]() -> std::optional<std::uint64_t> {
        if (bosYer)
            return *bosYer;
        auto p = Bul(yol, sistem::Tur::Dosya);
        std::error_code hata;
        // What isn't there yet will stand on the disk of the folder above it.
        while (p && !std::filesystem::exists(*p, hata) && p->has_relative_path())
            p = p->parent_path();
        const auto alan = p ? std::filesystem::space(*p, hata) : std::filesystem::space_info{};
        return p && !hata ? std::optional<std::uint64_t>(alan.available) : std::nullopt;
    });
}

} // namespace velora
