#include "online/FormWebteYayinla.h"

#include "online/YayinKosusu.h"
#include "screen/Program.h"

namespace velora {

FormWebteYayinla::FormWebteYayinla(Program& program) : program_(program) {
    Label8.baslik = baslik;
    Label1.baslik = u"Lütfen bekleyiniz, bu işlem bir kaç dakika sürebilir...";
}

bool FormWebteYayinla::Duruyor() const {
    return program_.FormWebteYayinla.Yuklu() && program_.FormWebteYayinla.Tut().get() == this;
}

void FormWebteYayinla::ListeleriDoldur() {
    List1.clear();
    List2.clear();
    List3.clear();
    for (const YayinGozu& goz : kosu->Icerik().gozler) {
        List1.push_back(goz.gun);
        List2.push_back(goz.durum);
        List3.push_back(goz.dilim);
    }
    ProgressBar1.enCok = static_cast<int>(List1.size());
}

void FormWebteYayinla::Activate() {
    if (!kosu)
        return;
    ListeleriDoldur();
    while (!kosu->Bitti()) {
        kosu->Adim([this] { return !Duruyor(); });
        ProgressBar1.deger = kosu->GidenGoz();
        program_.OlaylariIsle();
        if (!Duruyor())
            return;
    }
    program_.OlaylariIsle();
    Tamamlandi();
    program_.OlaylariIsle();
    if (Duruyor())
        program_.FormWebteYayinla.Bosalt();
}

void FormWebteYayinla::Tamamlandi() {
    Label1.baslik = u"Tüm Değişiklikler veri tabanına kaydedildi.";
    Label2.baslik = u"Tamamlandı.";
    Command1.baslik = u"Kapat";
}

void FormWebteYayinla::Command1_Click() {
    program_.FormWebteYayinla.Bosalt();
}

} // namespace velora
