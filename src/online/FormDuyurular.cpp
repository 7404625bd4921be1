#include "online/FormDuyurular.h"

#include <algorithm>

#include "online/FormSunucu.h"
#include "online/Istekler.h"
#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora {

namespace {

constexpr MetinBakis kDuyuruAyraci = u"<br>";

Metin SatirlaraBol(MetinBakis cevap) {
    Metin metin;
    for (std::size_t yer = 0; yer <= cevap.size();) {
        const std::size_t son = std::min(cevap.find(kDuyuruAyraci, yer), cevap.size());
        metin += cevap.substr(yer, son - yer);
        if (son < cevap.size())
            metin += u"\r\n";
        yer = son + kDuyuruAyraci.size();
    }
    return metin;
}

} // namespace

FormDuyurular::FormDuyurular(Program& program) : Inet1(program), program_(program) {
    Text1.baslik = u"Duyurular";
    Text1.kilitli = true;
}

void FormDuyurular::Activate() {
    const Metin cevap = Inet1.Getir(IstekAdresi(program_, Istek::Duyurular));
    if (!program_.FormDuyurular.Yuklu())
        return;
    Text1.metin = SatirlaraBol(cevap);
    // Not by its own control, which is given up with the screen: who closes it at once has read it, too.
    program_.FormTablo->ArkadanGonder(
        IstekAdresi(program_, Istek::DuyuruOkundu, {program_.FormSunucu->Text1.metin}));
}

void FormDuyurular::Command1_Click() {
    {
        const auto tablo = program_.FormTablo.Tut();
        // Its next tick would put the mark on again.
        tablo->YeniDuyuruTimer.aralik = 0;
        tablo->YeniDuyuru.etkin = false;
    }
    program_.FormDuyurular.Bosalt();
}

} // namespace velora
