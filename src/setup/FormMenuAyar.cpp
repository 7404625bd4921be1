#include "setup/FormMenuAyar.h"

#include "screen/Program.h"
#include "setup/FormMenuEkle.h"
#include "storage/ListeDosyasi.h"

namespace velora {

namespace {

constexpr MetinBakis kMenuDosyasi = u"Menuler.dat";

} // namespace

FormMenuAyar::FormMenuAyar(Program& program) : program_(program) {
    Liste.baslik = u"Menü Ayarları";
    Liste.basliklar = {u"Menü Adı", u"Menü İçeriği"};
    Command1.baslik = u"Ekle";
    Command2.baslik = u"Sil";
    Command3.baslik = u"Kapat";
    Command4.baslik = u"Düzenle";
    Kaydet.baslik = u"Kaydet";
}

void FormMenuAyar::Load() {
    for (auto& sutunlar :
         SatirlariOku(program_.dosyalar, program_.agac.KokYolu(kMenuDosyasi), Liste.basliklar.size()))
        Liste.satirlar.push_back({std::move(sutunlar), {}, 0});
}

void FormMenuAyar::Activate() {
    Command2.etkin = Command4.etkin = false;
}

void FormMenuAyar::Liste_Click() {
    if (Liste.secili >= 0)
        Command2.etkin = Command4.etkin = true;
}

void FormMenuAyar::Liste_DblClick() {
    if (Command4.etkin)
        Command4_Click();
}

void FormMenuAyar::Command1_Click() {
    program_.FormMenuEkle->Tag.clear();
    program_.FormMenuEkle.GosterModal();
}

void FormMenuAyar::Command4_Click() {
    if (Liste.secili < 0)
        return;
    {
        const auto ekle = program_.FormMenuEkle.Tut();
        const SutunMetinleri& sutun = Liste.satirlar[static_cast<std::size_t>(Liste.secili)].sutun;
        ekle->Text1.metin = sutun[0];
        ekle->Text1_Change();
        ekle->Text2.metin = sutun[1];
        ekle->Tag = SayiMetni(Liste.secili);
        ekle->baslik = u"Menü Düzenle";
        ekle->Command4.baslik = u"Değiştir";
    }
    program_.FormMenuEkle.GosterModal();
}

void FormMenuAyar::Command2_Click() {
    Command2.etkin = Command4.etkin = false;
    const Cevap cevap =
        program_.ortam.sor.mesaj({.metin = u"Seçili menüyü silmek istediğinizden emin misiniz?",
                                  .simge = Simge::Soru,
                                  .dugmeler = KutuDugmeleri::EvetHayir});
    if (cevap == Cevap::Hayir)
        return;
    if (Liste.secili >= 0)
        Liste.satirlar.erase(Liste.satirlar.begin() + Liste.secili);
    Liste.secili = -1;
    Kaydet_Click();
}

void FormMenuAyar::Command3_Click() {
    program_.FormMenuAyar.Bosalt();
}

void FormMenuAyar::Kaydet_Click() {
    std::vector<SutunMetinleri> satirlar;
    for (const ListeSatiri& satir : Liste.satirlar)
        satirlar.push_back(satir.sutun);
    SatirlariYaz(program_.dosyalar, program_.agac.KokYolu(kMenuDosyasi), satirlar);
    Command2.etkin = Command4.etkin = false;
}

} // namespace velora
