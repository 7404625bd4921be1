#include "maintenance/FormResmiTatilYukle.h"

#include "maintenance/FormResmiTatil.h"
#include "online/Adresler.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/Sayi.h"

namespace velora {

FormResmiTatilYukle::FormResmiTatilYukle(Program& program) : FileDownloader(program), program_(program) {
    Label1.baslik = u"Resmi Tatiller ve Özel Günler yükleniyor lütfen bekleyiniz...";
    ProgressBar = {.enCok = kTamYuzde, .baslik = u"İndirilen", .yuzde = true};
    Command.baslik = kYenidenDene;
    Command.aradaDa = true;
    Command1.baslik = u"İptal";
    Command1.aradaDa = true;
    FileDownloader.olaylar.hata = [this](const Metin&) { Hata(); };
    FileDownloader.olaylar.tamamlandi = [this] { Tamamlandi(); };
    FileDownloader.olaylar.ilerledi = [this](const Metin& yuzde) {
        ProgressBar.deger = static_cast<int>(SayisalDeger(yuzde));
    };
}

void FormResmiTatilYukle::Activate() {
    Command_Click();
}

void FormResmiTatilYukle::Command_Click() {
    IndirmeKomutu(Parcalar(), YerAdresi(AdresleriOku(program_).site, u"progdata/ozelgunler.dat"),
                  program_.agac.KokYolu(kGenelTatilDosyasi));
}

void FormResmiTatilYukle::Command1_Click() {
    program_.FormResmiTatilYukle.Bosalt();
}

void FormResmiTatilYukle::Hata() {
    Soyle(program_, u"Yükleme sırasında hata oluştu! Lütfen internet bağlantınızı kontrol ediniz.", u"Hata",
          Simge::Kritik);
    IndirmeyiSifirla(Parcalar());
    FileDownloader.Cancel();
}

void FormResmiTatilYukle::Tamamlandi() {
    Program& p = program_;
    Soyle(p, u"Yükleme başarıyla tamamlandı...", u"Yükleme");
    IndirmeyiSifirla(Parcalar());
    p.FormResmiTatilYukle.Bosalt();
    p.FormResmiTatil->Temizle_Click();
}

} // namespace velora
