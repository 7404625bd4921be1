#include "dayanim/Senaryolar.h"

#include <vector>

#include "access/FormKullaniciEkle.h"
#include "access/FormKullanicilar.h"
#include "accounts/FormGiderler.h"
#include "accounts/FormKasa.h"
#include "accounts/FormKasaEkle.h"
#include "destek/Eylemler.h"
#include "documents/FormSozlesme.h"
#include "maintenance/FormResmiTatil.h"
#include "maintenance/FormResmiTatilEkle.h"
#include "online/FormFirma.h"
#include "online/FormSunucu.h"
#include "reservation/FormKayit.h"
#include "reservation/FormOdemeAl.h"
#include "setup/FormAyarlar.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormMenuEkle.h"
#include "setup/FormSalonTanim.h"
#include "setup/FormSalonTanimAd.h"

namespace velora::dayanim {
namespace {

using test::AlanaYaz;
using test::ListedenSec;
using test::SatiraTikla;
using test::SatirlaraYapistir;
using test::SatirlaraYaz;
using test::TabloGozu;
using test::Tikla;

constexpr auto kGunduz = velora::GunduzGece::Gunduz;
constexpr auto kGece = velora::GunduzGece::Gece;
constexpr TabloGozu kBosGun{18, 9, kGece};
constexpr TabloGozu kIkiOdemeli{20, 6, kGunduz};
constexpr TabloGozu kTekOdemeli{21, 6, kGece};
constexpr TabloGozu kOnKayit{22, 6, kGece};
constexpr TabloGozu kUzunKayit{23, 6, kGunduz};
constexpr TabloGozu kGecmis{10, 6, kGece};

/// So many letters in words; none of the ends of pages of memory looks like another.
Metin UzunMetin(std::size_t boy, MetinBakis soz) {
    Metin metin;
    for (int i = 1; metin.size() < boy; ++i)
        metin += Metin(soz) + SayiMetni(i) + u' ';
    metin.resize(boy - 1);
    return metin + u'.';
}

FormKayit& Kayit(Masa& m) {
    return *m.Prog().FormKayit.Tut();
}

void Gir(Masa& m, int no, const Metin& metin) {
    AlanaYaz(Kayit(m).Kay[no], metin);
    if (no == AnaNo::ToplamUcret)
        Kayit(m).Kay8_LostFocus();
    if (no == AnaNo::BaslamaSaati)
        Kayit(m).Kay12_LostFocus();
}

void Doldur(Masa& m) {
    Gir(m, AnaNo::AdiSoyadi, u"hale ok");
    Gir(m, AnaNo::Niteligi, u"Kokteyl");
    Gir(m, AnaNo::ToplamUcret, u"8800");
    Gir(m, AnaNo::BitisSaati, u"17:30");
    ListedenSec(Kayit(m).Combo1, u"Altın");
}

void OdemeAl(Masa& m, const Metin& tutar) {
    m.EkranBekle(EkranAdi::FormOdemeAl, [&m, tutar] {
        const auto odeme = m.Prog().FormOdemeAl.Tut();
        AlanaYaz(odeme->Text1, tutar, {.degisti = [&] { odeme->Text1_Change(); }});
        VELORA_BAS(m.Prog().FormOdemeAl, Command1);
    });
    VELORA_BAS(m.Prog().FormKayit, Command8);
}

/// A free day gets a reservation by its menu, and it is saved.
void YeniKayit(Masa& m, const std::function<void()>& is) {
    m.EkranBekle(EkranAdi::FormKayit, [&m, is] {
        Doldur(m);
        is();
        VELORA_BAS(m.Prog().FormKayit, Command1);
    });
    if (m.kullanici.SagTikla(kBosGun))
        m.kullanici.KomutSec(Komut::newkay);
}

/// A reservation is opened by a double click, and saved.
void KayitDuzenle(Masa& m, const TabloGozu& goz, const std::function<void()>& is) {
    m.EkranBekle(EkranAdi::FormKayit, [&m, is] {
        is();
        VELORA_BAS(m.Prog().FormKayit, Command1);
    });
    m.kullanici.CiftTikla(goz);
}

void UzunYaz(Masa& m, MetinBakis soz, int odeme) {
    SatirlaraYapistir(Kayit(m).Aciklamalar, UzunMetin(5000, soz));
    SatirlaraYapistir(Kayit(m).Kay[AnaNo::OnAciklama], UzunMetin(4700, Metin(soz) + u"not"));
    for (int i = 1; i <= odeme; ++i)
        Kayit(m).Liste.satirlar.push_back({{u"12.06.2012", SayiMetni(10 + i), u"58 - Hale Ok"}, {}, 0});
    Kayit(m).Command12();
}

void OdemeSil(Masa& m, int sira) {
    SatiraTikla(Kayit(m).Liste, sira, [&] { Kayit(m).Liste_ItemClick(); });
    m.Soru(u"Ödeme kaydını silmek istediğinizden emin misiniz?");
    VELORA_BAS(m.Prog().FormKayit, Command7);
}

void Tasi(Masa& m, const TabloGozu& kaynak, const TabloGozu& hedef) {
    m.Soru(u"Seçili rezervasyonu taşımak istediğinizden emin misiniz?");
    m.kullanici.Surukle(kaynak, hedef);
}

void TasimaAc(Masa& m) {
    m.kullanici.KomutSec(Komut::TasimaModuAc);
}

void Iptal(Masa& m, const TabloGozu& goz) {
    m.Soru(u"Seçili kaydı silmek istediğinizden emin misiniz?");
    m.kullanici.ortam.Bekle(test::BeklenenGirdi{u"İptal Sebebi", u"İptal sebebini yazınız!", u"taşındılar"});
    if (m.kullanici.SagTikla(goz))
        m.kullanici.KomutSec(Komut::iptals);
}

void Ayarlar(Masa& m) {
    m.EkranBekle(EkranAdi::FormAyarlar, [&m] {
        const auto ayarlar = m.Prog().FormAyarlar.Tut();
        AlanaYaz(ayarlar->UyariGun, u"3");
        Tikla(ayarlar->Check3);
        Tikla(ayarlar->Aylar[7]);
        VELORA_BAS(m.Prog().FormAyarlar, Command1);
    });
    m.kullanici.KomutSec(Komut::Progrset);
}

void Salonlarda(Masa& m, int sira, const std::function<void()>& is) {
    m.EkranBekle(EkranAdi::FormSalonTanim, [&m, sira, is] {
        const auto tanim = m.Prog().FormSalonTanim.Tut();
        SatiraTikla(tanim->List1, sira, [&] { tanim->List1_Click(); });
        is();
        VELORA_BAS(m.Prog().FormSalonTanim, Command3);
    });
    m.kullanici.KomutSec(Komut::Salontanimss);
}

void SalonEkle(Masa& m) {
    Salonlarda(m, 0, [&m] {
        m.kullanici.ortam.Bekle(
            test::BeklenenGirdi{u"Salon Tanımları", u"Lütfen salon adını giriniz!", u"kır evi"});
        VELORA_BAS(m.Prog().FormSalonTanim, Command1);
    });
}

void SalonSil(Masa& m) {
    Salonlarda(m, 1, [&m] {
        m.Soru(u"Seçili salonu silerseniz bu salona ait rezervasyonları göremezsiniz!\nSeçili "
               u"salonu silmek istediğinize emin misiniz?");
        VELORA_BAS(m.Prog().FormSalonTanim, Command2);
    });
}

void SalonAdi(Masa& m) {
    Salonlarda(m, 1, [&m] {
        m.EkranBekle(EkranAdi::FormSalonTanimAd, [&m] {
            AlanaYaz(m.Prog().FormSalonTanimAd->Text1, u"kır bahçesi");
            VELORA_BAS(m.Prog().FormSalonTanimAd, Command1);
        });
        VELORA_BAS(m.Prog().FormSalonTanim, Command4);
    });
}

void Menulerde(Masa& m, const std::function<void()>& is) {
    m.EkranBekle(EkranAdi::FormMenuAyar, [&m, is] {
        const auto menuler = m.Prog().FormMenuAyar.Tut();
        SatiraTikla(menuler->Liste, 0, [&] { menuler->Liste_Click(); });
        is();
        VELORA_BAS(m.Prog().FormMenuAyar, Command3);
    });
    m.kullanici.KomutSec(Komut::MenuAyars);
}

void MenuYaz(Masa& m, const Metin& ad, const Metin& icerik, bool yeni) {
    Menulerde(m, [&m, ad, icerik, yeni] {
        m.EkranBekle(EkranAdi::FormMenuEkle, [&m, ad, icerik] {
            const auto ekle = m.Prog().FormMenuEkle.Tut();
            AlanaYaz(ekle->Text1, ad, {.degisti = [&] { ekle->Text1_Change(); }});
            SatirlaraYapistir(ekle->Text2, icerik);
            VELORA_BAS(m.Prog().FormMenuEkle, Command4);
        });
        if (yeni)
            VELORA_BAS(m.Prog().FormMenuAyar, Command1);
        else
            VELORA_BAS(m.Prog().FormMenuAyar, Command4);
    });
}

void MenuSil(Masa& m) {
    Menulerde(m, [&m] {
        m.Soru(u"Seçili menüyü silmek istediğinizden emin misiniz?");
        VELORA_BAS(m.Prog().FormMenuAyar, Command2);
    });
}

void GiderEkle(Masa& m) {
    m.EkranBekle(EkranAdi::FormKasaEkle, [&m] {
        const auto ekle = m.Prog().FormKasaEkle.Tut();
        AlanaYaz(ekle->Tutar, u"640", {.degisti = [&] { ekle->Tutar_Change(); }});
        AlanaYaz(ekle->Aciklama, u"Su Faturası");
        VELORA_BAS(m.Prog().FormKasaEkle, Command1);
    });
    VELORA_BAS(m.Prog().FormKasa, Command6);
}

void GiderSil(Masa& m) {
    m.EkranBekle(EkranAdi::FormGiderler, [&m] {
        const auto giderler = m.Prog().FormGiderler.Tut();
        SatiraTikla(giderler->Liste, 0, [&] { giderler->Liste_Click(); });
        m.Soru(u"Gider kaydını silmek istediğinizden emin misiniz?");
        VELORA_BAS(m.Prog().FormGiderler, Command4);
        VELORA_BAS(m.Prog().FormGiderler, Command1);
    });
    VELORA_BAS(m.Prog().FormKasa, Command3);
}

void Kasada(Masa& m, const Metin& salon, const std::function<void()>& is) {
    m.EkranBekle(EkranAdi::FormKasa, [&m, salon, is] {
        ListedenSec(m.Prog().FormKasa->Combo2, salon);
        is();
        m.Prog().FormKasa.Bosalt();
    });
    m.kullanici.KomutSec(Komut::kasarapors);
}

void Kullanicilarda(Masa& m, int sira, const std::function<void()>& is) {
    m.EkranBekle(EkranAdi::FormKullanicilar, [&m, sira, is] {
        const auto liste = m.Prog().FormKullanicilar.Tut();
        SatiraTikla(liste->Liste, sira, [&] { liste->Liste_Click(); });
        is();
        VELORA_BAS(m.Prog().FormKullanicilar, Command4);
    });
    m.kullanici.KomutSec(Komut::KulTanimssss);
}

void KullaniciEkle(Masa& m) {
    Kullanicilarda(m, 0, [&m] {
        m.EkranBekle(EkranAdi::FormKullaniciEkle, [&m] {
            const auto ekle = m.Prog().FormKullaniciEkle.Tut();
            AlanaYaz(ekle->Text1, u"ayşe");
            AlanaYaz(ekle->Text2, u"çay7");
            AlanaYaz(ekle->Text3, u"çay7");
            Tikla(ekle->Check[5]);
            VELORA_BAS(m.Prog().FormKullaniciEkle, Command1);
        });
        VELORA_BAS(m.Prog().FormKullanicilar, Command1);
    });
}

void KullaniciSil(Masa& m) {
    Kullanicilarda(m, 1, [&m] {
        m.Soru(u"Seçili kullanıcıyı silmek istediğinizden emin misiniz?");
        VELORA_BAS(m.Prog().FormKullanicilar, Command2);
    });
}

void TatilKaydet(Masa& m) {
    m.EkranBekle(EkranAdi::FormResmiTatil, [&m] {
        m.EkranBekle(EkranAdi::FormResmiTatilEkle, [&m] {
            AlanaYaz(m.Prog().FormResmiTatilEkle->Text2, u"Bahar Şenliği");
            VELORA_BAS(m.Prog().FormResmiTatilEkle, Command1);
        });
        VELORA_BAS(m.Prog().FormResmiTatil, Command4);
        VELORA_BAS(m.Prog().FormResmiTatil, Command1);
    });
    m.kullanici.KomutSec(Komut::ResTatilss);
}

void SozlesmeKaydet(Masa& m) {
    m.EkranBekle(EkranAdi::FormSozlesme, [&m] {
        const auto sozlesme = m.Prog().FormSozlesme.Tut();
        AlanaYaz(sozlesme->Baslik, u"Kurallar");
        SatirlaraYapistir(sozlesme->Sozlesme, UzunMetin(9100, u"madde"));
        VELORA_BAS(m.Prog().FormSozlesme, Command2);
    });
    m.kullanici.KomutSec(Komut::Sozduzenss);
}

void FirmaKaydet(Masa& m) {
    m.EkranBekle(EkranAdi::FormFirma, [&m] {
        AlanaYaz(m.Prog().FormFirma->t7, u"gül sokak no:7");
        VELORA_BAS(m.Prog().FormFirma, Command1);
    });
    m.kullanici.KomutSec(Komut::FirmaBilgiss);
}

void SunucuKaydet(Masa& m) {
    m.EkranBekle(EkranAdi::FormSunucu, [&m] {
        Tikla(m.Prog().FormSunucu->Check1);
        VELORA_BAS(m.Prog().FormSunucu, Command1);
    });
    m.kullanici.KomutSec(Komut::Websssunucus);
}

const std::vector<Senaryo>& Tablo() {
    static const std::vector<Senaryo> senaryolar{
        {.ad = "yeni-kayit", .yap = [](Masa& m) { YeniKayit(m, [] {}); }},
        {.ad = "yeni-odemeli",
         .yap =
             [](Masa& m) {
                 YeniKayit(m, [&m] {
                     OdemeAl(m, u"1200");
                     OdemeAl(m, u"650");
                 });
             }},
        {.ad = "yeni-uzun",
         .yap = [](Masa& m) { YeniKayit(m, [&m] { UzunYaz(m, u"haber", 200); }); },
         .uzun = true},
        {.ad = "ilk-sayac", .yap = [](Masa& m) { YeniKayit(m, [] {}); }, .degisik = {{"Count.dat", ""}}},
        {.ad = "kayit-duzenle",
         .yap =
             [](Masa& m) {
                 KayitDuzenle(m, kIkiOdemeli, [&m] {
                     Gir(m, AnaNo::AdiSoyadi, u"ali osman ustaoğlu");
                     Gir(m, AnaNo::Yoresi, u"of");
                     Tikla(Kayit(m).Check[3]);
                 });
             }},
        {.ad = "uzun-duzenle",
         .yap = [](Masa& m) { KayitDuzenle(m, kUzunKayit, [&m] { UzunYaz(m, u"yeni", 30); }); },
         .uzun = true},
        {.ad = "odeme-ekle",
         .yap = [](Masa& m) { KayitDuzenle(m, kIkiOdemeli, [&m] { OdemeAl(m, u"775"); }); }},
        {.ad = "son-odeme-sil",
         .yap = [](Masa& m) { KayitDuzenle(m, kTekOdemeli, [&m] { OdemeSil(m, 0); }); }},
        {.ad = "kesinlestir",
         .yap = [](Masa& m) { KayitDuzenle(m, kOnKayit, [&m] { Kayit(m).Option1.Ata(1); }); }},
        {.ad = "bosa-tasi", .yap = [](Masa& m) { Tasi(m, kIkiOdemeli, kBosGun); }, .hazirla = TasimaAc},
        {.ad = "uzunu-tasi",
         .yap = [](Masa& m) { Tasi(m, kUzunKayit, kBosGun); },
         .hazirla = TasimaAc,
         .uzun = true},
        {.ad = "gecmise-tasi", .yap = [](Masa& m) { Tasi(m, kIkiOdemeli, kGecmis); }, .hazirla = TasimaAc},
        {.ad = "iptal", .yap = [](Masa& m) { Iptal(m, kIkiOdemeli); }},
        {.ad = "ilk-iptal",
         .yap = [](Masa& m) { Iptal(m, kTekOdemeli); },
         .degisik = {{"IptalSebep.txt", ""}}},
        {.ad = "ayarlar", .yap = Ayarlar},
        {.ad = "ilk-ayarlar", .yap = Ayarlar, .degisik = {{"Settings.dll", ""}, {"Visible.dll", ""}}},
        {.ad = "salon-ekle", .yap = SalonEkle},
        {.ad = "salon-sil", .yap = SalonSil},
        {.ad = "salon-adi", .yap = SalonAdi},
        {.ad = "menu-ekle", .yap = [](Masa& m) { MenuYaz(m, u"gümüş", u"pilav, ayran", true); }},
        {.ad = "menu-uzun",
         .yap = [](Masa& m) { MenuYaz(m, u"saray", UzunMetin(6400, u"tabak"), true); },
         .uzun = true},
        {.ad = "menu-duzenle", .yap = [](Masa& m) { MenuYaz(m, u"klasik iki", u"çorba", false); }},
        {.ad = "menu-sil", .yap = MenuSil},
        {.ad = "gider-ekle", .yap = [](Masa& m) { Kasada(m, u"Salon A", [&m] { GiderEkle(m); }); }},
        {.ad = "ilk-gider",
         .yap = [](Masa& m) { Kasada(m, u"Bahçe", [&m] { GiderEkle(m); }); },
         .degisik = {{"Bahçe/2012/Gider.dat", ""}}},
        {.ad = "gider-sil", .yap = [](Masa& m) { Kasada(m, u"Salon A", [&m] { GiderSil(m); }); }},
        {.ad = "son-gider-sil", .yap = [](Masa& m) { Kasada(m, u"Bahçe", [&m] { GiderSil(m); }); }},
        {.ad = "kullanici-ekle", .yap = KullaniciEkle},
        {.ad = "kullanici-sil", .yap = KullaniciSil},
        {.ad = "tatil", .yap = TatilKaydet},
        {.ad = "sozlesme", .yap = SozlesmeKaydet, .uzun = true},
        {.ad = "firma", .yap = FirmaKaydet, .degisik = {{"Sunucu.dat", "\"AA-BB-CC-DD-EE-FF\",0\r\n"}}},
        {.ad = "sunucu", .yap = SunucuKaydet},
    };
    return senaryolar;
}

} // namespace

namespace {

template <class P>
void Ac(P& program, const std::filesystem::path& durum) {
    if constexpr (requires { program.GunluguAc(); }) {
        program.ortam.klasorler.durum = [durum] { return durum; };
        program.GunluguAc();
    }
}

} // namespace

void GunlukAc(Program& program, const std::filesystem::path& durum) {
    if (!durum.empty())
        Ac(program, durum);
}

Masa::Masa(const std::filesystem::path& kok, const std::filesystem::path& durum)
    : kullanici(kok, Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}) {
    kullanici.once = [durum](Program& program) { GunlukAc(program, durum); };
    kullanici.ortam.baglanti = false;
    kullanici.ProgramiAc();
}

void Masa::EkranBekle(EkranAdi ad, std::function<void()> is) {
    kullanici.ortam.Bekle(test::BeklenenEkran{ad, std::move(is)});
}

void Masa::Soru(const Metin& metin) {
    kullanici.ortam.Bekle(
        test::BeklenenKutu{.baslik = u"Velora", .metin = metin, .simge = Simge::Soru, .cevap = Cevap::Evet});
}

std::span<const Senaryo> Senaryolar() {
    return Tablo();
}

const Senaryo* SenaryoBul(std::string_view ad) {
    for (const Senaryo& senaryo : Tablo())
        if (senaryo.ad == ad)
            return &senaryo;
    return nullptr;
}

} // namespace velora::dayanim
