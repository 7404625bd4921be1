#include "documents/FormPrint2.h"

#include "documents/SozlesmeParcalari.h"

namespace velora {

namespace {

constexpr SayfaYazisi kBaslikYazisi{11, true};

void MenuAdiKoy(SayfaAkisi& akis, const FormPrint2& sayfa) {
    const AlanBicimi ustteki{{12, true}, Hiza::Orta, 9};
    const AlanBicimi alttaki{{14, false}, Hiza::Orta, 9};
    std::vector<SayfaParcasi> blok;
    blok.push_back(akis.Parca(u"Label19", sayfa.Label19.baslik,
                              {0, 0, SayfaAkisi::kEn, SatirBoyu(ustteki.yazi)}, ustteki));
    blok.push_back(akis.Parca(u"Label4", sayfa.Label4.baslik,
                              {0, EnAlt(blok) + 1, SayfaAkisi::kEn, SatirBoyu(alttaki.yazi)}, alttaki));
    akis.Koy(std::move(blok));
    akis.Bosluk(kBlokArasi);
}

/// A heading and the text under it, which may be empty: its place stays.
void MetniKoy(SayfaAkisi& akis, const Metin& baslikAdi, MetinBakis baslik, const Metin& ad, MetinBakis metin,
              double punto) {
    const SayfaYazisi yazi{punto, false};
    akis.YerAc(SatirBoyu(kBaslikYazisi) + 2 * SatirBoyu(yazi));
    akis.Akit(baslikAdi, baslik, kBaslikYazisi);
    if (metin.empty())
        akis.Bosluk(SatirBoyu(yazi));
    akis.Akit(ad, metin, yazi);
    akis.Bosluk(kBlokArasi);
}

SayfaAkisi MenuyuDiz(const FormPrint2& sayfa, const YaziOlcer& olcer, double punto) {
    SayfaAkisi akis(olcer);
    akis.Koy({UnvanParcasi(akis, sayfa.Unvan.baslik, SayfaAkisi::kEn)});
    akis.Bosluk(kBlokArasi);
    MenuAdiKoy(akis, sayfa);
    MetniKoy(akis, u"", u"Açıklama", u"Label20", sayfa.Label20.baslik, punto);
    MetniKoy(akis, u"Label3", sayfa.Label3.baslik, u"OzelIstekler", sayfa.OzelIstekler.baslik, punto);
    MetniKoy(akis, u"Label2", sayfa.Label2.baslik, u"Onaciklama", sayfa.Onaciklama.baslik, punto);
    akis.Bosluk(kBlokArasi);
    ImzalariKoy(akis, sayfa.Label34.baslik, sayfa.Label28.baslik);
    return akis;
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
    return EnIyiBoyda([&](double punto) { return MenuyuDiz(*this, olcer, punto); });
}

} // namespace velora
