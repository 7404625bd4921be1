#pragma once

namespace velora {

struct Program;

/// The start-up screen. It stays loaded, hidden, for the whole run: its two boxes are the online state.
struct Splash {
    explicit Splash(Program& /*program*/) {}
    void Load() {}

    int Check1 = 0; ///< 1 when the service answered in this run: the test with which every online feature
                    ///< starts
    int Check2 = 0; ///< 1 when the service reports the firm's calendar as published
};

} // namespace velora
