#include "storage/dosya/OndenListe.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>

#include "storage/dosya/Sessiz.h"

namespace velora {

ListelenenKlasor::ListelenenKlasor(const std::filesystem::path& yol)
    : acik(std::make_unique<sistem::Klasor>(yol)), kimlik(acik->Sor()) {
    for (sistem::ListeOgesi oge; acik->Sonraki(oge, sistem::Tur::Dosya);)
        adlar.Ekle(oge);
}

struct OndenListe::Ic {
    using Saat = std::chrono::steady_clock;
    enum class Hal { Bos, Suruyor, Bitti };
    struct Yuva {
        std::filesystem::path klasor;
        Hal hal = Hal::Bos;
        bool bayat = false; ///< something was changed while it was under way
        Saat::time_point an = {};
        std::optional<ListelenenKlasor> liste = {}; ///< none of one whose listing failed
    };

    std::vector<Yuva> yuvalar;
    mutable std::mutex kilit;
    std::condition_variable haber;
    std::size_t sira = 0; ///< the first that may still be taken
    bool bitti = false;
    std::chrono::milliseconds enCokYas{};
    std::thread yardimci;

    /// One that nobody has begun with, of the next few. Null: there is none.
    Yuva* Siradaki() {
        const std::size_t son = std::min(yuvalar.size(), sira + kEnCokOnde);
        for (std::size_t i = sira; i < son; ++i)
            if (yuvalar[i].hal == Hal::Bos)
                return &yuvalar[i];
        return nullptr;
    }

    /// The lock is free while the system works.
    void Listele(Yuva& yuva, std::unique_lock<std::mutex>& tutan) {
        yuva.hal = Hal::Suruyor;
        yuva.bayat = false;
        tutan.unlock();
        auto liste = Sessiz([&] { return std::optional<ListelenenKlasor>(yuva.klasor); });
        tutan.lock();
        const bool istenir = !yuva.bayat && &yuva >= yuvalar.data() + sira;
        yuva.hal = istenir ? Hal::Bitti : Hal::Bos;
        yuva.an = Saat::now();
        if (istenir)
            yuva.liste = std::move(liste);
        haber.notify_all();
    }

    void Calis() {
        std::unique_lock tutan(kilit);
        while (!bitti) {
            if (Yuva* yuva = Siradaki())
                Listele(*yuva, tutan);
            else
                haber.wait(tutan);
        }
    }

    /// Passes over all before this one.
    void Ilerle(std::size_t yeni) {
        for (; sira < yeni; ++sira)
            yuvalar[sira].liste.reset();
        haber.notify_all();
    }
};

OndenListe::OndenListe(std::vector<std::filesystem::path> klasorler, std::chrono::milliseconds enCokYas)
    : ic_(std::make_unique<Ic>()) {
    ic_->enCokYas = enCokYas;
    ic_->yuvalar.reserve(klasorler.size());
    for (auto& klasor : klasorler)
        ic_->yuvalar.push_back({.klasor = std::move(klasor)});
    try {
        ic_->yardimci = std::thread([ic = ic_.get()] { ic->Calis(); });
    } catch (const std::exception&) {
        return;
    }
}

OndenListe::~OndenListe() {
    {
        const std::lock_guard tutan(ic_->kilit);
        ic_->bitti = true;
    }
    ic_->haber.notify_all();
    if (ic_->yardimci.joinable())
        ic_->yardimci.join();
}

std::optional<ListelenenKlasor> OndenListe::Al(const std::filesystem::path& klasor) {
    std::unique_lock tutan(ic_->kilit);
    const auto ilk = ic_->yuvalar.begin() + static_cast<std::ptrdiff_t>(ic_->sira);
    const auto yuva = std::find_if(ilk, ic_->yuvalar.end(),
                                   [&](const Ic::Yuva& y) { return y.klasor.native() == klasor.native(); });
    if (yuva == ic_->yuvalar.end())
        return {};
    ic_->Ilerle(static_cast<std::size_t>(yuva - ic_->yuvalar.begin()));
    if (yuva->hal == Ic::Hal::Bitti && Ic::Saat::now() - yuva->an > ic_->enCokYas)
        yuva->hal = Ic::Hal::Bos;
    while (yuva->hal != Ic::Hal::Bitti) {
        // Rather than to wait for the other one, the next is begun with.
        if (Ic::Yuva* bos = ic_->Siradaki())
            ic_->Listele(*bos, tutan);
        else
            ic_->haber.wait(tutan);
    }
    auto liste = std::exchange(yuva->liste, std::nullopt);
    ic_->Ilerle(ic_->sira + 1);
    return liste;
}

void OndenListe::Birak() {
    const std::lock_guard tutan(ic_->kilit);
    for (Ic::Yuva& yuva : ic_->yuvalar) {
        yuva.bayat = true;
        if (yuva.hal == Ic::Hal::Bitti) {
            yuva.hal = Ic::Hal::Bos;
            yuva.liste.reset();
        }
    }
}

std::size_t OndenListe::Hazir() const {
    std::unique_lock tutan(ic_->kilit);
    ic_->haber.wait(tutan, [this] {
        return ic_->Siradaki() == nullptr && std::ranges::none_of(ic_->yuvalar, [](const Ic::Yuva& y) {
                   return y.hal == Ic::Hal::Suruyor;
               });
    });
    return static_cast<std::size_t>(
        std::ranges::count(ic_->yuvalar, true, [](const Ic::Yuva& y) { return y.liste.has_value(); }));
}

} // namespace velora
