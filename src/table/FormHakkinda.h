#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Program Hakkında": which program this is, where it lies, and whose work it stands on.
struct FormHakkinda {
    explicit FormHakkinda(Program& program);

    void Load() {}
    void Command1_Click(); ///< "Tamam"

    Metin baslik = u"Program Hakkında";
    Etiket Ad;           ///< the program's name
    Etiket Surum;        ///< its version
    MetinKutusu Klasor;  ///< the folder in which it and its data lie; can be copied
    ListeGorunumu Liste; ///< the libraries and their licences
    Dugme Command1{u"Tamam", {}};

  private:
    Program& program_;
};

} // namespace velora
