#pragma once

#include <memory>

#include "screen/Kontroller.h"
#include "screen/Sayfa.h"
#include "storage/Koken.h"

namespace velora {

struct Program;

/// "Sözleşme Ayarları": the standing text of the contract, a heading and clauses, kept in `Sozlesme.dat`. The
/// firm's name and city come from its profile: they can be changed for what is printed from this screen, and
/// are not saved. Whoever prints reads the texts here, by `TazeSozlesme`.
struct FormSozlesme {
    explicit FormSozlesme(Program& program);

    /// Takes name and city from the profile, then heading and clauses from the file. A file that can't be
    /// read whole leaves both empty. A profile in which no city is chosen leaves the city empty.
    void Load();

    /// "Örnek Baskı": prints the contract once with the texts as they stand here, saved or not, and with
    /// placeholders for all that a customer would bring. Without a printer nothing is said.
    void Command1_Click();
    void Pdf_Click(); ///< the same as a file
    /// "Kaydet": writes heading and clauses without their double quotes and unloads the screen, whose own
    /// fields keep them. What fails of writing is passed over.
    void Command2_Click();
    void Command3_Click(); ///< "İptal"

    Metin baslik = u"Sözleşme Ayarları";
    bool baskida = false; ///< a sample goes to paper or into a file, and its handler waits for it
    MetinKutusu Unvan;
    AcilirListe Sehir;
    MetinKutusu Baslik;
    MetinKutusu Sozlesme; ///< the clauses, with CR LF between them
    Dugme Command1;
    Dugme Pdf{u"PDF", u"PDF dosyası olarak kaydet"};
    Dugme Command2;
    Dugme Command3;

  private:
    std::vector<Sayfa> OrnekSayfalar() const;

    Program& program_;
    Koken koken_; // of the values
};

/// The template for a print or an opening: loaded afresh, for the profile may have changed since. While it is
/// on show it is the one that stands there, with what was typed into it.
std::shared_ptr<FormSozlesme> TazeSozlesme(Program& program);

} // namespace velora
