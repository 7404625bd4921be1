#include "dayanim/Isler.h"

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
#include "reservation/FormOdemeAl.h"
#include "setup/FormAyarlar.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormMenuEkle.h"
#include "setup/FormSalonTanim.h"
#include "setup/FormSalonTanimAd.h"

namespace velora::dayanim {

using test::AlanaYaz;
using test::ListedenSec;
using test::SatiraTikla;
using test::SatirlaraYapistir;
using test::Tikla;

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

static void Doldur(Masa& m) {
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

void YeniKayit(Masa& m, const std::function<void()>& is) {
    m.EkranBekle(EkranAdi::FormKayit, [&m, is] {
        Doldur(m);
        is();
        VELORA_BAS(m.Prog().FormKayit, Command1);
    });
    if (m.kullanici.SagTikla(kBosGun))
        m.kullanici.KomutSec(Komut::newkay);
}

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

static void Salonlarda(Masa& m, int sira, const std::function<void()>& is) {
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

static void Menulerde(Masa& m, int sira, const std::function<void()>& is) {
    m.EkranBekle(EkranAdi::FormMenuAyar, [&m, sira, is] {
        const auto menuler = m.Prog().FormMenuAyar.Tut();
        SatiraTikla(menuler->Liste, sira, [&] { menuler->Liste_Click(); });
        is();
        VELORA_BAS(m.Prog().FormMenuAyar, Command3);
    });
    m.kullanici.KomutSec(Komut::MenuAyars);
}

void MenuYaz(Masa& m, const Metin& ad, const Metin& icerik, bool yeni) {
    Menulerde(m, 0, [&m, ad, icerik, yeni] {
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

void MenuSil(Masa& m, int sira) {
    Menulerde(m, sira, [&m] {
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

static void Kullanicilarda(Masa& m, int sira, const std::function<void()>& is) {
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

} // namespace velora::dayanim
