#include "documents/FormTabloPrint.h"

#include "documents/Baski.h"
#include "documents/TabloSayfasi.h"
#include "screen/Program.h"

namespace velora {

std::vector<Sayfa> FormTabloPrint::Sayfalar(const YaziOlcer& olcer) const {
    return {TabloSayfasi(*this, olcer)};
}

void FormTabloPrint::Command1_Click() {
    Program& p = program_;
    Command1.gorunur = Command2.gorunur = false;
    p.OlaylariIsle();
    // Closed meanwhile: whoever did so wants no paper.
    if (!p.FormTabloPrint.Yuklu() || !Yazdir(p, Sayfalar(p.ortam.kagit.olcer), isAdi))
        return;
    p.OlaylariIsle();
    p.FormTabloPrint.Bosalt();
}

void FormTabloPrint::Command2_Click() {
    program_.FormTabloPrint.Bosalt();
}

void FormTabloPrint::Pdf_Click() {
    PdfKaydet(program_, Sayfalar(program_.ortam.kagit.olcer), isAdi);
}

} // namespace velora
