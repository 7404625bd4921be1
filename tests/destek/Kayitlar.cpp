#include "destek/Kayitlar.h"

#include <vector>

namespace velora::test {

Metin AnaMetni(const OrnekKayit& kayit) {
    const std::vector<Metin> metinler{kayit.ad,       u"Bolu",    u"Ayşe / Can", kayit.nitelik, u"0212",
                                      u"0532",        u"Adres 1", u"@",          kayit.alinan,  kayit.kalan,
                                      u"not",         kayit.saat, u"01.01.2012", kayit.no,      u"23:00",
                                      u"12345678901", u"250",     kayit.hatirlat};
    Metin satir;
    for (const Metin& metin : metinler)
        satir += u"\"" + (metin == u"@" ? kayit.ucret : metin) + u"\",";
    return satir + SayiMetni(kayit.check18) + u"," + SayiMetni(kayit.check19) + u"\r\n";
}

Metin DetayMetni(bool on) {
    Metin metin;
    for (int i = 1; i <= 17; ++i)
        metin += u"0\r\n";
    for (int i = 18; i <= 35; ++i)
        metin += u"\"\"\r\n";
    metin += on ? u"\"0\",\"1\"\r\n" : u"\"1\",\"0\"\r\n";
    return metin + u"\"Menü seçiniz...\"\r\n\"\"\r\n";
}

void KayitKoy(const GeciciAgac& agac, const Metin& yol, const OrnekKayit& kayit, bool on,
              MetinBakis odemeler) {
    agac.KoyMetin(yol, AnaMetni(kayit));
    agac.KoyMetin(yol + u"-Detay", DetayMetni(on));
    if (!odemeler.empty())
        agac.KoyMetin(yol + u"-Odeme", odemeler);
}

Metin AyarMetni() {
    return u"32768,16777215,8454143,0,16777215,0,255,16777215,6086641,0,15461355,0,192,16777215,192,16777215,"
           u"255,"
           u"12632256,16777215,65280,16777215,49152,16777215,16761087,0,\"5\",\"10\",0,1,\"Gece / "
           u"Gündüz\",1,1,0\r\n";
}

Metin AyarMetni(int alan, MetinBakis deger) {
    Metin satir = AyarMetni();
    std::size_t bas = 0;
    for (int i = 1; i < alan; ++i)
        bas = satir.find(u',', bas) + 1;
    const std::size_t son = satir.find_first_of(u",\r", bas);
    return satir.replace(bas, son - bas, deger);
}

} // namespace velora::test
