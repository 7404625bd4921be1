#include "access/FormSifre.h"

#include "access/FormSifreDegistir.h"
#include "access/Yetkiler.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "table/FormTablo.h"

namespace velora {

FormSifre::FormSifre(Program& program) : program_(program) {
    Text1.baslik = u"Kullanıcı Adı";
    Text2.baslik = u"Parola";
    Text2.yildizli = true;
}

void FormSifre::Load() {
    Liste.satirlar = KullanicilariOku(program_);
    for (const ListeSatiri& kullanici : Liste.satirlar)
        Text1.ogeler.push_back(kullanici.sutun[KullaniciNo::Ad]);
    if (!Text1.ogeler.empty())
        Text1.metin = Text1.ogeler.front();
}

/// Every user of that name and password counts: what they lack adds up.
bool FormSifre::EslesenlereUy() {
    bool var = false;
    for (const ListeSatiri& kullanici : Liste.satirlar) {
        if (kullanici.sutun[KullaniciNo::Ad] != Text1.metin ||
            kullanici.sutun[KullaniciNo::Parola] != Text2.metin)
            continue;
        var = true;
        YetkileriUygula(program_.oturum, kullanici);
    }
    return var;
}

void FormSifre::Command1_Click() {
    Program& p = program_;
    const bool girer = EslesenlereUy();
    // Before it is known whether the password is right: what another name has closed stays closed for
    // `admin`, who comes behind it.
    if (Text1.metin != kAdmin)
        p.oturum.Kapat(kGuvenlikYolu);
    const auto& kullanicilar = Liste.satirlar;
    if (kullanicilar.size() == 1 && kullanicilar[0].sutun[KullaniciNo::Parola].empty()) {
        p.oturum.Goster(Text1.metin);
        p.FormSifre.Bosalt();
        p.FormSifreDegistir.Goster();
    } else if (girer) {
        TabloyuAc();
    } else if (Text2.metin.empty()) {
        AlaniSoyle(p, EkranAdi::FormSifre, u"Text2", u"Lütfen parola giriniz!");
    } else {
        Soyle(p, u"Hatalı parola girdiniz!\nLütfen bilgilerinizi kontrol ediniz!", u"Velora", Simge::Kritik);
        Text1.metin.clear();
        Text2.metin.clear();
        p.ortam.odak.ver(EkranAdi::FormSifre, u"Text2");
    }
}

void FormSifre::TabloyuAc() {
    Program& p = program_;
    if (Text1.metin != kAdmin)
        p.oturum.Kapat(kKullanicilarYolu);
    p.oturum.Goster(Text1.metin);
    p.oturum.UserNamem = Text1.metin;
    // Loaded while this window still stands: of very many halls that takes long, and the screen would be
    // bare.
    p.FormTablo.Tut();
    if (!p.FormSifre.Yuklu())
        return; // it was closed meanwhile, and the program ends
    p.FormSifre.Bosalt();
    p.FormTablo.Goster();
}

void FormSifre::Command2_Click() {
    Program& p = program_;
    p.FormSifre.Bosalt();
    p.ortam.olaylar.bitir();
}

} // namespace velora
