#pragma once

#include "screen/Kontroller.h"
#include "storage/Koken.h"

namespace velora {

struct Program;

/// "Menü Ayarları": the firm's banquet menus, a name and a content each, kept in `Menuler.dat`. The order of
/// the list is the order of the file.
struct FormMenuAyar {
    explicit FormMenuAyar(Program& program);

    /// Reads `Menuler.dat`; a missing file gives an empty list.
    void Load();
    void Activate();

    void Liste_Click();
    void Liste_DblClick();
    void Command1_Click(); ///< "Ekle"
    void Command2_Click(); ///< "Sil"
    void Command4_Click(); ///< "Düzenle"
    void Command3_Click(); ///< "Kapat"
    void Kaydet_Click();   ///< writes `Menuler.dat`; a failed write is not reported

    Metin baslik = u"Menü Ayarları";
    ListeGorunumu Liste; ///< columns: name, content
    Dugme Command1;
    Dugme Command2;
    Dugme Command3;
    Dugme Command4;
    Dugme Kaydet;

  private:
    Program& program_;
    Koken koken_; // of the list
};

} // namespace velora
