// Reservations whose day is near: the scan over all halls and years, and the panel on the table that shows
// it.
#include "reservation/Uyarilar.h"

#include <algorithm>
#include <utility>

#include "storage/RezervasyonDosyalari.h"
#include "storage/Tarih.h"
#include "storage/VeriAgaci.h"

namespace velora {

namespace {

struct UyariTuru {
    MetinBakis ad;
    int isaret; ///< of the values of the details: "1" when the record is of this kind
    double UyariSuresi::*sure;
    bool sifirCiftsiz; ///< a couple that is just "0" isn't listed
    RenkDegeri renk;
    bool kalin;
};
/// The question about the couple is asked of firm reservations alone, as is meant.
constexpr std::array<UyariTuru, 2> kTurler{
    {{u"Kesin", DetayNo::KesinRezervasyon, &UyariSuresi::kesin, true, 0, false},
     {u"Ön", DetayNo::OnRezervasyon, &UyariSuresi::on, false, kOnUyariRengi, true}}};

/// The day that the first letters of a name stand for.
std::optional<Gun> AnahtarGunu(MetinBakis tarih) {
    const bool yazili = tarih.size() == kTarihUzunlugu && tarih[5] == u'.';
    return yazili ? TarihCoz(tarih) : TarihCoz(AnahtarTarihi(tarih));
}

ListeSatiri SatirYap(const Metin& ad, const Metin& salon, const Metin& yol, const UyariAna& ana,
                     const UyariTuru& tur) {
    return {Sutunlar(ad, salon, ana.No(AnaNo::AdiSoyadi), ana.No(AnaNo::GelinDamat), ana.No(AnaNo::Telefon),
                     ana.No(AnaNo::Cep), tur.ad),
            yol, tur.renk, tur.kalin};
}

} // namespace

void UyariTaramasi::KlasorEkle(const Metin& salon, const Metin& klasor) {
    klasorler_.push_back(klasor);
    KlasorOkumasi okuma = dosyalar_.KlasorAc(klasor);
    if (!Onemli(okuma))
        return;
    for (std::size_t i = 0; i < okuma.Sayi(); ++i) {
        if (!KalanYakin(kalan_) && okuma.BasiAyni(i, kTarihUzunlugu))
            continue; // not near, as the one before it
        const MetinBakis bakilan = okuma[i];
        if (!GunDosyasiDeseni(bakilan) || !Yakin(bakilan))
            continue;
        const Metin ad(bakilan);
        Oku(okuma, i);
        SatirlariEkle(ad, salon);
    }
}

int UyariTaramasi::KalanGun(const Gun& gun) const {
    return static_cast<int>((std::chrono::sys_days(gun) - std::chrono::sys_days(bugun_)).count());
}

bool UyariTaramasi::KalanYakin(int kalan) const {
    return kalan > 0 && kalan <= std::max(sure_.kesin, sure_.on);
}

/// Whether a name of the folder may give a row, or change what another one gives. Of most folders none does.
bool UyariTaramasi::Onemli(const KlasorOkumasi& okuma) {
    bool gunluVar = false;
    const bool onemli = okuma.BiriUyar(kTarihUzunlugu, [&](MetinBakis bas) {
        if (!GunDosyasiDeseni(bas))
            return false;
        const auto gun = AnahtarGunu(bas);
        gunluVar = gunluVar || gun;
        return !gun || KalanYakin(KalanGun(*gun));
    });
    // A name without a date that follows in another folder keeps a day that is not near.
    if (!onemli && gunluVar) {
        kalan_ = 0;
        tarih_.clear();
    }
    return onemli;
}

/// Whether the name is one of a reservation whose day is near.
bool UyariTaramasi::Yakin(MetinBakis ad) {
    // The names of a day stand one behind the other.
    if (const MetinBakis tarih = Parca(ad, 1, kTarihUzunlugu); tarih != tarih_) {
        tarih_ = tarih;
        if (const auto gun = AnahtarGunu(tarih))
            kalan_ = KalanGun(*gun);
    }
    return KalanYakin(kalan_) && !EslikDosyasi(ad);
}

void UyariTaramasi::Oku(KlasorOkumasi& okuma, std::size_t sira) {
    Yurut(ana_, okuma, sira, [](KlasorOkumasi& o, std::size_t i) { return o.Oku(i); });
    Yurut(detay_, okuma, sira, [](KlasorOkumasi& o, std::size_t i) { return o.EsiniOku(i, kDetayEki); });
    ilk_ = {klasorler_.size() - 1, sira + 1};
}

/// Brings the values from where they stood before the name `ilk_` to behind this one. Files fill from the
/// first value on, so the latest of them come first and the ones before only add what is missing.
template <class Degerler, class Dosya>
void UyariTaramasi::Yurut(Degerler& hal, KlasorOkumasi& okuma, std::size_t sira, const Dosya& dosya) const {
    std::size_t dolu = 0;
    const std::size_t yeter = hal.deger.size();
    const auto klasorde = [&](KlasorOkumasi& o, std::size_t son, std::size_t ilk) {
        for (std::size_t i = son; i > ilk && dolu < yeter; --i) {
            const auto bayt = GunDosyasiDeseni(o[i - 1]) ? dosya(o, i - 1) : std::nullopt;
            Degerler okunan;
            const std::size_t adet = bayt ? DegerleriAl(*bayt, okunan) : 0;
            for (; dolu < adet; ++dolu)
                hal.deger[dolu] = std::move(okunan.deger[dolu]);
        }
    };
    const std::size_t bu = klasorler_.size() - 1;
    klasorde(okuma, sira + 1, bu == ilk_.klasor ? ilk_.sira : 0);
    for (std::size_t k = bu; k > ilk_.klasor && dolu < yeter; --k) {
        KlasorOkumasi onceki = dosyalar_.KlasorAc(klasorler_[k - 1]);
        klasorde(onceki, onceki.Sayi(), k - 1 == ilk_.klasor ? ilk_.sira : 0);
    }
}

void UyariTaramasi::SatirlariEkle(const Metin& ad, const Metin& salon) {
    for (const UyariTuru& tur : kTurler)
        if (kalan_ <= sure_.*tur.sure && detay_.No(tur.isaret) == u"1" &&
            ana_.No(AnaNo::YaklasincaHatirlat) == u"1" &&
            !(tur.sifirCiftsiz && ana_.No(AnaNo::GelinDamat) == u"0"))
            satirlar_.push_back(SatirYap(ad, salon, klasorler_.back() + kAyrac + ad, ana_, tur));
}

} // namespace velora
