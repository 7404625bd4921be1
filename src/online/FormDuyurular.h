#pragma once

#include "screen/Inet.h"
#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Duyurular": what the service tells all firms.
struct FormDuyurular {
    explicit FormDuyurular(Program& program);

    void Load() {}
    /// Fetches the announcements, and has them marked as read, also when the fetch has failed. Once the
    /// screen is closed nothing is fetched and marked any more.
    void Activate();
    void Command1_Click(); ///< "Kapat": the mark on the table goes out

    Metin baslik = u"Duyurular";
    MetinKutusu Text1; ///< to be read only
    Dugme Command1{u"Kapat", {}};
    Inet Inet1;

  private:
    Program& program_;
};

} // namespace velora
