#include "maintenance/FormDownloadManager.h"

#include "maintenance/FormYedekAl.h"
#include "online/Adresler.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/Sayi.h"

namespace velora {

namespace {

// Milliseconds for each step of a bar that only is to be seen: less than a second in all.
constexpr int kAdimSuresi = 8;

} // namespace

FormDownloadManager::FormDownloadManager(Program& program) : FileDownloader(program), program_(program) {
    Label8.baslik = u"Yeni Sürüm";
    Label1.baslik = u"Programın yeni sürümü indiriliyor lütfen bekleyin...";
    ProgressBar = {.enCok = kTamYuzde, .baslik = u"İndirilen", .yuzde = true};
    Command.baslik = kYenidenDene;
    Command.aradaDa = true;
    Timer1.tik = [this] { Timer1_Tick(); };
    FileDownloader.olaylar.hata = [this](const Metin&) { Hata(); };
    FileDownloader.olaylar.tamamlandi = [this] { Tamamlandi(); };
    FileDownloader.olaylar.ilerledi = [this](const Metin& yuzde) {
        ProgressBar.deger = static_cast<int>(SayisalDeger(yuzde));
    };
}

void FormDownloadManager::Activate() {
    Command_Click();
}

void FormDownloadManager::Command_Click() {
    IndirmeKomutu(Parcalar(), YerAdresi(AdresleriOku(program_).site, u"update/Velora.exe"),
                  program_.agac.KokYolu(kYeniSurumDosyasi));
}

void FormDownloadManager::Kapat() {
    Timer1.aralik = 0;
    program_.FormDownloadManager.Bosalt();
}

void FormDownloadManager::Hata() {
    Soyle(program_, u"İndirme sırasında hata oluştu! Lütfen internet bağlantınızı kontrol ediniz.", u"Hata",
          Simge::Kritik);
    IndirmeyiSifirla(Parcalar());
}

void FormDownloadManager::Tamamlandi() {
    Soyle(program_, u"Programın yeni sürümü başarıyla indirildi...", u"Yeni Sürüm");
    Command.baslik = u"Tekrar İndir";
    // Another fetch now would write over what is about to be installed.
    Command.etkin = false;
    ProgressBar.deger = 0;
    baslik = Label8.baslik = u"Backup Yöneticisi";
    Label1.baslik = u"Programın Yedeği alınıyor lütfen bekleyin...";
    Timer1.aralik = kAdimSuresi;
}

void FormDownloadManager::Timer1_Tick() {
    ++ProgressBar.deger;
    if (ProgressBar.deger < kTamYuzde)
        return;
    Timer1.aralik = 0;
    YedekleVeGuncelle();
}

void FormDownloadManager::YedekleVeGuncelle() {
    Program& p = program_;
    p.FormYedekAl->cmdStart_Click();
    // Also when it was closed meanwhile: the new version lies there, and the backup is taken.
    p.FormDownloadManager.Bosalt();
    p.OlaylariIsle();
    if (const auto yol = p.dosyalar.SistemYolu(p.agac.KokYolu(kGuncelleyici)))
        p.ortam.kabuk.calistir(*yol);
}

} // namespace velora
