#pragma once

#include <memory>
#include <vector>

#include "screen/Kontroller.h"

namespace velora {

struct Program;
class YayinKosusu;

/// "Veri Tabanı": stands while the year table of a hall is sent to the service, and unloads itself when all
/// has been sent. Nothing shows it unless the service has answered in this run.
struct FormWebteYayinla {
    explicit FormWebteYayinla(Program& program);

    void Load() {}
    /// Sends what is left of what it was given, request by request, with a turn for events behind each. Who
    /// closes the screen in between gets control back at once: then the rest is still to be sent.
    void Activate();
    void Command1_Click(); ///< "İptal": unloads the screen and stops nothing

    /// What is to be sent; set by who shows the screen. Without it the screen only stands there.
    std::shared_ptr<YayinKosusu> kosu;

    Metin baslik = u"Veri Tabanı";
    Etiket Label8;
    Etiket Label1;
    Etiket Label2; ///< what is being sent; set by who shows the screen
    IlerlemeCubugu ProgressBar1{.enCok = 0, .deger = 0, .baslik = u"Gönderilen kayıtlar"};
    Dugme Command1{u"İptal", {}};
    // Hidden: a line of each for each taken slot.
    std::vector<Metin> List1; ///< its date, dd-mm-yyyy
    std::vector<Metin> List2; ///< the tag of its cell
    std::vector<Metin> List3; ///< "Gündüz" or "Gece"

  private:
    void ListeleriDoldur();
    void Tamamlandi();
    bool Duruyor() const;

    Program& program_;
};

} // namespace velora
