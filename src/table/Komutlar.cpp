// The table of the commands.
#include "table/Komutlar.h"

#include "access/FormKullanicilar.h"
#include "access/FormSifreDegistir.h"
#include "accounts/FormBakiye.h"
#include "accounts/FormKasa.h"
#include "documents/FormSozlesme.h"
#include "maintenance/FormResmiTatil.h"
#include "maintenance/FormYedekAl.h"
#include "online/Adresler.h"
#include "online/FormDuyurular.h"
#include "online/FormFirma.h"
#include "online/FormOneri.h"
#include "online/FormSunucu.h"
#include "reservation/FormArama.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "setup/FormAyarlar.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormSalonTanim.h"
#include "table/FormHakkinda.h"
#include "table/FormTablo.h"

namespace velora {

template <auto Ekran>
void FormTablo::EkranAc() {
    (program_.*Ekran).GosterModal();
}

namespace {

using T = FormTablo;
using P = Program;

constexpr std::array<KomutTanimi, kKomutSayisi> kKomutlar{{
    {Komut::Arasss,
     u"Arasss",
     Menu::Kayitss,
     u"Kayıt Ara",
     &T::EkranAc<&P::FormArama>,
     u"F2",
     {1, u"Ara", u"Kayıt Ara (F2)", u"ara"}},
    {Komut::aline13, u"aline13", Menu::Kayitss, u"-"},
    {Komut::Cikissssss, u"Cikissssss", Menu::Kayitss, u"Programdan Çıkış", &T::Cikissssss_Click},
    {Komut::BakiyeRaporss,
     u"BakiyeRaporss",
     Menu::Raporsss,
     u"Rezervasyon Raporu",
     &T::EkranAc<&P::FormBakiye>,
     u"F3",
     {3, u"Rapor", u"Rezervasyon Raporu (F3)", u"rapor"}},
    {Komut::kasarapors,
     u"kasarapors",
     Menu::Raporsss,
     u"Kasa Raporu",
     &T::EkranAc<&P::FormKasa>,
     u"F4",
     {5, u"Kasa", u"Kasa Raporu (F4)", u"kasa"}},
    {Komut::aline1, u"aline1", Menu::Raporsss, u"-"},
    {Komut::rezrapor,
     u"rezrapor",
     Menu::Raporsss,
     u"Rezervasyon Tablosu",
     &T::rezrapor_Click,
     u"F5",
     {7, u"Yazdır", u"Rezervasyon Tablosu (F5)", u"yazdir"}},
    {Komut::linooomm, u"linooomm", Menu::Raporsss, u"-"},
    {Komut::iptalsebepss, u"iptalsebepss", Menu::Raporsss, u"İptal Sebepleri", &T::iptalsebepss_Click},
    {Komut::FirmaBilgiss, u"FirmaBilgiss", Menu::ayarsd, u"Firma Bilgileri", &T::EkranAc<&P::FormFirma>},
    {Komut::firmcizgi, u"firmcizgi", Menu::ayarsd, u"-"},
    {Komut::Sozduzenss, u"Sozduzenss", Menu::ayarsd, u"Sözleşme Tanımları", &T::Sozduzenss_Click},
    {Komut::Salontanimss, u"Salontanimss", Menu::ayarsd, u"Salon Tanımları", &T::EkranAc<&P::FormSalonTanim>},
    {Komut::aline4, u"aline4", Menu::ayarsd, u"-"},
    {Komut::MenuAyars, u"MenuAyars", Menu::ayarsd, u"Menü Tanımları", &T::EkranAc<&P::FormMenuAyar>},
    {Komut::ResTatilss, u"ResTatilss", Menu::ayarsd, u"Resmi Tatil ve Özel Gün Tanımları",
     &T::EkranAc<&P::FormResmiTatil>},
    {Komut::aline8, u"aline8", Menu::ayarsd, u"-"},
    {Komut::KulTanimssss, u"KulTanimssss", Menu::ayarsd, u"Kullanıcı ve Yetki Tanımları",
     &T::EkranAc<&P::FormKullanicilar>},
    {Komut::Guvenliksss, u"Guvenliksss", Menu::ayarsd, u"Güvenlik Ayarları",
     &T::EkranAc<&P::FormSifreDegistir>},
    {Komut::Websssunucus, u"Websssunucus", Menu::ayarsd, u"Web Sunucu Ayarları", &T::EkranAc<&P::FormSunucu>},
    {Komut::aline9, u"aline9", Menu::ayarsd, u"-"},
    {Komut::Progrset,
     u"Progrset",
     Menu::ayarsd,
     u"Genel Program Ayarları",
     &T::EkranAc<&P::FormAyarlar>,
     u"F7",
     {13, u" Ayarlar ", u"Program Ayarları (F7)", u"ayarlar"}},
    {Komut::aline10, u"aline10", Menu::ayarsd, u"-"},
    {Komut::Yedeksss, u"Yedeksss", Menu::ayarsd, u"Yedek Al / Geri Yükle", &T::EkranAc<&P::FormYedekAl>},
    {Komut::Yardimssa, u"Yardimssa", Menu::Yardimss, u"Yardım Konuları", &T::Yardimssa_Click, u"F1"},
    {Komut::oneriii, u"oneriii", Menu::Yardimss, u"Öneri ve İstekleriniz", &T::EkranAc<&P::FormOneri>},
    {Komut::duyurularsss, u"duyurularsss", Menu::Yardimss, u"Duyurular", &T::EkranAc<&P::FormDuyurular>},
    {Komut::Phakss, u"Phakss", Menu::Yardimss, u"Program Hakkında", &T::EkranAc<&P::FormHakkinda>,
     u"Ctrl+F1"},
    {Komut::UyariGoster,
     u"UyariGoster",
     Menu::Yok,
     u"Uyari Goster",
     &T::UyariGoster,
     u"",
     {9, u" Uyarılar", u"Yaklaşan Rezervasyonlar", u"uyarilar"}},
    {Komut::Yayinla,
     u"Yayinla",
     Menu::Yok,
     u"Web'te Yayınla",
     &T::Yayinla,
     u"",
     {11, u"Yayınla", u"Web'te Yayınla (F12)", u"yayinla"}},
    {Komut::newkay, u"newkay", Menu::Sagtus, u"Yeni Organizasyon Oluştur", &T::newkay_Click},
    {Komut::aline11, u"aline11", Menu::Sagtus, u"-"},
    {Komut::TasimaModuAc, u"TasimaModuAc", Menu::Sagtus, u"Taşıma Modunu Aç", &T::TasimaModuAc_Click},
    {Komut::aline12, u"aline12", Menu::Sagtus, u"-"},
    {Komut::iptals, u"iptals", Menu::Sagtus, u"Kayıt İptali", &T::iptals_Click},
}};

constexpr bool SirasiDogru() {
    for (std::size_t i = 0; i < kKomutSayisi; ++i)
        if (kKomutlar[i].komut != static_cast<Komut>(i))
            return false;
    return true;
}
static_assert(SirasiDogru());

} // namespace

std::span<const KomutTanimi, kKomutSayisi> Komutlar() {
    return kKomutlar;
}

void FormTablo::KapalilariGizle() {
    const Oturum& oturum = program_.oturum;
    for (const KomutTanimi& komut : kKomutlar)
        if (oturum.kapaliGirdiler.contains(Metin(komut.ad)))
            Girdi(komut.komut).gorunur = false;
    for (const int yer : oturum.kapaliAraclar)
        Toolbar1[yer].gorunur = false;
}

void FormTablo::AracaTikla(MetinBakis dugme) {
    CetvelSil();
    for (const KomutTanimi& komut : kKomutlar)
        if (komut.arac.yer > 0 && komut.arac.baslik == dugme)
            return (this->*komut.isle)();
}

void FormTablo::Cikissssss_Click() {
    // Every save has gone to the disk already: Enter may leave.
    if (Sor(program_, u"Programdan çıkmak istediğinizden emin misiniz?"))
        program_.ortam.olaylar.bitir();
}

void FormTablo::Sozduzenss_Click() {
    // Shown over the others its window would wait for its own handler, and that one for the window.
    if (program_.FormSozlesme.Yuklu() && program_.FormSozlesme->baskida)
        return;
    program_.FormSozlesme.GosterModal([this] {
        TazeSozlesme(program_);
        return true;
    });
}

void FormTablo::Yardimssa_Click() {
    const Metin sayfa = AdresleriOku(program_).yardim;
    if (!sayfa.empty() && program_.ortam.kabuk.adresAc(sayfa))
        return;
    const Metin kilavuz = program_.agac.KokYolu(kKilavuzDosyasi);
    const auto yol = program_.dosyalar.SistemYolu(kilavuz);
    if (yol && program_.dosyalar.VarMi(kilavuz) && program_.ortam.kabuk.dosyaAc(*yol))
        return;
    Soyle(program_, u"Yardım sayfası açılamadı.\nProgramın klasöründeki Kilavuz.html dosyasına bakınız.");
}

} // namespace velora
