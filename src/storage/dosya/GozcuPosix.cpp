#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

#include "storage/dosya/Gozcu.h"
#include "storage/dosya/Posix.h"

namespace velora::sistem {
namespace {

// All that changes what a listing or a reading gives.
constexpr std::uint32_t kGozlenen = IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB | IN_CREATE | IN_DELETE |
                                    IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
constexpr std::uint32_t kKaybeden = IN_Q_OVERFLOW | IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED;

/// File systems of this machine alone, which tell of every change: ext2 to 4, XFS, Btrfs, F2FS, tmpfs and the
/// layers of containers. What another machine writes on a share is told of by none.
constexpr std::array<std::int64_t, 6> kYerelDiskler{0xEF53,     0x58465342, 0x9123683E,
                                                    0xF2F52010, 0x01021994, 0x794C7630};

bool AyniOge(const struct stat& bir, const struct stat& iki) {
    return bir.st_dev == iki.st_dev && bir.st_ino == iki.st_ino;
}

} // namespace

struct Gozcu::Ic {
    std::filesystem::path yol;
    int no = -1;
    int izlenen = -1; ///< -1: it watches nothing
    struct stat kimlik {};

    bool YolAyni() const {
        struct stat simdiki {};
        return ::stat(yol.c_str(), &simdiki) == 0 && AyniOge(simdiki, kimlik);
    }
    void Birak() {
        if (izlenen >= 0)
            ::inotify_rm_watch(no, izlenen);
        izlenen = -1;
    }
    /// False when this one says that changes were lost.
    bool Al(const inotify_event& olay, const char* olayAdi, const std::function<void(DiskAdi ad)>& ver) {
        if ((olay.mask & IN_Q_OVERFLOW) != 0)
            return false;
        if (olay.wd != izlenen)
            return true; // of a folder that was watched before
        ver(olay.len > 0 ? DiskAdi(olayAdi) : DiskAdi());
        return (olay.mask & kKaybeden) == 0;
    }
};

Gozcu::Gozcu() : ic_(std::make_unique<Ic>()) {}

Gozcu::~Gozcu() {
    if (ic_->no >= 0)
        ::close(ic_->no);
}

void Gozcu::Izle(const std::filesystem::path& klasor) {
    ic_->Birak();
    ic_->yol = klasor;
    struct statfs disk {};
    if (::statfs(klasor.c_str(), &disk) != 0 ||
        std::find(kYerelDiskler.begin(), kYerelDiskler.end(), disk.f_type) == kYerelDiskler.end())
        return;
    if (ic_->no < 0)
        ic_->no = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (ic_->no >= 0)
        ic_->izlenen = ::inotify_add_watch(ic_->no, klasor.c_str(), kGozlenen);
    if (ic_->izlenen >= 0 && ::stat(klasor.c_str(), &ic_->kimlik) != 0)
        ic_->Birak();
}

bool Gozcu::Degisenler(const std::function<void(DiskAdi ad)>& ver) {
    alignas(inotify_event) std::array<char, 16 * 1024> tampon{};
    bool emin = ic_->izlenen >= 0 && ic_->YolAyni();
    while (emin) {
        const ssize_t boy = Sabirla([&] { return ::read(ic_->no, tampon.data(), tampon.size()); });
        if (boy < 0 && errno == EAGAIN)
            return true;
        emin = boy > 0;
        for (ssize_t yer = 0; yer < boy;) {
            inotify_event olay{};
            std::memcpy(&olay, tampon.data() + yer, sizeof olay);
            emin = ic_->Al(olay, tampon.data() + yer + sizeof olay, ver) && emin;
            yer += static_cast<ssize_t>(sizeof olay + olay.len);
        }
    }
    ic_->Birak();
    return false;
}

} // namespace velora::sistem
