#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Renk Seçiniz": picks a colour from a chart for one slot of the settings.
struct FormRenk {
    explicit FormRenk(Program& program);

    void Load() {}

    /// The chart under the pointer has this colour; -1 outside of it. A press picks, and so does a move while
    /// the button is held.
    void Picture1_MouseDown(RenkDegeri renk);
    void Picture1_MouseMove(RenkDegeri renk);
    void Picture1_MouseUp();

    /// A component was typed: the sample and the three other values follow.
    void Bilesen_Change();

    /// "Tamam": the slot takes the colour of the three component texts. Until a colour is picked or a
    /// component typed, the sample shows the slot's own colour instead.
    void Command1_Click();
    void Command2_Click(); ///< "İptal"

    Metin baslik = u"Renk Seçiniz";
    Metin cizelgeBaslik = u"Renk çizelgesi";
    Metin Tag;          ///< the slot's number
    Etiket picColorBox; ///< the sample
    MetinKutusu txtRed;
    MetinKutusu txtGreen;
    MetinKutusu txtBlue;
    // These three only show the colour: they can't be typed into.
    MetinKutusu txtWeb;  ///< "#", then red, green, blue
    MetinKutusu txtHex;  ///< the colour's value, unpadded: blue, green, red
    MetinKutusu txtTers; ///< "&H", then blue, green, red, "&"
    Dugme Command1;
    Dugme Command2;

  private:
    void Sec(RenkDegeri renk);
    RenkDegeri Yazilan() const;
    void Goster(RenkDegeri renk);

    Program& program_;
    bool basili_ = false;
};

} // namespace velora
