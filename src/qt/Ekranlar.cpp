#include "qt/Ekranlar.h"

#include "qt/QtOrtam.h"
#include "qt/access/GirisPencereleri.h"
#include "qt/access/KullaniciPencereleri.h"
#include "qt/access/SplashPenceresi.h"
#include "qt/accounts/BakiyePenceresi.h"
#include "qt/accounts/KasaPencereleri.h"
#include "qt/documents/BaskiPencereleri.h"
#include "qt/documents/SozlesmePenceresi.h"
#include "qt/maintenance/IndirmePencereleri.h"
#include "qt/maintenance/TatilPencereleri.h"
#include "qt/maintenance/YedekAlPenceresi.h"
#include "qt/online/DuyuruPencereleri.h"
#include "qt/online/FirmaPenceresi.h"
#include "qt/online/RezervasyonlarPenceresi.h"
#include "qt/online/SunucuPenceresi.h"
#include "qt/online/YayinPenceresi.h"
#include "qt/reservation/AramaPenceresi.h"
#include "qt/reservation/HatirlatmaPenceresi.h"
#include "qt/reservation/KayitPenceresi.h"
#include "qt/reservation/OdemeAlPenceresi.h"
#include "qt/setup/AyarlarPenceresi.h"
#include "qt/setup/MenuPencereleri.h"
#include "qt/setup/RenkPenceresi.h"
#include "qt/setup/SalonPencereleri.h"
#include "qt/table/HakkindaPenceresi.h"
#include "qt/table/TabloPenceresi.h"

namespace velora {

namespace {

template <class Pencere>
void Tanit(QtOrtam& ortam, Program& program, EkranAdi ekran) {
    ortam.Tanit(ekran,
                [&program]() -> std::unique_ptr<QWidget> { return std::make_unique<Pencere>(program); });
}

} // namespace

void EkranlariTanit(QtOrtam& ortam, Program& program) {
    Tanit<SplashPenceresi>(ortam, program, EkranAdi::Splash);
    Tanit<SifrePenceresi>(ortam, program, EkranAdi::FormSifre);
    Tanit<SifreDegistirPenceresi>(ortam, program, EkranAdi::FormSifreDegistir);
    Tanit<KullanicilarPenceresi>(ortam, program, EkranAdi::FormKullanicilar);
    Tanit<KullaniciEklePenceresi>(ortam, program, EkranAdi::FormKullaniciEkle);
    Tanit<TabloPenceresi>(ortam, program, EkranAdi::FormTablo);
    Tanit<HakkindaPenceresi>(ortam, program, EkranAdi::FormHakkinda);
    Tanit<AyarlarPenceresi>(ortam, program, EkranAdi::FormAyarlar);
    Tanit<ResmiTatilPenceresi>(ortam, program, EkranAdi::FormResmiTatil);
    Tanit<ResmiTatilEklePenceresi>(ortam, program, EkranAdi::FormResmiTatilEkle);
    Tanit<TatilYuklePenceresi>(ortam, program, EkranAdi::FormResmiTatilYukle);
    Tanit<RenkPenceresi>(ortam, program, EkranAdi::FormRenk);
    Tanit<SalonTanimPenceresi>(ortam, program, EkranAdi::FormSalonTanim);
    Tanit<SalonAdPenceresi>(ortam, program, EkranAdi::FormSalonTanimAd);
    Tanit<MenuAyarPenceresi>(ortam, program, EkranAdi::FormMenuAyar);
    Tanit<MenuEklePenceresi>(ortam, program, EkranAdi::FormMenuEkle);
    Tanit<KayitPenceresi>(ortam, program, EkranAdi::FormKayit);
    Tanit<OdemeAlPenceresi>(ortam, program, EkranAdi::FormOdemeAl);
    Tanit<AramaPenceresi>(ortam, program, EkranAdi::FormArama);
    Tanit<HatirlatmaPenceresi>(ortam, program, EkranAdi::FormOzelHatirlatma);
    Tanit<BakiyePenceresi>(ortam, program, EkranAdi::FormBakiye);
    Tanit<KasaPenceresi>(ortam, program, EkranAdi::FormKasa);
    Tanit<KasaEklePenceresi>(ortam, program, EkranAdi::FormKasaEkle);
    Tanit<GiderlerPenceresi>(ortam, program, EkranAdi::FormGiderler);
    Tanit<SozlesmePenceresi>(ortam, program, EkranAdi::FormSozlesme);
    Tanit<MakbuzPenceresi>(ortam, program, EkranAdi::FormMakbuzPrint);
    Tanit<TabloPrintPenceresi>(ortam, program, EkranAdi::FormTabloPrint);
    Tanit<YeniSurumPenceresi>(ortam, program, EkranAdi::FormDownloadManager);
    Tanit<YayinPenceresi>(ortam, program, EkranAdi::FormWebteYayinla);
    Tanit<RezervasyonlarPenceresi>(ortam, program, EkranAdi::FormRezervasyonlar);
    Tanit<DuyurularPenceresi>(ortam, program, EkranAdi::FormDuyurular);
    Tanit<OneriPenceresi>(ortam, program, EkranAdi::FormOneri);
    Tanit<YedekAlPenceresi>(ortam, program, EkranAdi::FormYedekAl);
    Tanit<SunucuPenceresi>(ortam, program, EkranAdi::FormSunucu);
    Tanit<FirmaPenceresi>(ortam, program, EkranAdi::FormFirma);
}

} // namespace velora
