#pragma once

#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Giriş Şifresi Değiştir": sets the password of `admin`, and thereby makes him the only user. Who shows it
/// on the first run gives it other captions and leaves no way out but "Tamam".
struct FormSifreDegistir {
    explicit FormSifreDegistir(Program& program);

    void Load() {}

    /// "Tamam": writes `User.dll` anew with `admin` alone, who works from then on, and shows the table; a
    /// table without a hall asks for one. A failed write is not reported.
    void Command1_Click();
    /// "İptal". With no screen left the program ends.
    void Command2_Click();

    Metin baslik = u"Giriş Şifresi Değiştir";
    MetinKutusu Text1;                      ///< the new password
    MetinKutusu Text2;                      ///< again
    Etiket Label8{u"Admin Şifre Değiştir"}; ///< the heading within the screen
    Dugme Command1{u"Tamam", {}};
    Dugme Command2{u"İptal", {}};

  private:
    bool Girildi();

    Program& program_;
};

/// Makes `User.dll` hold `admin` without a password, where there is no such file: the login then asks for a
/// new password, whatever is typed (`FormSifre`).
void ParolasizAdminYaz(const Program& program);

} // namespace velora
