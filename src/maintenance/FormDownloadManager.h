#pragma once

namespace velora {

struct Program;

/// The screen that fetches a new version of the program. It has no window yet: an offer of a new version that
/// is accepted only ends the program.
struct FormDownloadManager {
    explicit FormDownloadManager(Program& /*program*/) {}
    void Load() {}
};

} // namespace velora
