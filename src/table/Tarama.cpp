// The full scan: from the files of the selected year folder to the painted table.
#include <utility>

#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "storage/Tarih.h"
#include "table/FormTablo.h"
#include "table/HucreRenkleri.h"
#include "table/YilOkumasi.h"

namespace velora {

namespace {

/// The targets of the scan. They live as long as one run of it: what a file doesn't fill stays from the slot
/// before.
struct TaramaDegerleri {
    std::array<Metin, kTagDegerleri.size()> tag;
    bool on = false; ///< value 37 of the details file

    /// The target of the value with this number in the main file.
    const Metin& No(int no) const {
        std::size_t sira = 0;
        while (kTagDegerleri[sira] != no)
            ++sira;
        return tag[sira];
    }
};

/// Ten parts with a bar between them. A bar inside a value isn't escaped. The cell keeps its memory from scan
/// to scan.
void TagYaz(const Metin& kullanici, GunduzGece dilim, const TaramaDegerleri& degerler, Metin& tag) {
    tag = kullanici;
    for (const int no : {AnaNo::BaslamaSaati, AnaNo::Niteligi})
        (tag += u'|') += degerler.No(no);
    tag += dilim == GunduzGece::Gunduz ? u"|Gündüz" : u"|Gece";
    for (const int no : {AnaNo::ToplamUcret, AnaNo::AlinanOdeme, AnaNo::KalanOdeme, AnaNo::AdiSoyadi,
                         AnaNo::SozlesmeNo, AnaNo::YaklasincaHatirlat})
        (tag += u'|') += degerler.No(no);
}

YilOkumasi KlasoruOku(const Program& program, const FormTablo& tablo) {
    return {program.dosyalar, program.agac.YilKlasoru(tablo.Salon.Metni(), tablo.Sene.Metni()),
            tablo.Sene.Metni(), TarihMetni(program.Bugun())};
}

/// The reminder scan reads every file of the folder as a main record, companions and expenses too.
bool HatirlatmaVar(const YilOkumasi& okuma, HatirlatmaDegerleri degerler) {
    bool var = false;
    for (const AnaParcasi& dosya : okuma.Dosyalari()) {
        dosya.Uygula(degerler);
        var = var || degerler.Gecerli();
    }
    return var;
}

} // namespace

void FormTablo::Command1() {
    program_.OlaylariIsle();
    for (TabloSatiri& satir : satirlar)
        for (Hucre& hucre : satir.gun)
            hucre.tag.clear();
    Command3(); // free days and weekends
    Command4(); // days that the months don't have
    Command5(); // holidays
    program_.OlaylariIsle();
    // Hall and year are read only here: an event may just have changed them.
    const YilOkumasi okuma = KlasoruOku(program_, *this);
    HatirlatmaDegerleri hatirlatma;
    RezervasyonlariBoya(okuma, hatirlatma);
    HatirlatmaGoster(HatirlatmaVar(okuma, hatirlatma));
    program_.OlaylariIsle();
    program_.OlaylariIsle();
    GecmisGunler();
}

void FormTablo::RezervasyonlariBoya(const YilOkumasi& okuma, HatirlatmaDegerleri& hatirlatma) {
    const auto ayarlar = program_.FormAyarlar.Tut();
    TaramaDegerleri degerler;
    for (int ay = 1; ay <= kAySayisi; ++ay)
        for (int gun = 1; gun <= kGunSayisi; ++gun)
            for (const auto dilim : {velora::GunduzGece::Gunduz, velora::GunduzGece::Gece}) {
                const DilimOkumasi& okunan = okuma.Dilim(ay, gun, dilim);
                if (!okunan.dolu)
                    continue;
                if (okunan.onVar)
                    degerler.on = okunan.on;
                okuma.TagDegerleri(okunan, degerler.tag);
                okunan.ana.Uygula(hatirlatma);
                const RenkCifti& renk = degerler.on ? Renkler(dilim).on : Renkler(dilim).kesin;
                Hucre& hucre = Gozu(ay, dilim, gun);
                hucre.zemin = ayarlar->Renk(renk.zemin);
                hucre.yazi = ayarlar->Renk(renk.yazi);
                TagYaz(UserNamem, dilim, degerler, hucre.tag);
            }
}

void FormTablo::OzelHatirlatmaBak() {
    HatirlatmaGoster(HatirlatmaVar(KlasoruOku(program_, *this), HatirlatmaDegerleri()));
}

} // namespace velora
