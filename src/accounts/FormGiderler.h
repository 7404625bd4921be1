#pragma once

#include "screen/Kontroller.h"
#include "storage/Koken.h"

namespace velora {

struct Program;

/// "Gider Listesi": the expenses of one hall and one year.
///
/// What it saves is what it lists: a deletion or a "Kaydet" takes out of the file all expenses of the year
/// that lie outside of the range.
struct FormGiderler {
    explicit FormGiderler(Program& program);

    /// Lists before a hall is chosen. Who shows the screen chooses one, which lists again.
    void Load();
    /// Without a hall so far it takes that of the table.
    void Activate();
    void DTPicker3_Change(); ///< the range becomes the whole year
    void ListeleGun();
    void Liste_Click();
    void Command2_Click(); ///< "Makbuz"
    void Command3_Click(); ///< "Ekle"
    void Command4_Click(); ///< "Sil"
    /// "Kaydet": the rows become the file, which goes when the range then holds none. A file that is there
    /// and couldn't be read isn't touched.
    void Kaydet_Click();
    void Command1_Click(); ///< "Kapat"

    Metin baslik = u"Gider Listesi";
    AcilirListe Combo2;    ///< "Salon Adı"; another choice lists anew
    TarihSecici DTPicker3; ///< "Yıl": only its year counts
    TarihSecici DTPicker1; ///< "Başlangıç Tarihi", inclusive
    TarihSecici DTPicker2; ///< "Bitiş Tarihi", inclusive
    TarihSecici DTPicker4; ///< "Bu Gün"
    Dugme Listele{u"Listele", {}};
    Etiket Label4; ///< "2010 Yılı"
    ListeGorunumu Liste;
    Etiket Giderler; ///< "Gider Toplamı"

    Dugme Command2{u"Makbuz", {}, false};
    Dugme Command3{u"Ekle", {}};
    Dugme Command4{u"Sil", {}, false};
    Dugme Kaydet{u"Kaydet", {}};
    Dugme Command1{u"Kapat", {}};

  private:
    Metin Yil() const;
    Metin Yol() const;
    void YiliAl();

    Program& program_;
    Koken koken_; // of the last listing
};

} // namespace velora
