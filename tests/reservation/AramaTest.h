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
        for (const auto& [alan, olcut] : olcutler) {
            AlanaYaz(Arama().Text[alan], olcut);
            EXPECT_EQ(Arama().Text[alan].metin, olcut);
        }
        VELORA_BAS(Prog().FormArama, Command3);
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
        EkranBekle(EkranAdi::FormArama, is);
        kullanici.KomutSec(Komut::Arasss);
    }
    /// The row is opened; `is` is what the user does on the record, which must be shown.
    void Detaylar(int sira, const Is& is = {}) {
        KayitBekle(is);
        DetaylaraBas(sira);
    }
    /// The same on a row that nothing is shown of.
    void DetaylaraBas(int sira) {
        Isaretle(sira);
        VELORA_BAS(Prog().FormArama, Command1);
    }
    /// A record is expected next; `is` is done on it, and then it is taken away.
    void KayitBekle(const Is& is = {}) {
        EkranBekle(EkranAdi::FormKayit, [this, is] {
            if (is)
                is();
            Prog().FormKayit.Bosalt();
        });
    }
};

} // namespace velora::test
