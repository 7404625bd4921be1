#include "reservation/FormArama.h"

#include <algorithm>
#include <optional>
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

/// The folders of all halls of a year, then of the next.
std::vector<Metin> AramaKlasorleri(const Program& program, const FormTablo& tablo) {
    std::vector<Metin> klasorler;
    for (const Metin& yil : tablo.Sene.ogeler)
        for (const Metin& salon : tablo.Salon.ogeler)
            klasorler.push_back(program.agac.YilKlasoru(salon, yil));
    return klasorler;
}

} // namespace

/// A criterion as it is held against the values of thousands of files.
struct FormArama::HazirOlcut {
    std::size_t deger; ///< which value
    Metin esit;        ///< in lower case
    std::optional<HazirDesen> icerir;

    /// `kucuk` is there for its memory.
    bool Uyar(const AramaDegerleri& degerler, Metin& kucuk) const {
        Kucult(degerler[deger], kucuk);
        return icerir ? icerir->Uyar(kucuk) : kucuk == esit;
    }
};

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
    Ozet.baslik = Liste.Ozeti(program_.FormTablo->Sene.Metni());
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
    const std::vector<HazirOlcut> olcutler = Olcutler();
    Metin kucuk;
    // Each criterion that matches, for itself.
    const auto uyanSayisi = [&] {
        return std::ranges::count_if(olcutler, [&](const HazirOlcut& o) { return o.Uyar(degerler, kucuk); });
    };
    auto uyan = uyanSayisi();
    const auto gez = [&](std::size_t i, const KlasorOkumasi& adlar) {
        const Metin& salon = tablo->Salon.ogeler[i];
        const Metin klasor = program_.agac.YilKlasoru(salon, yil);
        const bool kendi = &adlar == &okumalar[i].Adlar(); // names become texts only for their rows
        for (std::size_t j = 0; j < adlar.Sayi(); ++j) {
            if (kendi ? okumalar[i].Oku(j, degerler) : okumalar[i].Oku(adlar[j], degerler))
                uyan = uyanSayisi();
            for (auto kez = uyan; kez > 0; --kez)
                Liste.satirlar.push_back(
                    {Sutunlar(adlar[j], salon, degerler[0], degerler[1], degerler[2], degerler[3]),
                     VeriAgaci::GunYolu(klasor, adlar[j])});
        }
    };
    const std::vector<Metin> klasorler = AramaKlasorleri(program_, *tablo);
    const Dosyalar::Onden onden(program_.dosyalar, klasorler);
    for (std::size_t i = 0; i < klasorler.size(); ++i) {
        const std::size_t salon = i % okumalar.size();
        if (tablo->Sene.ogeler[i / okumalar.size()] == yil)
            gez(salon, okumalar[salon].Adlar());
        else
            gez(salon, program_.dosyalar.KlasorAc(klasorler[i]));
    }
}

/// The criteria that take part. The signs of a pattern keep their meaning in what is looked for.
std::vector<FormArama::HazirOlcut> FormArama::Olcutler() const {
    std::vector<HazirOlcut> olcutler;
    for (std::size_t i = 0; i < kKurallar.size(); ++i) {
        Metin olcut = Kucult(Text[static_cast<int>(i) + 1].metin);
        if (olcut.empty())
            continue;
        if (kKurallar[i] == Kural::Icerir)
            olcutler.push_back({i, {}, HazirDesen(u'*' + olcut + u'*')});
        else
            olcutler.push_back({i, std::move(olcut), {}});
    }
    return olcutler;
}

} // namespace velora
