#pragma once

#include "screen/Inet.h"
#include "screen/Kontroller.h"
#include "storage/Koken.h"

namespace velora {

struct Program;

/// "Online Rezervasyonlar": the requests of visitors that wait at the service, as the last poll has put them
/// into `RezTemp.dat`. One is deleted, or taken over: the reservation screen opens with its fields, and the
/// reservation is made when it is saved there.
struct FormRezervasyonlar {
    explicit FormRezervasyonlar(Program& program);

    void Load() {}
    /// Lists what the file holds, ten values a row. Without the file the list is empty.
    void Activate();
    void Liste_Click(); ///< a row is marked
    void Liste_DblClick();
    void Command1_Click(); ///< "Kapat"
    /// "Oluştur": moves the table to the hall and the year of the marked request. Where the hall is gone or
    /// the slot taken, a box says so and the request stays. Else the service and the list lose it, and only
    /// then the reservation screen stands: who doesn't save there has lost the request, on purpose.
    void Command2_Click();
    void Command3_Click(); ///< "Sil": deletes the marked request here and at the service, after a question
    void Kaydet_Click();   ///< writes the list back to the file

    Metin baslik = u"Online Rezervasyonlar";
    ListeGorunumu Liste;
    Dugme Command1{u"Kapat", {}};
    Dugme Command2{u"Oluştur", u"İsteği rezervasyon ekranında aç", false};
    Dugme Command3{u"Sil", u"İsteği sil", false};
    Dugme Kaydet{u"Kaydet", u"Listeyi dosyaya yaz"};
    Inet Inet1;

  private:
    bool SalonaGit(const ListeSatiri& satir) const;
    bool GozDolu(const ListeSatiri& satir) const;
    bool Devral(const ListeSatiri& satir);
    void KaydaAktar(const ListeSatiri& satir) const;
    void SatiriSil(const ListeSatiri& satir);
    void BosaldiysaKapat() const;
    bool Duruyor() const;

    Program& program_;
    Koken koken_; // of the list
};

} // namespace velora
