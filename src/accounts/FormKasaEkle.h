#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Gider Ekle": enters one expense.
struct FormKasaEkle {
    explicit FormKasaEkle(Program& program);

    void Load();
    /// Holds the date in the year of the table.
    void Activate();
    void Tutar_Change();
    /// "Tamam": puts the expense at the end of the file of its hall and year. Without a description a box
    /// asks for one. In a year without a folder nothing is written, and nobody is told.
    void Command1_Click();
    void Command2_Click(); ///< "İptal"
    void Command4();       ///< "DTPicker1 Tarihi Sınırla"

    Metin baslik = u"Gider Ekle";
    AcilirListe Combo1;    ///< "Salon Adı"
    TarihSecici DTPicker1; ///< "Tarih"
    MetinKutusu Tutar;     ///< "Gider", whole amounts only
    MetinKutusu Aciklama;  ///< "Açıklama"
    Etiket Ornek;          ///< what a description may say
    Dugme Command1{u"Tamam", {}, false};
    Dugme Command2{u"İptal", {}};

  private:
    Program& program_;
};

} // namespace velora
