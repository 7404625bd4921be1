#include "screen/Program.h"

#include "storage/gunluk/EylemDefteri.h"

namespace velora {

Program::Program(Ortam disDunya, const std::filesystem::path& kok)
    : ortam(std::move(disDunya)), dosyalar(kok), agac(dosyalar) {
    dosyalar.okurken = [this] { ortam.olaylar.nefes(); };
}

void Program::GunluguAc() {
    if (const auto klasor = ortam.klasorler.durum(); !klasor.empty())
        dosyalar.GunluguAc(klasor, {.kim = [this] { return oturum.UserNamem; }, .simdi = ortam.zaman.simdi});
}

void Program::EkranKalmadiysaBitir() const {
    if (yigin.Bos())
        ortam.olaylar.bitir();
}

Gun Program::Bugun() const {
    return Gun(std::chrono::floor<std::chrono::days>(ortam.zaman.simdi()));
}

} // namespace velora
