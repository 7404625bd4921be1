#pragma once

#include "screen/Kontroller.h"
#include "storage/Koken.h"

namespace velora {

struct Program;

/// "Web Sunucu Ayarları": shows the key that the firm is known by at the service, and keeps it in
/// `Sunucu.dat` with a mark that nobody asks for. Other screens read the key from here.
struct FormSunucu {
    explicit FormSunucu(Program& program);

    /// Reads the file. The key is always that of this computer, whatever the file holds; without a file that
    /// can be read the mark is set.
    void Load();

    void Command1_Click(); ///< "Tamam": writes the file and unloads the screen
    void Command2_Click(); ///< "Kapat"

    Metin baslik = u"Web Sunucu Ayarları";
    MetinKutusu Text1; ///< the key; to be read and copied, not to be changed
    OnayKutusu Check1;
    Dugme Command1;
    Dugme Command2;

  private:
    Program& program_;
    Koken koken_; // of the values
};

} // namespace velora
