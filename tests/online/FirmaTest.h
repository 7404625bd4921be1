#pragma once

#include "online/FormFirma.h"
#include "online/OnlineTest.h"

namespace velora::test {

/// A firm's profile on disk, and what is typed into an empty one.
class FirmaTest : public OnlineTest {
  protected:
    static constexpr std::string_view kDosya =
        "\"G\xFCl D\xFC\xF0\xFCn\",\"Ay\xFE"
        "e Ir\",\"0212 1\",\"0532 2\",\"gul.test\",\"a@gul.test\",\"\xC7"
        "ay Sk. 3\",\"YALOVA\",\"Termal\",\"Velora 1.0\",\"01.01.2012\",\"yedek\",\"4\"\r\n";

    FormFirma& Firma() { return *program.FormFirma.Tut(); }

    /// Fills all fields by hand.
    void Doldur() {
        FormFirma& firma = Firma();
        AlanaYaz(firma.t1, u"BÜYÜK DÜĞÜN işleri");
        AlanaYaz(firma.t2, u"ali ılıca");
        AlanaYaz(firma.t3, u"0212 33");
        AlanaYaz(firma.t4, u"0532 44");
        AlanaYaz(firma.t5, u"www.Buyuk.test");
        AlanaYaz(firma.t6, u"yok");
        AlanaYaz(firma.t7, u"gül sk. no:7 İÇ KAPI");
        ListedenSec(firma.t8, u"BAYBURT");
        AlanaYaz(firma.t9, u"AYDINTEPE");
        ListedenSec(firma.t13, u"10");
    }
};

} // namespace velora::test
