#include "qt/Isci.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

#include "qt/Koruma.h"

namespace velora {

namespace {

constexpr std::chrono::seconds kEnUzunBekleme{3};

} // namespace

/// Both sides hold it: a job that hangs outlives the worker.
struct Isci::Ic {
    std::mutex kilit;
    std::condition_variable degisti;
    std::deque<Gorev> gorevler;
    bool suruyor = false;
    bool kapandi = false;
    QObject* alici = nullptr;

    bool Bos() const { return gorevler.empty() && !suruyor; }
};

void Isci::Calis(Ic& ic) {
    std::unique_lock kilit(ic.kilit);
    for (;;) {
        ic.degisti.wait(kilit, [&ic] { return ic.kapandi || !ic.gorevler.empty(); });
        if (ic.gorevler.empty())
            return;
        Gorev gorev = std::move(ic.gorevler.front());
        ic.gorevler.pop_front();
        ic.suruyor = true;
        kilit.unlock();
        bool tamam = false;
        Koru([&] { tamam = gorev.is(); });
        gorev.is = {}; // what it held is this thread's until here
        kilit.lock();
        ic.suruyor = false;
        if (ic.alici != nullptr)
            QMetaObject::invokeMethod(
                ic.alici, [bitince = std::move(gorev.bitince), tamam] { bitince(tamam); },
                Qt::QueuedConnection);
        ic.degisti.notify_all();
    }
}

Isci::~Isci() {
    if (!ic_)
        return;
    const bool bitti = Bekle();
    {
        const std::lock_guard kilit(ic_->kilit);
        ic_->kapandi = true;
        ic_->alici = nullptr;
        ic_->gorevler.clear();
    }
    ic_->degisti.notify_all();
    bitti ? is_.join() : is_.detach();
}

void Isci::Ver(Is is, std::function<void(bool)> bitince) {
    if (!ic_) {
        auto ic = std::make_shared<Ic>();
        ic->alici = &alici_;
        is_ = std::thread([ic] { Calis(*ic); });
        ic_ = std::move(ic); // only once somebody works on it
    }
    {
        const std::lock_guard kilit(ic_->kilit);
        ic_->gorevler.push_back({std::move(is), std::move(bitince)});
    }
    ic_->degisti.notify_all();
}

bool Isci::Bekle() {
    if (!ic_)
        return true;
    std::unique_lock kilit(ic_->kilit);
    return ic_->degisti.wait_for(kilit, kEnUzunBekleme, [this] { return ic_->Bos(); });
}

} // namespace velora
