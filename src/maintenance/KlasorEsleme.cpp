#include "maintenance/KlasorEsleme.h"

#include <algorithm>
#include <cstdint>

namespace velora {

namespace {

using sistem::Oge;
using sistem::OgeBilgisi;

/// What a copy is called until it is whole. One that a crash has left is no file of anybody's.
const std::filesystem::path kYarimAd = ".velora-yarim";

/// A difference of less than a second is none: not every disk keeps more.
int ZamanFarki(const OgeBilgisi& kaynak, const OgeBilgisi& hedef) {
    constexpr std::int64_t kSaniye = 1'000'000'000;
    const std::int64_t fark = (kaynak.degisme - hedef.degisme) / kSaniye;
    return fark > 0 ? EslemeDurumu::KaynakYeni : fark < 0 ? EslemeDurumu::HedefYeni : 0;
}

int Durum(const OgeBilgisi& kaynak, const OgeBilgisi& hedef) {
    int durum = ZamanFarki(kaynak, hedef);
    if (kaynak.ozellik != hedef.ozellik)
        durum |= EslemeDurumu::OzellikFarkli;
    if (kaynak.boy != hedef.boy)
        durum |= EslemeDurumu::BoyFarkli;
    return durum;
}

enum class KopyaYeri { Yok, Hedefe, Geri };

KopyaYeri KopyalanacakYer(int durum) {
    constexpr int kZaman = EslemeDurumu::KaynakYeni | EslemeDurumu::HedefYeni;
    if (durum == EslemeDurumu::Ayni || durum == EslemeDurumu::OzellikFarkli)
        return KopyaYeri::Yok;
    if (durum == EslemeDurumu::YalnizKaynakta)
        return KopyaYeri::Hedefe;
    if (durum == EslemeDurumu::YalnizHedefte || (durum & kZaman) == EslemeDurumu::HedefYeni)
        return KopyaYeri::Geri;
    return KopyaYeri::Hedefe;
}

} // namespace

KlasorIcerigi KlasoruListele(const std::filesystem::path& klasor) {
    KlasorIcerigi icerik = sistem::Ogeler(klasor);
    std::erase_if(icerik, [](const Oge& oge) { return oge.ad == kYarimAd.native(); });
    std::ranges::sort(icerik, {}, &Oge::ad);
    return icerik;
}

void EslemeSirasi::HedeftekiniGec() {
    if (DosyaMi(hedef_.front()))
        yalnizHedefte_.push_back(&hedef_.front());
    hedef_ = hedef_.subspan(1);
}

std::optional<EslemeSirasi::Satir> EslemeSirasi::Sonraki() {
    while (!kaynak_.empty()) {
        const Oge& oge = kaynak_.front();
        kaynak_ = kaynak_.subspan(1);
        if (!DosyaMi(oge))
            continue;
        int sira = -1;
        while (!hedef_.empty() && (sira = hedef_.front().ad.compare(oge.ad)) < 0)
            HedeftekiniGec();
        if (hedef_.empty() || sira != 0 || !DosyaMi(hedef_.front()))
            return Satir{oge, EslemeDurumu::YalnizKaynakta};
        const Oge& es = hedef_.front();
        hedef_ = hedef_.subspan(1);
        return Satir{oge, Durum(oge.bilgi, es.bilgi)};
    }
    while (!hedef_.empty())
        HedeftekiniGec();
    if (geriye_ == yalnizHedefte_.size())
        return {};
    return Satir{*yalnizHedefte_[geriye_++], EslemeDurumu::YalnizHedefte};
}

DosyaEslemesi::DosyaEslemesi(const Klasor& kaynak, const Klasor& hedef, bool ikiYonlu)
    : sira_(kaynak.icerik, hedef.icerik), ileri_(kaynak.yol, hedef.yol, kYarimAd),
      geri_(hedef.yol, kaynak.yol, kYarimAd), ikiYonlu_(ikiYonlu) {}

bool DosyaEslemesi::Adim() {
    const auto satir = sira_.Sonraki();
    if (!satir)
        return false;
    const KopyaYeri yon = KopyalanacakYer(satir->durum);
    if (yon == KopyaYeri::Hedefe)
        ileri_.Kopyala(satir->oge.ad);
    else if (yon == KopyaYeri::Geri && ikiYonlu_)
        geri_.Kopyala(satir->oge.ad);
    return true;
}

} // namespace velora
