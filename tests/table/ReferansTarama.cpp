#include "table/ReferansTarama.h"

#include "storage/RezervasyonDosyalari.h"

namespace velora::test {

ReferansSonuc ReferansTara(const Program& program, const Metin& salon, const Metin& yil,
                           const Metin& kullanici) {
    ReferansSonuc sonuc;
    AnaDegerler ana;
    DetayDegerler detay;
    for (unsigned ay = 1; ay <= kAySayisi; ++ay)
        for (unsigned gun = 1; gun <= kGunSayisi; ++gun)
            for (const auto dilim : {velora::GunduzGece::Gunduz, velora::GunduzGece::Gece}) {
                const Metin yol = program.agac.GunYolu(salon, yil, GunAnahtari(gun, ay, yil, dilim));
                if (!program.agac.RezervasyonVarMi(yol))
                    continue;
                DetayOku(program.dosyalar, yol + Metin(kDetayEki), detay);
                AnaOku(program.dosyalar, yol, ana);
                const Metin slot = dilim == velora::GunduzGece::Gunduz ? u"Gündüz" : u"Gece";
                sonuc.dilimler[ay - 1][gun - 1][static_cast<std::size_t>(dilim)] = ReferansDilim{
                    detay.No(37) == u"1", kullanici + u"|" + ana.No(12) + u"|" + ana.No(4) + u"|" + slot +
                                              u"|" + ana.No(8) + u"|" + ana.No(9) + u"|" + ana.No(10) + u"|" +
                                              ana.No(1) + u"|" + ana.No(14) + u"|" + ana.No(19)};
            }
    const Metin klasor = program.agac.YilKlasoru(salon, yil);
    const Metin bugun = TarihMetni(program.Bugun());
    for (const Metin& ad : program.dosyalar.Listele(klasor)) {
        AnaOku(program.dosyalar, klasor + kAyrac + ad, ana);
        sonuc.hatirlatma = sonuc.hatirlatma || (ana.No(18) == bugun && ana.No(20) == u"1");
    }
    return sonuc;
}

} // namespace velora::test
