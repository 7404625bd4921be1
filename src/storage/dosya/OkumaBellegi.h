#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "storage/dosya/KlasorBellegi.h"

namespace velora {

/// What is kept of the folders that were read, as long as the program runs: 64 MiB at most. The folder that
/// was longest not read goes first.
class OkumaBellegi {
  public:
    static constexpr std::size_t kEnCok = std::size_t{64} << 20U;

    /// What is kept of that folder; an empty one where there is nothing yet. Somebody may be reading from it
    /// already, further out, and it must not change under his hands: then this one gets one of his own, which
    /// goes with him.
    std::shared_ptr<KlasorBellegi> Al(const std::filesystem::path& klasor);

    /// Whether anything is kept of it.
    bool Var(const std::filesystem::path& klasor) const;

    /// To be called when a folder was read. One of which nothing is worth keeping goes.
    void Okundu(const std::shared_ptr<KlasorBellegi>& bellek);

    /// Forgets one file, which somebody here writes, whatever the system will say of it.
    void Unut(const std::filesystem::path& dosya);

    /// Forgets all.
    void Bosalt() { klasorler_.clear(); }

    /// What was touched later than that isn't believed when it is read now: another write might bear the same
    /// time. Where the clock was set back all is forgotten: a time that was past may come again.
    SistemAni Sinir();

    /// So many of the folders that were read last are watched, from their second reading on: it slows down
    /// the reading of what isn't known yet.
    std::size_t enCokIzlenen = 8;
    /// The coarsest step in which a disk tells times.
    std::chrono::nanoseconds zamanAdimi = std::chrono::seconds(2);
    /// For tests: another clock.
    std::function<SistemAni()> saat;
    /// For tests: what is held in memory.
    std::size_t Bayt() const;

  private:
    std::unique_ptr<sistem::Gozcu> GozcuBul();

    std::vector<std::shared_ptr<KlasorBellegi>> klasorler_; // the one that was read last stands last
    SistemAni sonAn_{};
};

} // namespace velora
