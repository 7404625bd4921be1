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

/// The year of a day that is surely one, whatever the month: told without a calendar. None for the few
/// others.
std::optional<int> AcikYil(MetinBakis tarih) {
    constexpr MetinBakis kDesen = u"00.00.0000";
    constexpr int kHerAyinSonu = 28;
    constexpr int kSonAy = 12;
    const auto uyar = [](char16_t harf, char16_t desen) {
        return desen == u'0' ? u'0' <= harf && harf <= u'9' : harf == desen;
    };
    if (!std::ranges::equal(tarih, kDesen, uyar))
        return {};
    const auto iki = [&](std::size_t yer) { return (tarih[yer] - u'0') * 10 + (tarih[yer + 1] - u'0'); };
    const int gun = iki(0);
    const int ay = iki(3);
    const int yil = iki(6) * 100 + iki(8);
    const bool acik = 1 <= gun && gun <= kHerAyinSonu && 1 <= ay && ay <= kSonAy && yil > 0;
    return acik ? std::optional(yil) : std::nullopt;
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

/// The year of the last day that is near.
int UyariTaramasi::SonYil() const {
    constexpr double kEnUzun = 3'660'000; // beyond the last year that a name can tell
    const auto gun = static_cast<int>(std::clamp(std::max(sure_.kesin, sure_.on), 0.0, kEnUzun));
    return static_cast<int>(Gun(std::chrono::sys_days(bugun_) + std::chrono::days(gun)).year());
}

/// Whether a name of the folder may give a row, or change what another one gives. Of most folders none does.
bool UyariTaramasi::Onemli(const KlasorOkumasi& okuma) {
    bool gunluVar = false;
    const auto ilkYil = static_cast<int>(bugun_.year());
    const int sonYil = SonYil();
    const bool onemli = okuma.BiriUyar(kTarihUzunlugu, [&](MetinBakis bas) {
        if (!GunDosyasiDeseni(bas))
            return false;
        // The folders of other years hold most of all names.
        if (const auto yil = AcikYil(bas); yil && (*yil < ilkYil || *yil > sonYil)) {
            gunluVar = true;
            return false;
        }
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
