// A backup whose screen was closed in the middle: the table brings it to its end.
#include <chrono>

#include "maintenance/EslemeKosusu.h"
#include "maintenance/FormYedekAl.h"
#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

// The table is used in between: a tick is over sooner than anybody notices, also where each file takes long.
using TikSaati = std::chrono::steady_clock;
constexpr int kYedekAraligi = 2;
constexpr std::chrono::milliseconds kTikSuresi{8};
constexpr int kTiktekiAdim = 64;

} // namespace

void FormTablo::YedegiSurdur(std::shared_ptr<EslemeKosusu> kosu) {
    yedekler_.push_back(std::move(kosu));
    YedekTimer.aralik = kYedekAraligi;
}

void FormTablo::YedekTimer_Tick() {
    if (program_.ortam.olaylar.bitti() || yedekler_.empty()) {
        YedekTimer.aralik = 0;
        return;
    }
    if (!YedekTimer.beklerken)
        return YedekBitti();
    const auto kosu = yedekler_.front();
    const auto son = TikSaati::now() + kTikSuresi;
    bool surer = true;
    for (int i = 0; surer && i < kTiktekiAdim && TikSaati::now() < son; ++i)
        surer = kosu->Adim();
    // Its message waits until no window does: a key that is meant for that one must not answer it.
    YedekTimer.beklerken = surer;
}

void FormTablo::YedekBitti() {
    yedekler_.pop_front();
    YedekTimer.beklerken = true;
    if (yedekler_.empty())
        YedekTimer.aralik = 0;
    FormYedekAl::Bitti(program_);
}

} // namespace velora
