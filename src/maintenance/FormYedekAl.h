#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Yedekleme İşlemleri": a dated copy of the whole tree in a folder of the user's choice.
struct FormYedekAl {
    explicit FormYedekAl(Program& program);

    void Load();
    void cmdStart_Click(); ///< "Tamam": takes the backup
    void Command3_Click(); ///< "Kapat": unloads the screen

    Metin baslik = u"Yedekleme İşlemleri";
    Etiket Label8;
    Dugme cmdStart{u"Tamam", {}};
    Dugme Command3{u"Kapat", {}};

  private:
    Program& program_;
};

} // namespace velora
