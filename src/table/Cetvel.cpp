// The overview ruler: a month and a day picked in the heads, and a frame that blinks at their crossing.
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

template <std::size_t Adet>
void BasliklariBoya(BirTabanli<Etiket, Adet>& basliklar, RenkDegeri renk) {
    for (Etiket& baslik : basliklar)
        baslik.zemin = renk;
}

} // namespace

template <std::size_t Adet>
void FormTablo::BasligiSec(BirTabanli<Etiket, Adet>& basliklar, int no, int& hizli) {
    BasliklariBoya(basliklar, program_.FormAyarlar->Renk(RenkNo::BaslikZemini));
    basliklar[no].zemin = kBaslikIsareti;
    if (hizli == no)
        return;
    hizli = no;
    CetvelAc();
}

void FormTablo::ALabel_Click(int gun) {
    BasligiSec(Gunler, gun, HizliGun);
}

void FormTablo::AyAdi_Click(int ay) {
    BasligiSec(AyZemin, ay, HizliAy);
}

void FormTablo::CetvelYerlestir() {
    if (HizliAy <= 0 || HizliGun <= 0)
        return;
    const Yer hucre = HucreYeri(OcakGunduz, 1);
    const double pay = GunduzUstte() ? 0 : 30;
    HizliSecim.yer = {ALabel[HizliGun].yer.sol + 20, AyZemin[HizliAy].yer.ust, hucre.genislik + 10,
                      2 * hucre.yukseklik + pay};
    HizliSecim.ay = HizliAy;
    HizliSecim.gun = HizliGun;
}

void FormTablo::CetvelAc() {
    if (HizliAy <= 0 || HizliGun <= 0)
        return;
    CetvelYerlestir();
    HizliSecim.gorunur = true;
    CetvelTimer.aralik = kYanipSonme;
}

void FormTablo::CetvelTimer_Tick() {
    HizliSecim.gorunur = !HizliSecim.gorunur;
    if (HizliAy == 0 && HizliGun == 0)
        HizliSecim.gorunur = false;
}

void FormTablo::CetvelSil() {
    CetvelTimer.aralik = 0;
    program_.OlaylariIsle();
    BasliklariBoya(Gunler, program_.FormAyarlar->Renk(RenkNo::BaslikZemini));
    BasliklariBoya(AyZemin, program_.FormAyarlar->Renk(RenkNo::BaslikZemini));
    program_.OlaylariIsle();
    HizliSecim.gorunur = false;
    HizliAy = HizliGun = 0;
    // Once more, for a tick that may have come in the meantime.
    CetvelTimer.aralik = 0;
    program_.OlaylariIsle();
    HizliSecim.gorunur = false;
}

} // namespace velora
