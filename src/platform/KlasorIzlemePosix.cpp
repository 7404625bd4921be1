#include <array>
#include <memory>

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include "platform/KlasorIzleme.h"

namespace velora {

namespace {

constexpr std::uint32_t kIzlenen =
    IN_CREATE | IN_DELETE | IN_MOVE | IN_MODIFY | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

/// Closes with the last one that waits.
struct Izleme {
    int no = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);

    Izleme() = default;
    Izleme(const Izleme&) = delete;
    Izleme& operator=(const Izleme&) = delete;
    ~Izleme() {
        if (no >= 0)
            ::close(no);
    }
};

/// All that has come until now is one change.
bool Bosalt(int no) {
    alignas(inotify_event) std::array<char, 4096> tampon{};
    bool geldi = false;
    while (::read(no, tampon.data(), tampon.size()) > 0)
        geldi = true;
    return geldi;
}

} // namespace

DegisiklikBekle KlasoruIzle(const std::filesystem::path& klasor) {
    const auto izleme = std::make_shared<const Izleme>();
    if (::inotify_add_watch(izleme->no, klasor.c_str(), kIzlenen) < 0)
        return {};
    return [izleme](std::chrono::milliseconds sure) {
        pollfd okunur{izleme->no, POLLIN, 0};
        return ::poll(&okunur, 1, static_cast<int>(sure.count())) > 0 && Bosalt(izleme->no);
    };
}

void IzlemeyiBagla(Ortam& ortam) {
    ortam.klasorler.izle = KlasoruIzle;
}

} // namespace velora
