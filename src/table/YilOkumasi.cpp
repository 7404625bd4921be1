#include "table/YilOkumasi.h"

#include <algorithm>
#include <optional>

#include "storage/KodSayfasi.h"
#include "storage/RezervasyonDosyalari.h"
#include "storage/YazimBicimi.h"

namespace velora {

namespace {

constexpr int kHatirlatmaTarihi = 18;
constexpr int kHatirlatmaIsareti = 20;
constexpr int kOnRezervasyon = 37;
constexpr std::size_t kTarihUzunlugu = 10;

struct AdYeri {
    int ay;
    int gun;
    GunduzGece dilim;
    bool detay;
};

/// Two digits as a number, -1 when they are none.
int IkiHaneCoz(MetinBakis metin) {
    const auto hane = [](char16_t harf) { return harf >= u'0' && harf <= u'9' ? harf - u'0' : -100; };
    return std::max(-1, 10 * hane(metin[0]) + hane(metin[1]));
}

/// The place in the table that a file name stands for, when it is the day file name of that year or its
/// details.
std::optional<AdYeri> AdiYerlestir(MetinBakis ad, MetinBakis yil) {
    if (ad.size() <= kTarihUzunlugu || ad[2] != u'.' || ad[5] != u'.' || Parca(ad, 7, 4) != yil)
        return std::nullopt;
    AdYeri yer{IkiHaneCoz(ad.substr(3)), IkiHaneCoz(ad), GunduzGece::Gunduz, false};
    if (yer.ay < 1 || yer.ay > kAySayisi || yer.gun < 1 || yer.gun > kGunSayisi)
        return std::nullopt;
    const MetinBakis kuyruk = ad.substr(kTarihUzunlugu);
    for (const auto dilim : {GunduzGece::Gunduz, GunduzGece::Gece}) {
        const MetinBakis ek = DilimEki(dilim);
        yer.dilim = dilim;
        if (AyniAd(kuyruk, ek))
            return yer;
        yer.detay = kuyruk.size() > ek.size() && AyniAd(kuyruk.substr(0, ek.size()), ek) &&
                    AyniAd(kuyruk.substr(ek.size()), kDetayEki);
        if (yer.detay)
            return yer;
    }
    return std::nullopt;
}

bool BirMi(std::string_view deger) {
    return deger == "1";
}

} // namespace

void AnaParcasi::Uygula(HatirlatmaDegerleri& degerler) const {
    if (adet >= kHatirlatmaTarihi)
        degerler.bugun = hatirlatma.bugun;
    if (adet >= kHatirlatmaIsareti)
        degerler.isaretli = hatirlatma.isaretli;
}

YilOkumasi::YilOkumasi(const Dosyalar& dosyalar, const Metin& klasor, MetinBakis yil, MetinBakis bugun)
    : yil_(yil), bugun_(KodYaz(bugun)) {
    dosyalar.KlasoruOku(klasor, kEnCokBayt, [this](const Dosyalar::OkunanDosya& dosya) { Ekle(dosya); });
}

const DilimOkumasi& YilOkumasi::Dilim(int ay, int gun, GunduzGece dilim) const {
    return dilimler_[static_cast<std::size_t>(ay - 1)][static_cast<std::size_t>(gun - 1)]
                    [static_cast<std::size_t>(dilim)];
}

void YilOkumasi::Ekle(const Dosyalar::OkunanDosya& dosya) {
    DilimOkumasi* dilim = nullptr;
    const auto yer = AdiYerlestir(dosya.ad, yil_);
    if (yer)
        dilim = &dilimler_[static_cast<std::size_t>(yer->ay - 1)][static_cast<std::size_t>(yer->gun - 1)]
                          [static_cast<std::size_t>(yer->dilim)];
    if (dilim != nullptr && yer->detay) {
        DetayEkle(dosya.bayt, *dilim);
        dilim = nullptr;
    }
    dosyalari_.push_back(AnaEkle(dosya.bayt, dilim));
}

void YilOkumasi::DetayEkle(std::string_view bayt, DilimOkumasi& dilim) const {
    DegerOkuyucu okuyucu(bayt);
    std::string_view deger;
    dilim.onVar = okuyucu.Atla(kOnRezervasyon - 1) == kOnRezervasyon - 1 && okuyucu.Oku(deger);
    dilim.on = dilim.onVar && BirMi(deger);
}

AnaParcasi YilOkumasi::AnaEkle(std::string_view bayt, DilimOkumasi* dilim) {
    if (dilim != nullptr) {
        dilim->dolu = true;
        dilim->ilkDeger = static_cast<std::uint32_t>(sonlar_.size() - 1);
    }
    AnaParcasi parca;
    DegerOkuyucu okuyucu(bayt);
    std::string_view deger;
    auto tag = kTagDegerleri.begin();
    while (parca.adet < kAnaDegerSayisi && okuyucu.Oku(deger)) {
        ++parca.adet;
        if (parca.adet == kHatirlatmaTarihi)
            parca.hatirlatma.bugun = deger == bugun_;
        if (parca.adet == kHatirlatmaIsareti)
            parca.hatirlatma.isaretli = BirMi(deger);
        if (dilim != nullptr && tag != kTagDegerleri.end() && parca.adet == *tag) {
            havuz_ += deger;
            sonlar_.push_back(static_cast<std::uint32_t>(havuz_.size()));
            ++tag;
        }
    }
    if (dilim != nullptr)
        dilim->ana = parca;
    return parca;
}

void YilOkumasi::TagDegerleri(const DilimOkumasi& dilim,
                              std::array<Metin, kTagDegerleri.size()>& hedef) const {
    for (std::size_t i = 0; i < kTagDegerleri.size() && kTagDegerleri[i] <= dilim.ana.adet; ++i) {
        const std::uint32_t bas = sonlar_[dilim.ilkDeger + i];
        const std::uint32_t son = sonlar_[dilim.ilkDeger + i + 1];
        hedef[i] = KodCoz(std::string_view(havuz_).substr(bas, son - bas));
    }
}

} // namespace velora
