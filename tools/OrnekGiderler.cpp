#include "tools/OrnekGiderler.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include "storage/KasaKayitlari.h"
#include "tools/OrnekGunler.h"
#include "tools/OrnekMetinler.h"

namespace velora::ornek {

namespace {

struct Gider {
    int gun; ///< number of the day
    int tutar;
    MetinBakis aciklama;
};

std::vector<Gider> Giderler(const Istek& istek, int yil, Rastgele& rastgele) {
    const auto ekle = [&](std::vector<Gider>& giderler, unsigned ay, int gun, const GiderTuru& tur) {
        const int no = GunNo(std::chrono::year(yil) / static_cast<int>(ay) / gun);
        const int tutar = rastgele.Arasi(tur.enAz / 10, tur.enCok / 10) * 10;
        if (no <= GunNo(istek.bugun))
            giderler.push_back({no, tutar, tur.aciklama});
    };
    std::vector<Gider> giderler{{GunNo(std::chrono::year(yil) / 1 / 2), 24000, u"Yıllık Sigorta"}};
    for (unsigned ay = 1; ay <= 12; ++ay) {
        for (const GiderTuru& tur : AylikGiderler())
            ekle(giderler, ay, rastgele.Arasi(3, 10), tur);
        for (int kez = rastgele.Arasi(1, 3); kez > 0; --kez)
            ekle(giderler, ay, rastgele.Arasi(11, 28), rastgele.Birini(AradaGiderler()));
    }
    std::ranges::stable_sort(giderler, {}, &Gider::gun);
    return giderler;
}

} // namespace

std::string GiderBayt(const Istek& istek, int yil, Rastgele& rastgele) {
    std::string bayt;
    for (const Gider& gider : Giderler(istek, yil, rastgele))
        bayt += velora::GiderBayt(GunuBul(gider.gun), SayiMetni(gider.tutar), gider.aciklama);
    return bayt;
}

} // namespace velora::ornek
