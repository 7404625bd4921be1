#include "documents/FormPrint2.h"

#include "documents/SozlesmeParcalari.h"

namespace velora {

namespace {

constexpr SayfaYazisi kBaslikYazisi{12, true};

void MenuAdiKoy(SayfaAkisi& akis, const FormPrint2& sayfa) {
    const AlanBicimi ustteki{{13, true}, Hiza::Orta, 9};
    const AlanBicimi alttaki{{14, false}, Hiza::Orta, 9};
    std::vector<SayfaParcasi> blok;
    blok.push_back(akis.Parca(u"Label19", sayfa.Label19.baslik,
                              {0, 0, SayfaAkisi::kEn, SatirBoyu(ustteki.yazi)}, ustteki));
    blok.push_back(akis.Parca(u"Label4", sayfa.Label4.baslik,
                              {0, EnAlt(blok) + 1, SayfaAkisi::kEn, SatirBoyu(alttaki.yazi)}, alttaki));
    akis.Koy(std::move(blok));
}

/// A heading and the text under it, which may be empty: its place stays.
struct BaslikliMetin {
    MetinBakis baslikAdi;
    MetinBakis baslik;
    MetinBakis ad;
    MetinBakis metin;
};

void MetniKoy(SayfaAkisi& akis, const BaslikliMetin& bolum, const SayfaDuzeni& duzen) {
    const SayfaYazisi yazi{duzen.punto, false};
    akis.YerAc(SatirBoyu(kBaslikYazisi) + 2 * SatirBoyu(yazi));
    akis.Akit(Metin(bolum.baslikAdi), bolum.baslik, kBaslikYazisi);
    akis.Bosluk(1);
    if (bolum.metin.empty())
        akis.Bosluk(SatirBoyu(yazi));
    akis.Akit(Metin(bolum.ad), bolum.metin, yazi);
    akis.Bosluk(duzen.ara);
}

void MenuyuDiz(SayfaAkisi& akis, const FormPrint2& sayfa, const SayfaDuzeni& duzen) {
    akis.Koy({UnvanParcasi(akis, sayfa.Unvan.baslik, SayfaAkisi::kEn)});
    MenuAdiKoy(akis, sayfa);
    akis.Bosluk(duzen.ara);
    for (const BaslikliMetin& bolum :
         {BaslikliMetin{u"", u"Açıklama", u"Label20", sayfa.Label20.baslik},
          BaslikliMetin{u"Label3", sayfa.Label3.baslik, u"OzelIstekler", sayfa.OzelIstekler.baslik},
          BaslikliMetin{u"Label2", sayfa.Label2.baslik, u"Onaciklama", sayfa.Onaciklama.baslik}})
        MetniKoy(akis, bolum, duzen);
    akis.Bosluk(duzen.ara);
    ImzalariKoy(akis, sayfa.Label34.baslik, sayfa.Label28.baslik);
}

} // namespace

FormPrint2::FormPrint2(Program& /*program*/) {
    Label19.baslik = u"Menü Bilgileri";
    Label3.baslik = u"Özel İstekler";
    Label2.baslik = u"Ön Açıklama";
    Label34.baslik = u"Kiraya Veren İmza";
    Label28.baslik = u"Kiralayan İmza";
}

std::vector<Sayfa> FormPrint2::Sayfalar(const YaziOlcer& olcer) const {
    return EnIyiDuzende(
        olcer, {}, [this](SayfaAkisi& akis, const SayfaDuzeni& duzen) { MenuyuDiz(akis, *this, duzen); });
}

} // namespace velora
