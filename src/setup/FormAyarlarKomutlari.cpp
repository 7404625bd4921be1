// What the user does with the settings: type, pick colours, apply, save, drop.
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "setup/FormAyarlar.h"
#include "setup/FormRenk.h"
#include "table/FormTablo.h"

namespace velora {

void FormAyarlar::Renk_Click(int n) {
    program_.FormRenk.GosterModal([&] {
        const auto secici = program_.FormRenk.Tut();
        secici->picColorBox.zemin = Renk(n);
        secici->Tag = SayiMetni(n);
        return true;
    });
}

void FormAyarlar::Command4_Click() {
    if (Check4.deger == 1)
        Soyle(program_, u"Yaptığınız yarı gün değişikliği programı yeniden başlattığınızda çalışacaktır!");
    program_.FormTablo->Command3(); // the layer under all others
    program_.FormTablo->Command1(); // the scan
}

void FormAyarlar::Command1_Click() {
    Program& p = program_;
    Command4_Click();
    EylemleYap(p.dosyalar, u"Program ayarları", [this] {
        Yaz(kAyarDosyasi, ayarlar_, AlanBaytlari(AyarAlanlari()));
        Yaz(kAyDosyasi, aylar_, AlanBaytlari(AyAlanlari()));
    });
    p.FormAyarlar.Bosalt();
}

void FormAyarlar::Yaz(MetinBakis ad, const Dosya& dosya, const std::string& bayt) const {
    if (bayt != dosya.varsayilan)
        dosya.koken.Yaz(program_.dosyalar, program_.agac.KokYolu(ad), bayt);
}

void FormAyarlar::Command3_Click() {
    Varsayilanlar();
    Command4_Click();
}

void FormAyarlar::Command2_Click() {
    program_.FormAyarlar.Bosalt();
}

} // namespace velora
