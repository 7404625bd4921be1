#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Resmi Tatiller ve Özel Günler": the holidays of the firm. `Liste` is the live store; whoever reads it
/// first loads it from `Tatiller.dll`.
struct FormResmiTatil {
    explicit FormResmiTatil(Program& program);

    /// Reads `Tatiller.dll`; a missing file gives an empty list.
    void Load();

    /// Columns: "Tarih" (dd.mm.yyyy), "Açıklama", "Tekrar" ("Evet" or "Hayır"), and the row's origin ("Genel"
    /// or "Özel").
    ListeGorunumu Liste;

  private:
    Program& program_;
};

} // namespace velora
