#include "online/YayinKosusu.h"

#include <algorithm>

#include "screen/Inet.h"
#include "screen/Program.h"

namespace velora {

namespace {

/// yyyy-mm-dd, of dd-mm-yyyy.
Metin GidenTarih(MetinBakis gun) {
    Metin tarih(gun.substr(6));
    tarih.append(u"-").append(Parca(gun, 4, 2)).append(u"-").append(Parca(gun, 1, 2));
    return tarih;
}

} // namespace

YayinKosusu::YayinKosusu(Program& program, Yayin yayin) : program_(program), yayin_(std::move(yayin)) {
    const Yayin& y = yayin_;
    const Metin salonNo = SayiMetni(y.salonNo);
    const Adresler adresler = AdresleriOku(program);
    const auto ekle = [&](Istek istek, std::initializer_list<Metin> degerler) {
        istekler_.push_back({istek, IstekAdresi(adresler, istek, degerler)});
    };
    ekle(Istek::Temizle, {y.anahtar, salonNo, y.sene});
    for (const Metin& salon : y.salonlar)
        ekle(Istek::SalonEkle, {y.anahtar, salon});
    for (const YayinGozu& goz : y.gozler)
        ekle(Istek::Save, {y.anahtar, salonNo, y.salon, GidenTarih(goz.gun), goz.dilim, goz.durum, y.sene});
}

void YayinKosusu::Ilerle() {
    if (sira_ == istekler_.size() || !suren_.bitti())
        return;
    const Siradaki& siradaki = istekler_[sira_++];
    // A service that nobody knows the place of has no address.
    if (siradaki.adres.empty())
        return;
    // A slot that is told twice is the same slot. All else could do harm the second time.
    suren_ = program_.ortam.ag.Gonder(
        {.adres = siradaki.adres, .sure = kIstekSuresi, .baglantiKalsin = siradaki.istek == Istek::Save});
}

void YayinKosusu::Adim(const std::function<bool()>& birak) {
    Ilerle();
    // Kept here: a turn may send the next one.
    const Gonderim suren = suren_;
    suren.bekle(birak);
}

int YayinKosusu::GidenGoz() const {
    const std::size_t once = istekler_.size() - yayin_.gozler.size();
    return static_cast<int>(std::max(sira_, once) - once);
}

} // namespace velora
