#pragma once

#include "destek/Sayfalar.h"
#include "documents/FormPrint.h"
#include "documents/FormPrint2.h"
#include "documents/FormSozlesme.h"
#include "reservation/KayitTest.h"

namespace velora::test {

/// All that a field shows, its lines with "|" between them; "-" where the field isn't there.
inline Metin AlanMetni(const std::vector<Sayfa>& sayfalar, MetinBakis ad) {
    Metin metin;
    bool var = false;
    for (const Sayfa& sayfa : sayfalar)
        for (const SayfaParcasi& parca : sayfa.parcalar)
            if (parca.ad == ad) {
                for (const Metin& satir : parca.satirlar)
                    metin += (var || &satir != &parca.satirlar.front() ? u"|" : u"") + satir;
                var = true;
            }
    return var ? metin : u"-";
}

/// "Sözleşme Yazdır" and its PDF, on a reservation whose fields are all different.
class SozlesmeTest : public KayitTest {
  protected:
    inline static const Metin kSozlesmeIsi = u"20.06.2012 - Salon A - Ayşe Yılmaz - Sözleşme";
    inline static const Metin kMenuIsi = u"20.06.2012 - Salon A - Ayşe Yılmaz - Menü";

    SozlesmeTest() {
        agac.KoyMetin(u"Salon.dat", u"\"Salon A\"\r\n\"Salon B\"\r\n");
        agac.KoyMetin(u"Firma.dll",
                      u"\"Gül Düğün\",\"Can\",\"0212 9\",\"0532 8\",\"gul.test\",\"a@gul.test\",\"Kır Sk.\","
                      u"\"TEKIRDAG\",\"Ergene\",\"Velora 1.0\",\"01.01.2012\",\"yedek\",\"4\"\r\n");
        MaddeKoy(u"1 - Kira peşin.\r\n2 - İçki yok.");
    }

    void MaddeKoy(const Metin& maddeler) {
        agac.KoyMetin(u"Sozlesme.dat", u"\"Şartlar\",\"" + maddeler + u"\"\r\n");
    }
    /// A new record that is filled and not saved; `is` is what is done on it.
    void DoluKayit(const Is& is) {
        YeniKayit([&] {
            for (const auto& [no, metin] :
                 {std::pair{1, u"Ayşe Yılmaz"}, std::pair{2, u"Tokat"}, std::pair{3, u"Elif - Can"},
                  std::pair{4, u"Nişan"}, std::pair{5, u"0212 1"}, std::pair{6, u"0532 2"},
                  std::pair{7, u"Çay Sk. 3\r\nErgene"}, std::pair{8, u"12500"},
                  std::pair{11, u"Masa düzeni U olacak."}, std::pair{12, u"11:30"},
                  std::pair{13, u"03.02.2012"}, std::pair{15, u"15:45"}, std::pair{16, u"12345678901"},
                  std::pair{17, u"350"}})
                Kayit().Kay[no].metin = metin;
            OdemeAl(u"2500");
            ListedenSec(Kayit().Combo1, u"Klasik");
            Kayit().Aciklamalar.metin = u"Tuzsuz ekmek";
            is();
        });
    }

    void SayfaSorusu(const Metin& cevap) {
        kullanici.ortam.Bekle(BeklenenGirdi{u"Velora", u"Kaç sayfa yazdırılacak?", cevap});
    }
    void SenetSorusu(Cevap cevap) {
        KutuBekle(u"Sözleşme ile birlikte senet bastırmak ister misiniz?", cevap, Simge::Soru);
    }
    void MenuSorusu(Cevap cevap) { KutuBekle(u"Menüyü bastırmak istermisiniz?", cevap, Simge::Soru); }
    void YaziciYokKutusu() { KutuBekle(u"Bilgisayarınıza bağlı bir yazıcı bulunamadı!"); }
    void MaddeYokKutusu() { KutuBekle(u"Lütfen yazdırmadan önce sözleşme ayarlarınızı yapınız!"); }
    void BaskiBekle(const Metin& ad, bool basilir = true, Is is = {}) {
        kullanici.ortam.Bekle(BeklenenBaski{ad, basilir, std::move(is)});
    }
    /// Two contracts and two menus, each a print of its own, with all that is asked before.
    void IkiserBekle(const Metin& adet, Cevap senet) {
        SayfaSorusu(adet);
        SenetSorusu(senet);
        for (int i = 0; i < 2; ++i)
            BaskiBekle(kSozlesmeIsi);
        MenuSorusu(Cevap::Evet);
        for (int i = 0; i < 2; ++i)
            BaskiBekle(kMenuIsi);
    }
    void Yazdir() { VELORA_BAS(Prog().FormKayit, Command3); }
    void PdfeBas() { VELORA_BAS(Prog().FormKayit, Pdf); }

    const std::vector<GidenSayfalar>& Basilanlar() { return kullanici.ortam.basilanlar; }
    /// What stands in a field of the print of that number, from 0.
    Metin Basilan(std::size_t sira, MetinBakis ad) { return AlanMetni(Basilanlar().at(sira).sayfalar, ad); }
    /// A contract, printed once without a menu.
    void BirKezBas(bool senet) {
        SayfaSorusu(u"1");
        SenetSorusu(senet ? Cevap::Evet : Cevap::Hayir);
        BaskiBekle(kSozlesmeIsi);
        MenuSorusu(Cevap::Hayir);
        Yazdir();
    }
};

} // namespace velora::test
