#include "storage/dosya/Dosyalar.h"

#include <algorithm>
#include <memory>

#include "storage/dosya/OkumaBellegi.h"
#include "storage/dosya/OndenListe.h"
#include "storage/dosya/Sessiz.h"
#include "storage/dosya/Sistem.h"
#include "storage/dosya/Yazim.h"
#include "storage/dosya/YazmaAkisi.h"
#include "storage/gunluk/EylemDefteri.h"

namespace velora {
namespace {

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

} // namespace

Dosyalar::Dosyalar(const std::filesystem::path& kok)
    : kokYolu_(Mutlak(kok)), kok_(YolMetni(kokYolu_)), bellek_(std::make_unique<OkumaBellegi>()) {
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

/// The names of a path, below the root. Nothing for a path that is refused.
std::optional<std::vector<std::filesystem::path>> Dosyalar::Adlar(const Metin& yol) const {
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
    return adlar;
}

std::optional<std::filesystem::path> Dosyalar::Bul(const Metin& yol, sistem::Tur tur) const {
    const auto adlar = Adlar(yol);
    if (!adlar)
        return {};
    return arama_.Coz(kokYolu_, *adlar, tur);
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
    return Sessiz([&] {
        const KlasorOkumasi okuma = KlasorAc(klasor);
        std::vector<Metin> liste;
        liste.reserve(okuma.Sayi());
        for (std::size_t i = 0; i < okuma.Sayi(); ++i)
            liste.emplace_back(okuma[i]);
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

KlasorOkumasi Dosyalar::KlasorAc(const Metin& klasor) const {
    KlasorOkumasi okuma(*this, klasor);
    Sessiz([&] {
        // Of many years most halls have no folder: a system takes its time to say so.
        if (const auto p = Cevir(DosyaIsi::Listele, klasor); p && arama_.Bulundu())
            okuma.Ac(*p);
    });
    return okuma;
}

Dosyalar::Onden::Onden(const Dosyalar& dosyalar, const std::vector<Metin>& klasorler) {
    if (klasorler.size() < kEnAz || dosyalar.onden_)
        return;
    Sessiz([&] {
        std::vector<std::filesystem::path> yollar;
        for (const Metin& klasor : klasorler) {
            // As it is called here. One that the disk calls otherwise is listed when it is opened.
            std::filesystem::path yol = dosyalar.kokYolu_;
            for (const auto& ad : dosyalar.Adlar(klasor).value_or(std::vector<std::filesystem::path>()))
                yol /= ad;
            if (yol != dosyalar.kokYolu_ && !dosyalar.bellek_->Var(yol))
                yollar.push_back(std::move(yol));
        }
        dosyalar.onden_ = std::make_unique<OndenListe>(std::move(yollar));
        dosyalar_ = &dosyalar;
    });
}

Dosyalar::Onden::~Onden() {
    if (dosyalar_ != nullptr)
        dosyalar_->onden_.reset();
}

void Dosyalar::KlasoruOku(const Metin& klasor, const std::function<void(const OkunanDosya&)>& ver,
                          const std::function<bool(MetinBakis ad)>& istenen) const {
    KlasorOkumasi okuma = KlasorAc(klasor);
    for (std::size_t i = 0; i < okuma.Sayi(); ++i) {
        if (istenen && !istenen(okuma[i]))
            continue;
        const auto bayt = okuma.Oku(i);
        ver({okuma[i], bayt.has_value(), bayt.value_or(std::string_view())});
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
