#include "storage/xls/Xls.h"

#include <algorithm>
#include <bit>
#include <optional>

#include "storage/xls/Baytlar.h"
#include "storage/xls/BilesikDosya.h"
#include "storage/xls/HucreMetni.h"
#include "storage/xls/Kayitlar.h"

namespace velora {

namespace {

constexpr std::size_t kEnCokSatir = 65536; // of a sheet, the headings included
constexpr std::size_t kEnCokSutun = 256;
constexpr MetinBakis kSayfaAdi = u"Sayfa";

/// How a cell looks: the places of the formats in the file. The first fifteen are for the program's own
/// styles, the next is that of an empty cell.
enum Bicim : std::uint16_t {
    BosBicim = 15,
    BaslikBicimi,
    SayiBasligi,
    MetinBicimi,
    SatirliBicim,
    UzunBicim,
    SayiBicimi,
    KurusBicimi
};

enum YaziTipi : std::uint16_t { DuzYazi, KalinYazi };

// Numbers of formats that every program knows.
constexpr std::uint16_t kGenel = 0;
constexpr std::uint16_t kIkiHane = 2; // "0.00"
constexpr std::uint16_t kYazi = 49;   // "@": a text stays one when it is edited
// A cell of that format with a longer text shows "####" in some programs.
constexpr std::size_t kEnUzunYazi = 255;

constexpr std::uint16_t kSistemYazisi = 64; // numbers of colours
constexpr std::uint16_t kSistemZemini = 65;
constexpr std::uint16_t kSari = 13;

constexpr std::uint16_t kSatirlaraBol = 0x0008;
constexpr std::uint16_t kSaga = 0x0003;

void YaziTipiEkle(std::string& akis, bool kalin) {
    constexpr MetinBakis kAd = u"Arial";
    std::string ad;
    SayiEkle(ad, static_cast<std::uint8_t>(kAd.size()));
    SayiEkle(ad, std::uint8_t{1}); // two bytes for each unit
    MetinEkle(ad, kAd);
    constexpr std::uint16_t kBoy = 200; // ten points
    constexpr std::uint16_t kKendiRengi = 0x7FFF;
    constexpr std::uint16_t kTurkHarfleri = 162; // its letters
    const std::uint16_t agirlik = kalin ? 700 : 400;
    XlsKaydiEkle(akis, XlsKaydi::YaziTipi, {kBoy, 0, kKendiRengi, agirlik, 0, 0, kTurkHarfleri}, ad);
}

struct BicimTanimi {
    YaziTipi yazi = DuzYazi;
    std::uint16_t sayiBicimi = kGenel;
    std::uint16_t hiza = 0;
    bool sari = false;
};

void BicimEkle(std::string& akis, const BicimTanimi& tanim, bool bicem = false) {
    constexpr std::uint16_t kDolu = 0x0400;    // the ground is painted all over
    constexpr std::uint16_t kKilitli = 0x0001; // counts only on a protected sheet
    constexpr std::uint16_t kBicem = 0xFFF5;
    // What a cell says itself; a style tells instead what it leaves alone.
    const std::uint16_t soyledigi = bicem ? 0xF400 : 0x7C00;
    const auto zemin = static_cast<std::uint16_t>((tanim.sari ? kSari : kSistemYazisi) | kSistemZemini << 7U);
    XlsKaydiEkle(akis, XlsKaydi::HucreBicimi,
                 {tanim.yazi, tanim.sayiBicimi, bicem ? kBicem : kKilitli, tanim.hiza, soyledigi, 0, 0, 0,
                  tanim.sari ? kDolu : std::uint16_t{0}, zemin});
}

/// In the order of `Bicim`, behind the styles.
void BicimleriEkle(std::string& akis) {
    constexpr std::uint16_t kAlttaDuz = 0x0020; // stands at the lower edge
    for (int i = 0; i < BosBicim; ++i)
        BicimEkle(akis, {.hiza = kAlttaDuz}, true);
    BicimEkle(akis, {.hiza = kAlttaDuz});
    for (const std::uint16_t hiza : {std::uint16_t{0}, kSaga})
        BicimEkle(akis, {.yazi = KalinYazi, .sayiBicimi = kYazi, .hiza = hiza, .sari = true});
    BicimEkle(akis, {.sayiBicimi = kYazi});
    BicimEkle(akis, {.sayiBicimi = kYazi, .hiza = kSatirlaraBol});
    BicimEkle(akis, {.hiza = kSatirlaraBol});
    BicimEkle(akis, {});
    BicimEkle(akis, {.sayiBicimi = kIkiHane});
    XlsKaydiEkle(akis, XlsKaydi::Bicem, {0x8000, 0xFF00}); // the first one is the plain style
}

void BasEkle(std::string& akis, bool sayfa) {
    const std::uint16_t tur = sayfa ? 0x0010 : 0x0005;
    XlsKaydiEkle(akis, XlsKaydi::Bas, {0x0600, tur, 0x0DBB, 0x07CC, 0x0041, 0, 0x0006, 0});
}

std::uint16_t MetninBicimi(MetinBakis metin) {
    if (metin.size() > kEnUzunYazi)
        return UzunBicim;
    return metin.find_first_of(u"\r\n") == MetinBakis::npos ? MetinBicimi : SatirliBicim;
}

/// One sheet: its rows, and how wide its columns have to be.
class XlsSayfasi {
  public:
    XlsSayfasi(const XlsTablosu& tablo, XlsMetinleri& metinler) : tablo_(tablo), metinler_(metinler) {}

    std::string Yaz(std::span<const std::span<const Metin>> satirlar, bool ilk) {
        SatirEkle(tablo_.basliklar, true);
        for (const auto& satir : satirlar)
            SatirEkle(satir, false);
        std::string akis;
        BasEkle(akis, true);
        BaskiEkle(akis);
        EnleriEkle(akis);
        const auto satirSayisi = static_cast<std::uint32_t>(satir_);
        const auto alt = static_cast<std::uint16_t>(satirSayisi & 0xFFFFU);
        const auto ust = static_cast<std::uint16_t>(satirSayisi >> 16U);
        XlsKaydiEkle(akis, XlsKaydi::Boyutlar,
                     {0, 0, alt, ust, 0, static_cast<std::uint16_t>(enler_.size()), 0});
        akis += hucreler_;
        GorunumEkle(akis, ilk);
        XlsKaydiEkle(akis, XlsKaydi::Son, {});
        return akis;
    }

  private:
    void SatirEkle(std::span<const Metin> hucreler, bool baslik) {
        const auto satir = static_cast<std::uint16_t>(satir_++);
        hucreler = hucreler.first(std::min(hucreler.size(), kEnCokSutun));
        enler_.resize(std::max(enler_.size(), hucreler.size()));
        std::string kayitlar;
        std::size_t boy = 1;
        for (std::size_t i = 0; i < hucreler.size(); ++i)
            if (!hucreler[i].empty())
                boy = std::max(
                    boy, HucreEkle(kayitlar, {satir, static_cast<std::uint16_t>(i), baslik}, hucreler[i]));
        if (boy > 1)
            BoyEkle(satir, boy);
        hucreler_ += kayitlar;
    }

    struct HucreYeri {
        std::uint16_t satir;
        std::uint16_t sutun;
        bool baslik;
    };

    std::uint16_t BasliginBicimi(std::size_t sutun) const {
        return SayiSutunu(sutun) ? SayiBasligi : BaslikBicimi;
    }

    /// Returns how many lines the cell takes.
    std::size_t HucreEkle(std::string& akis, const HucreYeri& yer, MetinBakis metin) {
        const XlsMetinBoyu boy = XlsBoyu(metin);
        enler_[yer.sutun] = std::max(enler_[yer.sutun], boy.en);
        if (const auto sayi = !yer.baslik && SayiSutunu(yer.sutun) ? DuzSayi(metin) : std::nullopt) {
            const bool kurus = metin.find(u'.') != MetinBakis::npos;
            std::string bayt;
            SayiEkle(bayt, std::bit_cast<std::uint64_t>(*sayi));
            XlsKaydiEkle(akis, XlsKaydi::SayiHucresi,
                         {yer.satir, yer.sutun, kurus ? KurusBicimi : SayiBicimi}, bayt);
            return 1;
        }
        const std::uint16_t bicim = yer.baslik ? BasliginBicimi(yer.sutun) : MetninBicimi(metin);
        const std::uint32_t no = metinler_.No(metin);
        XlsKaydiEkle(akis, XlsKaydi::MetinHucresi,
                     {yer.satir, yer.sutun, bicim, static_cast<std::uint16_t>(no & 0xFFFFU),
                      static_cast<std::uint16_t>(no >> 16U)});
        return bicim == SatirliBicim || bicim == UzunBicim ? boy.satir : 1;
    }

    /// Other rows get their height by the program that opens them.
    void BoyEkle(std::uint16_t satir, std::size_t satirSayisi) {
        constexpr std::size_t kSatirBoyu = 255; // twentieths of a point
        constexpr std::size_t kEnUzunBoy = 409 * 20;
        constexpr std::uint16_t kHerZaman = 0x0100; // a bit that is always set
        const auto boy = static_cast<std::uint16_t>(std::min(satirSayisi * kSatirBoyu, kEnUzunBoy));
        XlsKaydiEkle(hucreler_, XlsKaydi::Satir,
                     {satir, 0, static_cast<std::uint16_t>(enler_.size()), boy, 0, 0, kHerZaman, BosBicim});
    }

    bool SayiSutunu(std::size_t sutun) const {
        return std::ranges::find(tablo_.sayiSutunlari, static_cast<int>(sutun)) != tablo_.sayiSutunlari.end();
    }

    /// On paper: A4 across, as many pages below each other as it takes, none beside another.
    static void BaskiEkle(std::string& akis) {
        constexpr std::uint16_t kKagidaSigdir = 0x0100;
        XlsKaydiEkle(akis, XlsKaydi::SayfaDuzeni, {kKagidaSigdir});
        constexpr std::uint16_t kA4 = 9;
        constexpr std::uint16_t kYuzde = 100;
        constexpr std::uint16_t kNokta = 600; // of an inch
        constexpr double kKenar = 0.5;        // inches, of what stands above and below the page's text
        std::string bayt;
        for (int i = 0; i < 2; ++i)
            SayiEkle(bayt, std::bit_cast<std::uint64_t>(kKenar));
        SayiEkle(bayt, std::uint16_t{1}); // copies
        XlsKaydiEkle(akis, XlsKaydi::BaskiDuzeni, {kA4, kYuzde, 1, 1, 0, 0, kNokta, kNokta}, bayt);
    }

    void EnleriEkle(std::string& akis) const {
        constexpr std::size_t kEnDar = 80; // all in tenths of a digit
        constexpr std::size_t kPay = 20;
        constexpr std::size_t kBirim = 256; // of a digit in the file
        for (std::size_t i = 0; i < enler_.size(); ++i) {
            const std::size_t en = (std::clamp(enler_[i], kEnDar, kEnGenisXlsSutunu) + kPay) * kBirim / 10;
            const auto sutun = static_cast<std::uint16_t>(i);
            XlsKaydiEkle(akis, XlsKaydi::SutunEni,
                         {sutun, sutun, static_cast<std::uint16_t>(en), BosBicim, 0, 0});
        }
    }

    /// How the sheet stands in its window: the headings keep their place when it is scrolled.
    static void GorunumEkle(std::string& akis, bool ilk) {
        // Grid, headings and zeros are seen; one pane doesn't move.
        constexpr std::uint16_t kDonuk = 0x01BE;
        constexpr std::uint16_t kSecili = 0x0600;
        const auto durum = static_cast<std::uint16_t>(kDonuk | (ilk ? kSecili : 0U));
        XlsKaydiEkle(akis, XlsKaydi::SayfaPenceresi, {durum, 0, 0, kSistemYazisi, 0, 0, 0, 0, 0});
        constexpr std::uint16_t kUst = 3; // numbers of the panes
        constexpr std::uint16_t kAlt = 2;
        XlsKaydiEkle(akis, XlsKaydi::Bolme, {0, 1, 1, 0, kAlt});
        SecimEkle(akis, kUst, 0);
        SecimEkle(akis, kAlt, 1);
    }

    /// The first cell of a row is marked in a pane.
    static void SecimEkle(std::string& akis, std::uint16_t bolme, std::uint16_t satir) {
        std::string bayt(1, static_cast<char>(bolme));
        for (const std::uint16_t sayi :
             {satir, std::uint16_t{0}, std::uint16_t{0}, std::uint16_t{1}, satir, satir})
            SayiEkle(bayt, sayi);
        SayiEkle(bayt, std::uint16_t{0}); // from the first column to the first
        XlsKaydiEkle(akis, XlsKaydi::Secim, {}, bayt);
    }

    const XlsTablosu& tablo_;
    XlsMetinleri& metinler_;
    std::string hucreler_;
    std::vector<std::size_t> enler_; // as `XlsMetinBoyu` counts
    std::size_t satir_ = 0;
};

std::string SayfaKaydi(std::size_t yer, std::size_t sira) {
    const Metin ad = Metin(kSayfaAdi) + SayiMetni(static_cast<std::ptrdiff_t>(sira) + 1);
    std::string bayt;
    SayiEkle(bayt, static_cast<std::uint32_t>(yer));
    SayiEkle(bayt, std::uint16_t{0});
    SayiEkle(bayt, static_cast<std::uint8_t>(ad.size()));
    SayiEkle(bayt, std::uint8_t{1}); // two bytes for each unit
    MetinEkle(bayt, ad);
    std::string akis;
    XlsKaydiEkle(akis, XlsKaydi::Sayfa, {}, bayt);
    return akis;
}

std::string KitapBasi(std::size_t sayfaSayisi) {
    constexpr std::uint16_t kUtf16 = 1200;
    std::string akis;
    BasEkle(akis, false);
    XlsKaydiEkle(akis, XlsKaydi::KodSayfasi, {kUtf16});
    XlsKaydiEkle(
        akis, XlsKaydi::Pencere,
        {0x0168, 0x010E, 0x5C99, 0x3AA8, 0x0038, 0, 0, static_cast<std::uint16_t>(sayfaSayisi > 0), 0x0258});
    for (const bool kalin : {false, true, false, false}) // programs count on four
        YaziTipiEkle(akis, kalin);
    BicimleriEkle(akis);
    return akis;
}

} // namespace

std::string XlsYaz(const XlsTablosu& tablo, const std::function<void()>& arada) {
    XlsMetinleri metinler;
    std::vector<std::string> sayfalar;
    std::span<const std::span<const Metin>> kalan = tablo.satirlar;
    do {
        const std::size_t adet = std::min(kalan.size(), kEnCokSatir - 1);
        sayfalar.push_back(XlsSayfasi(tablo, metinler).Yaz(kalan.first(adet), sayfalar.empty()));
        kalan = kalan.subspan(adet);
        arada();
    } while (!kalan.empty());

    std::string akis = KitapBasi(sayfalar.size());
    std::string sonu;
    metinler.Yaz(sonu);
    XlsKaydiEkle(sonu, XlsKaydi::Son, {});
    std::size_t yer = akis.size() + sonu.size();
    for (std::size_t i = 0; i < sayfalar.size(); ++i)
        yer += SayfaKaydi(0, i).size();
    for (std::size_t i = 0; i < sayfalar.size(); ++i) {
        akis += SayfaKaydi(yer, i);
        yer += sayfalar[i].size();
    }
    akis += sonu;
    for (const std::string& sayfa : sayfalar)
        akis += sayfa;
    return BilesikDosya(u"Workbook", std::move(akis));
}

} // namespace velora
