#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "storage/dosya/Sistem.h"

namespace velora::sistem {

/// Tells what changes in a folder while it is watched, whoever changes it.
class Gozcu {
  public:
    Gozcu();
    Gozcu(const Gozcu&) = delete;
    Gozcu& operator=(const Gozcu&) = delete;
    ~Gozcu();

    /// Watches this folder from here on, and no other one.
    void Izle(const std::filesystem::path& klasor);

    /// Hands over the names of the entries that were made, removed, renamed, written to or given other rights
    /// since the last call, and an empty one for the folder itself. False when it can't be sure to know of
    /// all, or when the path leads to another folder by now; then it has stopped watching. A system that
    /// doesn't tell of each change at once is never sure.
    bool Degisenler(const std::function<void(DiskAdi ad)>& ver);

  private:
    struct Ic;
    std::unique_ptr<Ic> ic_;
};

} // namespace velora::sistem
