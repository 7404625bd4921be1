#include "reservation/ReferansArama.h"

#include "storage/Desen.h"
#include "storage/Harf.h"
#include "storage/YazimBicimi.h"

namespace velora::test {

std::vector<ListeSatiri> ReferansAra(const Program& program, const std::vector<Metin>& salonlar,
                                     const std::vector<Metin>& seneler, const Metin& sene,
                                     const std::array<Metin, 5>& olcutler) {
    std::vector<ListeSatiri> satirlar;
    std::array<Metin, 14> deger;
    const auto ekle = [&](const Metin& salon, const Metin& ad, const Metin& yol) {
        satirlar.push_back({{ad, salon, deger[0], deger[2], deger[4], deger[5]}, yol});
    };
    for (const Metin& yil : seneler)
        for (const Metin& salon : salonlar)
            for (const Metin& ad : program.dosyalar.Listele(program.agac.YilKlasoru(salon, yil))) {
                const Metin yol = program.dosyalar.Kok() + u"\\" + salon + u"\\" + sene + u"\\" + ad;
                if (const auto bayt = program.dosyalar.Oku(yol)) {
                    DegerOkuyucu okuyucu(*bayt);
                    for (Metin& hedef : deger)
                        okuyucu.Oku(hedef);
                }
                if (!olcutler[0].empty() &&
                    HazirDesen(u"*" + Kucult(olcutler[0]) + u"*").Uyar(Kucult(deger[0])))
                    ekle(salon, ad, yol);
                if (!olcutler[1].empty() &&
                    HazirDesen(u"*" + Kucult(olcutler[1]) + u"*").Uyar(Kucult(deger[2])))
                    ekle(salon, ad, yol);
                if (!olcutler[2].empty() && Kucult(deger[4]) == Kucult(olcutler[2]))
                    ekle(salon, ad, yol);
                if (!olcutler[3].empty() && Kucult(deger[5]) == Kucult(olcutler[3]))
                    ekle(salon, ad, yol);
                if (!olcutler[4].empty() && Kucult(deger[13]) == Kucult(olcutler[4]))
                    ekle(salon, ad, yol);
            }
    return satirlar;
}

} // namespace velora::test
