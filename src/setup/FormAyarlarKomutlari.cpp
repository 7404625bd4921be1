// What the user does with the settings: type, pick colours, apply, save, drop.
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "setup/FormRenk.h"
#include "storage/YazimBicimi.h"
#include "table/FormTablo.h"

namespace velora {

void FormAyarlar::Renk_Click(int n) {
    {
        const auto secici = program_.FormRenk.Tut();
        secici->picColorBox.zemin = Renk(n);
        secici->Tag = SayiMetni(n);
    }
    program_.FormRenk.GosterModal();
}

void FormAyarlar::Command4_Click() {
    if (Check4.deger == 1)
        program_.ortam.sor.mesaj(
            {.metin = u"Yaptığınız yarı gün değişikliği programı yeniden başlattığınızda çalışacaktır!"});
    program_.FormTablo->Command3(); // the layer under all others
    program_.FormTablo->Command1(); // the scan
}

void FormAyarlar::Command1_Click() {
    Program& p = program_;
    Command4_Click();
    p.dosyalar.Yaz(p.agac.KokYolu(u"Settings.dll"), AyarBaytlari());
    p.dosyalar.Yaz(p.agac.KokYolu(u"Visible.dll"), AyBaytlari());
    p.FormAyarlar.Bosalt();
}

std::string FormAyarlar::AyarBaytlari() const {
    DegerYazici yazici;
    for (const RenkDegeri renk : renkler)
        yazici.Parca(renk);
    yazici.Parca(UyariGun.metin);
    yazici.Parca(UyariGun2.metin);
    yazici.Parca(Check1.deger);
    yazici.Parca(Check2.deger);
    yazici.Parca(GunduzGece.Metni());
    for (const OnayKutusu* kutu : {&Check5, &Check6, &Check7})
        yazici.Parca(kutu->deger);
    yazici.SatirSonu();
    return yazici.Bayt();
}

std::string FormAyarlar::AyBaytlari() const {
    DegerYazici yazici;
    for (const OnayKutusu& ay : Aylar)
        yazici.Parca(ay.deger);
    yazici.Parca(Check3.deger);
    yazici.SatirSonu();
    return yazici.Bayt();
}

void FormAyarlar::Command3_Click() {
    Varsayilanlar();
    Command4_Click();
}

void FormAyarlar::Command2_Click() {
    program_.FormAyarlar.Bosalt();
}

} // namespace velora
