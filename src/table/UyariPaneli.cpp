// The panel of warnings: what is near, over the table.
#include <algorithm>

#include "reservation/KayitYukle.h"
#include "reservation/Uyarilar.h"
#include "screen/Program.h"
#include "screen/Sorular.h"
#include "setup/FormAyarlar.h"
#include "storage/Sayi.h"
#include "table/FormTablo.h"

namespace velora {

void FormTablo::UyariGoster() {
    Command1(); // the scan
    program_.OlaylariIsle();
    const auto sure = [this] {
        const auto ayarlar = program_.FormAyarlar.Tut();
        return UyariSuresi{SayisalDeger(ayarlar->UyariGun.metin), SayisalDeger(ayarlar->UyariGun2.metin)};
    };
    std::vector<Metin> klasorler; // of all years of a hall, then of the next
    for (const Metin& salon : Salon.ogeler)
        for (const Metin& yil : Sene.ogeler)
            klasorler.push_back(program_.agac.YilKlasoru(salon, yil));
    const Dosyalar::Onden onden(program_.dosyalar, klasorler);
    UyariTaramasi tarama(program_.dosyalar, program_.Bugun(), sure());
    for (std::size_t i = 0; i < klasorler.size(); ++i)
        tarama.KlasorEkle(Salon.ogeler[i / Sene.ogeler.size()], klasorler[i]);
    // After a save they are nearly always the same: the list that stands is then neither made nor painted
    // anew.
    if (!std::ranges::equal(Liste.satirlar, tarama.Satirlar()))
        Liste.satirlar = tarama.Satirlar();
    Liste.secili = -1;
    Liste.secimDugmeleri.Ac(false); // no row of the new list has been clicked yet
    if (!Liste.satirlar.empty())
        Picture1.gorunur = true;
    else if (Check1 == 1)
        Soyle(program_, u"Hatırlatmalarda yaklaşan rezervasyon yok.");
}

void FormTablo::Liste_Click() {
    Liste.secimDugmeleri.Ac(true);
}

void FormTablo::Liste_DblClick() {
    if (Command8.etkin)
        Command8_Click();
}

void FormTablo::Command8_Click() {
    Liste.secimDugmeleri.Ac(false);
    const ListeSatiri* satir = Liste.Secili();
    // A hall that was renamed or taken out behind the panel: as for a missing file.
    if (satir != nullptr && Salon.Bul(satir->sutun[1]) >= 0)
        SatiriAc(program_, *satir, Metin(satir->sutun[1]), AnahtarYili(satir->sutun[0]));
}

void FormTablo::Command2_Click() {
    Picture1.gorunur = false;
}

} // namespace velora
