#include "storage/dosya/OkumaBellegi.h"

#include <algorithm>
#include <utility>

namespace velora {

std::shared_ptr<KlasorBellegi> OkumaBellegi::Al(const std::filesystem::path& klasor) {
    const auto yer = std::ranges::find(klasorler_, klasor, [](const auto& b) { return b->Klasor(); });
    if (yer != klasorler_.end() && yer->use_count() == 1) {
        std::rotate(yer, yer + 1, klasorler_.end());
        return klasorler_.back();
    }
    auto yeni = std::make_shared<KlasorBellegi>(klasor);
    if (yer == klasorler_.end())
        klasorler_.push_back(yeni);
    return yeni;
}

void OkumaBellegi::Okundu(const std::shared_ptr<KlasorBellegi>& bellek) {
    if (bellek->Bos())
        std::erase(klasorler_, bellek);
    std::size_t bayt = Bayt();
    while (bayt > kEnCok && !klasorler_.empty()) {
        bayt -= klasorler_.front()->Bayt();
        klasorler_.erase(klasorler_.begin());
    }
}

void OkumaBellegi::Unut(const std::filesystem::path& dosya) {
    const std::filesystem::path klasor = dosya.parent_path();
    for (const auto& bellek : klasorler_)
        if (bellek->Klasor() == klasor)
            bellek->Unut(dosya.filename().native());
}

SistemAni OkumaBellegi::Sinir() {
    const SistemAni simdi = saat ? saat() : SistemAni(std::chrono::system_clock::now());
    if (simdi < sonAn_)
        Bosalt();
    sonAn_ = simdi;
    return simdi - zamanAdimi;
}

std::size_t OkumaBellegi::Bayt() const {
    std::size_t bayt = 0;
    for (const auto& bellek : klasorler_)
        bayt += bellek->Bayt();
    return bayt;
}

} // namespace velora
