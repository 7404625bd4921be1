#include "reservation/FormOzelHatirlatma.h"

#include "reservation/KayitYukle.h"
#include "screen/Program.h"
#include "storage/RezervasyonDosyalari.h"
#include "storage/Tarih.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

/// A main file, by the end of its name alone: no slot has another one.
bool AnaDosyaAdi(MetinBakis ad) {
    return ad.ends_with(u"Gece") || ad.ends_with(u"Gündüz");
}

} // namespace

FormOzelHatirlatma::FormOzelHatirlatma(Program& program) : program_(program) {
    Liste.baslik = u"Bugünün hatırlatmaları";
    Liste.basliklar = {u"Tarih", u"Ad Soyad", u"Nitelik", u"Telefon", u"Cep"};
    Liste.secimDugmeleri.dugmeler = {&Command4};
}

void FormOzelHatirlatma::Activate() {
    if (!Listele())
        program_.FormOzelHatirlatma.Bosalt();
}

bool FormOzelHatirlatma::Listele() {
    const auto tablo = program_.FormTablo.Tut();
    const Metin klasor = program_.agac.YilKlasoru(tablo->Salon.Metni(), tablo->Sene.Metni());
    const Metin bugun = TarihMetni(program_.Bugun());
    Liste.Temizle();
    Liste.secimDugmeleri.Ac(false);
    SecilenDegerler<AnaNo::AdiSoyadi, AnaNo::Niteligi, AnaNo::Telefon, AnaNo::Cep, AnaNo::HatirlatmaTarihi,
                    AnaNo::BuTarihteHatirlat>
        ana; // outside the loop: what can't be read shows the record before it
    KlasorOkumasi okuma = program_.dosyalar.KlasorAc(klasor);
    for (std::size_t i = 0; i < okuma.Sayi(); ++i) {
        if (!AnaDosyaAdi(okuma[i]))
            continue;
        if (const auto bayt = okuma.Oku(i))
            DegerleriAl(*bayt, ana);
        if (ana.No(AnaNo::HatirlatmaTarihi) != bugun || ana.No(AnaNo::BuTarihteHatirlat) != u"1")
            continue;
        const Metin ad(okuma[i]);
        Liste.satirlar.push_back({{ad, ana.No(AnaNo::AdiSoyadi), ana.No(AnaNo::Niteligi),
                                   ana.No(AnaNo::Telefon), ana.No(AnaNo::Cep)},
                                  klasor + kAyrac + ad});
    }
    return !Liste.satirlar.empty();
}

void FormOzelHatirlatma::Liste_ItemClick() {
    Liste.secimDugmeleri.Ac(true);
}

void FormOzelHatirlatma::Liste_DblClick() {
    if (Command4.etkin)
        Command4_Click();
}

void FormOzelHatirlatma::Command4_Click() {
    if (const ListeSatiri* satir = Liste.Secili())
        SatiriAc(program_, *satir, {}, AnahtarYili(satir->sutun[0]));
}

void FormOzelHatirlatma::Command2_Click() {
    program_.FormOzelHatirlatma.Bosalt();
}

} // namespace velora
