#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Menü Ekle": enters one menu, or changes one ("Menü Düzenle").
struct FormMenuEkle {
    explicit FormMenuEkle(Program& program);

    /// Without a name there is nothing to confirm.
    void Load() { Text1_Change(); }

    void Text1_Change();
    void Command4_Click(); ///< "Tamam" or "Değiştir"
    void Command3_Click(); ///< "İptal"

    Metin baslik = u"Menü Ekle";
    Metin Tag;         ///< blank while adding; else the menu's place in the list, counted from 0
    MetinKutusu Text1; ///< name
    MetinKutusu Text2; ///< content
    Etiket Label1;
    Etiket Label2;
    Dugme Command3;
    Dugme Command4;

  private:
    Program& program_;
};

} // namespace velora
