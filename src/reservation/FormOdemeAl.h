#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Ödeme Ekle": takes one payment for the reservation that is open in `FormKayit`.
struct FormOdemeAl {
    explicit FormOdemeAl(Program& program);

    void Load();
    void Text1_Change();
    /// "Tamam": an amount above 0 enters the list of `FormKayit`. Closes in all cases.
    void Command1_Click();
    void Command2_Click();

    Metin baslik = u"Ödeme Ekle";
    TarihSecici DTPicker1;
    MetinKutusu Text1; ///< "Miktar Girin"
    MetinKutusu Aciklama;
    Dugme Command1{u"Tamam", {}, false};
    Dugme Command2{u"İptal", {}};

  private:
    Program& program_;
};

} // namespace velora
