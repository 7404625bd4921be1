#include "destek/Eylemler.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "screen/GirdiKurali.h"

namespace velora::test {

namespace {

bool Yazilabilir(const MetinKutusu& alan, MetinBakis tuslar) {
    EXPECT_TRUE(alan.etkin) << "the field is off: " << ::testing::PrintToString(Metin(tuslar));
    EXPECT_FALSE(alan.kilitli) << "the field is locked: " << ::testing::PrintToString(Metin(tuslar));
    return alan.etkin && !alan.kilitli;
}

/// A field while somebody types into it; its window tells of each change.
class Yazilan {
  public:
    Yazilan(MetinKutusu& alan, const AlanOlaylari& olaylar) : alan_(alan), olaylar_(olaylar) {}

    void Olsun(const Metin& metin) {
        if (metin == alan_.metin)
            return;
        alan_.metin = metin;
        if (olaylar_.degisti)
            olaylar_.degisti();
    }
    void Tuslan(MetinBakis tuslar, bool cokSatirli) {
        Olsun({});
        for (const char16_t tus : tuslar) {
            const Metin giren = TuslananMetin({&tus, 1});
            if (!giren.empty())
                Olsun(GirdiyiKoy(alan_.metin, giren, {}, KutununKurali(alan_, cokSatirli)));
        }
    }
    void MaskeyeTuslan(MetinBakis tuslar) {
        const MetinBakis maske = alan_.maske;
        Metin bos(maske);
        std::replace(bos.begin(), bos.end(), kMaskeRakami, kBosYer);
        Olsun(bos);
        std::size_t yer = 0;
        for (const char16_t tus : TuslananMetin(tuslar, MaskeTusu)) {
            // The key of a sign between the digits goes on behind it.
            if (const std::size_t isaret = maske.find(tus, yer);
                isaret != MetinBakis::npos && tus != kMaskeRakami) {
                yer = isaret + 1;
                continue;
            }
            yer = std::min(maske.find(kMaskeRakami, yer), maske.size());
            if (yer == maske.size())
                return;
            Metin yeni = alan_.metin;
            yeni[yer] = tus;
            Olsun(MaskeyiSuz(maske, alan_.metin, yeni));
            yer += alan_.metin[yer] == tus ? 1 : 0;
        }
    }
    void Birak() {
        if (olaylar_.odakGitti)
            olaylar_.odakGitti();
    }

  private:
    MetinKutusu& alan_;
    const AlanOlaylari& olaylar_;
};

template <class Liste>
void ListeninSatirina(Liste& liste, int sira, std::size_t adet, const std::function<void()>& tiklandi) {
    if (sira < 0 || static_cast<std::size_t>(sira) >= adet) {
        ADD_FAILURE() << "there is no row " << sira << " to click on";
        return;
    }
    liste.secili = sira;
    tiklandi();
}

template <class Kontrol>
bool Basilir(const Kontrol& kontrol, const std::string& ad) {
    EXPECT_TRUE(kontrol.gorunur) << ad << " is hidden";
    EXPECT_TRUE(kontrol.etkin) << ad << " is off";
    return kontrol.gorunur && kontrol.etkin;
}

} // namespace

void AlanaYaz(MetinKutusu& alan, MetinBakis tuslar, const AlanOlaylari& olaylar) {
    if (!Yazilabilir(alan, tuslar))
        return;
    const bool tuslanir = std::none_of(tuslar.begin(), tuslar.end(), [](char16_t tus) { return tus < u' '; });
    EXPECT_TRUE(tuslanir) << "no key writes this into one line: " << ::testing::PrintToString(Metin(tuslar));
    if (!tuslanir)
        return;
    Yazilan yazilan(alan, olaylar);
    if (alan.maske.empty())
        yazilan.Tuslan(tuslar, false);
    else
        yazilan.MaskeyeTuslan(tuslar);
    yazilan.Birak();
}

void SatirlaraYaz(MetinKutusu& alan, MetinBakis tuslar, const AlanOlaylari& olaylar) {
    if (!Yazilabilir(alan, tuslar))
        return;
    Metin tek(tuslar); // Enter is one key
    std::erase(tek, u'\r');
    Yazilan yazilan(alan, olaylar);
    yazilan.Tuslan(tek, true);
    yazilan.Birak();
}

void SatirlaraYapistir(MetinKutusu& alan, MetinBakis metin) {
    if (Yazilabilir(alan, metin))
        alan.metin = GirdiyiKoy({}, metin, {}, KutununKurali(alan, true));
}

void Tikla(OnayKutusu& kutu) {
    EXPECT_TRUE(kutu.etkin) << "the box is off";
    if (kutu.etkin)
        kutu.Ata(kutu.deger == 0 ? 1 : 0);
}

void Isaretle(OnayKutusu& dugme) {
    EXPECT_TRUE(dugme.etkin) << "the mark is off";
    if (dugme.etkin)
        dugme.Ata(1);
}

void ListedenSec(AcilirListe& liste, MetinBakis oge) {
    const int sira = liste.Bul(oge);
    EXPECT_TRUE(liste.etkin) << "the list is off";
    EXPECT_GE(sira, 0) << "the list has no " << ::testing::PrintToString(Metin(oge));
    if (liste.etkin)
        liste.Tikla(sira);
}

void TarihSec(TarihSecici& secici, const Gun& gun) {
    const bool sinirda = gun >= secici.enKucuk.value_or(gun) && gun <= secici.enBuyuk.value_or(gun);
    EXPECT_TRUE(sinirda) << "the day can't be picked: " << ::testing::PrintToString(TarihMetni(gun));
    if (sinirda)
        secici.Sec(gun);
}

void SatiraTikla(ListeKutusu& liste, int sira, const std::function<void()>& tiklandi) {
    ListeninSatirina(liste, sira, liste.ogeler.size(), tiklandi);
}

void SatiraTikla(ListeGorunumu& liste, int sira, const std::function<void()>& tiklandi) {
    ListeninSatirina(liste, sira, liste.satirlar.size(), tiklandi);
}

bool Basilabilir(const Dugme& dugme, const std::string& ad) {
    return Basilir(dugme, ad);
}

bool Basilabilir(const MenuGirdisi& girdi, const std::string& ad) {
    return Basilir(girdi, ad);
}

} // namespace velora::test
