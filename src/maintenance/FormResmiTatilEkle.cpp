#include "maintenance/FormResmiTatilEkle.h"

#include <algorithm>

#include "maintenance/FormResmiTatil.h"
#include "screen/Program.h"
#include "screen/Sorular.h"

namespace velora {

FormResmiTatilEkle::FormResmiTatilEkle(Program& program) : program_(program) {
    DTPicker1.baslik = u"Tarih";
    Text2.baslik = u"Açıklama";
    Check1.baslik = u"Her Yıl Tekrarla";
    Command1.baslik = u"Tamam";
    Command2.baslik = u"İptal";
}

void FormResmiTatilEkle::Load() {
    DTPicker1.deger = program_.Bugun().year() / std::chrono::January / 1;
}

void FormResmiTatilEkle::Command1_Click() {
    Program& p = program_;
    if (Text2.metin.empty())
        return AlaniSoyle(p, EkranAdi::FormResmiTatilEkle, u"Text2", u"Lütfen Açıklama yazınız");
    std::erase(Text2.metin, u'"');
    std::ranges::replace(Text2.metin, u',', u'.');
    p.FormResmiTatil->Ekle({TarihMetni(DTPicker1.deger), Text2.metin, Check1.deger != 0 ? u"Evet" : u"Hayır",
                            Metin(kOzelTatil)});
    p.FormResmiTatilEkle.Bosalt();
}

void FormResmiTatilEkle::Command2_Click() {
    program_.FormResmiTatilEkle.Bosalt();
}

} // namespace velora
