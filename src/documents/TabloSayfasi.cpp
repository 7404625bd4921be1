#include "documents/TabloSayfasi.h"

#include <algorithm>
#include <array>

#include "documents/FormTabloPrint.h"
#include "documents/Karsitlik.h"
#include "documents/SayfaAkisi.h"
#include "storage/Tarih.h"

namespace velora {

namespace {

// All lengths are millimetres, all sizes of letters points.
constexpr double kSayfaIci = kSayfaBoyu - 2 * kTabloKenari; // the sheet lies on its side
constexpr double kSayfaIciBoyu = kSayfaEni - 2 * kTabloKenari;

constexpr double kAyEni = 23;
constexpr double kDilimEni = 12;
constexpr double kGunEni = (kSayfaIci - kAyEni - kDilimEni) / kGunSayisi;
constexpr double kGunBoyu = 6;       // of the day heads
constexpr double kAyArasi = 0.8;     // between two months
constexpr double kBlokArasi = 2;     // above and under the table
constexpr double kEnAzSatir = 4.4;   // a row that is lower can't be read well
constexpr double kIsaretEni = 2.6;   // of a mark, at the right of its cell
constexpr double kYaziBoslugu = 0.5; // free at both sides of a text in its cell, together
constexpr double kLevhaPayi = 0.3;   // of the ground that shows around the shade under a text
constexpr double kOrnekEni = 6;      // of a cell in the legend

constexpr SayfaYazisi kTabloIsaretYazisi{11, true};
constexpr double kTabloBaslikPuntosu = 10;
constexpr double kGunAdi = 8;
constexpr double kEnKucukTabloYazisi = 3;

/// How small the texts around the table may get before its rows get lower instead, tried in turn.
constexpr std::array kCevreYazilari{8.0, 5.0, 3.0};

constexpr RenkDegeri kCizgiRengi = 0x707070;

Metin Isaret(BaskiIsareti isaret) {
    return isaret == BaskiIsareti::Kesin ? u"●" : isaret == BaskiIsareti::On ? u"○" : u"";
}

/// What a cell's part is called: its day without the year, and its slot.
Metin GozParcasiAdi(SatirAdi satir, int gun) {
    return IkiHane(static_cast<unsigned>(gun)) + u"." + IkiHane(static_cast<unsigned>(SatirAyi(satir))) +
           Metin(DilimEki(SatirDilimi(satir)));
}

/// Fills the sheet; places count from the upper left corner of what the margins leave.
class TabloYazari {
  public:
    TabloYazari(const FormTabloPrint& tablo, const YaziOlcer& olcer)
        : tablo_(tablo), olcer_(olcer), akis_(olcer) {}

    Sayfa Yaz() {
        std::vector<SayfaParcasi> bas;
        std::vector<SayfaParcasi> alt;
        for (const double enKucuk : kCevreYazilari) {
            bas = Bas(enKucuk);
            alt = Alt(enKucuk);
            satir_ = (kSayfaIciBoyu - EnAlt(bas) - EnAlt(alt) - 2 * kBlokArasi - kGunBoyu -
                      (kAySayisi - 1) * kAyArasi) /
                     kSatirSayisi;
            if (satir_ >= kEnAzSatir)
                break;
        }
        const double tabloUstu = EnAlt(bas) + kBlokArasi;
        const double altUstu = kSayfaIciBoyu - EnAlt(alt);
        Ekle(std::move(bas), 0);
        ust_ = tabloUstu;
        Gunler();
        Aylar();
        Ekle(std::move(alt), altUstu);
        for (SayfaParcasi& parca : sayfa_.parcalar) {
            parca.yer.sol += kTabloKenari;
            parca.yer.ust += kTabloKenari;
        }
        return std::move(sayfa_);
    }

  private:
    SayfaParcasi Metne(Metin ad, const Etiket& etiket, const SayfaYeri& yer, const AlanBicimi& bicim) const {
        return akis_.Parca(std::move(ad), etiket.baslik, yer, bicim);
    }
    std::vector<SayfaParcasi> Bas(double enKucuk) const;
    std::vector<SayfaParcasi> Alt(double enKucuk) const;
    void Aciklamalar(std::vector<SayfaParcasi>& blok) const;

    void Ekle(std::vector<SayfaParcasi> blok, double ust) {
        for (SayfaParcasi& parca : blok) {
            parca.yer.ust += ust;
            sayfa_.parcalar.push_back(std::move(parca));
        }
    }
    void Kutu(Metin ad, const SayfaYeri& yer, RenkDegeri zemin) {
        sayfa_.parcalar.push_back(KutuParcasi(std::move(ad), yer, zemin));
    }
    static SayfaParcasi KutuParcasi(Metin ad, const SayfaYeri& yer, RenkDegeri zemin) {
        SayfaParcasi kutu{.tur = ParcaTuru::Cerceve, .ad = std::move(ad), .yer = yer};
        kutu.renk = kCizgiRengi;
        kutu.zemin = zemin;
        return kutu;
    }
    /// One line in the middle of its place.
    static SayfaParcasi Ortada(Metin ad, Metin metin, const SayfaYeri& yer, const SayfaYazisi& yazi,
                               RenkDegeri renk) {
        const double boy = SatirBoyu(yazi);
        SayfaParcasi parca{.ad = std::move(ad), .yer = {yer.sol, yer.ust + (yer.boy - boy) / 2, yer.en, boy}};
        parca.yazi = yazi;
        parca.hiza = Hiza::Orta;
        parca.satirlar = {std::move(metin)};
        parca.renk = renk;
        return parca;
    }
    /// The size in which each of the texts goes on a line of its place.
    SayfaYazisi SiganYazi(const std::vector<Metin>& metinler, double en, double boy, SayfaYazisi yazi) const;

    void Gunler();
    void Aylar();
    void AyBasligi(int ay, double ust, const SayfaYazisi& adYazisi, const SayfaYazisi& dilimYazisi);
    void Goz(SatirAdi satir, int gun, double ust);
    SatirAdi SatirNo(int ay, int sira) const {
        return Satir(ay, (sira == 0) == tablo_.gunduzUstte[ay] ? GunduzGece::Gunduz : GunduzGece::Gece);
    }
    static double GunSolu(int gun) { return kAyEni + kDilimEni + (gun - 1) * kGunEni; }

    const FormTabloPrint& tablo_;
    const YaziOlcer& olcer_;
    SayfaAkisi akis_;
    Sayfa sayfa_{Yon::Yatay};
    double ust_ = 0;   // of the table
    double satir_ = 0; // the height of a row
    SayfaYazisi gunYazisi_;
    SayfaYazisi isaretYazisi_;
};

std::vector<SayfaParcasi> TabloYazari::Bas(double enKucuk) const {
    const AlanBicimi unvan{{16, true}, Hiza::Orta, enKucuk};
    const AlanBicimi salon{{12, true}, Hiza::Orta, enKucuk};
    std::vector<SayfaParcasi> blok{
        Metne(u"Unvan", tablo_.Unvan, {0, 0, kSayfaIci, SatirBoyu(unvan.yazi)}, unvan)};
    blok.push_back(Metne(u"Salon", tablo_.Salon, {0, EnAlt(blok), kSayfaIci, SatirBoyu(salon.yazi)}, salon));
    return blok;
}

std::vector<SayfaParcasi> TabloYazari::Alt(double enKucuk) const {
    constexpr double kTarihEni = 62;
    const AlanBicimi not_{{10, false}, Hiza::Sol, std::min(7.0, enKucuk)};
    const double boy = SatirBoyu(not_.yazi);
    std::vector<SayfaParcasi> blok;
    Aciklamalar(blok);
    const AlanBicimi tarih{not_.yazi, Hiza::Sag, not_.enKucuk};
    blok.push_back(Metne(u"Tarih", tablo_.Tarih, {kSayfaIci - kTarihEni, 0, kTarihEni, boy}, tarih));
    blok.push_back(Metne(u"Label1", tablo_.Label1, {0, EnAlt(blok) + 1, kSayfaIci, boy}, not_));
    if (!tablo_.Label2.baslik.empty())
        blok.push_back(Metne(u"Label2", tablo_.Label2, {0, EnAlt(blok), kSayfaIci, boy}, not_));
    return blok;
}

void TabloYazari::Aciklamalar(std::vector<SayfaParcasi>& blok) const {
    constexpr double kAciklamaEni = 46;
    constexpr double kAciklamaBoyu = 5;
    constexpr SayfaYazisi kYazi{10, false};
    double sol = 0;
    for (const BaskiAciklamasi& aciklama : tablo_.aciklamalar) {
        for (const RenkDegeri zemin : aciklama.zeminler) {
            const SayfaYeri yer{sol, 0, kOrnekEni, kAciklamaBoyu};
            blok.push_back(KutuParcasi(u"Aciklama", yer, zemin));
            blok.push_back(
                Ortada(u"Aciklama", Isaret(aciklama.isaret), yer, kTabloIsaretYazisi, OneCikan(zemin)));
            sol += kOrnekEni;
        }
        SayfaParcasi ad =
            Ortada(u"Aciklama", aciklama.ad, {sol + 2, 0, kAciklamaEni, kAciklamaBoyu}, kYazi, 0);
        ad.hiza = Hiza::Sol;
        blok.push_back(std::move(ad));
        sol += 2 + kAciklamaEni;
    }
}

SayfaYazisi TabloYazari::SiganYazi(const std::vector<Metin>& metinler, double en, double boy,
                                   SayfaYazisi yazi) const {
    constexpr double kPuntoAdimi = 0.25;
    const auto sigar = [&](const Metin& metin) { return olcer_(metin, yazi) <= en - kYaziBoslugu; };
    while (yazi.punto > kEnKucukTabloYazisi &&
           (SatirBoyu(yazi) > boy || !std::ranges::all_of(metinler, sigar)))
        yazi.punto -= kPuntoAdimi;
    return yazi;
}

void TabloYazari::Gunler() {
    std::vector<Metin> metinler;
    for (const Etiket& gun : tablo_.ALabel)
        metinler.push_back(gun.baslik);
    const SayfaYazisi yazi = SiganYazi(metinler, kGunEni, kGunBoyu, {kTabloBaslikPuntosu, true});
    for (int gun = 1; gun <= kGunSayisi; ++gun) {
        const Etiket& baslik = tablo_.ALabel[gun];
        const SayfaYeri yer{GunSolu(gun), ust_, kGunEni, kGunBoyu};
        Kutu(u"Gunler", yer, baslik.zemin);
        sayfa_.parcalar.push_back(Ortada(u"ALabel", baslik.baslik, yer, yazi, baslik.yazi));
    }
}

void TabloYazari::Aylar() {
    std::vector<Metin> aylar;
    std::vector<Metin> gunler;
    for (const Etiket& ay : tablo_.AyAdi)
        aylar.push_back(ay.baslik);
    for (const auto& satir : tablo_.satirlar)
        for (const BaskiGozu& goz : satir)
            if (goz.gorunur && std::ranges::find(gunler, goz.baslik) == gunler.end())
                gunler.push_back(goz.baslik);
    const SayfaYazisi ayYazisi = SiganYazi(aylar, kAyEni, 2 * satir_, {kTabloBaslikPuntosu, true});
    const SayfaYazisi dilimYazisi = SiganYazi({u"Gündüz", u"Gece"}, kDilimEni, satir_, {kGunAdi, false});
    gunYazisi_ = SiganYazi(gunler, kGunEni - kIsaretEni, satir_, {kGunAdi, false});
    isaretYazisi_ = SiganYazi({Isaret(BaskiIsareti::Kesin), Isaret(BaskiIsareti::On)}, kIsaretEni, satir_,
                              kTabloIsaretYazisi);
    for (int ay = 1; ay <= kAySayisi; ++ay) {
        const double ust = ust_ + kGunBoyu + (ay - 1) * (2 * satir_ + kAyArasi);
        AyBasligi(ay, ust, ayYazisi, dilimYazisi);
        for (int sira = 0; sira < 2; ++sira)
            for (int gun = 1; gun <= kGunSayisi; ++gun)
                Goz(SatirNo(ay, sira), gun, ust + sira * satir_);
    }
}

void TabloYazari::AyBasligi(int ay, double ust, const SayfaYazisi& adYazisi, const SayfaYazisi& dilimYazisi) {
    const Etiket& zemin = tablo_.AyZemin[ay];
    const Etiket& ad = tablo_.AyAdi[ay];
    if (zemin.gorunur)
        Kutu(u"AyZemin", {0, ust, kAyEni + kDilimEni, 2 * satir_}, zemin.zemin);
    if (!ad.gorunur)
        return;
    sayfa_.parcalar.push_back(Ortada(u"AyAdi", ad.baslik, {0, ust, kAyEni, 2 * satir_}, adYazisi, ad.yazi));
    for (int sira = 0; sira < 2; ++sira) {
        const bool gunduz = SatirDilimi(SatirNo(ay, sira)) == GunduzGece::Gunduz;
        sayfa_.parcalar.push_back(Ortada(u"GunduzGece", gunduz ? u"Gündüz" : u"Gece",
                                         {kAyEni, ust + sira * satir_, kDilimEni, satir_}, dilimYazisi,
                                         ad.yazi));
    }
}

void TabloYazari::Goz(SatirAdi satir, int gun, double ust) {
    const BaskiGozu& goz = tablo_.Gozu(satir, gun);
    if (!goz.gorunur)
        return;
    const Metin ad = GozParcasiAdi(satir, gun);
    const SayfaYeri yer{GunSolu(gun), ust, kGunEni, satir_};
    Kutu(ad, yer, goz.zemin);
    const bool isaretli = goz.isaret != BaskiIsareti::Yok;
    SayfaYeri yaziYeri = yer;
    if (isaretli)
        yaziYeri.en -= kIsaretEni;
    if (const auto ton = OkunurZemin(goz.yazi, goz.zemin)) {
        const SayfaYeri levha{yaziYeri.sol + kLevhaPayi, ust + kLevhaPayi, yaziYeri.en - 2 * kLevhaPayi,
                              satir_ - 2 * kLevhaPayi};
        Kutu(ad, levha, *ton);
        sayfa_.parcalar.back().renk = *ton;
    }
    sayfa_.parcalar.push_back(Ortada(ad, goz.baslik, yaziYeri, gunYazisi_, goz.yazi));
    if (isaretli)
        sayfa_.parcalar.push_back(Ortada(ad, Isaret(goz.isaret), {yaziYeri.Sag(), ust, kIsaretEni, satir_},
                                         isaretYazisi_, OneCikan(goz.zemin)));
}

} // namespace

Sayfa TabloSayfasi(const FormTabloPrint& tablo, const YaziOlcer& olcer) {
    return TabloYazari(tablo, olcer).Yaz();
}

} // namespace velora
