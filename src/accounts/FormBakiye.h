#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Rezervasyon Raporu": the reservations of one hall in a range of dates, and what they come to.
struct FormBakiye {
    explicit FormBakiye(Program& program);

    void Load();
    void Activate();
    /// "Listele": reads the folder of the hall and lists what lies in the range. Nothing in it: a box says so.
    void ListeleGun();

    int acikmi = 0; ///< 1 from the first `Activate` on: a save repeats the scan

  private:
    Program& program_;
};

} // namespace velora
