#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Özel Hatırlatmalar": the reservations of the selected hall and year that are to be reminded of today.
struct FormOzelHatirlatma {
    explicit FormOzelHatirlatma(Program& program);

    void Load() {}
    /// Lists anew. With nothing due the screen closes at once.
    void Activate();
    /// Reads the main files of the folder, which are known by their endings. What a file doesn't fill stays
    /// from the one before it, so that a due record in front of one that can't be read is listed twice. True
    /// when something is due.
    bool Listele();
    void Liste_ItemClick();
    void Liste_DblClick();
    /// "Göster": the table goes to the year of the marked row, and its reservation is opened. Returns when it
    /// has closed.
    void Command4_Click();
    void Command2_Click(); ///< "Kapat"

    Metin baslik = u"Özel Hatırlatmalar";
    ListeGorunumu Liste; ///< a row's tag is the path of the main file
    Dugme Command4{u"Göster", {}, false};
    Dugme Command2{u"Kapat", {}};

  private:
    Program& program_;
};

} // namespace velora
