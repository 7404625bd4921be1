#include "storage/RezervasyonDosyalari.h"

#include <algorithm>

#include "storage/VeriAgaci.h"

namespace velora {
namespace {

template <class Degerler>
int SiraylaAl(std::string_view bayt, Degerler& hedef) {
    DegerOkuyucu okuyucu(bayt);
    int adet = 0;
    for (Metin& deger : hedef.deger) {
        if (!okuyucu.Oku(deger))
            break;
        ++adet;
    }
    return adet;
}

template <class Degerler>
std::optional<int> DegerlerOku(const Dosyalar& dosyalar, const Metin& yol, Degerler& hedef, Koken* koken) {
    const auto bayt = KokenleOku(dosyalar, yol, koken);
    return bayt ? std::optional(DegerleriAl(*bayt, hedef)) : std::nullopt;
}

Metin VirgulNokta(MetinBakis metin) {
    Metin sonuc(metin);
    std::replace(sonuc.begin(), sonuc.end(), u',', u'.');
    return sonuc;
}

MetinBakis Secenek(bool secili) {
    return secili ? u"1" : u"0";
}

/// Whether the last name of the path has a day before the word of a companion.
bool GunuVar(const Metin& yol) {
    MetinBakis ad = MetinBakis(yol).substr(yol.rfind(kAyrac) + 1);
    for (const MetinBakis ek : {kDetayEki, kOdemeEki})
        if (ad.ends_with(ek))
            ad.remove_suffix(ek.size());
    return !Kirp(ad).empty();
}

} // namespace

int DegerleriAl(std::string_view bayt, AnaDegerler& hedef) {
    return SiraylaAl(bayt, hedef);
}

int DegerleriAl(std::string_view bayt, DetayDegerler& hedef) {
    return SiraylaAl(bayt, hedef);
}

std::size_t DegerleriAl(std::string_view bayt, std::span<const int> numaralar, std::span<Metin> hedef) {
    DegerOkuyucu okuyucu(bayt);
    int okunan = 0;
    std::size_t adet = 0;
    for (const int no : numaralar) {
        okunan += okuyucu.Atla(no - 1 - okunan);
        if (okunan < no - 1 || !okuyucu.Oku(hedef[adet]))
            break;
        ++okunan;
        ++adet;
    }
    return adet;
}

std::optional<int> AnaOku(const Dosyalar& dosyalar, const Metin& yol, AnaDegerler& hedef, Koken* koken) {
    return DegerlerOku(dosyalar, yol, hedef, koken);
}

std::optional<int> DetayOku(const Dosyalar& dosyalar, const Metin& yol, DetayDegerler& hedef, Koken* koken) {
    return DegerlerOku(dosyalar, yol, hedef, koken);
}

bool OdemeOku(const Dosyalar& dosyalar, const Metin& yol, std::vector<Odeme>& hedef, Koken* koken) {
    const auto bayt = KokenleOku(dosyalar, yol, koken);
    if (!bayt)
        return false;
    DegerOkuyucu okuyucu(*bayt);
    // Outside the loop: a last record that is cut short keeps the values of the one before it.
    Odeme odeme;
    while (!okuyucu.Sonda()) {
        okuyucu.Oku(odeme.tarih, odeme.tutar, odeme.aciklama);
        if (!Kirp(odeme.tarih).empty())
            hedef.push_back(odeme);
    }
    return true;
}

Metin AnaTemizle(MetinBakis metin) {
    Metin sonuc = VirgulNokta(metin);
    std::erase(sonuc, u'"');
    return sonuc;
}

Metin DetayTemizle(MetinBakis metin) {
    Metin sonuc = VirgulNokta(metin);
    std::replace(sonuc.begin(), sonuc.end(), u'"', u'\'');
    return sonuc;
}

std::string AnaBayt(const AnaKayit& kayit) {
    DegerYazici yazici;
    for (const Metin& kay : kayit.kay)
        yazici.Parca(kay);
    yazici.Parca(kayit.check18);
    yazici.Parca(kayit.check19);
    yazici.SatirSonu();
    return yazici.Bayt();
}

std::string DetayBayt(const DetayKaydi& kayit) {
    DegerYazici yazici;
    for (const int check : kayit.check)
        yazici.Yaz(check);
    for (const Metin& tt : kayit.tt)
        yazici.Yaz(DetayTemizle(tt));
    yazici.Yaz(DetayTemizle(kayit.aciklamalar));
    yazici.Yaz(Secenek(kayit.option1), Secenek(kayit.option2));
    yazici.Yaz(kayit.combo1);
    yazici.Yaz(kayit.label20);
    return yazici.Bayt();
}

std::string OdemeBayt(const std::vector<Odeme>& odemeler) {
    DegerYazici yazici;
    for (const Odeme& odeme : odemeler)
        yazici.Yaz(odeme.tarih, odeme.tutar, odeme.aciklama);
    return yazici.Bayt();
}

bool AnaYaz(const Dosyalar& dosyalar, const Metin& yol, const AnaKayit& kayit, const Koken& koken) {
    return GunuVar(yol) && koken.Yaz(dosyalar, yol, AnaBayt(kayit));
}

bool DetayYaz(const Dosyalar& dosyalar, const Metin& yol, const DetayKaydi& kayit, const Koken& koken) {
    return GunuVar(yol) && koken.Yaz(dosyalar, yol, DetayBayt(kayit));
}

bool OdemeYaz(const Dosyalar& dosyalar, const Metin& yol, const std::vector<Odeme>& odemeler,
              const Koken& koken) {
    if (!GunuVar(yol) || !koken.Yazilir())
        return false;
    if (!odemeler.empty())
        return dosyalar.Yaz(yol, OdemeBayt(odemeler));
    if (dosyalar.Sil(yol) || !dosyalar.VarMi(yol))
        return true;
    // A file that can't be removed must not bring the payments back.
    dosyalar.Yaz(yol, {});
    return false;
}

bool OdemeHazirla(const Dosyalar& dosyalar, const Metin& yol) {
    return GunuVar(yol) && dosyalar.Ekle(yol, {});
}

bool RezervasyonTasi(const Dosyalar& dosyalar, const Metin& kaynak, const Metin& hedef) {
    if (!GunuVar(kaynak) || !GunuVar(hedef))
        return false;
    std::array<Kopyalanis, kRezervasyonEkleri.size()> kopyalar{};
    for (std::size_t i = 0; i < kopyalar.size(); ++i)
        kopyalar[i] =
            dosyalar.Kopyala(kaynak + Metin(kRezervasyonEkleri[i]), hedef + Metin(kRezervasyonEkleri[i]));
    // What has no copy stays where it is.
    for (std::size_t i = 0; i < kopyalar.size(); ++i)
        if (kopyalar[i] != Kopyalanis::Olmadi)
            dosyalar.Sil(kaynak + Metin(kRezervasyonEkleri[i]));
    return true;
}

bool RezervasyonSil(const Dosyalar& dosyalar, const Metin& yol) {
    if (!GunuVar(yol))
        return false;
    for (const MetinBakis ek : kRezervasyonEkleri)
        dosyalar.Sil(yol + Metin(ek));
    return true;
}

} // namespace velora
