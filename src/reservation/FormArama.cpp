#include "reservation/FormArama.h"

#include <vector>

#include "reservation/KayitYukle.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "storage/Desen.h"
#include "storage/Harf.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

/// How a criterion is compared with its value, both in lower case.
enum class Kural { Icerir, Esit };

/// In the order of the fields; the values are those of `kAramaNumaralari`.
constexpr std::array<Kural, FormArama::kOlcutSayisi> kKurallar{Kural::Icerir, Kural::Icerir, Kural::Esit,
                                                               Kural::Esit, Kural::Esit};
static_assert(kKurallar.size() == kAramaNumaralari.size());

constexpr std::array<MetinBakis, FormArama::kOlcutSayisi> kOlcutAdlari{u"Adı Soyadı", u"Gelin / Damat",
                                                                       u"Telefon", u"Cep", u"Sözleşme No"};

constexpr int kSozlesmeNo = 5;

/// The signs of a pattern keep their meaning in what is looked for.
bool Uyar(Kural kural, MetinBakis deger, MetinBakis olcut) {
    if (kural == Kural::Esit)
        return Kucult(deger) == Kucult(olcut);
    return DeseneUyar(Kucult(deger), u'*' + Kucult(olcut) + u'*');
}

} // namespace

FormArama::FormArama(Program& program) : program_(program) {
    for (int no = 1; no <= kOlcutSayisi; ++no)
        Text[no].baslik = kOlcutAdlari[static_cast<std::size_t>(no - 1)];
    Liste.baslik = u"Bulunan kayıtlar";
    Liste.basliklar = {u"Tarih", u"Salon", u"Ad Soyad", u"Gelin Damat", u"Telefon", u"Cep"};
    Liste.secimDugmeleri.dugmeler = {&Command1};
}

void FormArama::Activate() {
    Liste.secimDugmeleri.Ac(false);
    acikmi = 1;
}

void FormArama::Liste_ItemClick() {
    Liste.secimDugmeleri.Ac(true);
}

void FormArama::Liste_DblClick() {
    if (Command1.etkin)
        Command1_Click();
}

void FormArama::Command1_Click() {
    if (const ListeSatiri* satir = Liste.Secili())
        SatiriAc(program_, *satir, Metin(satir->sutun[1]));
}

void FormArama::Command2_Click() {
    program_.FormArama.Bosalt();
}

void FormArama::Command3_Click() {
    if (Text[kSozlesmeNo].metin == u"0") {
        Soyle(program_, u"Lütfen geçerli bir sözleşme numarası giriniz!");
        return;
    }
    // No row of the new list has been clicked yet.
    Liste.secimDugmeleri.Ac(false);
    Liste.Temizle();
    Ara();
    if (Liste.satirlar.empty())
        Soyle(program_, u"Hiç kayıt bulunamadı!");
}

void FormArama::Ara() {
    const auto tablo = program_.FormTablo.Tut();
    const Metin yil = tablo->Sene.Metni();
    std::vector<AramaOkumasi> okumalar;
    for (const Metin& salon : tablo->Salon.ogeler)
        okumalar.emplace_back(program_.dosyalar, program_.agac.YilKlasoru(salon, yil));
    // Outside the loops: what can't be opened is tested with the values of the file before it.
    AramaDegerleri degerler;
    int uyan = UyanSayisi(degerler);
    for (const Metin& sene : tablo->Sene.ogeler)
        for (std::size_t i = 0; i < okumalar.size(); ++i) {
            const Metin& salon = tablo->Salon.ogeler[i];
            for (const Metin& ad : program_.dosyalar.Listele(program_.agac.YilKlasoru(salon, sene))) {
                if (okumalar[i].Oku(ad, degerler))
                    uyan = UyanSayisi(degerler);
                for (int kez = 0; kez < uyan; ++kez)
                    Liste.satirlar.push_back({{ad, salon, degerler[0], degerler[1], degerler[2], degerler[3]},
                                              program_.agac.GunYolu(salon, yil, ad)});
            }
        }
}

/// How many of the criteria match, each for itself.
int FormArama::UyanSayisi(const AramaDegerleri& degerler) const {
    int sayi = 0;
    for (std::size_t i = 0; i < kKurallar.size(); ++i) {
        const Metin& olcut = Text[static_cast<int>(i) + 1].metin;
        if (!olcut.empty() && Uyar(kKurallar[i], degerler[i], olcut))
            ++sayi;
    }
    return sayi;
}

} // namespace velora
