#include "storage/gunluk/Esitleyici.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <thread>

#include "storage/dosya/Sistem.h"

namespace velora {
namespace {

constexpr std::chrono::seconds kEnCokBekleme{3};

// So many files that to wait for the whole disk is less than to wait for each of them.
constexpr std::size_t kCokDosya = 32;

bool HepsiDurur(const Esitleyici::Is& is) {
    if (is.dosyalar.size() + is.klasorler.size() > kCokDosya && sistem::DiskiEsitle(is.kok))
        return true;
    return std::ranges::all_of(is.dosyalar, sistem::DosyaEsitle) &&
           std::ranges::all_of(is.klasorler, sistem::AdlariEsitle);
}

/// Memory that runs out leaves the action unmarked: the next start looks after it.
void Yap(const Esitleyici::Is& is) noexcept {
    try {
        if (HepsiDurur(is))
            is.olunca();
    } catch (const std::exception&) {
        return;
    }
}

} // namespace

struct Esitleyici::Ic {
    std::mutex kilit;
    std::condition_variable haber;
    std::deque<Is> isler; ///< the first one is under way
    bool calisan = false;
    bool bitti = false;

    void Calis() {
        std::unique_lock tutan(kilit);
        while (true) {
            haber.wait(tutan, [this] { return bitti || !isler.empty(); });
            if (isler.empty())
                break;
            const Is& is = isler.front(); // stays where it is, whatever comes behind it
            tutan.unlock();
            Yap(is);
            tutan.lock();
            isler.pop_front();
            haber.notify_all();
        }
    }
};

Esitleyici::Esitleyici() : ic_(std::make_shared<Ic>()) {}

Esitleyici::~Esitleyici() {
    {
        const std::lock_guard tutan(ic_->kilit);
        ic_->bitti = true;
    }
    ic_->haber.notify_all();
    Bekle();
}

void Esitleyici::Ver(Is is) {
    const std::lock_guard tutan(ic_->kilit);
    try {
        if (!ic_->calisan)
            std::thread([ic = ic_] { ic->Calis(); }).detach();
        ic_->calisan = true;
        ic_->isler.push_back(std::move(is));
        ic_->haber.notify_all();
    } catch (const std::exception&) {
        return; // as when it couldn't be waited for
    }
}

bool Esitleyici::Bekle() const {
    std::unique_lock tutan(ic_->kilit);
    return ic_->haber.wait_for(tutan, kEnCokBekleme, [this] { return ic_->isler.empty(); });
}

} // namespace velora
