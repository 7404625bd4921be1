#include "tools/CagriSayaci.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <map>
#include <string>
#include <string_view>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace velora::olcum {

namespace {

// An option that no system has: a work ends.
constexpr long kIsBitti = 0x76656c6f;

using Argumanlar = decltype(__ptrace_syscall_info{}.entry.args);

/// The copy, seen from outside.
class Izleyici {
  public:
    Izleyici(pid_t no, std::string agac)
        : no_(no), bellek_(open(("/proc/" + std::to_string(no) + "/mem").c_str(), O_RDONLY | O_CLOEXEC)),
          agac_(std::move(agac)) {}
    Izleyici(const Izleyici&) = delete;
    Izleyici& operator=(const Izleyici&) = delete;
    ~Izleyici() {
        if (bellek_ >= 0)
            close(bellek_);
    }

    /// Runs it to its end. False: it didn't come there.
    bool Izle() {
        int durum = 0;
        if (waitpid(no_, &durum, 0) != no_ || !WIFSTOPPED(durum) ||
            ptrace(PTRACE_SETOPTIONS, no_, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL) != 0)
            return false;
        long isaret = 0;
        while (ptrace(PTRACE_SYSCALL, no_, nullptr, isaret) == 0 && waitpid(no_, &durum, 0) == no_ &&
               WIFSTOPPED(durum)) {
            const bool cagri = WSTOPSIG(durum) == (SIGTRAP | 0x80);
            isaret = cagri ? 0 : WSTOPSIG(durum);
            if (cagri)
                Cagri();
        }
        return WIFEXITED(durum) && WEXITSTATUS(durum) == 0;
    }

    std::vector<Cagrilar> bitenler;

  private:
    enum class Tur { Dosya, Klasor };

    void Cagri() {
        __ptrace_syscall_info bilgi{};
        if (ptrace(PTRACE_GET_SYSCALL_INFO, no_, sizeof bilgi, &bilgi) <= 0)
            return;
        if (bilgi.op == PTRACE_SYSCALL_INFO_EXIT && acilan_ && bilgi.exit.rval >= 0)
            aciklar_[bilgi.exit.rval] = *acilan_;
        acilan_.reset();
        if (bilgi.op == PTRACE_SYSCALL_INFO_ENTRY)
            Giris(static_cast<long>(bilgi.entry.nr), bilgi.entry.args);
    }

    void Giris(long cagri, const Argumanlar& arguman) {
        if (cagri == SYS_prctl && static_cast<long>(arguman[0]) == kIsBitti) {
            bitenler.push_back(std::exchange(simdiki_, {}));
            return;
        }
        ++simdiki_.hepsi;
        simdiki_.esitleme += cagri == SYS_fsync || cagri == SYS_fdatasync || cagri == SYS_syncfs ? 1 : 0;
        if (cagri == SYS_close)
            aciklar_.erase(static_cast<long>(arguman[0]));
        else if (cagri == SYS_read || cagri == SYS_pread64)
            simdiki_.okuma += aciklar_.contains(static_cast<long>(arguman[0])) ? 1 : 0;
        else if ((cagri == SYS_newfstatat || cagri == SYS_statx) && Agacta(arguman))
            ++simdiki_.sorma;
        else if (cagri == SYS_openat && Agacta(arguman))
            Acilis(static_cast<int>(arguman[2]));
    }

    void Acilis(int nasil) {
        if ((nasil & O_DIRECTORY) != 0 && (nasil & O_TMPFILE) != O_TMPFILE) {
            ++simdiki_.listeleme;
            acilan_ = Tur::Klasor;
        } else if ((nasil & O_ACCMODE) == O_RDONLY) {
            ++simdiki_.acma;
            acilan_ = Tur::Dosya;
        }
    }

    /// Whether a name that stands behind a folder lies in the tree.
    bool Agacta(const Argumanlar& arguman) const {
        const std::string ad = Metin(arguman[1]);
        if (ad.starts_with('/'))
            return ad.starts_with(agac_);
        const auto klasor = aciklar_.find(static_cast<int>(arguman[0]));
        return !ad.empty() && klasor != aciklar_.end() && klasor->second == Tur::Klasor;
    }

    /// What stands at that place of its memory, up to a zero.
    std::string Metin(std::uint64_t yer) const {
        std::string metin;
        std::array<char, 256> parca{};
        while (metin.find('\0') == std::string::npos && metin.size() < 4096) {
            // Not over the border of a page: the next one may not be there.
            const std::size_t boy = std::min<std::size_t>(parca.size(), 4096 - (yer + metin.size()) % 4096);
            const ssize_t gelen = pread(bellek_, parca.data(), boy, static_cast<off_t>(yer + metin.size()));
            if (gelen <= 0)
                break;
            metin.append(parca.data(), static_cast<std::size_t>(gelen));
        }
        return metin.substr(0, metin.find('\0'));
    }

    pid_t no_;
    int bellek_; // its memory, as a file
    std::string agac_;
    Cagrilar simdiki_;
    std::optional<Tur> acilan_; // by the call that is under way
    std::map<long, Tur> aciklar_;
};

} // namespace

std::optional<std::vector<Cagrilar>> CagrilariSay(const std::filesystem::path& agac,
                                                  const std::vector<std::function<void()>>& isler) {
    const pid_t cocuk = fork();
    if (cocuk == 0) {
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            _exit(1);
        raise(SIGSTOP);
        for (const auto& is : isler) {
            is();
            prctl(static_cast<int>(kIsBitti), 0, 0, 0, 0);
        }
        _exit(0);
    }
    if (cocuk < 0)
        return {};
    Izleyici izleyici(cocuk, agac.string());
    if (!izleyici.Izle() || izleyici.bitenler.size() != isler.size())
        return {};
    return std::move(izleyici.bitenler);
}

} // namespace velora::olcum
