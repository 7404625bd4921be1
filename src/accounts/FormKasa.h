#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Kasa Raporu": what came in and went out for one hall between two dates, over all years of the table. It
/// has no file of its own: income is gathered from the payments of all reservations, expenses from
/// `Gider.dat`.
struct FormKasa {
    explicit FormKasa(Program& program);

    void Load();
    /// Lists year by year, in the order of the names and of the records in each file. Nothing found: a box
    /// says so.
    ///
    /// A file that can't be opened gives no row. An empty one gives the record read last once more, as income
    /// or expense by its own kind.
    void ListeleGun();
    /// The same without the box, for those who have changed something.
    void ListeleGun1();
    void Command2_Click(); ///< "Excel'e Aktar"
    void Command3_Click(); ///< "Giderler Listesi"
    void Command6_Click(); ///< "Gider Ekle"
    void Command1_Click(); ///< "Kapat"

    Metin baslik = u"Kasa Raporu";
    AcilirListe Combo2;    ///< "Salon Adı"
    TarihSecici DTPicker1; ///< "Başlangıç Tarihi", inclusive; of any year
    TarihSecici DTPicker2; ///< "Bitiş Tarihi", inclusive
    Dugme Listele{u"Listele", {}};
    ListeGorunumu Liste;
    Etiket Ozet; ///< how many rows there are, and of what hall; empty before the first listing

    Etiket Gelirler; ///< "Gelir Toplam"
    Etiket Giderler; ///< "Gider Toplam"
    Etiket GenelTop; ///< "Genel Toplam", the one less the other

    Dugme Command2{u"Excel'e Aktar", {}};
    Dugme Command3{u"Giderler Listesi", {}};
    Dugme Command6{u"Gider Ekle", {}};
    Dugme Command1{u"Kapat", {}};

  private:
    void Tara();

    Program& program_;
};

/// What an open cash book shows of this hall is listed anew.
void KasayiTazele(Program& program, MetinBakis salon);

} // namespace velora
