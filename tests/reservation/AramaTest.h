#pragma once

#include "reservation/FormArama.h"
#include "reservation/KayitTest.h"

namespace velora::test {

/// The firm of `KayitTest` with a second hall, and what is done on its search. Years go from 2002 to 2022;
/// 2012 is the selected one.
class AramaTest : public KayitTest {
  protected:
    enum Alan { kAd = 1, kGelinDamat, kTelefon, kCep, kSozlesmeNo };
    using Adlar = std::vector<Metin>;

    AramaTest() { agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n"); }

    FormArama& Arama() { return *Prog().FormArama.Tut(); }

    /// A file of a year folder; `yol` is hall/year/name.
    void Koy(const Metin& yol, const OrnekKayit& kayit) { agac.KoyMetin(yol, AnaMetni(kayit)); }
    /// A record whose first 14 values are these; the ones left out are empty.
    static Metin Degerler(const std::map<int, Metin>& degerler) {
        Metin satir;
        for (int no = 1; no <= 14; ++no) {
            const auto yer = degerler.find(no);
            satir +=
                u"\"" + (yer == degerler.end() ? Metin() : yer->second) + (no == 14 ? u"\"\r\n" : u"\",");
        }
        return satir;
    }

    /// Types a criterion into its empty field and presses "Ara" with nothing else typed.
    void Ara(Alan alan, const Metin& olcut) { Ara({{alan, olcut}}); }
    void Ara(const std::map<Alan, Metin>& olcutler) {
        for (MetinKutusu& kutu : Arama().Text)
            kutu.metin.clear();
        for (const auto& [alan, olcut] : olcutler)
            Arama().Text[alan].metin = olcut;
        Arama().Command3_Click();
    }
    void BulunamadiBekle() { KutuBekle(u"Hiç kayıt bulunamadı!"); }
    /// The same search, which must find nothing.
    void Bulamaz(Alan alan, const Metin& olcut) {
        BulunamadiBekle();
        Ara(alan, olcut);
        EXPECT_TRUE(Arama().Liste.satirlar.empty());
    }

    /// One column of the list.
    Adlar Sutun(std::size_t sutun) {
        Adlar adlar;
        for (const ListeSatiri& satir : Arama().Liste.satirlar)
            adlar.push_back(satir.sutun.at(sutun));
        return adlar;
    }
    Adlar Bulunanlar() { return Sutun(0); }

    void Isaretle(int sira) {
        Arama().Liste.secili = sira;
        Arama().Liste_ItemClick();
    }
    /// The search is opened from the table; `is` is what the user does on it.
    void AramaAcikken(const Is& is) {
        Prog();
        kullanici.ortam.modalda[EkranAdi::FormArama] = is;
        kullanici.Tablo().Arasss_Click();
        kullanici.ortam.modalda.erase(EkranAdi::FormArama);
    }
    /// The row is opened; `is` is what the user does on the record. Tells whether it was shown.
    bool Detaylar(int sira, const Is& is) {
        bool gorundu = false;
        kullanici.ortam.modalda[EkranAdi::FormKayit] = [&] {
            gorundu = true;
            is();
            Prog().FormKayit.Bosalt();
        };
        Isaretle(sira);
        Arama().Command1_Click();
        kullanici.ortam.modalda.erase(EkranAdi::FormKayit);
        return gorundu;
    }
};

} // namespace velora::test
