#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <string>

#include "platform/TekKopya.h"

namespace velora {

namespace {

/// A name that all sessions of the machine see; another user's is another one.
std::wstring KilitAdi() {
    constexpr DWORD kEnUzunAd = 257; // of a user, with its end
    wchar_t kullanici[kEnUzunAd] = L"";
    DWORD boy = kEnUzunAd;
    if (GetUserNameW(kullanici, &boy) == 0)
        kullanici[0] = L'\0';
    return std::wstring(L"Global\\velora-") + kullanici;
}

} // namespace

bool TekKopyaMi() {
    static HANDLE kilit = nullptr; // never closed: the system does it when the process ends
    if (kilit != nullptr)
        return true;
    HANDLE yeni = CreateMutexW(nullptr, FALSE, KilitAdi().c_str());
    if (yeni == nullptr)
        return true;
    if (GetLastError() == ERROR_ALREADY_EXISTS) {
        CloseHandle(yeni);
        return false;
    }
    kilit = yeni;
    return true;
}

void KopyayiBagla(Ortam& ortam) {
    ortam.kopya.tek = TekKopyaMi;
}

} // namespace velora
