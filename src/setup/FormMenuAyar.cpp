#include "setup/FormMenuAyar.h"

#include "screen/Program.h"
#include "screen/Sorular.h"
#include "setup/FormMenuEkle.h"
#include "storage/ListeDosyasi.h"

namespace velora {

namespace {} // namespace

FormMenuAyar::FormMenuAyar(Program& program) : program_(program) {
    Liste.baslik = baslik;
    Liste.basliklar = {u"Menü Adı", u"Menü İçeriği"};
    Command1.baslik = u"Ekle";
    Command2.baslik = u"Sil";
    Command3.baslik = u"Kapat";
    Command4.baslik = u"Düzenle";
    Kaydet.baslik = u"Kaydet";
    Liste.secimDugmeleri.dugmeler = {&Command2, &Command4};
}

void FormMenuAyar::Load() {
    for (auto& sutunlar : SatirlariOku(program_.dosyalar, program_.agac.KokYolu(kMenuDosyasi),
                                       Liste.basliklar.size(), &koken_))
        Liste.satirlar.push_back({std::move(sutunlar), {}, 0});
}

void FormMenuAyar::Activate() {
    Liste.secimDugmeleri.Ac(false);
}

void FormMenuAyar::Liste_Click() {
    if (Liste.secili >= 0)
        Liste.secimDugmeleri.Ac(true);
}

void FormMenuAyar::Liste_DblClick() {
    if (Command4.etkin)
        Command4_Click();
}

void FormMenuAyar::Command1_Click() {
    program_.FormMenuEkle.GosterModal([this] {
        program_.FormMenuEkle->Tag.clear();
        return true;
    });
}

void FormMenuAyar::Command4_Click() {
    const ListeSatiri* satir = Liste.Secili();
    if (satir == nullptr)
        return;
    program_.FormMenuEkle.GosterModal([&] {
        const auto ekle = program_.FormMenuEkle.Tut();
        const SutunMetinleri& sutun = satir->sutun;
        ekle->Text1.metin = sutun[0];
        ekle->Text1_Change();
        ekle->Text2.metin = sutun[1];
        ekle->Tag = SayiMetni(Liste.secili);
        ekle->baslik = u"Menü Düzenle";
        ekle->Command4.baslik = u"Değiştir";
        return true;
    });
}

void FormMenuAyar::Command2_Click() {
    Liste.secimDugmeleri.Ac(false);
    if (!SilmeyiSor(program_, u"Seçili menüyü silmek istediğinizden emin misiniz?"))
        return;
    Liste.SeciliyiSil();
    Kaydet_Click();
}

void FormMenuAyar::Command3_Click() {
    program_.FormMenuAyar.Bosalt();
}

void FormMenuAyar::Kaydet_Click() {
    std::vector<SutunMetinleri> satirlar;
    for (const ListeSatiri& satir : Liste.satirlar)
        satirlar.push_back(satir.sutun);
    const Dosyalar::Eylem eylem(program_.dosyalar, u"Menü kaydı");
    SatirlariYaz(program_.dosyalar, program_.agac.KokYolu(kMenuDosyasi), satirlar, koken_);
    Liste.secimDugmeleri.Ac(false);
}

} // namespace velora
