#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "storage/dosya/AdListesi.h"
#include "storage/dosya/Sistem.h"

namespace velora {

/// A folder as it was found: open for who reads its files, and the names of these as they came.
struct ListelenenKlasor {
    explicit ListelenenKlasor(const std::filesystem::path& yol);

    std::unique_ptr<sistem::Klasor> acik;
    std::optional<sistem::Kimlik> kimlik; ///< of the folder
    AdListesi adlar;
};

/// Lists folders that are going to be read one behind the other: a thread of its own and the one that reads
/// them share the work, a few folders ahead. Of a listing nearly all is the system's own work, so two of them
/// are done in the time of one.
///
/// What is handed over is as young as if it were listed then, but for what another program did meanwhile: a
/// moment at most. All calls come from one thread.
class OndenListe {
  public:
    /// How many folders stand listed ahead at most, open.
    static constexpr std::size_t kEnCokOnde = 8;
    /// Longer than this none of them stays.
    static constexpr std::chrono::milliseconds kEnCokYas{1000};

    /// Where no thread can be had, all is listed by who reads.
    explicit OndenListe(std::vector<std::filesystem::path> klasorler,
                        std::chrono::milliseconds enCokYas = kEnCokYas);
    OndenListe(const OndenListe&) = delete;
    OndenListe& operator=(const OndenListe&) = delete;
    /// Waits for the listing that is under way.
    ~OndenListe();

    /// The folder, listed; those before it in the order are passed over. Nothing for one that doesn't come
    /// any more, or whose listing failed for lack of memory.
    std::optional<ListelenenKlasor> Al(const std::filesystem::path& klasor);

    /// To be called when something in any of them was changed from here: what was listed before is listed
    /// again.
    void Birak();

    /// For tests: how many stand listed ahead, once the thread has nothing left to do.
    std::size_t Hazir() const;

  private:
    struct Ic;
    std::unique_ptr<Ic> ic_;
};

} // namespace velora
