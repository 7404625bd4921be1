#pragma once

#include "screen/Kontroller.h"
#include "storage/Koken.h"

namespace velora {

struct Program;

/// "Kullanıcı Tanımları": the users with their passwords and rights, kept in `User.dll`. The order of the
/// list is the order of the file. A change counts from the next start on.
struct FormKullanicilar {
    explicit FormKullanicilar(Program& program);

    /// Lists the users; a file that can't be opened gives an empty list.
    void Load();
    void Activate();

    void Liste_Click();
    void Liste_DblClick();
    void Command1_Click(); ///< "Ekle"
    void Command2_Click(); ///< "Sil"; `admin` can't be chosen for it
    void Command3_Click(); ///< "Düzenle"; of `admin` only the password
    void Command4_Click(); ///< "Kapat"
    void Command5_Click(); ///< "Listele": reads the file anew
    void Command6_Click(); ///< "Kaydet": writes what is listed; a failed write is not reported

    Metin baslik = u"Kullanıcı Tanımları";
    ListeGorunumu Liste; ///< columns as `KullaniciNo`
    Dugme Command1{u"Ekle", {}};
    Dugme Command2{u"Sil", {}};
    Dugme Command3{u"Düzenle", {}};
    Dugme Command4{u"Kapat", {}};
    Dugme Command5{u"Listele", {}};
    Dugme Command6{u"Kaydet", {}};

  private:
    Program& program_;
    Koken koken_; // of the list
};

} // namespace velora
