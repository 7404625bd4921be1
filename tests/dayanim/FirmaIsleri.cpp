// What the user does seldom: on the first run, with backups, passwords and requests.
#include "access/FormSifreDegistir.h"
#include "dayanim/Isler.h"
#include "destek/Eylemler.h"
#include "maintenance/FormYedekAl.h"
#include "online/FormFirma.h"
#include "online/FormRezervasyonlar.h"
#include "setup/FormSalonTanim.h"
#include "storage/KodSayfasi.h"

namespace velora::dayanim {

using test::AlanaYaz;
using test::ListedenSec;
using test::SatiraTikla;

void YedekAyari(Masa& m) {
    m.EkranBekle(EkranAdi::FormYedekAl, [&m] {
        test::SahteOrtam& ortam = m.kullanici.ortam;
        // No source: the folder is kept, and nothing copied.
        ortam.Bekle(test::BeklenenKlasor{u"Select directory...", u""});
        VELORA_BAS(m.Prog().FormYedekAl, Command1);
        ortam.Bekle(test::BeklenenKlasor{u"Select directory...", u"/olmayan yer/çarşamba"});
        VELORA_BAS(m.Prog().FormYedekAl, Command2);
        ortam.Bekle(test::BeklenenKutu{u"Velora", u"Lütfen dizin seçiniz!"});
        VELORA_BAS(m.Prog().FormYedekAl, cmdStart);
        m.Prog().FormYedekAl.Bosalt();
    });
    m.kullanici.KomutSec(Komut::Yedeksss);
}

static void ParolaGir(Program& program, const Metin& parola) {
    const auto degistir = program.FormSifreDegistir.Tut();
    AlanaYaz(degistir->Text1, parola);
    AlanaYaz(degistir->Text2, parola);
    VELORA_BAS(program.FormSifreDegistir, Command1);
}

void ParolaDegistir(Masa& m) {
    m.EkranBekle(EkranAdi::FormSifreDegistir, [&m] { ParolaGir(m.Prog(), u"kış 8"); });
    m.kullanici.KomutSec(Komut::Guvenliksss);
}

std::string IstekBaytlari() {
    return KodYaz(u"\"41\",\"Gül Işık\",\"0212 33\",\"0532 44\",\"gul@x.test\",\"Salon A\","
                  u"\"18.09.2012\",\"19:30\",\"Gece\",\"Nişan\"\r\n"
                  u"\"42\",\"Naz Öz\",\"0212 55\",\"0532 66\",\"naz@x.test\",\"Bahçe\","
                  u"\"19.10.2012\",\"12:00\",\"Gündüz\",\"Kına\"\r\n");
}

void IstektenKayit(Masa& m) {
    m.EkranBekle(EkranAdi::FormRezervasyonlar, [&m] {
        const auto liste = m.Prog().FormRezervasyonlar.Tut();
        SatiraTikla(liste->Liste, 0, [&] { liste->Liste_Click(); });
        m.EkranBekle(EkranAdi::FormKayit, [&m] {
            Gir(m, AnaNo::ToplamUcret, u"6600");
            Gir(m, AnaNo::BitisSaati, u"23:15");
            OdemeAl(m, u"900");
            VELORA_BAS(m.Prog().FormKayit, Command1);
        });
        VELORA_BAS(m.Prog().FormRezervasyonlar, Command2);
        VELORA_BAS(m.Prog().FormRezervasyonlar, Command1);
    });
    m.Prog().FormRezervasyonlar.GosterModal();
}

static void ProfilGir(Program& program) {
    const auto firma = program.FormFirma.Tut();
    AlanaYaz(firma->t1, u"lale düğün");
    AlanaYaz(firma->t2, u"ece ır");
    AlanaYaz(firma->t3, u"0212 7");
    AlanaYaz(firma->t4, u"0532 8");
    AlanaYaz(firma->t5, u"yok");
    AlanaYaz(firma->t6, u"e@lale.test");
    AlanaYaz(firma->t7, u"ova sk. 9");
    ListedenSec(firma->t8, u"BAYBURT");
    AlanaYaz(firma->t9, u"Demirözü");
    ListedenSec(firma->t13, u"2");
    VELORA_BAS(program.FormFirma, Command1);
}

void IlkParolaVeSalon(test::Kullanici& kullanici) {
    Program& p = kullanici.Prog();
    kullanici.ortam.Bekle(test::BeklenenKutu{
        u"Salon Tanımı", u"Önce salon tanımı yapmalısınız!\nŞimdi salon tanımı yapmak ister misiniz?",
        Simge::Soru, Cevap::Evet});
    kullanici.ortam.Bekle(
        test::BeklenenEkran{EkranAdi::FormSalonTanim, [&] {
                                kullanici.ortam.Bekle(test::BeklenenGirdi{
                                    u"Salon Tanımları", u"Lütfen salon adını giriniz!", u"kır evi"});
                                VELORA_BAS(p.FormSalonTanim, Command1);
                                VELORA_BAS(p.FormSalonTanim, Command3);
                            }});
    ParolaGir(p, Metin(kIlkParola));
}

void IlkKurulum(Masa& m) {
    ProfilGir(m.Prog());
    IlkParolaVeSalon(m.kullanici);
}

} // namespace velora::dayanim
