#include "online/FormOneri.h"

#include "online/FormFirma.h"
#include "online/FormSunucu.h"
#include "online/Istekler.h"
#include "screen/Program.h"
#include "screen/Sorular.h"

namespace velora {

namespace {

/// A reply without blanks about it and without its line breaks.
Metin YalinCevap(MetinBakis cevap) {
    constexpr MetinBakis kSatirArasi = u"\r\n";
    Metin metin(Kirp(cevap));
    for (std::size_t yer = metin.find(kSatirArasi); yer != Metin::npos; yer = metin.find(kSatirArasi, yer))
        metin.erase(yer, kSatirArasi.size());
    return Metin(Kirp(metin));
}

} // namespace

FormOneri::FormOneri(Program& program) : Inet1(program), program_(program) {
    Label2.baslik = u"Öneri ve isteklerinizi bizimle paylaşabilirsiniz.";
    Aciklama.baslik = u"Mesajınız";
}

void FormOneri::Aciklama_Change() {
    Command1.etkin = !Kirp(Aciklama.metin).empty();
}

void FormOneri::Command1_Click() {
    Program& p = program_;
    const Metin anahtar = p.FormSunucu->Text1.metin;
    const Metin unvan = p.FormFirma->t1.metin;
    const Metin eposta = p.FormFirma->t6.metin;
    const Metin cevap =
        Inet1.Getir(IstekAdresi(p, Istek::OneriKaydet, {anahtar, unvan, eposta, Aciklama.metin}));
    p.OlaylariIsle();
    if (!p.FormOneri.Yuklu())
        return;
    if (YalinCevap(cevap) != u"OK")
        return Soyle(p, u"Mesajınız gönderilemedi!\nLütfen İnternet bağlantınızı kontrol ediniz!", u"Velora",
                     Simge::Kritik);
    Soyle(p, u"Tebrikler...\nMesajınız başarıyla gönderilmiştir.", u"Teşekkürler");
    p.FormOneri.Bosalt();
}

void FormOneri::Command2_Click() {
    program_.FormOneri.Bosalt();
}

} // namespace velora
