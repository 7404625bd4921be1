#pragma once

#include <array>

#include "reservation/AramaOkumasi.h"
#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Kayıt Arama": finds reservations by what their files say of the customer. There is no index: each search
/// reads the files. It stays open while a found record is edited.
struct FormArama {
    static constexpr int kOlcutSayisi = 5;

    explicit FormArama(Program& program);

    void Load() {}
    void Activate();
    /// "Detaylar": opens the marked row over the others, in its hall. Returns when the record has closed.
    /// With no row marked, or when the record can't be opened: nothing, and no message says so.
    void Command1_Click();
    void Command2_Click(); ///< "Kapat"
    /// "Ara": walks the folders of all halls and years, but opens each name in the year that is selected.
    /// Each criterion that a file matches gives a row, so a file may be listed up to five times. A name that
    /// isn't there is tested with the values of the file before it. Nothing found: a box says so.
    void Command3_Click();
    void Liste_ItemClick();
    void Liste_DblClick();

    Metin baslik = u"Kayıt Arama";
    /// The criteria. An empty one takes no part.
    BirTabanli<MetinKutusu, kOlcutSayisi> Text;
    ListeGorunumu Liste; ///< what was found; the tag of a row is the full path that was opened
    Etiket Ozet; ///< how many rows the last search gave, and the year it looked in; empty before the first
    Dugme Command1{u"Detaylar", {}, false};
    Dugme Command2{u"Kapat", {}};
    Dugme Command3{u"Ara", {}};

    int acikmi = 0; ///< 1 from the first `Activate` on: a save repeats the search

  private:
    void Ara();
    struct HazirOlcut;
    std::vector<HazirOlcut> Olcutler() const;

    Program& program_;
};

} // namespace velora
