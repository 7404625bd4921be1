#include "table/ReferansTarama.h"

#include <gtest/gtest.h>

#include "setup/FormAyarlar.h"
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

int ReferansGibiOlmali(Program& program, const ReferansSonuc& beklenen) {
    const auto tablo = program.FormTablo.Tut();
    const auto ayarlar = program.FormAyarlar.Tut();
    EXPECT_EQ(tablo->Image3, beklenen.hatirlatma);
    int dolu = 0;
    for (int ay = 1; ay <= kAySayisi; ++ay)
        for (int gun = 1; gun <= kGunSayisi; ++gun)
            for (const bool gunduz : {true, false}) {
                const auto dilim = gunduz ? velora::GunduzGece::Gunduz : velora::GunduzGece::Gece;
                const auto& dilimBeklenen =
                    beklenen.dilimler[static_cast<std::size_t>(ay - 1)][static_cast<std::size_t>(gun - 1)]
                                     [static_cast<std::size_t>(dilim)];
                const Hucre& hucre = tablo->Gozu(ay, dilim, gun);
                EXPECT_EQ(hucre.tag, dilimBeklenen ? dilimBeklenen->tag : Metin()) << gun << '.' << ay;
                const bool kesin = hucre.zemin == ayarlar->Renk(gunduz ? 6 : 12);
                const bool on = hucre.zemin == ayarlar->Renk(gunduz ? 19 : 21);
                EXPECT_EQ(on, dilimBeklenen && dilimBeklenen->on) << gun << '.' << ay;
                EXPECT_EQ(kesin, dilimBeklenen && !dilimBeklenen->on) << gun << '.' << ay;
                dolu += dilimBeklenen ? 1 : 0;
            }
    return dolu;
}

} // namespace velora::test
