#include "table/YilOkumasi.h"

#include <algorithm>
#include <optional>

#include "storage/KodSayfasi.h"
#include "storage/RezervasyonDosyalari.h"
#include "storage/YazimBicimi.h"

namespace velora {

namespace {

struct AdYeri {
    int ay;
    int gun;
    GunduzGece dilim;
    bool detay;
    bool tam; ///< the name to the letter, not in another case
};

/// Two digits as a number, -1 when they are none.
int IkiHaneCoz(MetinBakis metin) {
    const auto hane = [](char16_t harf) { return harf >= u'0' && harf <= u'9' ? harf - u'0' : -100; };
    return std::max(-1, 10 * hane(metin[0]) + hane(metin[1]));
}

/// The place in the table that a file name stands for, when it is the day file name of that year or its
/// details.
std::optional<AdYeri> AdiYerlestir(MetinBakis dosyaAdi, MetinBakis yil) {
    // Whoever asks for the name finds it with these at its end, too.
    const MetinBakis ad = dosyaAdi.substr(0, dosyaAdi.find_last_not_of(u". ") + 1);
    if (ad.size() <= kTarihUzunlugu || ad[2] != u'.' || ad[5] != u'.' || Parca(ad, 7, 4) != yil)
        return std::nullopt;
    AdYeri yer{IkiHaneCoz(ad.substr(3)), IkiHaneCoz(ad), GunduzGece::Gunduz, false, false};
    if (yer.ay < 1 || yer.ay > kAySayisi || yer.gun < 1 || yer.gun > kGunSayisi)
        return std::nullopt;
    const MetinBakis kuyruk = ad.substr(kTarihUzunlugu);
    for (const auto dilim : {GunduzGece::Gunduz, GunduzGece::Gece}) {
        const MetinBakis ek = DilimEki(dilim);
        if (kuyruk.size() < ek.size() || !AyniAd(kuyruk.substr(0, ek.size()), ek))
            continue;
        yer.dilim = dilim;
        yer.detay = kuyruk.size() > ek.size();
        yer.tam = ad.size() == dosyaAdi.size() && kuyruk.starts_with(ek) &&
                  (!yer.detay || kuyruk.ends_with(kDetayEki));
        if (!yer.detay || AyniAd(kuyruk.substr(ek.size()), kDetayEki))
            return yer;
    }
    return std::nullopt;
}

/// Of names that differ only in case the one to the letter counts, else the first. False: it doesn't.
bool AdiAl(bool tam, DilimAdi& ad) {
    const DilimAdi yeni = tam ? DilimAdi::Tam : DilimAdi::Baska;
    if (yeni <= ad)
        return false;
    ad = yeni;
    return true;
}

bool BirMi(std::string_view deger) {
    return deger == "1";
}

} // namespace

void AnaParcasi::Uygula(HatirlatmaDegerleri& degerler) const {
    if (adet >= AnaNo::HatirlatmaTarihi)
        degerler.bugun = hatirlatma.bugun;
    if (adet >= AnaNo::BuTarihteHatirlat)
        degerler.isaretli = hatirlatma.isaretli;
}

YilOkumasi::YilOkumasi(const Dosyalar& dosyalar, const Metin& klasor, MetinBakis yil, MetinBakis bugun)
    : yil_(yil), bugun_(KodYaz(bugun)) {
    dosyalar.KlasoruOku(klasor, [this](const Dosyalar::OkunanDosya& dosya) { Ekle(dosya); });
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
    // A file that another one stands before is read, but it is no reservation of this table.
    if (dilim != nullptr && !AdiAl(yer->tam, yer->detay ? dilim->detayAdi : dilim->anaAdi))
        dilim = nullptr;
    DegerOkuyucu okuyucu(dosya.bayt);
    if (dilim == nullptr || yer->detay)
        dosyalari_.push_back(AnaOkumasi(okuyucu));
    else
        dosyalari_.push_back(AnaEkle(okuyucu, *dilim));
    if (dilim != nullptr && yer->detay)
        DetayEkle(okuyucu, *dilim);
}

AnaParcasi YilOkumasi::AnaOkumasi(DegerOkuyucu& okuyucu) const {
    AnaParcasi parca;
    parca.adet = okuyucu.Atla(AnaNo::HatirlatmaTarihi - 1);
    std::string_view deger;
    for (int no = AnaNo::HatirlatmaTarihi; no <= kAnaDegerSayisi && okuyucu.Oku(deger); ++no)
        DegerAl(no, deger, parca);
    return parca;
}

/// The details, from behind what was read of them as of a main record.
void YilOkumasi::DetayEkle(DegerOkuyucu& okuyucu, DilimOkumasi& dilim) {
    constexpr int kArasi = DetayNo::OnRezervasyon - kAnaDegerSayisi - 1;
    std::string_view deger;
    dilim.onVar = okuyucu.Atla(kArasi) == kArasi && okuyucu.Oku(deger);
    dilim.on = dilim.onVar && BirMi(deger);
}

AnaParcasi YilOkumasi::AnaEkle(DegerOkuyucu& okuyucu, DilimOkumasi& dilim) {
    dilim.dolu = true;
    dilim.ana = {};
    dilim.ilkDeger = static_cast<std::uint32_t>(sonlar_.size() - 1);
    std::string_view deger;
    auto tag = kTagDegerleri.begin();
    for (int no = 1; no <= kAnaDegerSayisi && okuyucu.Oku(deger); ++no) {
        DegerAl(no, deger, dilim.ana);
        if (tag == kTagDegerleri.end() || no != *tag)
            continue;
        havuz_ += deger;
        sonlar_.push_back(static_cast<std::uint32_t>(havuz_.size()));
        ++tag;
    }
    return dilim.ana;
}

void YilOkumasi::DegerAl(int no, std::string_view deger, AnaParcasi& parca) const {
    parca.adet = no;
    if (no == AnaNo::HatirlatmaTarihi)
        parca.hatirlatma.bugun = deger == bugun_;
    if (no == AnaNo::BuTarihteHatirlat)
        parca.hatirlatma.isaretli = BirMi(deger);
}

void YilOkumasi::TagDegerleri(const DilimOkumasi& dilim,
                              std::array<Metin, kTagDegerleri.size()>& hedef) const {
    for (std::size_t i = 0; i < kTagDegerleri.size() && kTagDegerleri[i] <= dilim.ana.adet; ++i) {
        const std::uint32_t bas = sonlar_[dilim.ilkDeger + i];
        const std::uint32_t son = sonlar_[dilim.ilkDeger + i + 1];
        KodCoz(std::string_view(havuz_).substr(bas, son - bas), hedef[i]);
    }
}

} // namespace velora
