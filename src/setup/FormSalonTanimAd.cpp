#include "setup/FormSalonTanimAd.h"

#include <array>

#include "screen/Program.h"
#include "setup/FormSalonTanim.h"
#include "storage/Harf.h"
#include "storage/KodSayfasi.h"
#include "storage/Sayi.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

/// From which year folder to which the files go, counted from the selected year. The last one is meant: the
/// third year ahead lands in the second.
struct YilKopyasi {
    int kaynak;
    int hedef;
};
constexpr std::array<YilKopyasi, 5> kKopyalar{{{-1, -1}, {0, 0}, {1, 1}, {2, 2}, {3, 2}}};

Metin Klasor(const Program& program, const Metin& salon, long long yil) {
    return program.agac.YilKlasoru(salon, SayiMetni(yil)) + kAyrac;
}

/// The names in each folder that is copied. Before the first copy: with an unchanged name the copies go where
/// the lists come from.
using KopyaListeleri = std::array<std::vector<Metin>, kKopyalar.size()>;
KopyaListeleri DosyalariListele(const Program& program, const Metin& eski, long long yil) {
    KopyaListeleri adlar;
    for (std::size_t i = 0; i < kKopyalar.size(); ++i)
        adlar[i] = program.dosyalar.Listele(Klasor(program, eski, yil + kKopyalar[i].kaynak));
    return adlar;
}

void DosyalariKopyala(const Program& program, const KopyaListeleri& adlar, const Metin& eski,
                      const Metin& yeni, long long yil) {
    for (const Metin& salon : {eski, yeni})
        for (const YilKopyasi& kopya : kKopyalar)
            program.agac.KlasorHazirla(salon, SayiMetni(yil + kopya.kaynak));
    for (std::size_t i = 0; i < kKopyalar.size(); ++i) {
        const Metin kaynak = Klasor(program, eski, yil + kKopyalar[i].kaynak);
        const Metin hedef = Klasor(program, yeni, yil + kKopyalar[i].hedef);
        // A file can't be copied onto itself.
        if (program.dosyalar.AyniKlasor(kaynak, hedef))
            continue;
        for (const Metin& ad : adlar[i])
            program.dosyalar.Kopyala(kaynak + ad, hedef + ad);
    }
}

void AdiDegistir(std::vector<Metin>& ogeler, double sira, const Metin& yeni) {
    if (sira >= 0 && sira < static_cast<double>(ogeler.size()))
        ogeler[static_cast<std::size_t>(sira)] = yeni;
}

} // namespace

FormSalonTanimAd::FormSalonTanimAd(Program& program) : program_(program) {
    Label1.baslik = Text1.baslik = u"Salon Adı";
    Label2.gorunur = false;
    Command1.baslik = u"Tamam";
    Command2.baslik = u"İptal";
}

void FormSalonTanimAd::Command1_Click() {
    Program& p = program_;
    Text1.metin = KodaSigdir(BuyukBas(Text1.metin));
    const auto tablo = p.FormTablo.Tut();
    const auto yil = static_cast<long long>(SayisalDeger(tablo->Sene.Metni()));
    const double sira = SayisalDeger(Label2.baslik);
    const auto tanim = p.FormSalonTanim.Tut();
    AdiDegistir(tanim->List1.ogeler, sira, Text1.metin);
    AdiDegistir(tablo->Salon.ogeler, sira, Text1.metin);
    // Once: what is planned is what is copied.
    const KopyaListeleri adlar = DosyalariListele(p, Tag, yil);
    EylemleYap(p.dosyalar, u"Salon adı", [&] {
        DosyalariKopyala(p, adlar, Tag, Text1.metin, yil);
        tanim->Kaydet_Click();
    });
    p.FormSalonTanimAd.Bosalt();
}

void FormSalonTanimAd::Command2_Click() {
    program_.FormSalonTanimAd.Bosalt();
}

} // namespace velora
