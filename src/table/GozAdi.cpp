// What is said of a cell: on the hover label, and to those who can't see the table.
#include <algorithm>

#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "storage/Tarih.h"
#include "table/FormTablo.h"
#include "table/HucreRenkleri.h"

namespace velora {

namespace {

struct DurumAdi {
    int zemin; // slot of the colour list
    MetinBakis ad;
};

/// The states by their back colours. Where two have the same, the free one holds, as for the menu of a cell.
std::array<DurumAdi, 6> Durumlar(GunduzGece dilim) {
    const SatirRenkleri& renkler = Renkler(dilim);
    return {{{renkler.bos.zemin, u"Boş"},
             {renkler.haftaSonu.zemin, u"Boş, hafta sonu"},
             {kTatilRengi.zemin, u"Boş, tatil"},
             {renkler.kesin.zemin, u"Kesin rezervasyon"},
             {renkler.on.zemin, u"Ön rezervasyon"},
             {kGecmisRengi.zemin, u"Geçmiş"}}};
}

} // namespace

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
    const auto durumlar = Durumlar(dilim);
    const auto rengi = [&](const DurumAdi& durum) { return ayarlar->Renk(durum.zemin) == hucre.zemin; };
    if (const auto durum = std::ranges::find_if(durumlar, rengi); durum != durumlar.end())
        ad += u", " + Metin(durum->ad);
    return ad;
}

} // namespace velora
