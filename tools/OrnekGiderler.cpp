#include "tools/OrnekGiderler.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include "storage/KodSayfasi.h"
#include "storage/YazimBicimi.h"
#include "tools/OrnekGunler.h"
#include "tools/OrnekMetinler.h"

namespace velora::ornek {

namespace {

struct Gider {
    int gun; ///< number of the day
    int tutar;
    MetinBakis aciklama;
};

/// The one kind of value that no writer of the records knows: only expenses have it.
std::string TarihDegeri(const Gun& gun) {
    const std::string tarih = KodYaz(TarihMetni(gun));
    std::string bayt = "#";
    bayt.append(tarih, 6, 4).append("-").append(tarih, 3, 2).append("-").append(tarih, 0, 2);
    return bayt.append("#,");
}

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
    for (const Gider& gider : Giderler(istek, yil, rastgele)) {
        DegerYazici satir;
        satir.Yaz(SayiMetni(gider.tutar), gider.aciklama);
        bayt += TarihDegeri(GunuBul(gider.gun)) + satir.Bayt();
    }
    return bayt;
}

} // namespace velora::ornek
