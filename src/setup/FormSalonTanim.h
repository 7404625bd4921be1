#pragma once

#include "screen/Kontroller.h"
#include "storage/Koken.h"

namespace velora {

struct Program;

/// "Salon Tanımları": the list of halls, kept in `Salon.dat`. A hall's name is also its folder's name. The
/// hall selector of the table carries the same names in the same order: each change goes to both.
struct FormSalonTanim {
    explicit FormSalonTanim(Program& program);

    /// Reads `Salon.dat`; a missing file gives an empty list.
    void Load();
    void Activate();

    void List1_Click();
    void Command1_Click(); ///< "Ekle": asks for a name until one is given
    void Command2_Click(); ///< "Sil": from the list only; the folders stay
    void Command4_Click(); ///< "Düzenle": renames the marked hall
    void Command3_Click(); ///< "Kapat": refused while there is no hall
    void Kaydet_Click();   ///< writes `Salon.dat`; a failed write is not reported

    Metin baslik = u"Salon Tanımları";
    ListeKutusu List1;
    Dugme Command1;
    Dugme Command2;
    Dugme Command3;
    Dugme Command4;
    Dugme Kaydet;
    Etiket Label8; ///< the heading within the screen

  private:
    void Ekle(const Metin& salon);

    Program& program_;
    Koken koken_; // of the list
};

/// The prompt of a first run: with no hall selected in the table, offers to define one and opens the screen
/// whatever the answer is. It can be closed only after an add has been started.
void IlkSalonuSor(Program& program);

} // namespace velora
