#pragma once

#include "screen/Ortam.h"

namespace velora {

struct Program;

/// Watches a folder, and tells the user of each change. Its texts are English.
class KlasorIzleme {
  public:
    explicit KlasorIzleme(const Program& program) : program_(program) {}

    /// Watches until `Dur` or the end of the program, and returns then; events run meanwhile. A folder that
    /// can't be watched ends it, too. One watch at a time: a second one that begins meanwhile does nothing.
    void Basla(const Metin& klasor);
    /// Ends the watch, if there is one.
    void Dur();

    Metin bulunan; ///< the first of the folder's "*.txt" at the last look; nobody shows it

  private:
    void Izle(const Metin& klasor);
    void TxtAra(const std::filesystem::path& klasor);
    /// True: something has changed. False: the watch is to end.
    bool Bekle();

    const Program& program_;
    DegisiklikBekle bekle_;
    bool izliyor_ = false;
    bool dur_ = false;
};

} // namespace velora
