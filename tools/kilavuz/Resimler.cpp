#include "tools/kilavuz/Resimler.h"

#include <algorithm>

#include <QTabWidget>

#include "access/FormKullaniciEkle.h"
#include "access/FormKullanicilar.h"
#include "access/FormSifre.h"
#include "access/FormSifreDegistir.h"
#include "access/Splash.h"
#include "accounts/FormBakiye.h"
#include "accounts/FormGiderler.h"
#include "accounts/FormKasa.h"
#include "accounts/FormKasaEkle.h"
#include "documents/FormSozlesme.h"
#include "maintenance/FormDownloadManager.h"
#include "maintenance/FormResmiTatil.h"
#include "maintenance/FormResmiTatilEkle.h"
#include "maintenance/FormResmiTatilYukle.h"
#include "maintenance/FormYedekAl.h"
#include "online/FormDuyurular.h"
#include "online/FormFirma.h"
#include "online/FormOneri.h"
#include "online/FormRezervasyonlar.h"
#include "online/FormSunucu.h"
#include "online/FormWebteYayinla.h"
#include "reservation/FormArama.h"
#include "reservation/FormKayit.h"
#include "reservation/FormOzelHatirlatma.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormMenuEkle.h"
#include "setup/FormRenk.h"
#include "setup/FormSalonTanim.h"
#include "setup/FormSalonTanimAd.h"
#include "storage/ListeDosyasi.h"
#include "table/FormHakkinda.h"
#include "tools/kilavuz/Sahneler.h"

namespace velora::kilavuz {

namespace {

/// By itself, as a command of the main screen shows it.
template <auto Ekran>
void Modal(Program& program) {
    (program.*Ekran).GosterModal();
}

/// With a row of its list marked.
template <auto Ekran, int Satir>
void SatirSec(Program& program, QWidget& /*pencere*/) {
    const auto ekran = (program.*Ekran).Tut();
    ekran->Liste.secili = Satir;
    if constexpr (requires { ekran->Liste_Click(); })
        ekran->Liste_Click();
    else
        ekran->Liste_ItemClick();
}

void OdemelerSayfasi(Program& program, QWidget& /*pencere*/) {
    program.FormKayit->SSTab1 = kOdemelerSayfasi;
}

void AcilisAc(Program& program) {
    program.Splash->Baslat();
}

/// To the middle of the ladder, by its own ticks.
void AcilisIlerle(Program& program, QWidget& /*pencere*/) {
    const auto acilis = program.Splash.Tut();
    acilis->Timer1.aralik = 0;
    for (int tik = 0; tik < 32; ++tik)
        acilis->Timer1_Tick();
}

void IlkFirmaAc(Program& program) {
    program.FormFirma->Tag = u"1";
    program.FormFirma.Goster();
}

void ParolaYaz(Program& program, QWidget& /*pencere*/) {
    program.FormSifreDegistir->Text1.metin = program.FormSifreDegistir->Text2.metin = u"nergis";
}

void GirisYaz(Program& program, QWidget& /*pencere*/) {
    program.FormSifre->Text1.metin = u"Ayşe";
    program.FormSifre->Text2.metin = u"gül5";
}

void KullaniciDoldur(Program& program, QWidget& /*pencere*/) {
    const auto kullanici = program.FormKullaniciEkle.Tut();
    kullanici->Text1.metin = u"Zeynep";
    kullanici->Text2.metin = kullanici->Text3.metin = u"nergis";
    for (const int no : {4, 5, 6, 9})
        kullanici->Check[no].Ata(0);
}

/// The folder in which the pictures are made is nobody's.
void KlasorYaz(Program& program, QWidget& /*pencere*/) {
    program.FormHakkinda->Klasor.metin = u"C:\\Velora";
}

void YedekYerleriYaz(Program& program, QWidget& /*pencere*/) {
    program.FormYedekAl->txtSource.metin = u"C:\\Velora";
    program.FormYedekAl->txtDestination.metin = u"E:\\VRYedek";
}

void GorunumSayfasi(Program& /*program*/, QWidget& pencere) {
    pencere.findChild<QTabWidget*>()->setCurrentIndex(1);
}

void RenkSec(Program& program, QWidget& /*pencere*/) {
    program.FormRenk->Picture1_MouseDown(0x4FA8E3);
    program.FormRenk->Picture1_MouseUp();
}

void SalonSec(Program& program, QWidget& /*pencere*/) {
    program.FormSalonTanim->List1.secili = 1;
    program.FormSalonTanim->List1_Click();
}

void SalonAdiAc(Program& program) {
    const auto salonlar = program.FormSalonTanim.Tut();
    salonlar->List1.secili = 1;
    salonlar->Command4_Click();
}

void SalonAdiYaz(Program& program, QWidget& /*pencere*/) {
    program.FormSalonTanimAd->Text1.metin = u"Çınaraltı Kır Bahçesi";
}

void MenuYaz(Program& program, QWidget& /*pencere*/) {
    const auto menu = program.FormMenuEkle.Tut();
    menu->Text1.metin = u"Nişan Menüsü";
    menu->Text2.metin =
        u"Peynir tabağı\r\nZeytinyağlı sarma\r\nTavuk şiş, pilav\r\nMevsim salatası\r\nMeşrubat";
    menu->Text1_Change();
}

void TatillerAc(Program& program) {
    const auto tatiller = program.FormResmiTatil.Tut();
    const Metin genel(kGenelTatil);
    tatiller->Liste.Temizle();
    tatiller->Ekle({u"01.01.2026", u"Yılbaşı", u"Evet", genel});
    tatiller->Ekle({u"23.04.2026", u"Ulusal Egemenlik ve Çocuk Bayramı", u"Evet", genel});
    tatiller->Ekle({u"12.06.2026", u"Salonumuzun kuruluş yıldönümü", u"Evet", Metin(kOzelTatil)});
    tatiller->Ekle({u"27.05.2026", u"Kurban Bayramı 1. gün", u"Hayır", genel});
    tatiller->Ekle({u"29.10.2026", u"Cumhuriyet Bayramı", u"Evet", genel});
    program.FormResmiTatil.GosterModal();
}

void TatilYaz(Program& program, QWidget& /*pencere*/) {
    const auto ekle = program.FormResmiTatilEkle.Tut();
    ekle->DTPicker1.deger = std::chrono::year(2026) / 6 / 12;
    ekle->Text2.metin = u"Salonumuzun kuruluş yıldönümü";
    ekle->Check1.deger = 1;
}

/// The fetch that begins by itself ends at once, without a word.
template <auto Ekran>
void IndirmedenAc(Program& program) {
    program.ortam.ag.aktarimAc = [](const AktarimIstegi&) {
        Aktarim aktarim;
        aktarim.basliklar = [] { return Metin(u"HTTP/1.1 200 OK\r\n\r\n"); };
        return aktarim;
    };
    (program.*Ekran).GosterModal();
}

/// In the middle of a fetch.
template <auto Ekran>
void Indiriyor(Program& program, QWidget& /*pencere*/) {
    const auto ekran = (program.*Ekran).Tut();
    ekran->Command.baslik = kDurdur;
    ekran->ProgressBar.deger = 62;
}

void YayinDoldur(Program& program, QWidget& /*pencere*/) {
    const auto yayin = program.FormWebteYayinla.Tut();
    yayin->Label2.baslik = program.FormTablo->Salon.Metni() + u" (" + program.FormTablo->Sene.Metni() +
                           u") kayıtları veri tabanına kaydediliyor.";
    yayin->ProgressBar1.enCok = 186;
    yayin->ProgressBar1.deger = 73;
}

void IsteklerAc(Program& program) {
    const Metin salon = program.FormTablo->Salon.Metni();
    SatirlariYaz(program.dosyalar, program.agac.KokYolu(kIstekDosyasi),
                 {{u"418", u"Elif Kaya", u"0212 555 01 02", u"0532 555 03 04", u"elif@ornek.test", salon,
                   u"19.09.2026", u"19:30", u"Gece", u"Düğün"},
                  {u"421", u"Mert Aydın", u"0216 555 05 06", u"0533 555 07 08", u"mert@ornek.test", salon,
                   u"03.10.2026", u"12:00", u"Gündüz", u"Nişan"}});
    program.FormRezervasyonlar.GosterModal();
}

void DuyuruYaz(Program& program, QWidget& /*pencere*/) {
    program.FormDuyurular->Text1.metin = u"Velora'nın yeni sürümü hazır.\r\n\r\nServis, 12 Temmuz Pazar günü "
                                         u"02:00 ile 04:00 arasında bakımda olacak.";
}

void OneriYaz(Program& program, QWidget& /*pencere*/) {
    const auto oneri = program.FormOneri.Tut();
    oneri->Aciklama.metin = u"Raporda davetli sayısı da görünse iyi olur.";
    oneri->Aciklama_Change();
}

using P = Program;
constexpr QSize kTabloBoyu(1180, 640);
constexpr QRect kUstYarisi(0, 100, 1180, 395); // the heads, and the months to September
constexpr QSize kKayitBoyu(784, 460);
constexpr QSize kAramaBoyu(900, 420);
constexpr QSize kKisaListe(760, 260); // for some rows

constexpr ResimTanimi kResimler[]{
    {EkranAdi::Splash, u"acilis", AcilisAc, AcilisIlerle},
    {EkranAdi::FormSifre, u"giris", Modal<&P::FormSifre>, GirisYaz},
    {EkranAdi::FormSifreDegistir, u"ilk-parola", IlkParolayiSor, ParolaYaz},
    {EkranAdi::FormSifreDegistir, u"admin-parolasi", Modal<&P::FormSifreDegistir>, ParolaYaz},
    {EkranAdi::FormKullanicilar,
     u"kullanicilar",
     Modal<&P::FormKullanicilar>,
     SatirSec<&P::FormKullanicilar, 2>,
     {800, 260}},
    {EkranAdi::FormKullaniciEkle, u"kullanici-ekle", Modal<&P::FormKullaniciEkle>, KullaniciDoldur},
    {EkranAdi::FormTablo, u"tablo", TabloAc, TabloSade, kTabloBoyu},
    {EkranAdi::FormTablo, u"tablo-cetvel", TabloAc, TabloCetvel, kTabloBoyu, kUstYarisi},
    {EkranAdi::FormTablo, u"tablo-sag-tus", TabloAc, TabloSagTus, kTabloBoyu, kUstYarisi},
    {EkranAdi::FormTablo, u"tablo-tasima", TabloAc, TabloTasima, kTabloBoyu, kUstYarisi},
    {EkranAdi::FormTablo, u"uyarilar", TabloAc, UyariSec, kTabloBoyu},
    {EkranAdi::FormHakkinda, u"program-hakkinda", Modal<&P::FormHakkinda>, KlasorYaz, {640, 360}},
    {EkranAdi::FormAyarlar, u"genel-ayarlar", Modal<&P::FormAyarlar>},
    {EkranAdi::FormAyarlar, u"renkler", Modal<&P::FormAyarlar>, GorunumSayfasi},
    {EkranAdi::FormResmiTatil, u"tatiller", TatillerAc, SatirSec<&P::FormResmiTatil, 2>, {720, 300}},
    {EkranAdi::FormResmiTatilEkle, u"tatil-ekle", Modal<&P::FormResmiTatilEkle>, TatilYaz},
    {EkranAdi::FormResmiTatilYukle, u"tatil-yukle", IndirmedenAc<&P::FormResmiTatilYukle>,
     Indiriyor<&P::FormResmiTatilYukle>},
    {EkranAdi::FormDownloadManager, u"yeni-surum", IndirmedenAc<&P::FormDownloadManager>,
     Indiriyor<&P::FormDownloadManager>},
    {EkranAdi::FormRenk, u"renk-sec", Modal<&P::FormRenk>, RenkSec},
    {EkranAdi::FormSalonTanim, u"salonlar", Modal<&P::FormSalonTanim>, SalonSec, {420, 260}},
    {EkranAdi::FormSalonTanimAd, u"salon-adi", SalonAdiAc, SalonAdiYaz},
    {EkranAdi::FormMenuAyar, u"menuler", Modal<&P::FormMenuAyar>, SatirSec<&P::FormMenuAyar, 1>, kKisaListe},
    {EkranAdi::FormMenuEkle, u"menu-ekle", Modal<&P::FormMenuEkle>, MenuYaz},
    {EkranAdi::FormKayit, u"yeni-kayit", YeniKayitAc, YeniKayitDoldur, kKayitBoyu},
    {EkranAdi::FormKayit, u"kayit-duzenle", DoluKayitAc, nullptr, kKayitBoyu},
    {EkranAdi::FormKayit, u"kayit-odemeler", DoluKayitAc, OdemelerSayfasi, kKayitBoyu},
    {EkranAdi::FormKayit, u"kayit-menuler", DoluKayitAc, MenuSayfasi, kKayitBoyu},
    {EkranAdi::FormKayit, u"kayit-hizmetler", YeniKayitAc, HizmetSayfasi, kKayitBoyu},
    {EkranAdi::FormOdemeAl, u"odeme-ekle", OdemeAlAc, OdemeAlDoldur},
    {EkranAdi::FormOzelHatirlatma, u"hatirlatmalar", HatirlatmaAc, SatirSec<&P::FormOzelHatirlatma, 0>,
     kKisaListe},
    {EkranAdi::FormArama, u"kayit-arama", Modal<&P::FormArama>, AramaYap, kAramaBoyu},
    {EkranAdi::FormBakiye, u"rapor", Modal<&P::FormBakiye>, RaporListele},
    {EkranAdi::FormKasa, u"kasa", Modal<&P::FormKasa>, KasaListele, {780, 460}},
    {EkranAdi::FormKasaEkle, u"gider-ekle", Modal<&P::FormKasaEkle>, GiderYaz},
    {EkranAdi::FormGiderler, u"giderler", Modal<&P::FormGiderler>, SatirSec<&P::FormGiderler, 2>, {720, 420}},
    {EkranAdi::FormSozlesme, u"sozlesme", Modal<&P::FormSozlesme>, nullptr, {720, 320}},
    {EkranAdi::FormMakbuzPrint, u"makbuz", MakbuzAc, nullptr, {680, 580}},
    {EkranAdi::FormTabloPrint, u"tablo-baski", TabloBaskisiAc, nullptr, {1000, 690}},
    {EkranAdi::FormWebteYayinla, u"yayinla", Modal<&P::FormWebteYayinla>, YayinDoldur},
    {EkranAdi::FormRezervasyonlar,
     u"online-rezervasyonlar",
     IsteklerAc,
     SatirSec<&P::FormRezervasyonlar, 0>,
     {980, 240}},
    {EkranAdi::FormDuyurular, u"duyurular", Modal<&P::FormDuyurular>, DuyuruYaz, {480, 240}},
    {EkranAdi::FormOneri, u"oneri", Modal<&P::FormOneri>, OneriYaz, {460, 260}},
    {EkranAdi::FormYedekAl, u"yedek-al", Modal<&P::FormYedekAl>, YedekYerleriYaz},
    {EkranAdi::FormSunucu, u"web-sunucu", Modal<&P::FormSunucu>},
    {EkranAdi::FormFirma, u"ilk-firma", IlkFirmaAc},
    {EkranAdi::FormFirma, u"firma-bilgileri", Modal<&P::FormFirma>},
};

} // namespace

std::span<const ResimTanimi> Resimler() {
    return kResimler;
}

std::vector<EkranAdi> ResimsizEkranlar(std::span<const ResimTanimi> resimler) {
    std::vector<EkranAdi> ekranlar;
    for (const EkranKaydi& kayit : kEkranlar)
        if (kayit.tur == EkranTuru::Pencereli &&
            std::ranges::find(resimler, kayit.ekran, &ResimTanimi::ekran) == resimler.end())
            ekranlar.push_back(kayit.ekran);
    return ekranlar;
}

} // namespace velora::kilavuz
