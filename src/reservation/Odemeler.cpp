// The payments of a reservation: the list on the screen, its totals and its file.
#include "reservation/FormKayit.h"
#include "reservation/FormOdemeAl.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/Sayi.h"

namespace velora {

namespace {

constexpr std::size_t kTutarSutunu = 1;

struct Gerekli {
    int no; ///< of the field
    const char16_t* mesaj;
};
constexpr std::array<Gerekli, 2> kGerekliler{{
    {AnaNo::AdiSoyadi, u"Lütfen önce adı soyadı giriniz!"},
    {AnaNo::ToplamUcret, u"Lütfen önce toplam ücreti giriniz!"},
}};

} // namespace

void FormKayit::Command8_Click() {
    for (const auto& [no, mesaj] : kGerekliler)
        if (Kirp(Kay[no].metin).empty()) {
            AlanaDon(no, mesaj);
            return;
        }
    program_.FormOdemeAl.GosterModal();
}

void FormKayit::Liste_ItemClick() {
    Liste.secimDugmeleri.Ac(true);
}

void FormKayit::Command7_Click() {
    Liste.secimDugmeleri.Ac(false);
    // One right covers both: who may not change the price may not delete what was paid.
    if (Kay[AnaNo::ToplamUcret].kilitli) {
        Soyle(program_, u"Alınan ödemeleri silmeye yetkiniz yok!");
        return;
    }
    if (!SilmeyiSor(program_, u"Ödeme kaydını silmek istediğinizden emin misiniz?"))
        return;
    Liste.SeciliyiSil();
    Command12(); // the totals
}

void FormKayit::Command12() {
    double toplam = 0;
    for (const ListeSatiri& satir : Liste.satirlar)
        toplam += SayisalDeger(satir.sutun[kTutarSutunu]);
    Kay[AnaNo::AlinanOdeme].metin = DuzMetin(toplam);
    Kay9_LostFocus();
    ToplamUcret.baslik = GrupluMetin(SayisalDeger(Kay[AnaNo::ToplamUcret].metin));
    Kayam9.baslik = GrupluMetin(SayisalDeger(Kay[AnaNo::AlinanOdeme].metin));
    Kayam10.baslik = GrupluMetin(SayisalDeger(Kay[AnaNo::KalanOdeme].metin));
}

void FormKayit::Command10() {
    std::vector<Odeme> odemeler;
    OdemeOku(program_.dosyalar, GunYolu() + Metin(kOdemeEki), odemeler, &odemeKoken);
    for (Odeme& odeme : odemeler)
        Liste.satirlar.push_back({{odeme.tarih, odeme.tutar, odeme.aciklama}, {}, 0});
}

void FormKayit::Kaydet() const {
    std::vector<Odeme> odemeler;
    for (const ListeSatiri& satir : Liste.satirlar)
        odemeler.push_back({satir.sutun[0], satir.sutun[1], satir.sutun[2]});
    OdemeYaz(program_.dosyalar, GunYolu() + Metin(kOdemeEki), odemeler, odemeKoken);
}

} // namespace velora
