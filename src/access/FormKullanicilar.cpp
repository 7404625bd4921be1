#include "access/FormKullanicilar.h"

#include "access/FormKullaniciEkle.h"
#include "access/Kullanicilar.h"
#include "screen/Program.h"
#include "screen/Sorular.h"

namespace velora {

FormKullanicilar::FormKullanicilar(Program& program) : program_(program) {
    Liste.baslik = baslik;
    Liste.basliklar = {u"Kullanıcı Adı", u"Parola"};
    for (int no = 1; no <= kYetkiSayisi; ++no)
        Liste.basliklar.push_back(u"Y" + SayiMetni(no));
    Liste.secimDugmeleri.dugmeler = {&Command2, &Command3};
}

void FormKullanicilar::Load() {
    Command5_Click(); // lists
}

void FormKullanicilar::Activate() {
    Liste.secimDugmeleri.Ac(false);
}

void FormKullanicilar::Liste_Click() {
    const ListeSatiri* satir = Liste.Secili();
    if (satir == nullptr)
        return;
    Command3.etkin = true;
    Command2.etkin = satir->sutun[KullaniciNo::Ad] != kAdmin;
}

void FormKullanicilar::Liste_DblClick() {
    if (Command3.etkin)
        Command3_Click();
}

void FormKullanicilar::Command1_Click() {
    program_.FormKullaniciEkle.GosterModal([this] {
        program_.FormKullaniciEkle->Tag.clear();
        return true;
    });
}

void FormKullanicilar::Command2_Click() {
    if (!SilmeyiSor(program_, u"Seçili kullanıcıyı silmek istediğinizden emin misiniz?"))
        return;
    Liste.SeciliyiSil();
    Command6_Click(); // writes
    Liste.secimDugmeleri.Ac(false);
}

void FormKullanicilar::Command3_Click() {
    const ListeSatiri* satir = Liste.Secili();
    if (satir == nullptr)
        return;
    program_.FormKullaniciEkle.GosterModal([&] {
        const auto ekle = program_.FormKullaniciEkle.Tut();
        ekle->Tag = SayiMetni(Liste.secili);
        ekle->Doldur(*satir);
        return true;
    });
}

void FormKullanicilar::Command4_Click() {
    program_.FormKullanicilar.Bosalt();
}

void FormKullanicilar::Command5_Click() {
    Liste.Temizle();
    Liste.satirlar = KullanicilariOku(program_, &koken_);
}

void FormKullanicilar::Command6_Click() {
    KullanicilariYaz(program_, Liste.satirlar, koken_);
}

} // namespace velora
