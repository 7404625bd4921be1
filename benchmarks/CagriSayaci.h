#pragma once

#include <csignal>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <optional>

namespace velora::olcum {

/// Calls of the operating system.
struct Cagrilar {
    int hepsi = 0;
    int esitleme = 0; ///< of them: those that wait for the medium
};

/// How many calls the work makes on this thread. It runs in a copy of this process, which then ends: what it
/// leaves in memory is lost, what it leaves on the disk stays. Nothing where the system lets no process be
/// watched.
inline std::optional<Cagrilar> CagrilariSay(const std::function<void()>& is) {
    const pid_t cocuk = fork();
    if (cocuk == 0) {
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            _exit(1);
        raise(SIGSTOP);
        is();
        _exit(0);
    }
    int durum = 0;
    if (cocuk < 0 || waitpid(cocuk, &durum, 0) != cocuk || !WIFSTOPPED(durum) ||
        ptrace(PTRACE_SETOPTIONS, cocuk, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL) != 0)
        return {};
    Cagrilar sayi;
    while (ptrace(PTRACE_SYSCALL, cocuk, nullptr, nullptr) == 0 && waitpid(cocuk, &durum, 0) == cocuk &&
           WIFSTOPPED(durum)) {
        __ptrace_syscall_info bilgi{};
        if (WSTOPSIG(durum) != (SIGTRAP | 0x80) ||
            ptrace(PTRACE_GET_SYSCALL_INFO, cocuk, sizeof bilgi, &bilgi) <= 0 ||
            bilgi.op != PTRACE_SYSCALL_INFO_ENTRY)
            continue;
        ++sayi.hepsi;
        const auto no = static_cast<long>(bilgi.entry.nr);
        sayi.esitleme += no == SYS_fsync || no == SYS_fdatasync || no == SYS_syncfs ? 1 : 0;
    }
    return WIFEXITED(durum) && WEXITSTATUS(durum) == 0 ? std::optional(sayi) : std::nullopt;
}

} // namespace velora::olcum
