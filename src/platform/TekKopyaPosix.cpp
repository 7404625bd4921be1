#include <cerrno>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/TekKopya.h"

namespace velora {

namespace {

/// The folder of what runs belongs to one user of one machine. Without it, the common one with his number.
std::string KilitYolu() {
    const char* klasor = std::getenv("XDG_RUNTIME_DIR");
    if (klasor != nullptr && *klasor == '/')
        return std::string(klasor) + "/velora.lock";
    return "/tmp/velora-" + std::to_string(::getuid()) + ".lock";
}

} // namespace

bool TekKopyaMi() {
    static int kilit = -1; // open as long as the process lives: the lock goes with it
    if (kilit >= 0)
        return true;
    const int dosya = ::open(KilitYolu().c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (dosya < 0)
        return true;
    if (::flock(dosya, LOCK_EX | LOCK_NB) == 0) {
        kilit = dosya;
        return true;
    }
    const bool baskasinda = errno == EWOULDBLOCK;
    ::close(dosya);
    return !baskasinda;
}

void KopyayiBagla(Ortam& ortam) {
    ortam.kopya.tek = TekKopyaMi;
}

} // namespace velora
