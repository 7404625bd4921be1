#include "documents/FormPrint.h"

#include <array>
#include <span>

#include "documents/SayfaAkisi.h"
#include "documents/Senet.h"

namespace velora {

namespace {

constexpr MetinBakis kYerTutucu = u"xxx";
constexpr double kAra = 4; // between two blocks, in millimetres

// The clauses in points: from their best size down to one that can still be read.
constexpr double kEnBuyukMadde = 11;
constexpr double kEnKucukMadde = 8;
constexpr double kMaddeAdimi = 0.5;

/// A line of the details: a caption, and the field beside it.
struct BilgiSatiri {
    MetinBakis ad;
    MetinBakis baslik;
    Etiket FormPrint::*alan;
    int satir = 1; ///< lines that stand free for it
};

constexpr std::array kSolBilgiler{
    BilgiSatiri{u"CSalon", u"Salon İsmi", &FormPrint::CSalon},
    BilgiSatiri{u"CTuru", u"Rezervasyon Türü", &FormPrint::CTuru},
    BilgiSatiri{u"CTarihi", u"Rezervasyon Tarihi", &FormPrint::CTarihi},
    BilgiSatiri{u"CSaati", u"Rezervasyon Saati ", &FormPrint::CSaati},
    BilgiSatiri{u"Cdavetli", u"Davetli Sayısı", &FormPrint::Cdavetli},
    BilgiSatiri{u"CTutar", u"Toplam Ücret", &FormPrint::CTutar},
    BilgiSatiri{u"COdenen", u"Ödenen Peşinat  ", &FormPrint::COdenen},
    BilgiSatiri{u"CKalan", u"Kalan Ücret", &FormPrint::CKalan},
};
constexpr std::array kSagBilgiler{
    BilgiSatiri{u"Ctcno", u"T.C.Kimlik No", &FormPrint::Ctcno},
    BilgiSatiri{u"CAdi", u"Adı - Soyadı ", &FormPrint::CAdi},
    BilgiSatiri{u"CGelin", u"Gelin ve Damat ", &FormPrint::CGelin},
    BilgiSatiri{u"CYore", u"Yöresi", &FormPrint::CYore},
    BilgiSatiri{u"CTel", u"Telefon", &FormPrint::CTel},
    BilgiSatiri{u"CCep", u"Cep", &FormPrint::CCep},
    BilgiSatiri{u"CAdres", u"Adres", &FormPrint::CAdres, 3},
};

// The two columns of the details and of the signatures, from the edge of the text.
constexpr double kSutunEni = 88;
constexpr double kSagSutun = SayfaAkisi::kEn - kSutunEni;

/// The name of the firm in the middle, date and number at the right.
void BasiKoy(SayfaAkisi& akis, const FormPrint& sayfa) {
    constexpr double kUnvanEni = 90;
    constexpr double kKoseEni = 42;
    constexpr SayfaYeri kUnvanYeri{(SayfaAkisi::kEn - kUnvanEni) / 2, 0, kUnvanEni, 14};
    const AlanBicimi buyuk{{18, true}, Hiza::Orta, 9};
    const AlanBicimi kose{{10, false}, Hiza::Sag, 7};
    auto unvan = akis.Parca(u"Unvan", sayfa.Unvan.baslik, kUnvanYeri, buyuk);
    auto tarih = akis.Parca(u"Tarihi", sayfa.Tarihi.baslik,
                            {SayfaAkisi::kEn - kKoseEni, 0, kKoseEni, SatirBoyu(kose.yazi)}, kose);
    auto no = akis.Parca(u"SozNo", sayfa.SozNo.baslik,
                         {SayfaAkisi::kEn - kKoseEni, tarih.yer.Alt(), kKoseEni, SatirBoyu(kose.yazi)}, kose);
    akis.Koy({std::move(unvan), std::move(tarih), std::move(no)});
    akis.Bosluk(kAra);
}

/// The lines of one column, each under the one before.
void SutunEkle(std::vector<SayfaParcasi>& blok, const SayfaAkisi& akis, const FormPrint& sayfa,
               std::span<const BilgiSatiri> satirlar, double sol) {
    constexpr double kBaslikEni = 32;
    constexpr double kIkiNokta = 3;
    constexpr double kDegerSol = kBaslikEni + kIkiNokta;
    const AlanBicimi bicim{{10, false}, Hiza::Sol, 9}; // an address is to be read: its place grows
    const double boy = SatirBoyu(bicim.yazi);
    double ust = 0;
    for (const BilgiSatiri& satir : satirlar) {
        blok.push_back(akis.Parca(u"", satir.baslik, {sol, ust, kBaslikEni, boy}, bicim));
        blok.push_back(akis.Parca(u"", u":", {sol + kBaslikEni, ust, kIkiNokta, boy}, bicim));
        blok.push_back(akis.Parca(Metin(satir.ad), (sayfa.*satir.alan).baslik,
                                  {sol + kDegerSol, ust, kSutunEni - kDegerSol, satir.satir * boy}, bicim));
        ust = blok.back().yer.Alt();
    }
}

void BilgileriKoy(SayfaAkisi& akis, const FormPrint& sayfa) {
    std::vector<SayfaParcasi> blok;
    SutunEkle(blok, akis, sayfa, kSolBilgiler, 0);
    SutunEkle(blok, akis, sayfa, kSagBilgiler, kSagSutun);
    akis.Koy(std::move(blok));
    akis.Bosluk(kAra);
}

/// Who signs, and the rule to sign on.
void ImzalariKoy(SayfaAkisi& akis) {
    constexpr double kImzaBoyu = 14;
    constexpr double kCizgiEni = 60;
    const AlanBicimi bicim{{10, true}, Hiza::Orta};
    const double boy = SatirBoyu(bicim.yazi);
    const Metin cizgi = akis.Sira(u'-', kCizgiEni, bicim.yazi);
    std::vector<SayfaParcasi> blok;
    for (const auto& [sol, baslik] :
         {std::pair{0.0, u"Kiraya Veren İmza"}, std::pair{kSagSutun, u"Kiralayan İmza"}}) {
        blok.push_back(akis.Parca(u"", baslik, {sol, 0, kSutunEni, boy}, bicim));
        blok.push_back(akis.Parca(u"", cizgi, {sol, kImzaBoyu, kSutunEni, boy}, bicim));
    }
    akis.Koy(std::move(blok));
    akis.Bosluk(kAra);
}

SayfaAkisi Diz(const FormPrint& sayfa, const YaziOlcer& olcer, double maddePuntosu) {
    SayfaAkisi akis(olcer);
    BasiKoy(akis, sayfa);
    const AlanBicimi baslik{{12, true}, Hiza::Orta, 9};
    akis.Koy({akis.Parca(u"Baslik", sayfa.Baslik.baslik, {0, 0, SayfaAkisi::kEn, SatirBoyu(baslik.yazi)},
                         baslik)});
    akis.Bosluk(kAra / 2);
    akis.Akit(u"Sozlesme", sayfa.Sozlesme.baslik, {maddePuntosu, false});
    akis.Bosluk(kAra);
    BilgileriKoy(akis, sayfa);
    ImzalariKoy(akis);
    if (sayfa.Senet)
        akis.Koy(SenetBlogu(akis, sayfa.Label38.baslik, sayfa.Label50.baslik));
    if (sayfa.Label55.gorunur)
        akis.Akit(u"Label55", sayfa.Label55.baslik, {10, true});
    if (sayfa.Onaciklama.gorunur)
        akis.Akit(u"Onaciklama", sayfa.Onaciklama.baslik, {10, false});
    return akis;
}

} // namespace

FormPrint::FormPrint(Program& /*program*/) {
    for (Etiket* alan : {&Unvan, &Tarihi, &SozNo, &Baslik, &Sozlesme, &Onaciklama})
        alan->baslik = kYerTutucu;
    for (const std::span<const BilgiSatiri> sutun :
         {std::span<const BilgiSatiri>(kSolBilgiler), std::span<const BilgiSatiri>(kSagBilgiler)})
        for (const BilgiSatiri& satir : sutun)
            (this->*satir.alan).baslik = kYerTutucu;
    Label55.baslik = u"Ön Açıklama :";
    Label55.gorunur = Onaciklama.gorunur = false;
}

std::vector<Sayfa> FormPrint::Sayfalar(const YaziOlcer& olcer) const {
    for (double punto = kEnBuyukMadde; punto > kEnKucukMadde; punto -= kMaddeAdimi) {
        const SayfaAkisi akis = Diz(*this, olcer, punto);
        if (akis.Sayfalar().size() == 1)
            return akis.Sayfalar();
    }
    return Diz(*this, olcer, kEnKucukMadde).Sayfalar();
}

} // namespace velora
