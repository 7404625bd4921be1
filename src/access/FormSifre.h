#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Kullanıcı Girişi": asks who works. Its users are those of `User.dll` as it was when the screen was
/// loaded.
struct FormSifre {
    explicit FormSifre(Program& program);

    /// Reads the users; a file that can't be opened leaves no name to choose, and no login succeeds.
    void Load();

    /// "Giriş": with the right password closes what the user has no right to and shows the table. A single
    /// user without a password is asked for a new one instead, whatever was typed.
    void Command1_Click();
    void Command2_Click(); ///< "İptal": ends the program

    Metin baslik = u"Kullanıcı Girişi";
    ListeGorunumu Liste; ///< hidden: the users, columns as `KullaniciNo`
    MetinKutusu Text1;   ///< name: typed, or one of those in its list
    MetinKutusu Text2;   ///< password
    Etiket Label1{u"Programa giriş için kullanıcı adınızı seçip parolanızı giriniz."};
    Etiket Label8{u"Kullanıcı Girişi"}; ///< the heading within the screen
    Dugme Command1{u"Giriş", {}};
    Dugme Command2{u"İptal", {}};

  private:
    bool EslesenlereUy();
    void TabloyuAc();

    Program& program_;
};

} // namespace velora
