#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <memory>

#include "platform/KlasorIzleme.h"

namespace velora {

namespace {

constexpr DWORD kIzlenen = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME |
                           FILE_NOTIFY_CHANGE_ATTRIBUTES | FILE_NOTIFY_CHANGE_SIZE |
                           FILE_NOTIFY_CHANGE_LAST_WRITE;

} // namespace

DegisiklikBekle KlasoruIzle(const std::filesystem::path& klasor) {
    const HANDLE bildirim = ::FindFirstChangeNotificationW(klasor.c_str(), FALSE, kIzlenen);
    if (bildirim == INVALID_HANDLE_VALUE)
        return {};
    // Closes with the last one that waits.
    const std::shared_ptr<void> izleme(bildirim, ::FindCloseChangeNotification);
    return [izleme](std::chrono::milliseconds sure) {
        return ::WaitForSingleObject(izleme.get(), static_cast<DWORD>(sure.count())) == WAIT_OBJECT_0 &&
               ::FindNextChangeNotification(izleme.get()) != 0;
    };
}

void IzlemeyiBagla(Ortam& ortam) {
    ortam.klasorler.izle = KlasoruIzle;
}

} // namespace velora
