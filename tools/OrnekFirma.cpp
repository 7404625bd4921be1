#include "tools/OrnekFirma.h"

#include <algorithm>
#include <functional>
#include <map>

#include "storage/YazimBicimi.h"
#include "tools/OrnekGiderler.h"
#include "tools/OrnekMetinler.h"
#include "tools/OrnekRezervasyon.h"

namespace velora::ornek {

namespace {

constexpr std::size_t kBugunHatirlanan = 3;

/// Reminders due today, on the first hall and this year, which the table shows first: the next events to
/// come.
void BugunHatirlat(std::vector<Rezervasyon>& rezervasyonlar, const Istek& istek) {
    const int bugun = GunNo(istek.bugun);
    std::vector<Rezervasyon*> adaylar;
    for (Rezervasyon& r : rezervasyonlar)
        if (r.salon == 0 && r.yil == static_cast<int>(istek.bugun.year()))
            adaylar.push_back(&r);
    std::ranges::stable_sort(adaylar, {}, [&](const Rezervasyon* r) {
        const int kalan = GunNo(r->dilim.gun) - bugun;
        return kalan >= 0 ? kalan : 1000 - kalan;
    });
    adaylar.resize(std::min(adaylar.size(), kBugunHatirlanan));
    for (Rezervasyon* r : adaylar)
        Hatirlat(*r, istek.bugun);
}

std::vector<Rezervasyon> Rezervasyonlar(const Istek& istek, Rastgele& rastgele) {
    std::vector<Rezervasyon> liste;
    for (std::size_t salon = 0; salon < istek.salon; ++salon)
        for (const int yil : Yillar(istek))
            for (const Dilim& dilim : DilimleriSec(istek, yil, rastgele)) {
                liste.push_back(RezervasyonYap(istek, dilim, rastgele));
                liste.back().salon = salon;
            }
    BugunHatirlat(liste, istek);
    std::ranges::stable_sort(liste, {}, &Rezervasyon::sozlesmeGunu);
    unsigned no = 0;
    for (Rezervasyon& r : liste)
        Numarala(r, ++no);
    return liste;
}

std::string TatilBayt(const Istek& istek) {
    const Metin yil = SayiMetni(static_cast<int>(istek.bugun.year()));
    DegerYazici yazici;
    for (const Tatil& tatil : ResmiTatiller())
        yazici.Yaz(Metin(tatil.gunAy).append(yil), tatil.ad, u"Evet", u"Genel");
    // Near today but in this year, so that the open table shows it.
    const int bugun = GunNo(istek.bugun);
    const Gun sonra = GunuBul(bugun + 10);
    yazici.Yaz(TarihMetni(sonra.year() == istek.bugun.year() ? sonra : GunuBul(bugun - 10)), u"Salon Bakımı",
               u"Hayır", u"Özel");
    yazici.Yaz(Metin(u"12.09.").append(yil), u"Kuruluş Yıldönümü", u"Hayır", u"Özel");
    return yazici.Bayt();
}

/// The administrator, and somebody at the desk who sees neither the accounts nor the settings.
std::string KullaniciBayt() {
    DegerYazici yazici;
    yazici.Yaz(Metin(kYonetici), Metin(kYoneticiParolasi), u"1", u"1", u"1", u"1", u"1", u"1", u"1", u"1",
               u"1", u"0", u"1");
    yazici.Yaz(u"zeynep", u"1234", u"0", u"0", u"1", u"0", u"0", u"0", u"1", u"0", u"0", u"0", u"0");
    return yazici.Bayt();
}

/// Writes file after file; after the first that fails it does nothing more.
class Yazar {
  public:
    explicit Yazar(const Dosyalar& dosyalar) : dosyalar_(dosyalar), agac_(dosyalar) {}

    bool Tamam() const { return tamam_; }

    void Kok(MetinBakis ad, const std::string& bayt) {
        tamam_ = tamam_ && dosyalar_.Yaz(agac_.KokYolu(ad), bayt);
    }

    void Yil(MetinBakis salon, int yil, const std::string& giderler) {
        const Metin yilMetni = SayiMetni(yil);
        agac_.KlasorHazirla(salon, yilMetni);
        tamam_ = tamam_ && dosyalar_.Yaz(agac_.GunYolu(salon, yilMetni, kGiderDosyasi), giderler);
    }

    void Kayit(MetinBakis salon, const Rezervasyon& r) {
        const Metin yil = SayiMetni(r.yil);
        const Metin yol =
            agac_.GunYolu(salon, yil,
                          GunAnahtari(static_cast<unsigned>(r.dilim.gun.day()),
                                      static_cast<unsigned>(r.dilim.gun.month()), yil, r.dilim.dilim));
        tamam_ = tamam_ && AnaYaz(dosyalar_, yol, r.ana) &&
                 DetayYaz(dosyalar_, Metin(yol).append(kDetayEki), r.detay);
        if (tamam_ && !r.odemeler.empty())
            tamam_ = OdemeYaz(dosyalar_, Metin(yol).append(kOdemeEki), r.odemeler);
    }

  private:
    const Dosyalar& dosyalar_;
    VeriAgaci agac_;
    bool tamam_ = true;
};

void KokDosyalari(Yazar& yazar, const Istek& istek, std::size_t sonNumara) {
    DegerYazici menuler;
    for (const Menu& menu : Menuler())
        menuler.Yaz(menu.ad, menu.icerik);
    yazar.Kok(kMenuDosyasi, menuler.Bayt());
    yazar.Kok(kTatilDosyasi, TatilBayt(istek));
    DegerYazici sozlesme;
    sozlesme.Yaz(u"Sözleşme Maddeleri", u"1 - Kalan ücret düğün günü ödenir.\r\n2 - Tarih değişikliği bir ay "
                                        u"önceden bildirilir.");
    yazar.Kok(kSozlesmeDosyasi, sozlesme.Bayt());
    DegerYazici firma;
    firma.Yaz(u"Örnek Düğün Salonları", u"Zeynep Örnek", u"0226 000 00 00", u"0500 000 00 00", u"Yok", u"Yok",
              u"Çınar Caddesi No:1", u"YALOVA", u"Merkez", u"", u"", u"", SayiMetni(istek.salon));
    yazar.Kok(kFirmaDosyasi, firma.Bayt());
    yazar.Kok(kKullaniciDosyasi, KullaniciBayt());
    DegerYazici sayac;
    sayac.Yaz(SayiMetni(static_cast<long long>(sonNumara)));
    yazar.Kok(kSayacDosyasi, sayac.Bayt());
}

void SalonDosyasi(Yazar& yazar, const std::vector<Metin>& salonlar) {
    DegerYazici salonListesi;
    for (const Metin& salon : salonlar)
        salonListesi.Yaz(salon);
    yazar.Kok(kSalonDosyasi, salonListesi.Bayt());
}

void Say(Sonuc& sonuc, const std::vector<Rezervasyon>& rezervasyonlar) {
    std::map<std::pair<std::size_t, int>, unsigned> yilda;
    for (const Rezervasyon& r : rezervasyonlar) {
        ++yilda[{r.salon, r.yil}];
        sonuc.odeme += static_cast<unsigned>(r.odemeler.size());
    }
    sonuc.rezervasyon = static_cast<unsigned>(rezervasyonlar.size());
    const auto enAz = std::ranges::min_element(yilda, {}, [](const auto& giris) { return giris.second; });
    sonuc.enAzRezervasyon = enAz == yilda.end() ? 0 : enAz->second;
}

} // namespace

std::vector<Metin> SalonAdlari(unsigned adet) {
    std::vector<Metin> adlar;
    for (unsigned i = 0; i < adet; ++i)
        adlar.push_back(i < HazirSalonAdlari().size() ? Metin(HazirSalonAdlari()[i])
                                                      : u"Salon " + SayiMetni(i + 1));
    return adlar;
}

std::vector<int> Yillar(const Istek& istek) {
    const int buYil = static_cast<int>(istek.bugun.year());
    const int adet = static_cast<int>(istek.yil);
    constexpr int kEnCokOnce = 10;
    const int ilk = std::max(buYil - kEnCokOnce, buYil + (adet > 1 ? 2 : 1) - adet);
    std::vector<int> yillar;
    for (int yil = ilk; yil < ilk + adet; ++yil)
        yillar.push_back(yil);
    return yillar;
}

Sonuc FirmaYap(const Dosyalar& dosyalar, const Istek& istek) {
    Sonuc sonuc;
    sonuc.salonlar = SalonAdlari(istek.salon);
    sonuc.yillar = Yillar(istek);
    if (dosyalar.VarMi(VeriAgaci(dosyalar).KokYolu(kSalonDosyasi))) {
        sonuc.durum = Durum::AgacVar;
        return sonuc;
    }
    Rastgele rastgele(istek.tohum);
    const std::vector<Rezervasyon> rezervasyonlar = Rezervasyonlar(istek, rastgele);
    Yazar yazar(dosyalar);
    for (const Metin& salon : sonuc.salonlar)
        for (const int yil : sonuc.yillar)
            yazar.Yil(salon, yil, GiderBayt(istek, yil, rastgele));
    for (const Rezervasyon& r : rezervasyonlar)
        yazar.Kayit(sonuc.salonlar[r.salon], r);
    KokDosyalari(yazar, istek, rezervasyonlar.size());
    SalonDosyasi(yazar, sonuc.salonlar);
    Say(sonuc, rezervasyonlar);
    if (!yazar.Tamam())
        sonuc.durum = Durum::Yazilamadi;
    return sonuc;
}

} // namespace velora::ornek
