#include "storage/dosya/OkumaBellegi.h"

#include <algorithm>
#include <utility>

namespace velora {

namespace {

/// Paths come here in one form only: to compare them part by part would cost more than all the rest.
bool Bunun(const KlasorBellegi& bellek, const std::filesystem::path& klasor) {
    return bellek.Klasor().native() == klasor.native();
}

} // namespace

std::shared_ptr<KlasorBellegi> OkumaBellegi::Al(const std::filesystem::path& klasor) {
    const auto yer = std::ranges::find_if(klasorler_, [&](const auto& b) { return Bunun(*b, klasor); });
    if (yer != klasorler_.end() && yer->use_count() == 1) {
        std::rotate(yer, yer + 1, klasorler_.end());
        if (!klasorler_.back()->Izleniyor())
            klasorler_.back()->Izlet(GozcuBul());
        return klasorler_.back();
    }
    auto yeni = std::make_shared<KlasorBellegi>(klasor);
    if (yer == klasorler_.end())
        klasorler_.push_back(yeni);
    return yeni;
}

/// A new one, or that of the folder which was longest not read: to make one and to throw it away costs more
/// than a folder's reading.
std::unique_ptr<sistem::Gozcu> OkumaBellegi::GozcuBul() {
    const auto izlenir = [](const auto& bellek) { return bellek->Izleniyor(); };
    if (static_cast<std::size_t>(std::ranges::count_if(klasorler_, izlenir)) < enCokIzlenen)
        return std::make_unique<sistem::Gozcu>();
    const auto ilk = std::ranges::find_if(klasorler_, izlenir);
    return ilk != klasorler_.end() ? (*ilk)->Izlet(nullptr) : nullptr;
}

bool OkumaBellegi::Var(const std::filesystem::path& klasor) const {
    return std::ranges::any_of(klasorler_, [&](const auto& bellek) { return Bunun(*bellek, klasor); });
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
        if (Bunun(*bellek, klasor))
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
