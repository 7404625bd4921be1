#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Kayıt Arama": finds reservations by what their files say of the customer.
struct FormArama {
    explicit FormArama(Program& program);

    void Load() {}
    void Activate();
    /// "Ara": searches the folders of all halls and years. Nothing found: a box says so.
    void Command3_Click();

    int acikmi = 0; ///< 1 from the first `Activate` on: a save repeats the search

  private:
    Program& program_;
};

} // namespace velora
