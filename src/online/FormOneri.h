#pragma once

#include "screen/Inet.h"
#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Öneri ve İstekleriniz": sends what the user has to say to the service.
struct FormOneri {
    explicit FormOneri(Program& program);

    void Load() {}
    void Aciklama_Change(); ///< without a text nothing is sent
    /// "Gönder": the one place where a failure of the network is told. The message stays then; else the
    /// screen is unloaded. Line breaks of the message go out as they stand.
    void Command1_Click();
    void Command2_Click(); ///< "İptal"

    Metin baslik = u"Öneri ve İstekleriniz";
    Etiket Label2;
    MetinKutusu Aciklama;
    Dugme Command1{u"Gönder", {}, false};
    Dugme Command2{u"İptal", {}};
    Inet Inet1;

  private:
    Program& program_;
};

} // namespace velora
