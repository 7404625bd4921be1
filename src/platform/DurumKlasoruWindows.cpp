#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <string>

#include "platform/DurumKlasoru.h"

namespace velora {

std::filesystem::path DurumKlasoru() {
    // Asked for its length first, which counts the end along.
    const DWORD boy = GetEnvironmentVariableW(L"LOCALAPPDATA", nullptr, 0);
    std::wstring yol(boy, L'\0');
    yol.resize(boy == 0 ? 0 : GetEnvironmentVariableW(L"LOCALAPPDATA", yol.data(), boy));
    return yol.empty() ? std::filesystem::path() : std::filesystem::path(yol) / L"Velora";
}

void DurumuBagla(Ortam& ortam) {
    ortam.klasorler.durum = DurumKlasoru;
}

} // namespace velora
