// The half of `Dosyalar` that changes something, and how it stands in the journal.
#include <utility>

#include "storage/dosya/Dosyalar.h"
#include "storage/dosya/OkumaBellegi.h"
#include "storage/dosya/OndenListe.h"
#include "storage/dosya/Sessiz.h"
#include "storage/dosya/Sistem.h"
#include "storage/dosya/Yazim.h"
#include "storage/gunluk/EylemDefteri.h"
#include "storage/gunluk/Kurtarma.h"

namespace velora {

void Dosyalar::GunluguAc(const std::filesystem::path& klasor, EylemSahibi sahip) {
    Sessiz([&] {
        auto gunluk = Gunluk::Ac(klasor, kokYolu_);
        if (!gunluk)
            return;
        defter_ = std::make_unique<EylemDefteri>(gunluk, kokYolu_, std::move(sahip));
        YarimlariTamamla(
            *gunluk, [this](const Metin& yol) { return Bul(kok_ + yol, sistem::Tur::Dosya); },
            defter_->Zaman());
    });
}

bool Dosyalar::GunluguBekle() const {
    return !defter_ || defter_->Bekle();
}

std::chrono::nanoseconds Dosyalar::GunlukBeklemesi() const {
    return defter_ ? defter_->Defter().Beklenen() : std::chrono::nanoseconds(0);
}

Dosyalar::Eylem::Eylem(const Dosyalar& dosyalar, const Metin& ad, const std::function<void()>& adimlar)
    : defter_(dosyalar.defter_.get()) {
    if (defter_ != nullptr && !Sessiz([&] { return defter_->Ac(ad, adimlar); }))
        defter_ = nullptr;
}

Dosyalar::Eylem::~Eylem() {
    if (defter_ != nullptr)
        Sessiz([&] { defter_->Kapat(); });
}

void Dosyalar::Eylem::SonrayaKalir() const {
    if (defter_ != nullptr)
        defter_->Olmadi();
}

Dosyalar::GunlukDisi::GunlukDisi(const Dosyalar& dosyalar) : defter_(dosyalar.defter_.get()) {
    if (defter_ != nullptr && !Sessiz([&] { return defter_->DisindaAc(); }))
        defter_ = nullptr;
}

Dosyalar::GunlukDisi::~GunlukDisi() {
    if (defter_ != nullptr)
        Sessiz([&] { defter_->Kapat(); });
}

/// One step on a file: planned, or put down and then made with `yap`.
template <class Yap>
bool Dosyalar::Adim(DosyaIsi is, const Metin& yol, const Degisiklik& degisiklik, Yap yap) const {
    return Sessiz([&] {
        if (defter_ && defter_->Planda()) {
            const auto p = Bul(yol, sistem::Tur::Dosya);
            if (p && *p != kokYolu_)
                defter_->Planla(*p, degisiklik);
            return p.has_value();
        }
        std::optional<Eylem> tekBasina;
        if (defter_ && defter_->Bos())
            tekBasina.emplace(*this, yol.substr(yol.rfind(kAyrac) + 1));
        const auto p = Cevir(is, yol);
        if (p && defter_)
            defter_->Once(*p, degisiklik);
        const bool oldu = p && yap(*p);
        if (p)
            bellek_->Unut(*p);
        if (onden_)
            onden_->Birak();
        if (!oldu && defter_)
            defter_->Olmadi();
        return oldu;
    });
}

bool Dosyalar::Yaz(const Metin& yol, std::string_view bayt) const {
    return Adim(DosyaIsi::Yaz, yol, {Degisiklik::Tur::Koy, bayt},
                [&](const std::filesystem::path& p) { return yazim::Yaz(p, bayt, bosYer); });
}

bool Dosyalar::Yarat(const Metin& yol, std::string_view bayt) const {
    return Adim(DosyaIsi::Yaz, yol, {Degisiklik::Tur::Koy, bayt},
                [&](const std::filesystem::path& p) { return yazim::Yarat(p, bayt, bosYer); });
}

bool Dosyalar::Ekle(const Metin& yol, std::string_view bayt) const {
    return Adim(DosyaIsi::Ekle, yol, {Degisiklik::Tur::Ekle, bayt},
                [&](const std::filesystem::path& p) { return yazim::Ekle(p, bayt, bosYer); });
}

Kopyalanis Dosyalar::Kopyala(const Metin& kaynak, const Metin& hedef) const {
    return Sessiz([&] {
        const bool planda = defter_ && defter_->Planda();
        std::optional<std::filesystem::path> p;
        if (planda && okurken)
            okurken();
        if (planda)
            p = Bul(kaynak, sistem::Tur::Dosya);
        else if (Cevir(DosyaIsi::Kopyala, hedef))
            p = Cevir(DosyaIsi::Oku, kaynak);
        const bool tam = arama_.Tam();
        const yazim::Okunan okunan = !p ? yazim::Okunan() : planda ? defter_->Bak(*p) : yazim::Oku(*p);
        if (okunan.okundu && !okunan.metin && tam)
            return Kopyalanis::KaynakYok;
        if (!okunan.metin && defter_)
            defter_->Olmadi();
        return okunan.metin && Yaz(hedef, *okunan.metin) ? Kopyalanis::Oldu : Kopyalanis::Olmadi;
    });
}

bool Dosyalar::Sil(const Metin& yol) const {
    bool silindi = defter_ && defter_->Planda();
    Adim(DosyaIsi::Sil, yol, {Degisiklik::Tur::Kaldir}, [&](const std::filesystem::path& p) {
        silindi = sistem::DosyaSil(p);
        return silindi || !sistem::Var(p, sistem::Tur::Dosya);
    });
    return silindi;
}

bool Dosyalar::KlasorYap(const Metin& yol) const {
    return Sessiz([&] {
        const bool planda = defter_ && defter_->Planda();
        const auto p = planda ? Bul(yol, sistem::Tur::Klasor) : Cevir(DosyaIsi::KlasorYap, yol);
        if (!p)
            return false;
        if (planda) {
            defter_->KlasorPlanla(*p);
            return true;
        }
        // A folder by itself holds nothing that could be lost.
        if (defter_ && !defter_->Bos())
            defter_->KlasorOnce(*p);
        return sistem::KlasorYap(*p);
    });
}

} // namespace velora
