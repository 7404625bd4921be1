#include "accounts/FormGiderler.h"

#include "accounts/FormKasa.h"
#include "accounts/FormKasaEkle.h"
#include "accounts/KasaListesi.h"
#include "accounts/RaporAlanlari.h"
#include "documents/Baski.h"
#include "documents/FormMakbuzPrint.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/Sayi.h"
#include "storage/YazimBicimi.h"
#include "table/FormTablo.h"

namespace velora {

FormGiderler::FormGiderler(Program& program) : Liste(KasaListesi(u"Giderler")), program_(program) {
    Combo2.baslik = u"Salon Adı";
    DTPicker3.baslik = u"Yıl";
    DTPicker1.baslik = u"Başlangıç Tarihi";
    DTPicker2.baslik = u"Bitiş Tarihi";
    DTPicker4.baslik = u"Bu Gün";
    Giderler.once = u"Gider Toplamı";
    Liste.secimDugmeleri.dugmeler = {&Command2, &Command4};
    Combo2.tiklandi = [this] { ListeleGun(); };
    DTPicker3.degisti = [this] { DTPicker3_Change(); };
}

void FormGiderler::Load() {
    DTPicker4.deger = program_.Bugun();
    SalonlariAl(program_, Combo2);
    Combo2.secili = -1;
    DTPicker3.deger = DTPicker4.deger;
    YiliAl();
    ListeleGun();
}

void FormGiderler::Activate() {
    Liste.secimDugmeleri.Ac(false);
    if (Combo2.Metni().empty())
        Combo2.Sec(program_.FormTablo->Salon.Metni());
}

void FormGiderler::YiliAl() {
    DTPicker1.deger = DTPicker3.deger.year() / 1 / 1;
    DTPicker2.deger = DTPicker3.deger.year() / 12 / 31;
}

void FormGiderler::DTPicker3_Change() {
    YiliAl();
    ListeleGun();
}

Metin FormGiderler::Yil() const {
    return Bicimle(TarihMetni(DTPicker3.deger), u"yyyy");
}

Metin FormGiderler::Yol() const {
    return program_.agac.GunYolu(Combo2.Metni(), Yil(), kGiderDosyasi);
}

void FormGiderler::ListeleGun() {
    // No row of the new list has been clicked yet.
    Liste.secimDugmeleri.Ac(false);
    Liste.Temizle();
    if (const auto bayt = koken_.Oku(program_.dosyalar, Yol()))
        KasaDerleme(Liste, DTPicker1.deger, DTPicker2.deger).Ekle(*bayt, kGider);
    Giderler.baslik = TutarMetni(KasaToplami(Liste, kGider));
    Label4.baslik = Yil() + u" Yılı";
}

void FormGiderler::Liste_Click() {
    Liste.secimDugmeleri.Ac(true);
}

void FormGiderler::Command2_Click() {
    const ListeSatiri* satir = Liste.Secili();
    if (satir == nullptr)
        return;
    const Metin& tarih = satir->sutun[KasaSutunu::Tarih];
    const Metin& aciklama = satir->sutun[KasaSutunu::Aciklama];
    MakbuzGoster(program_, {.tur = MakbuzTuru::Gider,
                            .tarih = tarih,
                            .tutar = TutarDegeri(satir->sutun[KasaSutunu::Tutar]),
                            .aciklama = aciklama,
                            .adSoyad = program_.FormTablo->UserNamem,
                            .isAdi = BaskiAdi({tarih, Combo2.Metni(), aciklama, u"Gider Makbuzu"})});
}

void FormGiderler::Command3_Click() {
    Program& p = program_;
    p.FormKasaEkle.GosterModal();
    // It lists the cash book alone. From an old list the next save would drop what was added.
    if (p.FormGiderler.Yuklu())
        p.FormGiderler->ListeleGun();
}

void FormGiderler::Command4_Click() {
    Command4.etkin = false;
    if (!SilmeyiSor(program_, u"Gider kaydını silmek istediğinizden emin misiniz?"))
        return;
    Liste.SeciliyiSil();
    Kaydet_Click();
}

void FormGiderler::Kaydet_Click() {
    DegerYazici yazici;
    for (const ListeSatiri& satir : Liste.satirlar)
        yazici.Yaz(satir.sutun[KasaSutunu::Tarih], satir.sutun[KasaSutunu::Tutar],
                   satir.sutun[KasaSutunu::Aciklama]);
    const auto yaz = [&] { return koken_.Yaz(program_.dosyalar, Yol(), yazici.Bayt()); };
    const Dosyalar::Eylem eylem(program_.dosyalar, u"Gider kaydı", [&] {
        if (yaz() && Liste.satirlar.empty())
            program_.dosyalar.Sil(Yol());
    });
    const bool yazildi = yaz();
    ListeleGun(); // where it couldn't be written, the rows that the file still has
    if (!yazildi)
        return;
    if (Liste.satirlar.empty() && koken_.Yazilir())
        program_.dosyalar.Sil(Yol());
    KasayiTazele(program_, Combo2.Metni());
}

void FormGiderler::Command1_Click() {
    program_.FormGiderler.Bosalt();
}

} // namespace velora
