#include "documents/FormMakbuzPrint.h"

#include <algorithm>
#include <array>

#include "documents/Baski.h"
#include "documents/FormSozlesme.h"
#include "documents/SayfaAkisi.h"
#include "screen/Program.h"
#include "storage/Sayi.h"

namespace velora {

namespace {

using MakbuzEtiketi = Etiket FormMakbuzPrint::*;

struct MakbuzBasligi {
    MakbuzEtiketi etiket;
    MetinBakis metin;
};

constexpr std::array kOdemeBasliklari{
    MakbuzBasligi{&FormMakbuzPrint::Firma, u"FİRMA"},
    MakbuzBasligi{&FormMakbuzPrint::Label1, u"A L I N D I   M A K B U Z U"},
    MakbuzBasligi{&FormMakbuzPrint::Label3, u"ADI SOYADI "},
    MakbuzBasligi{&FormMakbuzPrint::AdSoyad, u": XXX"},
    MakbuzBasligi{&FormMakbuzPrint::Label4, u"TARİH"},
    MakbuzBasligi{&FormMakbuzPrint::Tarih, u": XXX"},
    MakbuzBasligi{&FormMakbuzPrint::Label5, u"ALINDI AÇIKLAMASI"},
    MakbuzBasligi{&FormMakbuzPrint::Aciklama, u": XXX"},
    MakbuzBasligi{&FormMakbuzPrint::Label6, u"ALINDI BEDELİ"},
    MakbuzBasligi{&FormMakbuzPrint::Tutar, u": XXX"},
    MakbuzBasligi{&FormMakbuzPrint::Label2, u"DÜZENLEYEN"},
};
constexpr std::array kGiderBasliklari{
    MakbuzBasligi{&FormMakbuzPrint::Label1, u"GİDER MAKBUZU"},
    MakbuzBasligi{&FormMakbuzPrint::Label3, u"DÜZENLEYEN"},
    MakbuzBasligi{&FormMakbuzPrint::Label4, u"GİDER TARİHİ"},
    MakbuzBasligi{&FormMakbuzPrint::Label5, u"GİDER AÇIKLAMASI"},
    MakbuzBasligi{&FormMakbuzPrint::Label6, u"GİDER BEDELİ"},
};

/// A line of the receipt: a caption, and the field beside it.
struct MakbuzSatiri {
    MetinBakis baslikAdi;
    MakbuzEtiketi baslik;
    MetinBakis ad;
    MakbuzEtiketi alan;
    bool kalin = false;
};
constexpr std::array kMakbuzSatirlari{
    MakbuzSatiri{u"Label3", &FormMakbuzPrint::Label3, u"AdSoyad", &FormMakbuzPrint::AdSoyad},
    MakbuzSatiri{u"Label4", &FormMakbuzPrint::Label4, u"Tarih", &FormMakbuzPrint::Tarih},
    MakbuzSatiri{u"Label5", &FormMakbuzPrint::Label5, u"Aciklama", &FormMakbuzPrint::Aciklama},
    MakbuzSatiri{u"Label6", &FormMakbuzPrint::Label6, u"Tutar", &FormMakbuzPrint::Tutar, true},
};

// All in millimetres.
constexpr double kCerceveIci = 8; // between the frame and what is in it
constexpr double kMakbuzEni = SayfaAkisi::kEn - 2 * kCerceveIci;
constexpr double kMakbuzAlti = kSayfaBoyu / 2; // of the frame, while all fits
constexpr double kMakbuzAra = 4;               // between two lines
constexpr double kMakbuzEtiketEni = 54;
constexpr double kMakbuzImzaEni = 60;
constexpr double kMakbuzImzaBoslugu = 20; // free under the name of who signs
constexpr SayfaYazisi kMakbuzEtiketYazisi{12, true};

/// The firm and the heading.
void MakbuzBasiniKoy(SayfaAkisi& akis, const FormMakbuzPrint& makbuz) {
    const AlanBicimi firma{{18, true}, Hiza::Orta, 9};
    const AlanBicimi baslik{{14, true}, Hiza::Orta, 9};
    akis.Akit(
        akis.Parca(u"Firma", makbuz.Firma.baslik, {0, 0, kMakbuzEni, 2 * SatirBoyu(firma.yazi)}, firma));
    akis.Bosluk(kMakbuzAra);
    akis.Akit(
        akis.Parca(u"Label1", makbuz.Label1.baslik, {0, 0, kMakbuzEni, SatirBoyu(baslik.yazi)}, baslik));
    akis.Bosluk(2 * kMakbuzAra);
}

/// `altinda` is what still has to go under the line on the half of the sheet.
void MakbuzSatiriniKoy(SayfaAkisi& akis, const FormMakbuzPrint& makbuz, const MakbuzSatiri& satir,
                       double altinda) {
    const AlanBicimi etiket{kMakbuzEtiketYazisi, Hiza::Sol, 8};
    const AlanBicimi deger{{12, satir.kalin}, Hiza::Sol, 8};
    const double enCok = std::max(kMakbuzAlti - kCerceveIci - altinda - akis.Ust(), SatirBoyu(deger.yazi));
    const SayfaYeri yer{kMakbuzEtiketEni, 0, kMakbuzEni - kMakbuzEtiketEni, enCok};
    akis.Akit(akis.Parca(Metin(satir.ad), (makbuz.*satir.alan).baslik, yer, deger),
              {akis.Parca(Metin(satir.baslikAdi), (makbuz.*satir.baslik).baslik,
                          {0, 0, kMakbuzEtiketEni, SatirBoyu(kMakbuzEtiketYazisi)}, etiket)});
    akis.Bosluk(kMakbuzAra);
}

/// At the right of the frame's bottom, with room to sign under it.
void ImzayiKoy(SayfaAkisi& akis, const FormMakbuzPrint& makbuz) {
    const AlanBicimi bicim{kMakbuzEtiketYazisi, Hiza::Orta, 8};
    const double boy = SatirBoyu(kMakbuzEtiketYazisi) + kMakbuzImzaBoslugu;
    if (akis.Sayfalar().size() == 1)
        akis.Bosluk(std::max(0.0, kMakbuzAlti - kCerceveIci - boy - akis.Ust()));
    SayfaParcasi imza =
        akis.Parca(u"Label2", makbuz.Label2.baslik,
                   {kMakbuzEni - kMakbuzImzaEni, 0, kMakbuzImzaEni, SatirBoyu(kMakbuzEtiketYazisi)}, bicim);
    imza.yer.boy = boy;
    akis.Koy({std::move(imza)});
}

} // namespace

FormMakbuzPrint::FormMakbuzPrint(Program& program) : program_(program) {
    for (const auto& [etiket, metin] : kOdemeBasliklari)
        (this->*etiket).baslik = metin;
}

std::vector<Sayfa> FormMakbuzPrint::Sayfalar(const YaziOlcer& olcer) const {
    constexpr double kSatirPayi = 6 + kMakbuzAra; // of a line that nothing makes higher
    SayfaAkisi akis(olcer, 0, SayfaAkisi::kKenar + kCerceveIci);
    MakbuzBasiniKoy(akis, *this);
    auto kalan = static_cast<double>(kMakbuzSatirlari.size());
    for (const MakbuzSatiri& satir : kMakbuzSatirlari)
        MakbuzSatiriniKoy(akis, *this, satir,
                          --kalan * kSatirPayi + SatirBoyu(kMakbuzEtiketYazisi) + kMakbuzImzaBoslugu);
    ImzayiKoy(akis, *this);
    std::vector<Sayfa> sayfalar = akis.Sayfalar();
    for (Sayfa& sayfa : sayfalar) {
        const double alt = std::max(kMakbuzAlti, EnAlt(sayfa.parcalar) + kCerceveIci);
        sayfa.parcalar.push_back(
            {ParcaTuru::Cerceve,
             u"Cerceve",
             {SayfaAkisi::kKenar, SayfaAkisi::kKenar, SayfaAkisi::kEn, alt - SayfaAkisi::kKenar}});
    }
    return sayfalar;
}

void FormMakbuzPrint::Command1_Click() {
    Program& p = program_;
    Command1.gorunur = Command2.gorunur = false;
    Yazdir(p, Sayfalar(p.ortam.kagit.olcer), isAdi);
    p.OlaylariIsle();
    p.FormMakbuzPrint.Bosalt();
}

void FormMakbuzPrint::Command2_Click() {
    program_.FormMakbuzPrint.Bosalt();
}

void FormMakbuzPrint::Pdf_Click() {
    PdfKaydet(program_, Sayfalar(program_.ortam.kagit.olcer), isAdi);
}

void MakbuzGoster(Program& program, const Makbuz& makbuz) {
    program.FormMakbuzPrint.GosterModal([&] {
        program.FormMakbuzPrint.Bosalt(); // what the last one has filled is gone
        const auto sayfa = program.FormMakbuzPrint.Tut();
        sayfa->Firma.baslik = TazeSozlesme(program)->Unvan.metin;
        sayfa->Tarih.baslik = u": " + makbuz.tarih;
        sayfa->Tutar.baslik = TutarMetni(makbuz.tutar);
        sayfa->Aciklama.baslik = u": " + makbuz.aciklama;
        sayfa->AdSoyad.baslik = u": " + makbuz.adSoyad;
        sayfa->isAdi = makbuz.isAdi;
        if (makbuz.tur == MakbuzTuru::Gider)
            for (const auto& [etiket, metin] : kGiderBasliklari)
                (*sayfa.*etiket).baslik = metin;
        sayfa->Command1.gorunur = sayfa->Command2.gorunur = true;
        return true;
    });
}

} // namespace velora
