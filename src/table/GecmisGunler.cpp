// The layer of the days gone by. It paints over reservations too; only their tags still tell of them.
#include "screen/Program.h"
#include "setup/FormAyarlar.h"
#include "storage/Sayi.h"
#include "table/FormTablo.h"
#include "table/HucreRenkleri.h"

namespace velora {

void FormTablo::GecmisBoya(int ay, int ilkGun, int sonGun) {
    const auto ayarlar = program_.FormAyarlar.Tut();
    for (const auto dilim : {velora::GunduzGece::Gunduz, velora::GunduzGece::Gece})
        for (int gun = ilkGun; gun <= sonGun; ++gun) {
            Hucre& hucre = Gozu(ay, dilim, gun);
            hucre.zemin = ayarlar->Renk(kGecmisRengi.zemin);
            hucre.yazi = ayarlar->Renk(kGecmisRengi.yazi);
        }
}

void FormTablo::GecmisGunler() {
    if (program_.FormAyarlar->Check1.deger != 1)
        return;
    const Gun bugun = program_.Bugun();
    const int buYil = static_cast<int>(bugun.year());
    const int seciliYil = static_cast<int>(SayisalDeger(Sene.Metni()));
    if (buYil < seciliYil)
        return;
    const int buAy = static_cast<int>(unsigned(bugun.month()));
    const int gecenAy = buYil > seciliYil ? kAySayisi : buAy - 1;
    for (int ay = 1; ay <= gecenAy; ++ay)
        GecmisBoya(ay, 1, kGunSayisi);
    if (buYil == seciliYil)
        GecmisBoya(buAy, 1, static_cast<int>(unsigned(bugun.day())) - 1);
}

} // namespace velora
