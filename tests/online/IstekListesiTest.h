#pragma once

#include "access/Splash.h"
#include "destek/Servis.h"
#include "online/FormRezervasyonlar.h"
#include "reservation/KayitTest.h"

namespace velora::test {

inline constexpr MetinBakis kFirmaAnahtari = u"00-1B-C4-0D-E0-9F";

/// Two halls, a service with requests of visitors, and the program that stands on "Salon A" and 2012. The
/// requests are in the file of the last poll.
class IstekListesiTest : public KayitTest {
  protected:
    /// What a request says, in its own words where a test cares.
    struct Istek {
        Metin no = u"41";
        Metin ad = u"Gül Işık";
        Metin salon = u"Salon B";
        Metin tarih = u"23.06.2013";
        Metin saat = u"19:30";
        Metin zaman = u"Gece";
    };

    IstekListesiTest() {
        agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
        agac.Koy(u"Adresler.dat", "\"http://servis.test/x\",\"\",\"\",\"\"\r\n");
    }

    void Iste(const Istek& istek) {
        Firma().istekler.emplace_back(istek.no, istek.ad + u"|0212 33|0532 44|gul@x.test|" + istek.salon +
                                                    u"|" + istek.tarih + u"|" + istek.saat + u"|" +
                                                    istek.zaman + u"|Nişan");
    }
    /// Starts the program and polls once.
    void Baslat() {
        Prog().Splash->Check1 = 1;
        Prog().ortam.ag.getir = [this](const AgIstegi& istek) {
            const Metin cevap = servis.Getir(istek);
            if (istekte)
                istekte();
            return cevap;
        };
        kullanici.Tablo().DuyuruKontrol_Tick();
        servis.gelenler.clear();
    }
    /// The list is opened from its mark; `is` is what the user does there.
    void ListeyiAc(const Is& is) {
        kullanici.Tablo().YeniRezTimer_Tick();
        ASSERT_TRUE(kullanici.Tablo().YeniRezervasyonVar.etkin);
        EkranBekle(EkranAdi::FormRezervasyonlar, is);
        kullanici.Tablo().YeniRezervasyonVar_Click();
    }
    FormRezervasyonlar& Liste() { return *Prog().FormRezervasyonlar.Tut(); }
    bool ListeVar() { return Prog().FormRezervasyonlar.Yuklu(); }
    void Sec(int sira) {
        SatiraTikla(Liste().Liste, sira, [this] { Liste().Liste_Click(); });
    }
    void Olustur() { VELORA_BAS(Prog().FormRezervasyonlar, Command2); }
    std::string Dosya() { return agac.Bayt(u"RezTemp.dat"); }
    Servis::Firma& Firma() { return servis.firmalar[Metin(kFirmaAnahtari)]; }

    Servis servis;
    std::function<void()> istekte; // behind each request
};

} // namespace velora::test
