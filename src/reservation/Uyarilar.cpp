// Reservations whose day is near: the scan over all halls and years, and the panel on the table that shows
// it.
#include "reservation/Uyarilar.h"

#include <algorithm>

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

ListeSatiri SatirYap(const Metin& ad, const Metin& salon, const Metin& yol, const AnaDegerler& ana,
                     const UyariTuru& tur) {
    return {{ad, salon, ana.No(AnaNo::AdiSoyadi), ana.No(AnaNo::GelinDamat), ana.No(AnaNo::Telefon),
             ana.No(AnaNo::Cep), Metin(tur.ad)},
            yol,
            tur.renk,
            tur.kalin};
}

} // namespace

void UyariTaramasi::KlasorEkle(const Metin& salon, const Metin& klasor) {
    for (Metin& ad : dosyalar_.Listele(klasor))
        if (GunDosyasiDeseni(ad))
            adlar_.push_back({klasorler_.size(), std::move(ad)});
    klasorler_.push_back({salon, klasor});
}

Metin UyariTaramasi::Yol(std::size_t sira) const {
    const Ad& ad = adlar_[sira];
    return klasorler_[ad.klasor].yol + kAyrac + ad.metin;
}

/// Brings the values from where they stood before the name `ilk` to behind the name `sira`. Files fill from
/// the first value on, so the latest of them come first and the ones before only add what is missing.
template <class Degerler, class Oku>
void UyariTaramasi::Yurut(Degerler& hal, std::size_t ilk, std::size_t sira, const Oku& oku) const {
    std::size_t dolu = 0;
    for (std::size_t i = sira + 1; i > ilk && dolu < hal.deger.size(); --i) {
        Degerler okunan;
        const auto adet = static_cast<std::size_t>(oku(Yol(i - 1), okunan).value_or(0));
        for (; dolu < adet; ++dolu)
            hal.deger[dolu] = std::move(okunan.deger[dolu]);
    }
}

std::vector<ListeSatiri> UyariTaramasi::Satirlar(const Gun& bugun, const UyariSuresi& sure) const {
    std::vector<ListeSatiri> satirlar;
    AnaDegerler ana;
    DetayDegerler detay;
    std::size_t ilk = 0; // the values stand as before this name
    int kalan = 0;       // a name without a date keeps the days of the name before it
    const double enCok = std::max(sure.kesin, sure.on);
    for (std::size_t i = 0; i < adlar_.size(); ++i) {
        const Ad& ad = adlar_[i];
        if (const auto gun = TarihCoz(AnahtarTarihi(ad.metin)))
            kalan = static_cast<int>((std::chrono::sys_days(*gun) - std::chrono::sys_days(bugun)).count());
        if (kalan <= 0 || kalan > enCok || EslikDosyasi(ad.metin))
            continue;
        Yurut(ana, ilk, i, [this](const Metin& yol, AnaDegerler& d) { return AnaOku(dosyalar_, yol, d); });
        Yurut(detay, ilk, i, [this](const Metin& yol, DetayDegerler& d) {
            return DetayOku(dosyalar_, yol + Metin(kDetayEki), d);
        });
        ilk = i + 1;
        for (const UyariTuru& tur : kTurler)
            if (kalan <= sure.*tur.sure && detay.No(tur.isaret) == u"1" &&
                ana.No(AnaNo::YaklasincaHatirlat) == u"1" &&
                !(tur.sifirCiftsiz && ana.No(AnaNo::GelinDamat) == u"0"))
                satirlar.push_back(SatirYap(ad.metin, klasorler_[ad.klasor].salon, Yol(i), ana, tur));
    }
    return satirlar;
}

} // namespace velora
