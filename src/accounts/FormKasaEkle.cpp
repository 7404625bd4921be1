#include "accounts/FormKasaEkle.h"

#include "accounts/FormKasa.h"
#include "accounts/RaporAlanlari.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "screen/TusSuzgeci.h"
#include "storage/KasaKayitlari.h"

namespace velora {

FormKasaEkle::FormKasaEkle(Program& program) : program_(program) {
    Combo1.baslik = u"Salon Adı";
    DTPicker1.baslik = u"Tarih";
    Tutar.baslik = u"Gider";
    Tutar.sonra = u"TL";
    Tutar.suzgec = YalnizRakam;
    Aciklama.baslik = u"Açıklama";
    Ornek.baslik = u"(Örn : Piyanist, Elektrik, Su Faturası)";
}

void FormKasaEkle::Load() {
    SalonlariAl(program_, Combo1);
    if (program_.FormKasa.Yuklu())
        Combo1.SessizSec(program_.FormKasa->Combo2.Metni());
    DTPicker1.deger = program_.Bugun();
}

void FormKasaEkle::Activate() {
    Command4();
}

void FormKasaEkle::Command4() {
    YilaSinirla(program_, DTPicker1);
}

void FormKasaEkle::Tutar_Change() {
    Command1.etkin = !Kirp(Tutar.metin).empty();
}

void FormKasaEkle::Command1_Click() {
    if (Aciklama.metin.empty()) {
        AlaniSoyle(program_, EkranAdi::FormKasaEkle, u"Aciklama", u"Lüften açıklama giriniz!");
        return;
    }
    Program& p = program_;
    const Metin salon = Combo1.Metni();
    const Metin yil = Bicimle(TarihMetni(DTPicker1.deger), u"yyyy");
    const Dosyalar::Eylem eylem(p.dosyalar, u"Gider girişi");
    p.dosyalar.Ekle(p.agac.GunYolu(salon, yil, kGiderDosyasi),
                    GiderBayt(DTPicker1.deger, Tutar.metin, Aciklama.metin));
    KasayiTazele(p, salon);
    p.FormKasaEkle.Bosalt();
}

void FormKasaEkle::Command2_Click() {
    program_.FormKasaEkle.Bosalt();
}

} // namespace velora
