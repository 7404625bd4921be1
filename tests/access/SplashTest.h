#pragma once

#include "access/AccessTest.h"
#include "access/Splash.h"
#include "online/FormFirma.h"

namespace velora::test {

/// The start of a firm that has all its files and knows the addresses of the service and the site.
class SplashTest : public AccessTest {
  protected:
    SplashTest() {
        agac.Koy(u"Firma.dll", "\"G\",\"A\",\"1\",\"2\",\"w\",\"e\",\"s\",\"YALOVA\",\"Termal\",\"b\","
                               "\"01.01.2012\",\"y\",\"4\"\r\n");
        agac.Koy(u"Menuler.dat", "\"Klasik\",\"et\"\r\n");
        agac.Koy(u"Sozlesme.dat", "\"Maddeler\",\"1 - Kira\"\r\n");
        agac.Koy(u"Adresler.dat", "\"http://servis.test/x/\",\"http://site.test\",\"\",\"\"\r\n");
        KullaniciKoy(Satir("admin", "g5", "11111111101"));
    }

    Splash& Acilis() { return *program.Splash.Tut(); }
    /// The program starts; nothing has ticked yet.
    void Baslat() { program.Splash->Baslat(); }
    /// The ladder up to and with the tick of this number.
    void TikeDek(int tik) {
        const auto acilis = program.Splash.Tut();
        while (acilis->Timer1.aralik > 0 && acilis->Tag != SayiMetni(tik))
            acilis->Timer1.Calis();
    }

    static Metin ServisAdresi(MetinBakis kalan) { return u"http://servis.test/x/" + Metin(kalan); }
    void ServisSor(const Metin& cevap, std::function<void()> is = {}) {
        ortam.Bekle(BeklenenIstek{ServisAdresi(u"internetkontrol.php?ver=2.0.5"), cevap, {}, std::move(is)});
    }
    void ProfilGider() {
        ortam.Bekle(BeklenenIstek{
            ServisAdresi(u"firmakontrol.php?firmaid=00-1B-C4-0D-E0-9F&a1=G&a2=A&a3=1&a4=2&a5=w&a6=e&"
                         u"a7=s&a8=YALOVA&a9=Termal&a10=b&a11=01.01.2012&a12=y&a13=4"),
            u"", 2});
    }
    void YayinSor(const Metin& cevap, std::optional<int> sure = {}) {
        ortam.Bekle(BeklenenIstek{ServisAdresi(u"yayindami.php?firmaid=00-1B-C4-0D-E0-9F"), cevap, sure});
    }
    void SurumSor(const Metin& cevap, std::optional<int> sure = {}) {
        ortam.Bekle(BeklenenIstek{u"http://site.test/versiyon.php?ver=2.0.5", cevap, sure});
    }
    /// The service answers, the calendar is published, and the ladder stands behind tick 5.
    void CevrimiciBaslat() {
        Baslat();
        ServisSor(u"OKEY");
        ProfilGider();
        YayinSor(u"OKEY");
        TikeDek(5);
    }
    /// The same without a connection.
    void CevrimdisiBaslat() {
        ortam.baglanti = false;
        Baslat();
    }
};

} // namespace velora::test
