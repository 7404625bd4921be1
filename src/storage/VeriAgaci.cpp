#include "storage/VeriAgaci.h"

#include <algorithm>

namespace velora {
namespace {

constexpr std::array<MetinBakis, 2> kEslikSonlari{u"Detay", u"Odeme"};

/// A name that holds the separator stays one name: as "/" no system takes it, so that such a path is refused.
Metin Ekle(MetinBakis klasor, MetinBakis ad) {
    Metin yol;
    yol.reserve(klasor.size() + 1 + ad.size());
    yol += klasor;
    yol += kAyrac;
    const auto bas = static_cast<std::ptrdiff_t>(yol.size());
    yol += ad;
    std::replace(yol.begin() + bas, yol.end(), kAyrac, u'/');
    return yol;
}

} // namespace

MetinBakis DilimEki(GunduzGece dilim) {
    return dilim == GunduzGece::Gunduz ? u" - Gündüz" : u" - Gece";
}

Metin AyEki(unsigned ay) {
    return u'.' + IkiHane(ay) + u'.';
}

Metin GunAnahtari(unsigned gun, unsigned ay, MetinBakis yil, GunduzGece dilim) {
    Metin ad = IkiHane(gun) + AyEki(ay);
    ad += yil;
    ad += DilimEki(dilim);
    return ad;
}

Metin AnahtarTarihi(MetinBakis ad) {
    Metin tarih(Parca(ad, 1, 2));
    tarih += u'.';
    tarih += Parca(ad, 4, 2);
    tarih += u'.';
    tarih += AnahtarYili(ad);
    return tarih;
}

Metin AnahtarYili(MetinBakis ad) {
    return Metin(Parca(ad, 7, 4));
}

GunduzGece AnahtarDilimi(MetinBakis ad) {
    return Son(ad, 3) == u"düz" ? GunduzGece::Gunduz : GunduzGece::Gece;
}

bool EslikDosyasi(MetinBakis ad) {
    return std::ranges::any_of(kEslikSonlari, [&](MetinBakis son) { return ad.ends_with(son); });
}

bool EslikDosyasi(const KlasorOkumasi& okuma, std::size_t sira) {
    return std::ranges::any_of(kEslikSonlari, [&](MetinBakis son) { return okuma.Biter(sira, son); }) ||
           EslikDosyasi(okuma[sira]);
}

bool GunDosyasiDeseni(MetinBakis ad) {
    return ad.size() >= 3 && u'0' <= ad[0] && ad[0] <= u'3' && ad[2] == u'.';
}

Metin VeriAgaci::KokYolu(MetinBakis ad) const {
    return Ekle(dosyalar_.Kok(), ad);
}

Metin VeriAgaci::SalonKlasoru(MetinBakis salon) const {
    return Ekle(dosyalar_.Kok(), salon);
}

Metin VeriAgaci::YilKlasoru(MetinBakis salon, MetinBakis yil) const {
    return Ekle(SalonKlasoru(salon), yil);
}

Metin VeriAgaci::GunYolu(MetinBakis salon, MetinBakis yil, MetinBakis gunAnahtari) const {
    return GunYolu(YilKlasoru(salon, yil), gunAnahtari);
}

Metin VeriAgaci::GunYolu(MetinBakis yilKlasoru, MetinBakis gunAnahtari) {
    return Ekle(yilKlasoru, gunAnahtari);
}

bool VeriAgaci::RezervasyonVarMi(const Metin& yol) const {
    return dosyalar_.VarMi(yol);
}

void VeriAgaci::KlasorHazirla(MetinBakis salon, MetinBakis yil) const {
    dosyalar_.KlasorYap(SalonKlasoru(salon));
    dosyalar_.KlasorYap(YilKlasoru(salon, yil));
}

} // namespace velora
