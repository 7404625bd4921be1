#pragma once

#include <exception>

namespace velora {

/// Runs the work. What a system throws is memory running out: a failed step as any other, and the answer then
/// is the empty one of its kind.
template <class Is>
auto Sessiz(Is is) noexcept -> decltype(is()) {
    try {
        return is();
    } catch (const std::exception&) {
        return decltype(is())();
    }
}

} // namespace velora
