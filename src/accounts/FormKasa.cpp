#include "accounts/FormKasa.h"

#include "accounts/FormGiderler.h"
#include "accounts/FormKasaEkle.h"
#include "accounts/KasaListesi.h"
#include "accounts/RaporAktarma.h"
#include "accounts/RaporAlanlari.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/Sayi.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

/// What a file of a year folder holds by the end of its name; empty for neither.
MetinBakis KasaDosyasiTuru(MetinBakis ad) {
    if (ad.ends_with(kOdemeEki.substr(1)))
        return kGelir;
    return ad.ends_with(kGiderDosyasi) ? kGider : MetinBakis();
}

} // namespace

FormKasa::FormKasa(Program& program) : Liste(KasaListesi(u"Kasa hareketleri")), program_(program) {
    Combo2.baslik = u"Salon Adı";
    DTPicker1.baslik = u"Başlangıç Tarihi";
    DTPicker2.baslik = u"Bitiş Tarihi";
    Gelirler.once = u"Gelir Toplam";
    Giderler.once = u"Gider Toplam";
    GenelTop.once = u"Genel Toplam";
    for (Etiket* etiket : {&Gelirler, &Giderler, &GenelTop})
        etiket->baslik = u": 0";
}

void FormKasa::Load() {
    SalonlariAl(program_, Combo2);
    BuAyiSec(program_, DTPicker1, DTPicker2);
}

void FormKasa::ListeleGun() {
    ListeleGun1();
    if (Liste.satirlar.empty())
        Soyle(program_, u"Belirtilen tarihler arasında bir kasa kaydı bulunamadı!");
}

void FormKasa::ListeleGun1() {
    Liste.Temizle();
    Tara();
    const double gelir = KasaToplami(Liste, kGelir);
    const double gider = KasaToplami(Liste, kGider);
    Gelirler.baslik = TutarMetni(gelir);
    Giderler.baslik = TutarMetni(gider);
    GenelTop.baslik = TutarMetni(gelir - gider);
    Ozet.baslik = Liste.Ozeti(Combo2.Metni());
}

void FormKasa::Tara() {
    KasaDerleme derleme(Liste, DTPicker1.deger, DTPicker2.deger);
    const Metin salon = Combo2.Metni();
    for (const Metin& yil : program_.FormTablo->Sene.ogeler)
        program_.dosyalar.KlasoruOku(
            program_.agac.YilKlasoru(salon, yil),
            [&](const Dosyalar::OkunanDosya& dosya) {
                if (dosya.acildi)
                    derleme.Ekle(dosya.bayt, KasaDosyasiTuru(dosya.ad));
            },
            [](MetinBakis ad) { return !KasaDosyasiTuru(ad).empty(); });
}

void FormKasa::Command2_Click() {
    RaporAktar(program_, Liste.basliklar, Liste);
}

void FormKasa::Command3_Click() {
    program_.FormGiderler.GosterModal([this] {
        program_.FormGiderler->Combo2.Sec(Combo2.Metni());
        return true;
    });
}

void FormKasa::Command6_Click() {
    program_.FormKasaEkle.GosterModal();
}

void FormKasa::Command1_Click() {
    program_.FormKasa.Bosalt();
}

void KasayiTazele(Program& program, MetinBakis salon) {
    if (program.FormKasa.Yuklu() && program.FormKasa->Combo2.Metni() == salon)
        program.FormKasa->ListeleGun1();
}

} // namespace velora
