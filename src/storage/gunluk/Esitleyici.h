#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace velora {

/// Waits on a thread of its own until what was written stands on the medium, so that nobody else has to.
class Esitleyici {
  public:
    struct Is {
        std::vector<std::filesystem::path> dosyalar;
        std::vector<std::filesystem::path> klasorler; ///< in which names have come or gone
        std::filesystem::path kok;                    ///< above all of them
        std::function<void()> olunca;                 ///< on that thread, once all of it stands there
    };

    Esitleyici();
    /// Waits for what is under way, but not for ever: what hangs then is left to itself.
    ~Esitleyici();
    Esitleyici(const Esitleyici&) = delete;
    Esitleyici& operator=(const Esitleyici&) = delete;

    /// Takes the work and returns at once. Where no thread can be had it is never done.
    void Ver(Is is);
    /// Waits until nothing is left, a time at most. False when something still is.
    bool Bekle() const;

  private:
    struct Ic;
    std::shared_ptr<Ic> ic_; // the thread's, too
};

} // namespace velora
