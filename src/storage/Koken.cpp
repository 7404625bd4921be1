#include "storage/Koken.h"

#include <utility>

namespace velora {

std::optional<std::string> Koken::Oku(const Dosyalar& dosyalar, const Metin& yol) {
    OkumaSonucu sonuc = dosyalar.SonucluOku(yol);
    yazilir_ = sonuc.okunus != Okunus::Okunamadi;
    if (sonuc.okunus != Okunus::Okundu)
        return {};
    return std::move(sonuc.bayt);
}

bool Koken::Yaz(const Dosyalar& dosyalar, const Metin& yol, std::string_view bayt) const {
    return Yazilir() && dosyalar.Yaz(yol, bayt);
}

std::optional<std::string> KokenleOku(const Dosyalar& dosyalar, const Metin& yol, Koken* koken) {
    return koken != nullptr ? koken->Oku(dosyalar, yol) : dosyalar.Oku(yol);
}

} // namespace velora
