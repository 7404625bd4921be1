// What is said of a cell: on the hover label, and to those who can't see the table.
#include <algorithm>

#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "storage/Tarih.h"
#include "table/FormTablo.h"
#include "table/HucreRenkleri.h"

namespace velora {

std::array<DurumTanimi, 6> Durumlar(GunduzGece dilim) {
    const SatirRenkleri& renkler = Renkler(dilim);
    return {{{GozDurumu::Bos, renkler.bos.zemin, u"Boş"},
             {GozDurumu::HaftaSonu, renkler.haftaSonu.zemin, u"Boş, hafta sonu"},
             {GozDurumu::Tatil, kTatilRengi.zemin, u"Boş, tatil"},
             {GozDurumu::Kesin, renkler.kesin.zemin, u"Kesin rezervasyon"},
             {GozDurumu::On, renkler.on.zemin, u"Ön rezervasyon"},
             {GozDurumu::Gecmis, kGecmisRengi.zemin, u"Geçmiş"}}};
}

DurumTanimi Durum(GozDurumu durum, GunduzGece dilim) {
    return Durumlar(dilim)[static_cast<std::size_t>(durum)];
}

std::optional<GozDurumu> FormTablo::Durumu(SatirAdi satir, int gun) const {
    const auto ayarlar = program_.FormAyarlar.Tut();
    const auto durumlar = Durumlar(SatirDilimi(satir));
    const auto bu = std::ranges::find_if(durumlar, [&](const DurumTanimi& durum) {
        return ayarlar->Renk(durum.zemin) == Gozu(satir, gun).zemin;
    });
    return bu == durumlar.end() ? std::nullopt : std::optional(bu->durum);
}

Metin FormTablo::GozTarihi(SatirAdi satir, int gun) const {
    return IkiHane(static_cast<unsigned>(gun)) + AyEki(static_cast<unsigned>(SatirAyi(satir))) + Sene.Metni();
}

Metin FormTablo::EtiketMetni(SatirAdi satir, int gun) const {
    const Metin tarih = GozTarihi(satir, gun);
    return tarih + u"\n " + Bicimle(tarih, u"dddd") + Metin(DilimEki(SatirDilimi(satir))) + u" ";
}

Metin FormTablo::GozAdi(SatirAdi satir, int gun) const {
    const Hucre& hucre = Gozu(satir, gun);
    if (!hucre.gorunur)
        return {};
    const auto ayarlar = program_.FormAyarlar.Tut();
    const auto dilim = SatirDilimi(satir);
    Metin ad = SayiMetni(gun) + u" " + ayarlar->Aylar[SatirAyi(satir)].baslik + u" " + Sene.Metni() + u" " +
               Bicimle(GozTarihi(satir, gun), u"dddd") +
               (dilim == velora::GunduzGece::Gunduz ? u", Gündüz" : u", Gece");
    if (const auto durum = Durumu(satir, gun))
        ad += u", " + Metin(Durum(*durum, dilim).ad);
    return ad;
}

} // namespace velora
