#pragma once

#include <array>

#include "access/FormKullaniciEkle.h"
#include "access/FormKullanicilar.h"
#include "access/FormSifre.h"
#include "access/FormSifreDegistir.h"
#include "accounts/FormBakiye.h"
#include "accounts/FormGiderler.h"
#include "accounts/FormKasa.h"
#include "accounts/FormKasaEkle.h"
#include "documents/FormMakbuzPrint.h"
#include "documents/FormSozlesme.h"
#include "documents/FormTabloPrint.h"
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
#include "reservation/FormOdemeAl.h"
#include "reservation/FormOzelHatirlatma.h"
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "setup/FormMenuAyar.h"
#include "setup/FormMenuEkle.h"
#include "setup/FormRenk.h"
#include "setup/FormSalonTanim.h"
#include "setup/FormSalonTanimAd.h"
#include "storage/RezervasyonDosyalari.h"
#include "storage/Tarih.h"
#include "table/FormHakkinda.h"
#include "table/FormTablo.h"

namespace velora::test {

/// Opens a screen's window as another screen does.
template <auto Ekran>
void EkraniAc(Program& program) {
    (program.*Ekran).GosterModal();
}

/// With a name, which lets its fields be reached.
inline void AdliMenuEkleAc(Program& program) {
    program.FormMenuEkle->Text1.metin = u"a";
    program.FormMenuEkle->Text1_Change();
    program.FormMenuEkle.GosterModal();
}

/// With an amount, which lets its fields be left.
inline void TutarliKasaEkleAc(Program& program) {
    program.FormKasaEkle->Tutar.metin = u"7";
    program.FormKasaEkle->Tutar_Change();
    program.FormKasaEkle.GosterModal();
}

/// With reservations that are to be reminded of today: without one it closes at once.
inline void HatirlatmaAc(Program& program) {
    AnaKayit ana;
    ana.kay[AnaNo::HatirlatmaTarihi - 1] = TarihMetni(program.Bugun());
    ana.check19 = 1;
    const auto tablo = program.FormTablo.Tut();
    for (const MetinBakis gun : {u"01.02.2026 - Gece", u"03.04.2026 - Gündüz"}) {
        const Metin yol = program.agac.GunYolu(tablo->Salon.Metni(), tablo->Sene.Metni(), gun);
        AnaYaz(program.dosyalar, yol, ana);
        DetayYaz(program.dosyalar, yol + Metin(kDetayEki), {});
    }
    program.FormOzelHatirlatma.GosterModal();
}

/// With a site that has nothing to be fetched: the fetch that begins by itself ends at once.
template <auto Ekran>
void BosSitedenAc(Program& program) {
    program.ortam.ag.aktarimAc = [](const AktarimIstegi&) {
        Aktarim aktarim;
        aktarim.basliklar = [] { return Metin(u"HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n"); };
        return aktarim;
    };
    (program.*Ekran).GosterModal();
}

/// Its folders would be others each time; these aren't there, and can't be made.
inline void YedekAlAc(Program& program) {
    program.FormYedekAl->txtSource.metin = u"/dev/null/kaynak";
    program.FormYedekAl->txtDestination.metin = u"/dev/null/hedef";
    program.FormYedekAl.GosterModal();
}

/// With requests that wait.
inline void IsteklerAc(Program& program) {
    program.dosyalar.Yaz(
        program.agac.KokYolu(kIstekDosyasi),
        "\"41\",\"Can\",\"1\",\"2\",\"3\",\"x\",\"23.06.2026\",\"19:30\",\"Gece\",\"Kokteyl\"\r\n"
        "\"42\",\"Ece\",\"4\",\"5\",\"6\",\"y\",\"24.06.2026\",\"20:30\",\"Gece\",\"Kokteyl\"\r\n");
    program.FormRezervasyonlar.GosterModal();
}

/// With a message, which lets it be sent.
inline void DoluOneriAc(Program& program) {
    program.FormOneri->Aciklama.metin = u"a";
    program.FormOneri->Aciklama_Change();
    program.FormOneri.GosterModal();
}

/// Filled from the table.
inline void TabloBaskisiAc(Program& program) {
    program.FormTablo->rezrapor_Click();
}

inline constexpr std::size_t kEnCokSayfa = 4;

/// A window that stands over another, and its keys.
struct Diyalog {
    EkranAdi ekran;
    void (*ac)(Program&);
    const char* dolu;  // the button that Enter presses from a field
    const char* iptal; // the one that cancels; null where only the X and the Esc key close
    // For each of its pages the controls that Tab walks, the one that has the focus at first in front.
    std::array<const char*, kEnCokSayfa> sayfalar;
};

inline constexpr Diyalog kDiyaloglar[]{
    {EkranAdi::FormSifre,
     EkraniAc<&Program::FormSifre>,
     "Command1",
     "Command2",
     {"Text2 Command1 Command2 Text1"}},
    {EkranAdi::FormSifreDegistir,
     EkraniAc<&Program::FormSifreDegistir>,
     "Command1",
     "Command2",
     {"Text1 Text2 Command1 Command2"}},
    {EkranAdi::FormKullanicilar,
     EkraniAc<&Program::FormKullanicilar>,
     "Command1",
     "Command4",
     {"Liste Command1 Command4"}},
    {EkranAdi::FormKullaniciEkle,
     EkraniAc<&Program::FormKullaniciEkle>,
     "Command1",
     "Command2",
     {"Text1 Text2 Text3 Check1 Check2 Check4 Check5 Check6 Check7 Check8 Check9 Check11 Command1 Command2"}},
    {EkranAdi::FormSalonTanim,
     EkraniAc<&Program::FormSalonTanim>,
     "Command1",
     "Command3",
     {"List1 Command1 Command3"}},
    {EkranAdi::FormSalonTanimAd,
     EkraniAc<&Program::FormSalonTanimAd>,
     "Command1",
     "Command2",
     {"Text1 Command1 Command2"}},
    {EkranAdi::FormMenuAyar,
     EkraniAc<&Program::FormMenuAyar>,
     "Command1",
     "Command3",
     {"Liste Command1 Command3"}},
    {EkranAdi::FormMenuEkle, AdliMenuEkleAc, "Command4", "Command3", {"Text1 Text2 Command4 Command3"}},
    {EkranAdi::FormResmiTatil,
     EkraniAc<&Program::FormResmiTatil>,
     "Command1",
     "Command2",
     {"Liste Command4 Command3 Temizle Command1 Command2"}},
    {EkranAdi::FormResmiTatilEkle,
     EkraniAc<&Program::FormResmiTatilEkle>,
     "Command1",
     "Command2",
     {"DTPicker1 Text2 Check1 Command1 Command2"}},
    {EkranAdi::FormResmiTatilYukle,
     BosSitedenAc<&Program::FormResmiTatilYukle>,
     "Command",
     "Command1",
     {"Command Command1"}},
    {EkranAdi::FormRenk,
     EkraniAc<&Program::FormRenk>,
     "Command1",
     "Command2",
     {"txtRed txtGreen txtBlue txtWeb txtHex txtTers Command1 Command2"}},
    {EkranAdi::FormAyarlar,
     EkraniAc<&Program::FormAyarlar>,
     "Command1",
     "Command2",
     {"UyariGun UyariGun2 GunduzGece Check2 Check7 Check6 Check3 Aylar1 Aylar2 Aylar3 Aylar4 Aylar5 Aylar6 "
      "Aylar7 Aylar8 Aylar9 Aylar10 Aylar11 Aylar12 Command3 Command1 Command4 Command2 qt_tabwidget_tabbar",
      "Renk0 Renk1 Renk2 Renk3 Renk4 Renk5 Renk8 Renk9 Renk10 Renk11 Renk6 Renk7 Renk12 Renk13 Renk19 Renk20 "
      "Renk21 Renk22 Check5 Renk23 Renk24 Renk14 Renk15 Check1 Renk17 Renk18 Renk16 Command3 Command1 "
      "Command4 Command2 qt_tabwidget_tabbar"}},
    {EkranAdi::FormKayit,
     EkraniAc<&Program::FormKayit>,
     "Command1",
     "Command2",
     {"Kay1 Kay2 Kay3 Kay4 Kay5 Kay6 Kay7 Kay8 Command4 Kay11 Kay12 Kay15 Kay13 Kay14 Kay16 Kay17 Option1 "
      "Check18 Check19 Command3 Pdf Command1 Command2 qt_tabwidget_tabbar",
      "Liste Command8 Command3 Pdf Command1 Command2 qt_tabwidget_tabbar",
      "Combo1 Label20 Aciklamalar Command3 Pdf Command1 Command2 qt_tabwidget_tabbar",
      "Check1 Check2 Check3 Check4 Check5 Check6 Check7 Check8 Check9 Check10 Check11 Check12 Check13 "
      "Check14 "
      "Check15 Check16 Check17 Command3 Pdf Command1 Command2 qt_tabwidget_tabbar"}},
    {EkranAdi::FormOdemeAl,
     EkraniAc<&Program::FormOdemeAl>,
     "Command1",
     "Command2",
     {"Text1 Aciklama Command2 DTPicker1"}},
    {EkranAdi::FormArama,
     EkraniAc<&Program::FormArama>,
     "Command3",
     "Command2",
     {"Text1 Text2 Text3 Text4 Text5 Command3 Liste Command2"}},
    {EkranAdi::FormOzelHatirlatma, HatirlatmaAc, "Command4", "Command2", {"Liste Command2"}},
    {EkranAdi::FormHakkinda,
     EkraniAc<&Program::FormHakkinda>,
     "Command1",
     "Command1",
     {"Command1 Klasor Liste"}},
    {EkranAdi::FormBakiye,
     EkraniAc<&Program::FormBakiye>,
     "ListeleGun",
     "Command1",
     {"Combo2 DTPicker1 Combo1 DTPicker2 ListeleGun Liste Command2 Command1"}},
    {EkranAdi::FormKasa,
     EkraniAc<&Program::FormKasa>,
     "ListeleGun",
     "Command1",
     {"Combo2 DTPicker1 DTPicker2 ListeleGun Liste Command2 Command3 Command6 Command1"}},
    {EkranAdi::FormKasaEkle,
     TutarliKasaEkleAc,
     "Command1",
     "Command2",
     {"Tutar Aciklama Command1 Command2 Combo1 DTPicker1"}},
    {EkranAdi::FormGiderler,
     EkraniAc<&Program::FormGiderler>,
     "ListeleGun",
     "Command1",
     {"Combo2 DTPicker3 DTPicker1 DTPicker2 ListeleGun Liste Command3 Kaydet Command1"}},
    {EkranAdi::FormSozlesme,
     EkraniAc<&Program::FormSozlesme>,
     "Command2",
     "Command3",
     {"Sozlesme Command1 Pdf Command2 Command3 Unvan Sehir Baslik"}},
    {EkranAdi::FormMakbuzPrint,
     EkraniAc<&Program::FormMakbuzPrint>,
     "Command1",
     "Command2",
     {"Command1 Pdf Command2 Sayfa"}},
    {EkranAdi::FormTabloPrint, TabloBaskisiAc, "Command1", "Command2", {"Command1 Pdf Command2 Sayfa"}},
    {EkranAdi::FormDownloadManager,
     BosSitedenAc<&Program::FormDownloadManager>,
     "Command",
     nullptr,
     {"Command"}},
    {EkranAdi::FormWebteYayinla, EkraniAc<&Program::FormWebteYayinla>, "Command1", "Command1", {"Command1"}},
    {EkranAdi::FormRezervasyonlar, IsteklerAc, "Command1", "Command1", {"Command1 Liste Kaydet"}},
    {EkranAdi::FormDuyurular, EkraniAc<&Program::FormDuyurular>, "Command1", "Command1", {"Command1 Text1"}},
    {EkranAdi::FormOneri, DoluOneriAc, "Command1", "Command2", {"Aciklama Command1 Command2"}},
    {EkranAdi::FormYedekAl,
     YedekAlAc,
     "cmdStart",
     "Command3",
     {"txtSource Command1 txtDestination Command2 cmdStart Command3"}},
    {EkranAdi::FormSunucu,
     EkraniAc<&Program::FormSunucu>,
     "Command1",
     "Command2",
     {"Check1 Command1 Command2 Text1"}},
    {EkranAdi::FormFirma,
     EkraniAc<&Program::FormFirma>,
     "Command1",
     "Command2",
     {"t1 t2 t13 t3 t4 t5 t6 t7 t8 t9 Command3 Command1 Command2"}},
};

} // namespace velora::test
