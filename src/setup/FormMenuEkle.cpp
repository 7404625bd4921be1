#include "setup/FormMenuEkle.h"

#include "screen/Program.h"
#include "screen/Sorular.h"
#include "setup/FormMenuAyar.h"
#include "storage/Harf.h"
#include "storage/Sayi.h"

namespace velora {

FormMenuEkle::FormMenuEkle(Program& program) : program_(program) {
    Label1.baslik = Text1.baslik = u"Menü Adı";
    Label2.baslik = Text2.baslik = u"İçerik";
    Command3.baslik = u"İptal";
    Command4.baslik = u"Tamam";
}

void FormMenuEkle::Text1_Change() {
    Command4.etkin = !Kirp(Text1.metin).empty();
}

void FormMenuEkle::Command4_Click() {
    Program& p = program_;
    if (Text2.metin.empty())
        return AlaniSoyle(p, EkranAdi::FormMenuEkle, u"Text2", u"Lüften içerik giriniz!");
    Text1.metin = BuyukBas(Text1.metin);
    Text2.metin = BuyukBas(Text2.metin);
    const auto menuler = p.FormMenuAyar.Tut();
    auto& satirlar = menuler->Liste.satirlar;
    if (Kirp(Tag).empty())
        satirlar.push_back({{Text1.metin, Text2.metin}, {}, 0});
    else if (const double sira = SayisalDeger(Tag); sira >= 0 && sira < static_cast<double>(satirlar.size()))
        satirlar.Degistir(static_cast<std::size_t>(sira), {{Text1.metin, Text2.metin}, {}, 0});
    menuler->Kaydet_Click();
    p.FormMenuEkle.Bosalt();
}

void FormMenuEkle::Command3_Click() {
    program_.FormMenuEkle.Bosalt();
}

} // namespace velora
