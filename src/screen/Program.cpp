#include "screen/Program.h"

namespace velora {

Program::Program(Ortam disDunya, const std::filesystem::path& kok)
    : ortam(std::move(disDunya)), dosyalar(kok), agac(dosyalar) {
    dosyalar.okurken = [this] { ortam.olaylar.nefes(); };
}

void Program::EkranKalmadiysaBitir() const {
    if (yigin.Bos())
        ortam.olaylar.bitir();
}

Gun Program::Bugun() const {
    return Gun(std::chrono::floor<std::chrono::days>(ortam.zaman.simdi()));
}

} // namespace velora
