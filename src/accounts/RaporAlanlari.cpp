#include "accounts/RaporAlanlari.h"

#include "screen/Program.h"
#include "table/FormTablo.h"

namespace velora {

void SalonlariAl(Program& program, AcilirListe& salonlar) {
    const auto tablo = program.FormTablo.Tut();
    salonlar.ogeler = tablo->Salon.ogeler;
    salonlar.secili = tablo->Salon.secili;
    salonlar.bosYazi = tablo->Salon.bosYazi;
    salonlar.bosIpucu = tablo->Salon.bosIpucu;
}

void BuAyiSec(const Program& program, TarihSecici& ilk, TarihSecici& son) {
    const Gun bugun = program.Bugun();
    ilk.deger = bugun.year() / bugun.month() / 1;
    son.deger = bugun.year() / bugun.month() / std::chrono::day(AyinSonGunu(bugun));
}

void YilaSinirla(Program& program, TarihSecici& secici) {
    const Metin yil = program.FormTablo->Sene.Metni();
    const auto ilk = TarihCoz(u"01.01." + yil);
    const auto son = TarihCoz(u"31.12." + yil);
    if (ilk && son)
        secici.Sinirla(*ilk, *son);
}

} // namespace velora
