#pragma once

#include <functional>

class QObject;

namespace velora {

/// The breath of a handler that takes long: windows are painted, the system hears that the program lives, and
/// the pointer says that it is busy. Nothing that the user does arrives meanwhile, no timer is due and no
/// handler runs: what comes waits for its end (`Baglayici`). A handler that is soon done never draws one.
class Nefes {
  public:
    /// Behind each of many small steps.
    static void Al();
    /// In the middle of one.
    static bool Aliniyor();
    /// Events have come through just now: a handler begins, or has let them run.
    static void Basla();
    /// The program waits for the user again.
    static void Bitir();

    /// Shows who lives as long as `alici` how far work has come that takes longer than a second: with 1, 2, 3
    /// ... at each breath from then on, with 0 at its end.
    static void Izle(QObject& alici, std::function<void(int adim)> goster);
};

} // namespace velora
