#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Veri Tabanı": stands while the year table of the selected hall is sent to the service. Nothing shows it
/// unless the service has answered in this run.
struct FormWebteYayinla {
    explicit FormWebteYayinla(Program& program);

    void Load() {}
    void Command1_Click(); ///< "İptal": unloads the screen

    Metin baslik = u"Veri Tabanı";
    Etiket Label8;
    Etiket Label1;
    Etiket Label2; ///< what is being sent; set by who shows the screen
    Dugme Command1{u"İptal", {}};

  private:
    Program& program_;
};

} // namespace velora
