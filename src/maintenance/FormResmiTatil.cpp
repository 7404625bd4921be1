#include "maintenance/FormResmiTatil.h"

#include <utility>

#include "maintenance/FormResmiTatilEkle.h"
#include "maintenance/FormResmiTatilYukle.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr std::size_t kKaynakSutunu = 3;

} // namespace

FormResmiTatil::FormResmiTatil(Program& program) : program_(program) {
    Liste.baslik = baslik;
    Liste.basliklar = {u"Tarih", u"Açıklama", u"Tekrar", u""};
    Liste.basligaTiklandi = [this](int sutun) { Liste.Sirala(sutun); };
    Command1.baslik = u"Kaydet";
    Command2.baslik = u"İptal";
    Command3.baslik = u"Online Güncelle";
    Command4.baslik = u"Ekle";
    Command5 = {u"Sil", {}, false};
    Temizle = {u"Temizle", u"Genel günlerin yerine son indirilen listeyi koyar; özel günler kalır"};
    Liste.secimDugmeleri.dugmeler = {&Command5};
}

void FormResmiTatil::Load() {
    Liste.Temizle();
    genelKoken_ = {};
    Oku(kTatilDosyasi, koken_);
}

void FormResmiTatil::Oku(MetinBakis dosya, Koken& koken) {
    for (auto& sutunlar :
         SatirlariOku(program_.dosyalar, program_.agac.KokYolu(dosya), Liste.basliklar.size(), &koken))
        Ekle(std::move(sutunlar));
}

void FormResmiTatil::Ekle(SutunMetinleri sutunlar) {
    Liste.satirlar.push_back({std::move(sutunlar), {}, 0});
    Liste.siralama = {};
}

void FormResmiTatil::Liste_Click() {
    Liste.secimDugmeleri.Ac(Liste.Secili() != nullptr);
}

void FormResmiTatil::Command1_Click() {
    Program& p = program_;
    std::vector<SutunMetinleri> satirlar;
    for (const ListeSatiri& satir : Liste.satirlar)
        satirlar.push_back(satir.sutun);
    // Without the rows that were to come in their place the general ones aren't given up.
    if (genelKoken_.Yazilir())
        EylemleYap(p.dosyalar, u"Tatil kaydı",
                   [&] { SatirlariYaz(p.dosyalar, p.agac.KokYolu(kTatilDosyasi), satirlar, koken_); });
    p.FormResmiTatil.Bosalt();
    p.FormTablo->Command1();
}

void FormResmiTatil::Command2_Click() {
    program_.FormResmiTatil.Bosalt();
}

void FormResmiTatil::Command3_Click() {
    program_.FormResmiTatilYukle.GosterModal();
}

void FormResmiTatil::Command4_Click() {
    program_.FormResmiTatilEkle.GosterModal();
}

void FormResmiTatil::Command5_Click() {
    if (Liste.Secili() == nullptr ||
        !SilmeyiSor(program_, u"Seçili kaydı silmek istediğinizden emin misiniz?"))
        return;
    Liste.SeciliyiSil();
    Liste.secimDugmeleri.Ac(false);
}

void FormResmiTatil::Temizle_Click() {
    for (std::size_t i = Liste.satirlar.size(); i > 0; --i)
        if (Liste.satirlar[i - 1].sutun[kKaynakSutunu] == kGenelTatil)
            Liste.satirlar.erase(i - 1);
    Liste.secili = -1;
    Liste.secimDugmeleri.Ac(false);
    Oku(kGenelTatilDosyasi, genelKoken_);
}

} // namespace velora
