#include "maintenance/FormYedekAl.h"

#include <algorithm>
#include <array>
#include <limits>
#include <system_error>

#include "maintenance/EslemeKosusu.h"
#include "maintenance/FileSync.h"
#include "maintenance/YedekYolu.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/AlanDosyasi.h"
#include "storage/Sayi.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr MetinBakis kBasla = u"Başla";
constexpr MetinBakis kDizinSeciniz = u"Lütfen dizin seçiniz!";

/// A folder as the system finds it, whatever folder it stands in.
std::filesystem::path Klasor(const Metin& yol) {
    std::error_code hata;
    return std::filesystem::absolute(MetinYolu(yol).value_or(std::filesystem::path()), hata);
}

void KlasorYap(const Metin& yol) {
    std::error_code hata;
    std::filesystem::create_directory(Klasor(yol), hata);
}

std::array<Alan, 1> YedekAlanlari(Metin& hedef) {
    return {MetinAlani(hedef)};
}

} // namespace

FormYedekAl::FormYedekAl(Program& program) : program_(program), izleme_(program) {
    Label8.baslik = baslik;
    txtSource.baslik = u"Kaynak Dizin";
    txtDestination.baslik = u"Hedef Dizin";
    txtDestination.metin = YolMetni(program.ortam.klasorler.yedek());
    Command3.aradaDa = true; // it closes the window, not the backup
    chkFolderChange.baslik = u"on Folder Change";
    chkFolderChange.tiklandi = [this] { Sakla(u"chkFolderChange", SayiMetni(chkFolderChange.deger)); };
    txtMins.baslik = u"Back up Every:";
    txtMins.sonra = u"minute(s)";
    txtMins.metin = u"1";
    txtFileType.baslik = u"File Type";
    chkStartwithWindows.baslik = u"Start With Windows?";
    Timer1.tik = [this] { Timer1_Timer(); };
}

void FormYedekAl::Load() {
    Metin hedef;
    const bool okundu =
        AlanlariOku(program_.dosyalar, program_.agac.KokYolu(kYedekDosyasi), YedekAlanlari(hedef), &koken_);
    if (okundu && hedef != txtDestination.metin && !BaskaSistemin(hedef)) {
        txtDestination.metin = hedef;
        txtDestination_Change();
    }
    txtSource.metin = program_.dosyalar.Kok();
    txtSource_Change();
}

void FormYedekAl::txtSource_Change() {
    Sakla(u"txtSource", txtSource.metin);
}

void FormYedekAl::txtDestination_Change() {
    Sakla(u"txtDestination", txtDestination.metin);
}

void FormYedekAl::txtMins_Change() {
    Sakla(u"txtMins", txtMins.metin);
}

void FormYedekAl::Sakla(MetinBakis ad, const Metin& deger) const {
    program_.ortam.ayarlar.yaz(u"Settings", ad, deger);
}

void FormYedekAl::Command1_Click() {
    txtSource.metin = program_.ortam.sor.klasor(u"Select directory...");
    txtSource_Change();
}

void FormYedekAl::Command2_Click() {
    txtDestination.metin = HedefYolu(program_.ortam.sor.klasor(u"Select directory..."));
    txtDestination_Change();
}

void FormYedekAl::cmdStart_Click() {
    if (!cmdStart.etkin)
        return;
    EylemleYap(program_.dosyalar, u"Yedek ayarı", [&] {
        koken_.Yaz(program_.dosyalar, program_.agac.KokYolu(kYedekDosyasi),
                   AlanBaytlari(YedekAlanlari(txtDestination.metin)));
    });
    const Metin hedef = GunlukYol(txtDestination.metin, program_.Bugun());
    KlasorYap(txtDestination.metin);
    KlasorYap(hedef);
    Label9.gorunur = true;
    cmdStart.etkin = false;
    program_.OlaylariIsle();
    if (txtMins.metin.empty())
        Soyle(program_, Metin(kDizinSeciniz));
    if (txtSource.metin.empty())
        return Soyle(program_, Metin(kDizinSeciniz));
    if (!Yurut(std::make_shared<EslemeKosusu>(Klasor(txtSource.metin), Klasor(hedef), false,
                                              std::vector{Klasor(txtDestination.metin)})))
        return;
    Bitti(program_);
    if (Duruyor())
        program_.FormYedekAl.Bosalt();
    Ardindan();
}

bool FormYedekAl::Yurut(const std::shared_ptr<EslemeKosusu>& kosu) {
    const Ortam::Olaylar& olaylar = program_.ortam.olaylar;
    while (!olaylar.bitti()) {
        // Whoever showed the screen gets its control back only when this has returned.
        if (!Duruyor() && program_.yigin.Acik(EkranAdi::FormTablo)) {
            program_.FormTablo->YedegiSurdur(kosu);
            return false;
        }
        if (!kosu->Adim())
            return true;
        olaylar.adimda();
    }
    return false;
}

void FormYedekAl::Bitti(const Program& program) {
    Soyle(program, u"Yedekleme işleminiz başarıyla tamamlandı!");
}

/// Closed meanwhile, it may have been opened anew: that one is another's.
bool FormYedekAl::Duruyor() {
    return program_.FormYedekAl.Yuklu() && program_.FormYedekAl.Tut().get() == this;
}

/// On a screen that has been unloaded: its next opening begins with "Tamam" again, so that nothing ever
/// starts by itself.
void FormYedekAl::Ardindan() {
    if (cmdStart.baslik != kBasla) {
        izleme_.Dur();
        Timer1.aralik = 0;
        cmdStart.baslik = kBasla;
    } else if (chkFolderChange.deger == 1) {
        izleme_.Basla(txtSource.metin);
    } else if (!txtMins.metin.empty()) {
        constexpr double kSaniye = 1'000; // whatever the caption says
        Timer1.aralik = static_cast<int>(
            std::clamp(SayisalDeger(txtMins.metin) * kSaniye, 0.0, double{std::numeric_limits<int>::max()}));
    }
}

void FormYedekAl::Timer1_Timer() {
    const Ortam::Olaylar& olaylar = program_.ortam.olaylar;
    const auto surer = [&olaylar] {
        olaylar.adimda();
        return !olaylar.bitti();
    };
    const auto hedef = Klasor(txtDestination.metin);
    FileSync(surer, {hedef}).SyncFolders(Klasor(txtSource.metin), hedef, false);
}

void FormYedekAl::Command3_Click() {
    program_.FormYedekAl.Bosalt();
}

} // namespace velora
