#pragma once

#include "screen/Kontroller.h"
#include "storage/ListeDosyasi.h"

namespace velora {

struct Program;

/// Where a row of the holidays comes from: from the published list, or from the firm.
inline constexpr MetinBakis kGenelTatil = u"Genel";
inline constexpr MetinBakis kOzelTatil = u"Özel";

/// "Resmi Tatiller ve Özel Günler": the holidays of the firm. `Liste` is the live store; whoever reads it
/// first loads it from `Tatiller.dll`. What is changed here is painted by the next scan of the table, and
/// kept only by "Kaydet": who unloads the screen drops it.
struct FormResmiTatil {
    explicit FormResmiTatil(Program& program);

    /// Reads `Tatiller.dll`; a missing file gives an empty list.
    void Load();

    void Liste_Click();
    void Command1_Click(); ///< "Kaydet": writes the list, unloads the screen and has the table scanned
    void Command2_Click(); ///< "İptal"
    void Command3_Click(); ///< "Online Güncelle"
    void Command4_Click(); ///< adds a day
    void Command5_Click(); ///< asks, and removes the marked row; without one it does nothing
    /// Puts the rows of `Tatiller.dat` in the place of the general ones; those of the firm stay. Without that
    /// file the general ones are gone.
    void Temizle_Click();
    /// Puts a row at the end.
    void Ekle(SutunMetinleri sutunlar);

    Metin baslik = u"Resmi Tatiller ve Özel Günler";
    /// Columns: "Tarih" (dd.mm.yyyy), "Açıklama", "Tekrar" ("Evet" or "Hayır"), and the row's origin
    /// (`kGenelTatil` or `kOzelTatil`). A click on a head sorts the rows as they are written and painted.
    ListeGorunumu Liste;
    Dugme Command1;
    Dugme Command2;
    Dugme Command3;
    Dugme Command4;
    Dugme Command5;
    Dugme Temizle;

  private:
    void Oku(MetinBakis dosya, Koken& koken);

    Program& program_;
    Koken koken_;      // of the list
    Koken genelKoken_; // of the general rows that were put into it
};

} // namespace velora
