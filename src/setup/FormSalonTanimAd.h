#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Salon Düzenle": gives a hall another name. A rename is a copy: the old folders stay as they are, and only
/// the files of the selected year, the one before and the three behind go along.
struct FormSalonTanimAd {
    explicit FormSalonTanimAd(Program& program);

    void Load() {}

    /// "Tamam": copies, renames the hall in both lists, saves and closes. What fails is passed over.
    void Command1_Click();
    void Command2_Click(); ///< "İptal"

    Metin baslik = u"Salon Düzenle";
    Metin Tag;         ///< the hall's old name
    MetinKutusu Text1; ///< the new one
    Etiket Label1;
    Etiket Label2; ///< hidden: the hall's place in the list, counted from 0
    Dugme Command1;
    Dugme Command2;

  private:
    Program& program_;
};

} // namespace velora
