#include "documents/FormPrint.h"

#include <algorithm>
#include <array>
#include <span>

#include "documents/Senet.h"
#include "documents/SozlesmeParcalari.h"

namespace velora {

namespace {

constexpr MetinBakis kYerTutucu = u"xxx";
constexpr double kBaslikArasi = 2; // between a heading and its text, in millimetres
// The details in points: they are read more often than the clauses and get less small.
constexpr double kEnBuyukBilgi = 11;
constexpr double kEnKucukBilgi = 10;
constexpr double kSenetOrani = 0.4; // of the room between two lines of the note to that between blocks

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

/// The name of the firm in the middle, date and number at the right.
void BasiKoy(SayfaAkisi& akis, const FormPrint& sayfa) {
    constexpr double kUnvanEni = 90;
    constexpr double kKoseEni = 42;
    const AlanBicimi kose{{10, false}, Hiza::Sag, 7};
    auto unvan = UnvanParcasi(akis, sayfa.Unvan.baslik, kUnvanEni);
    auto tarih = akis.Parca(u"Tarihi", sayfa.Tarihi.baslik,
                            {SayfaAkisi::kEn - kKoseEni, 0, kKoseEni, SatirBoyu(kose.yazi)}, kose);
    auto no = akis.Parca(u"SozNo", sayfa.SozNo.baslik,
                         {SayfaAkisi::kEn - kKoseEni, tarih.yer.Alt(), kKoseEni, SatirBoyu(kose.yazi)}, kose);
    akis.Koy({std::move(unvan), std::move(tarih), std::move(no)});
}

/// A column of the details: its captions so wide, its values beside them.
struct BilgiSutunu {
    std::span<const BilgiSatiri> satirlar;
    double sol;
    double baslikEni;
};
constexpr std::array kSutunlar{BilgiSutunu{kSolBilgiler, 0, 36}, BilgiSutunu{kSagBilgiler, kSagSutun, 30}};

/// A value is to be read: its place grows. Only one that would grow beyond `enCok` gets as small as it must.
SayfaParcasi DegerParcasi(const SayfaAkisi& akis, Metin ad, MetinBakis deger, SayfaYeri yer, AlanBicimi bicim,
                          double enCok) {
    constexpr double kEnKucuk = 4; // points
    SayfaParcasi parca = akis.Parca(std::move(ad), deger, yer, bicim);
    if (parca.yer.boy <= enCok)
        return parca;
    yer.boy = enCok;
    bicim.enKucuk = kEnKucuk;
    return akis.Parca(std::move(parca.ad), deger, yer, bicim);
}

/// The lines of one column, each under the one before.
void SutunEkle(std::vector<SayfaParcasi>& blok, const SayfaAkisi& akis, const FormPrint& sayfa,
               const BilgiSutunu& sutun, double punto) {
    constexpr double kIkiNokta = 3;
    const double degerSol = sutun.baslikEni + kIkiNokta;
    const AlanBicimi bicim{{punto, false}, Hiza::Sol, 9};
    const double boy = SatirBoyu(bicim.yazi);
    constexpr double kEnYuksekDeger = 90; // millimetres
    constexpr double kEnYuksekSutun = 200;
    double ust = 0;
    double altinda = 0; // what the lines below need at least
    for (const BilgiSatiri& satir : sutun.satirlar)
        altinda += satir.satir * boy;
    for (const BilgiSatiri& satir : sutun.satirlar) {
        altinda -= satir.satir * boy;
        const double enCok = std::clamp(kEnYuksekSutun - ust - altinda, satir.satir * boy, kEnYuksekDeger);
        blok.push_back(akis.Parca(u"", satir.baslik, {sutun.sol, ust, sutun.baslikEni, boy}, bicim));
        blok.push_back(akis.Parca(u"", u":", {sutun.sol + sutun.baslikEni, ust, kIkiNokta, boy}, bicim));
        blok.push_back(DegerParcasi(akis, Metin(satir.ad), (sayfa.*satir.alan).baslik,
                                    {sutun.sol + degerSol, ust, kSutunEni - degerSol, satir.satir * boy},
                                    bicim, enCok));
        ust = blok.back().yer.Alt();
    }
}

void BilgileriKoy(SayfaAkisi& akis, const FormPrint& sayfa, double punto) {
    std::vector<SayfaParcasi> blok;
    for (const BilgiSutunu& sutun : kSutunlar)
        SutunEkle(blok, akis, sayfa, sutun, punto);
    akis.Koy(std::move(blok));
}

void SozlesmeyiDiz(SayfaAkisi& akis, const FormPrint& sayfa, const SayfaDuzeni& duzen) {
    BasiKoy(akis, sayfa);
    const AlanBicimi baslik{{13, true}, Hiza::Orta, 9};
    akis.Koy({akis.Parca(u"Baslik", sayfa.Baslik.baslik, {0, 0, SayfaAkisi::kEn, SatirBoyu(baslik.yazi)},
                         baslik)});
    akis.Bosluk(kBaslikArasi);
    akis.Akit(u"Sozlesme", sayfa.Sozlesme.baslik, {duzen.punto, false});
    akis.Bosluk(duzen.ara);
    BilgileriKoy(akis, sayfa, std::clamp(duzen.punto, kEnKucukBilgi, kEnBuyukBilgi));
    akis.Bosluk(duzen.ara);
    ImzalariKoy(akis, u"Kiraya Veren İmza", u"Kiralayan İmza");
    akis.Bosluk(duzen.ara);
    if (sayfa.Senet)
        akis.DibeKoy(SenetBlogu(akis, sayfa.Label38.baslik, sayfa.Label50.baslik, duzen.ara * kSenetOrani));
    if (sayfa.Label55.gorunur) {
        akis.YerAc(3 * SatirBoyu({duzen.punto, true}));
        akis.Akit(u"Label55", sayfa.Label55.baslik, {duzen.punto, true});
    }
    if (sayfa.Onaciklama.gorunur)
        akis.Akit(u"Onaciklama", sayfa.Onaciklama.baslik, {duzen.punto, false});
}

} // namespace

FormPrint::FormPrint(Program& /*program*/) {
    for (Etiket* alan : {&Unvan, &Tarihi, &SozNo, &Baslik, &Sozlesme, &Onaciklama})
        alan->baslik = kYerTutucu;
    for (const BilgiSutunu& sutun : kSutunlar)
        for (const BilgiSatiri& satir : sutun.satirlar)
            (this->*satir.alan).baslik = kYerTutucu;
    Label55.baslik = u"Ön Açıklama :";
    Label55.gorunur = Onaciklama.gorunur = false;
}

std::vector<Sayfa> FormPrint::Sayfalar(const YaziOlcer& olcer) const {
    return EnIyiDuzende(olcer, SozNo.baslik + u"  -  ", [this](SayfaAkisi& akis, const SayfaDuzeni& duzen) {
        SozlesmeyiDiz(akis, *this, duzen);
    });
}

} // namespace velora
