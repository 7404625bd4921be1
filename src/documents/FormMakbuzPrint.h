#pragma once

#include <tuple>

#include "screen/Kontroller.h"
#include "screen/Sayfa.h"

namespace velora {

struct Program;

enum class MakbuzTuru { Odeme, Gider };

/// What a receipt is filled with.
struct Makbuz {
    MakbuzTuru tur;
    Metin tarih;
    double tutar;
    Metin aciklama;
    Metin adSoyad; ///< who has paid; on an expense, who has entered it
    Metin isAdi;   ///< what its print and its file are called
};

/// The receipt for one payment or one expense. It is shown as it will be printed; what its caller doesn't
/// fill stands as it is by design (`MakbuzGoster`).
struct FormMakbuzPrint {
    explicit FormMakbuzPrint(Program& program);
    void Load() {}

    /// "Yazdır": the screen goes, also when there is no printer.
    void Command1_Click();
    void Command2_Click(); ///< "İptal"
    void Pdf_Click();

    /// The page as its fields stand, in parts named by their fields: a frame about the upper half of the
    /// sheet. A long text gets smaller; at its smallest the frame grows, and goes on to another sheet.
    std::vector<Sayfa> Sayfalar(const YaziOlcer& olcer) const;

    /// A copy of what the page shows, to see later whether it shows something else.
    auto Gorunen() const {
        return std::tuple(Firma, Label1, Label3, AdSoyad, Label4, Tarih, Label5, Aciklama, Label6, Tutar,
                          Label2);
    }

    Metin baslik = u"Makbuz";
    Etiket Firma;
    Etiket Label1; ///< heading
    Etiket Label3;
    Etiket AdSoyad;
    Etiket Label4;
    Etiket Tarih;
    Etiket Label5;
    Etiket Aciklama;
    Etiket Label6;
    Etiket Tutar;
    Etiket Label2; ///< who signs
    Metin isAdi;

    Dugme Command1{u"Yazdır", {}};
    Dugme Command2{u"İptal", {}};
    Dugme Pdf{u"PDF", u"PDF dosyası olarak kaydet"};

  private:
    Program& program_;
};

/// Shows a receipt over the other screens, filled afresh, under the firm's name of the template.
void MakbuzGoster(Program& program, const Makbuz& makbuz);

} // namespace velora
