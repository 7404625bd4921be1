#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

namespace velora::olcum {

/// Calls of the operating system, as the kernel sees them.
struct Cagrilar {
    int hepsi = 0;
    int esitleme = 0; ///< of them: those that wait for the medium
    // Of what lies below the tree that is watched:
    int listeleme = 0; ///< openings of folders
    int acma = 0;      ///< openings of files to read
    int okuma = 0;     ///< readings from these
    int sorma = 0;     ///< questions about a name
};

/// How many calls each of the works makes on this thread, one work behind the other. They run in a copy of
/// this process, which then ends: what they leave in memory is lost, what they leave on the disk stays.
/// Nothing where the system lets no process be watched, or where the copy doesn't come to its end.
std::optional<std::vector<Cagrilar>> CagrilariSay(const std::filesystem::path& agac,
                                                  const std::vector<std::function<void()>>& isler);

} // namespace velora::olcum
