#include "storage/dosya/Yazim.h"

#include <utility>

#include "storage/dosya/Aktarim.h"
#include "storage/dosya/Dosyalar.h"
#include "storage/dosya/Sistem.h"

namespace velora::yazim {
namespace {

using sistem::AcikDosya;
using sistem::Acilis;
using sistem::Kip;

/// Runs the work on the file, on a disk as narrow as the test wants it.
template <class Is>
bool Yerle(AcikDosya& dosya, const Yer& yer, Is is) {
    if (!yer)
        return is(dosya);
    DarDosya<AcikDosya> dar(dosya, *yer);
    return is(dar);
}

enum class Yenisi { Oldu, AdiOlmadi, Olmadi };

Yenisi YeniKoy(const std::filesystem::path& yol, std::string_view bayt, const Yer& yer, Kip kip) {
    AcikDosya dosya;
    if (dosya.Ac(yol, kip) != Acilis::Acildi)
        return Yenisi::Olmadi;
    const bool yazildi = Yerle(dosya, yer, [&](auto& hedef) { return HepsiniYaz(hedef, 0, bayt); });
    if (yazildi && !dosya.AdVer(yol))
        return Yenisi::AdiOlmadi;
    const bool adli = yazildi || !dosya.Adsiz();
    if (dosya.Kapat() && yazildi)
        return Yenisi::Oldu;
    if (adli)
        sistem::DosyaSil(yol);
    return Yenisi::Olmadi;
}

/// Writes a file that is there with `is`, and makes one that isn't.
template <class Is>
bool EskiVeyaYeni(const std::filesystem::path& yol, std::string_view bayt, const Yer& yer, Is is) {
    AcikDosya dosya;
    switch (dosya.Ac(yol, Kip::Guncelle)) {
    case Acilis::Acildi:
        return Yerle(dosya, yer, is) && dosya.Kapat();
    case Acilis::Yok:
        return Yarat(yol, bayt, yer);
    case Acilis::Olmadi:
        break;
    }
    return false;
}

} // namespace

bool Yaz(const std::filesystem::path& yol, std::string_view bayt, const Yer& yer) {
    return EskiVeyaYeni(yol, bayt, yer, [&](auto& dosya) { return UzerineYaz(dosya, bayt); });
}

bool Yarat(const std::filesystem::path& yol, std::string_view bayt, const Yer& yer) {
    const Yenisi adsiz = YeniKoy(yol, bayt, yer, Kip::Adsiz);
    // Not every system can give a name to what has none.
    return adsiz == Yenisi::Oldu ||
           (adsiz == Yenisi::AdiOlmadi && YeniKoy(yol, bayt, yer, Kip::Yeni) == Yenisi::Oldu);
}

bool Ekle(const std::filesystem::path& yol, std::string_view bayt, const Yer& yer) {
    return EskiVeyaYeni(yol, bayt, yer, [&](auto& dosya) { return SonunaYaz(dosya, bayt); });
}

Okunan Oku(const std::filesystem::path& yol) {
    AcikDosya dosya;
    const Acilis acilis = dosya.Ac(yol, Kip::Oku);
    if (acilis != Acilis::Acildi)
        return {acilis == Acilis::Yok, {}};
    const auto boy = dosya.Boy();
    if (!boy || *boy > kEnUzunOkuma)
        return {};
    std::string bayt(static_cast<std::size_t>(*boy) + 1, '\0');
    const auto okunan = OkuHepsini(dosya, kEnUzunOkuma, bayt, static_cast<std::size_t>(*boy));
    if (!okunan)
        return {};
    bayt.resize(*okunan);
    return {true, std::move(bayt)};
}

} // namespace velora::yazim
