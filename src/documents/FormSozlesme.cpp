#include "documents/FormSozlesme.h"

#include <array>

#include "documents/Baski.h"
#include "documents/FormPrint.h"
#include "online/FormFirma.h"
#include "online/Iller.h"
#include "screen/Bayrak.h"
#include "screen/Program.h"
#include "storage/AlanDosyasi.h"

namespace velora {

namespace {

Metin SozlesmeYolu(const Program& program) {
    return program.agac.KokYolu(kSozlesmeDosyasi);
}

std::array<Alan, 2> SozlesmeAlanlari(Metin& baslik, Metin& maddeler) {
    return {MetinAlani(baslik), MetinAlani(maddeler)};
}

Metin OrnekAdi() {
    return BaskiAdi({u"Örnek Sözleşme"});
}

/// A quote within a text would end it in the file.
Metin Tirnaksiz(Metin metin) {
    std::erase(metin, u'"');
    return metin;
}

} // namespace

FormSozlesme::FormSozlesme(Program& program) : program_(program) {
    Unvan.baslik = u"Firma Ünvanı";
    Sehir.baslik = u"Şehir";
    Baslik.baslik = u"Başlık";
    Sozlesme.baslik = u"Sözleşme";
    for (const Il& il : Iller())
        Sehir.ogeler.emplace_back(il.ad);
    Command1.baslik = u"Örnek Baskı";
    Command2.baslik = u"Kaydet";
    Command3.baslik = u"İptal";
}

void FormSozlesme::Load() {
    const auto firma = program_.FormFirma.Tut();
    Unvan.metin = firma->t1.metin;
    // What the profile asks for is no city, and would stand on paper as one.
    if (const Metin sehir = firma->t8.Metni(); sehir != kSehirSeciniz)
        Sehir.MetinAta(sehir);
    AlanlariOku(program_.dosyalar, SozlesmeYolu(program_), SozlesmeAlanlari(Baslik.metin, Sozlesme.metin),
                &koken_);
}

/// No customer's data that a print has left there stand on the sample, and nothing of the sample stays.
std::vector<Sayfa> FormSozlesme::OrnekSayfalar() const {
    Program& p = program_;
    p.FormPrint.Bosalt();
    const auto sayfa = p.FormPrint.Tut();
    sayfa->Unvan.baslik = Unvan.metin;
    sayfa->Baslik.baslik = Baslik.metin;
    sayfa->Sozlesme.baslik = Sozlesme.metin;
    p.OlaylariIsle();
    p.FormPrint.Bosalt();
    return sayfa->Sayfalar(p.ortam.kagit.olcer);
}

void FormSozlesme::Command1_Click() {
    const Bayrak suren(baskida);
    Yazdir(program_, OrnekSayfalar(), OrnekAdi());
}

void FormSozlesme::Pdf_Click() {
    const Bayrak suren(baskida);
    PdfKaydet(program_, OrnekSayfalar(), OrnekAdi());
}

void FormSozlesme::Command2_Click() {
    Metin temizBaslik = Tirnaksiz(Baslik.metin);
    Metin maddeler = Tirnaksiz(Sozlesme.metin);
    const Dosyalar::Eylem eylem(program_.dosyalar, u"Sözleşme metni");
    koken_.Yaz(program_.dosyalar, SozlesmeYolu(program_),
               AlanBaytlari(SozlesmeAlanlari(temizBaslik, maddeler)));
    program_.FormSozlesme.Bosalt();
}

void FormSozlesme::Command3_Click() {
    program_.FormSozlesme.Bosalt();
}

std::shared_ptr<FormSozlesme> TazeSozlesme(Program& program) {
    if (!program.yigin.Acik(EkranAdi::FormSozlesme))
        program.FormSozlesme.Bosalt();
    return program.FormSozlesme.Tut();
}

} // namespace velora
