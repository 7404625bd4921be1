#include "reservation/FormOdemeAl.h"

#include "reservation/FormKayit.h"
#include "screen/Program.h"
#include "screen/TusSuzgeci.h"
#include "storage/Sayi.h"

namespace velora {

FormOdemeAl::FormOdemeAl(Program& program) : program_(program) {
    DTPicker1.baslik = u"Tarih Seçin";
    Text1.baslik = u"Miktar Girin";
    Aciklama.baslik = u"Açıklama";
    Text1.enUzun = 6;
    Text1.suzgec = YalnizRakam;
}

void FormOdemeAl::Load() {
    DTPicker1.deger = program_.Bugun();
    const auto kayit = program_.FormKayit.Tut();
    Aciklama.metin = kayit->Kay[AnaNo::SozlesmeNo].metin + u" - " + kayit->Kay[AnaNo::AdiSoyadi].metin;
}

void FormOdemeAl::Text1_Change() {
    Command1.etkin = !Kirp(Text1.metin).empty();
}

void FormOdemeAl::Command1_Click() {
    Program& p = program_;
    if (const double tutar = SayisalDeger(Text1.metin); tutar > 0) {
        p.FormKayit->Liste.satirlar.push_back(
            {{TarihMetni(DTPicker1.deger), DuzMetin(tutar), Aciklama.metin}, {}, 0});
        // The next Enter saves, not takes one more payment.
        p.ortam.odak.ver(EkranAdi::FormKayit, u"Command1");
    }
    p.FormOdemeAl.Bosalt();
}

void FormOdemeAl::Command2_Click() {
    program_.FormOdemeAl.Bosalt();
}

} // namespace velora
