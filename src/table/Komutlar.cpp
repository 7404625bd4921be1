// The table of the commands.
#include "table/Komutlar.h"

#include "access/FormKullanicilar.h"
#include "access/FormSifreDegistir.h"
#include "accounts/FormBakiye.h"
#include "online/FormFirma.h"
#include "online/FormSunucu.h"
#include "reservation/FormArama.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormSalonTanim.h"
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
    {Komut::Arasss, u"Arasss", Menu::Kayitss, u"Kayıt Ara", &T::EkranAc<&P::FormArama>, u"F2"},
    {Komut::BakiyeRaporss, u"BakiyeRaporss", Menu::Raporsss, u"Rezervasyon Raporu",
     &T::EkranAc<&P::FormBakiye>, u"F3"},
    {Komut::aline1, u"aline1", Menu::Raporsss, u"-"},
    {Komut::iptalsebepss, u"iptalsebepss", Menu::Raporsss, u"İptal Sebepleri", &T::iptalsebepss_Click},
    {Komut::FirmaBilgiss, u"FirmaBilgiss", Menu::ayarsd, u"Firma Bilgileri", &T::EkranAc<&P::FormFirma>},
    {Komut::firmcizgi, u"firmcizgi", Menu::ayarsd, u"-"},
    {Komut::Salontanimss, u"Salontanimss", Menu::ayarsd, u"Salon Tanımları", &T::EkranAc<&P::FormSalonTanim>},
    {Komut::aline4, u"aline4", Menu::ayarsd, u"-"},
    {Komut::MenuAyars, u"MenuAyars", Menu::ayarsd, u"Menü Tanımları", &T::EkranAc<&P::FormMenuAyar>},
    {Komut::aline8, u"aline8", Menu::ayarsd, u"-"},
    {Komut::KulTanimssss, u"KulTanimssss", Menu::ayarsd, u"Kullanıcı ve Yetki Tanımları",
     &T::EkranAc<&P::FormKullanicilar>},
    {Komut::Guvenliksss, u"Guvenliksss", Menu::ayarsd, u"Güvenlik Ayarları",
     &T::EkranAc<&P::FormSifreDegistir>},
    {Komut::Websssunucus, u"Websssunucus", Menu::ayarsd, u"Web Sunucu Ayarları", &T::EkranAc<&P::FormSunucu>},
    {Komut::aline9, u"aline9", Menu::ayarsd, u"-"},
    {Komut::Progrset, u"Progrset", Menu::ayarsd, u"Genel Program Ayarları", &T::EkranAc<&P::FormAyarlar>,
     u"F7"},
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

void FormTablo::AracaTikla(const KomutTanimi& komut) {
    CetvelSil();
    (this->*komut.isle)();
}

} // namespace velora
