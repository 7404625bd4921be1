#include "setup/FormSalonTanim.h"

#include "screen/Program.h"
#include "screen/Sorular.h"
#include "setup/FormSalonTanimAd.h"
#include "storage/Harf.h"
#include "storage/KodSayfasi.h"
#include "storage/ListeDosyasi.h"
#include "storage/Sayi.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr MetinBakis kTanimsizOlmaz = u"Salon tanımı yapmadan rezervasyon kaydı oluşturamazsınız!";
constexpr int kSonrakiYillar = 10; // year folders that a new hall gets behind the selected year's

Metin Satirlar(MetinBakis bir, MetinBakis iki) {
    return (Metin(bir) += u'\n') += iki;
}

/// A refusal of this screen: what is wrong, and why a hall is needed.
void SalonGerektiginiSoyle(const Program& program, MetinBakis neden) {
    Soyle(program, Satirlar(neden, kTanimsizOlmaz) + u'.', u"Hata");
}

} // namespace

FormSalonTanim::FormSalonTanim(Program& program) : program_(program) {
    Command1.baslik = u"Ekle";
    Command2.baslik = u"Sil";
    Command3.baslik = u"Kapat";
    Command4.baslik = u"Düzenle";
    Kaydet.baslik = u"Kaydet";
    Label8.baslik = List1.baslik = u"Salon Tanımları";
    List1.secimDugmeleri.dugmeler = {&Command2, &Command4};
}

void FormSalonTanim::Load() {
    for (auto& satir : SatirlariOku(program_.dosyalar, program_.agac.KokYolu(kSalonDosyasi), 1, &koken_))
        List1.ogeler.push_back(std::move(satir.front()));
}

void FormSalonTanim::Activate() {
    List1.secimDugmeleri.Ac(false);
}

void FormSalonTanim::List1_Click() {
    List1.secimDugmeleri.Ac(List1.secili >= 0);
}

void FormSalonTanim::Command1_Click() {
    Command3.etkin = true;
    const GirdiKutusu soru{
        .metin = u"Lütfen salon adını giriniz!", .baslik = u"Salon Tanımları", .baslangic = {}};
    Metin cevap = program_.ortam.sor.girdi(soru);
    while (cevap.empty() && !program_.ortam.olaylar.bitti()) {
        SalonGerektiginiSoyle(program_, u"Salon adını girmediniz!");
        cevap = program_.ortam.sor.girdi(soru);
    }
    if (!Kirp(cevap).empty())
        Ekle(KodaSigdir(BuyukBas(cevap)));
}

void FormSalonTanim::Ekle(const Metin& salon) {
    const auto tablo = program_.FormTablo.Tut();
    List1.ogeler.push_back(salon);
    tablo->Salon.ogeler.push_back(salon);
    const Metin yil = tablo->Sene.Metni();
    EylemleYap(program_.dosyalar, u"Salon ekleme", [&] {
        Kaydet_Click();
        program_.agac.KlasorHazirla(salon, yil);
        for (int i = 1; i <= kSonrakiYillar; ++i)
            program_.agac.KlasorHazirla(salon, SayiMetni(static_cast<long long>(SayisalDeger(yil)) + i));
    });
    if (tablo->Salon.ogeler.size() == 1)
        tablo->Salon.Sec(0);
}

void FormSalonTanim::Command2_Click() {
    List1.secimDugmeleri.Ac(false);
    if (!SilmeyiSor(program_, u"Seçili salonu silerseniz bu salona ait rezervasyonları göremezsiniz!\n"
                              u"Seçili salonu silmek istediğinize emin misiniz?"))
        return;
    const auto tablo = program_.FormTablo.Tut();
    tablo->Salon.Sil(List1.secili);
    List1.Sil(List1.secili);
    tablo->Salon.Sec(0);
    const Dosyalar::Eylem eylem(program_.dosyalar, u"Salon silme");
    Kaydet_Click();
}

void FormSalonTanim::Command4_Click() {
    program_.FormSalonTanimAd.GosterModal([this] {
        const auto ad = program_.FormSalonTanimAd.Tut();
        ad->Label2.baslik = SayiMetni(List1.secili);
        ad->Tag = ad->Text1.metin = List1.Metni();
        return true;
    });
}

void FormSalonTanim::Command3_Click() {
    Program& p = program_;
    if (List1.ogeler.empty()) {
        SalonGerektiginiSoyle(p, u"Hiç salon tanımınız yok!");
        Command1_Click();
        return;
    }
    p.FormSalonTanim.Bosalt();
    p.FormTablo->Command7(); // publishes
}

void FormSalonTanim::Kaydet_Click() {
    std::vector<SutunMetinleri> satirlar;
    for (const Metin& salon : List1.ogeler)
        satirlar.push_back({salon});
    SatirlariYaz(program_.dosyalar, program_.agac.KokYolu(kSalonDosyasi), satirlar, koken_);
    List1.secimDugmeleri.Ac(false);
}

void IlkSalonuSor(Program& program) {
    if (!program.FormTablo->Salon.Metni().empty())
        return;
    if (!Sor(program, u"Önce salon tanımı yapmalısınız!\nŞimdi salon tanımı yapmak ister misiniz?",
             u"Salon Tanımı"))
        Soyle(program, Satirlar(kTanimsizOlmaz, u"Lütfen önce salon tanımı yapınız!"), u"Velora",
              Simge::Kritik);
    program.FormSalonTanim.GosterModal([&program] {
        program.FormSalonTanim->Command3.etkin = false;
        return true;
    });
}

} // namespace velora
