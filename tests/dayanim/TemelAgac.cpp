#include "dayanim/Senaryolar.h"

#include "destek/Kayitlar.h"
#include "storage/KodSayfasi.h"
#include "storage/dosya/Utf8.h"

namespace velora::dayanim {
namespace {

std::string YolBaytlari(MetinBakis yol) {
    std::string bayt;
    Utf8Ekle(yol, bayt);
    return bayt;
}

class Kurucu {
  public:
    void Koy(MetinBakis yol, MetinBakis metin) { agac[YolBaytlari(yol)] = KodYaz(Metin(metin)); }
    void Kayit(const Metin& yol, const test::OrnekKayit& kayit, bool on, int odeme) {
        Koy(yol, test::AnaMetni(kayit));
        Metin detay = test::DetayMetni(on);
        Koy(yol + u"-Detay", detay.replace(detay.rfind(u"\"\""), 2, u"\"" + kayit.no + u"\""));
        Metin odemeler;
        for (int i = 1; i <= odeme; ++i)
            odemeler += u"\"" + Metin(i % 2 == 0 ? u"03.02.2012" : u"14.03.2012") + u"\",\"" +
                        SayiMetni(100 + i) + u"\",\"" + kayit.no + u" - " + kayit.ad + u"\"\r\n";
        if (odeme > 0)
            Koy(yol + u"-Odeme", odemeler);
    }

    Agac agac;
};

void FirmaKoy(Kurucu& k) {
    k.Koy(u"Salon.dat", u"\"Salon A\"\r\n\"Bahçe\"\r\n");
    k.Koy(u"Menuler.dat", u"\"Klasik\",\"Çorba, Tatlı\"\r\n\"Altın\",\"Ispanak, İçli Köfte\"\r\n");
    k.Koy(u"Count.dat", u"\"57\"\r\n");
    k.Koy(u"User.dll",
          u"\"admin\",\"gül5\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"1\",\"0\",\"1\"\r\n"
          u"\"can\",\"c9\",\"1\",\"0\",\"1\",\"0\",\"1\",\"1\",\"0\",\"0\",\"1\",\"0\",\"1\"\r\n");
    k.Koy(u"Settings.dll", test::AyarMetni(28, u"1")); // past days are shown as such
    k.Koy(u"Visible.dll", u"1,1,0,1,1,1,1,1,1,1,1,1,1\r\n");
    k.Koy(u"Tatiller.dll", u"\"23.04.2010\",\"Çocuk Bayramı\",\"Evet\",\"Genel\"\r\n"
                           u"\"05.06.2012\",\"Kuruluş\",\"Hayır\",\"Özel\"\r\n");
    k.Koy(u"Firma.dll",
          u"\"Gül Düğün\",\"Ayşe Ir\",\"0212 1\",\"0532 2\",\"gul.test\",\"a@gul.test\",\"Çay Sk. "
          u"3\",\"YALOVA\",\"Termal\",\"Velora 2.0.5\",\"15.06.2012\",\"yedek\",\"4\"\r\n");
    k.Koy(u"Sunucu.dat", u"\"00-1B-C4-0D-E0-9F\",1\r\n");
    k.Koy(u"Sozlesme.dat", u"\"Şartlar\",\"1 - Kira, peşin.\r\n2 - İçki yok.\"\r\n");
    k.Koy(u"IptalSebep.txt", u"02.02.2012 - Gece - Salon A - Eda Ak - 1 - 2 - can - vazgeçti\r\n");
    k.Koy(u"BackupSetting.dat", u"\"D:\\Yedek\",0\r\n");
}

Agac Kur() {
    Kurucu k;
    FirmaKoy(k);
    const Metin yil = u"Salon A/2012/";
    k.Kayit(yil + u"20.06.2012 - Gündüz", {.ad = u"Ali Usta", .no = u"41"}, false, 2);
    k.Kayit(yil + u"21.06.2012 - Gece", {.ad = u"Ece Dal", .ucret = u"7000", .no = u"42"}, false, 1);
    k.Kayit(yil + u"22.06.2012 - Gece", {.ad = u"Oya Er", .nitelik = u"Nişan", .no = u"43"}, true, 0);
    k.Kayit(yil + u"23.06.2012 - Gündüz", {.ad = u"Nil Su", .ucret = u"99000", .no = u"44"}, false, 200);
    k.Kayit(yil + u"10.06.2012 - Gece", {.ad = u"Eski Kişi", .nitelik = u"Sünnet", .no = u"40"}, false, 3);
    k.Koy(yil + u"Gider.dat", u"\"10.05.2012\",\"20\",\"a\"\r\n\"12.06.2012\",\"4000\",\"c\"\r\n");
    k.Koy(u"Bahçe/2012/Gider.dat", u"\"11.04.2012\",\"35\",\"tek\"\r\n");
    for (const int y : {2011, 2013, 2014, 2015})
        k.Kayit(u"Bahçe/" + SayiMetni(y) + u"/19.08." + SayiMetni(y) + u" - Gece",
                {.ad = u"Yıl " + SayiMetni(y), .no = SayiMetni(y)}, false, y % 3);
    k.Koy(u"Bahçe/2014/Gider.dat", u"\"01.02.2014\",\"14\",\"on dört\"\r\n");
    k.Koy(u"Bahçe/2015/Gider.dat", u"\"01.02.2015\",\"15\",\"on beş\"\r\n");
    // A program that looks at a year makes its folder.
    Agac klasorler;
    for (const auto& [yol, bayt] : k.agac)
        for (std::size_t i = yol.find('/'); i != std::string::npos; i = yol.find('/', i + 1))
            klasorler[yol.substr(0, i + 1)];
    k.agac.merge(klasorler);
    return k.agac;
}

} // namespace

const Agac& TemelAgac() {
    static const Agac agac = Kur();
    return agac;
}

Agac BaslangicAgaci(const Agac& degisik) {
    Agac agac = TemelAgac();
    for (const auto& [yol, bayt] : degisik) {
        agac.erase(yol);
        if (!bayt.empty())
            agac[yol] = bayt;
    }
    return agac;
}

} // namespace velora::dayanim
