#include <cstdlib>

#include "platform/DurumKlasoru.h"

namespace velora {

namespace {

std::filesystem::path Kok(const char* degisken) {
    const char* deger = std::getenv(degisken);
    return deger != nullptr && *deger == '/' ? deger : "";
}

} // namespace

std::filesystem::path DurumKlasoru() {
    if (const auto durum = Kok("XDG_STATE_HOME"); !durum.empty())
        return durum / "velora";
    const auto ev = Kok("HOME");
    return ev.empty() ? ev : ev / ".local" / "state" / "velora";
}

void DurumuBagla(Ortam& ortam) {
    ortam.klasorler.durum = DurumKlasoru;
}

} // namespace velora
