#pragma once

#include "access/Kullanicilar.h"
#include "screen/Kontroller.h"

namespace velora {

struct Program;

/// "Yeni Kullanıcı Ekle / Düzenle": enters one user with password and rights, or changes one. Nothing looks
/// whether the name is there already.
struct FormKullaniciEkle {
    explicit FormKullaniciEkle(Program& program);

    void Load() {}
    /// Shows a user of the list, to be changed. Of `admin` only the password can be.
    void Doldur(const ListeSatiri& kullanici);

    void Command1_Click(); ///< "Tamam": takes the user into the list, which is written at once
    void Command2_Click(); ///< "İptal"

    Metin baslik = u"Yeni Kullanıcı Ekle / Düzenle";
    Metin Tag;         ///< blank while adding; else the user's place in the list, counted from 0
    MetinKutusu Text1; ///< name
    MetinKutusu Text2; ///< password
    MetinKutusu Text3; ///< password again
    BirTabanli<OnayKutusu, kYetkiSayisi> Check; ///< the rights by their numbers
    Etiket Label8{u"Kullanıcı Ekle"};           ///< the heading within the screen
    Dugme Command1{u"Tamam", {}};
    Dugme Command2{u"İptal", {}};

  private:
    bool Girildi();

    Program& program_;
};

} // namespace velora
