#pragma once

#include <exception>
#include <utility>

#include <QtGlobal>

namespace velora {

/// Every call from the toolkit into the screens goes through here: an exception ends the handler that threw
/// it, is told on the error stream, and never reaches the toolkit, which couldn't carry it.
template <class Is>
void Koru(Is&& is) noexcept {
    try {
        std::forward<Is>(is)();
    } catch (const std::exception& hata) {
        qWarning("A handler ended early: %s", hata.what());
    } catch (...) {
        qWarning("A handler ended early.");
    }
}

} // namespace velora
