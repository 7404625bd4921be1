#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Resmi Tatil Ekle": a day of the firm's own for the list of `FormResmiTatil`.
struct FormResmiTatilEkle {
    explicit FormResmiTatilEkle(Program& program);

    void Load();
    /// "Tamam": puts the day into the list, not into the file. A name needs a sign at least.
    void Command1_Click();
    void Command2_Click(); ///< "İptal"

    Metin baslik = u"Resmi Tatil Ekle";
    TarihSecici DTPicker1; ///< opens on the first day of the year
    MetinKutusu Text2;
    OnayKutusu Check1; ///< the day comes back every year
    Dugme Command1;
    Dugme Command2;

  private:
    Program& program_;
};

} // namespace velora
