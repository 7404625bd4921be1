#include "tools/OrnekGunler.h"

#include <chrono>
#include <cstdlib>

namespace velora::ornek {

namespace {

using namespace std::chrono;

struct Aday {
    Dilim dilim;
    int agirlik; ///< 0: taken
};

int Agirlik(const Istek& istek, const Dilim& dilim) {
    const int uzaklik = std::abs(GunNo(dilim.gun) - GunNo(istek.bugun));
    const unsigned haftaGunu = weekday(sys_days(days(GunNo(dilim.gun)))).iso_encoding();
    const unsigned ay = static_cast<unsigned>(dilim.gun.month());
    int agirlik = haftaGunu >= 6 ? 12 : haftaGunu == 5 ? 5 : 2;
    if (dilim.dilim == GunduzGece::Gece)
        agirlik = agirlik * 3 / 2;
    if (ay >= 5 && ay <= 9)
        agirlik *= 2;
    return agirlik * (uzaklik <= 45 ? 4 : uzaklik <= 120 ? 2 : 1);
}

std::vector<Aday> Adaylar(const Istek& istek, int yil) {
    std::vector<Aday> adaylar;
    for (unsigned ay = 1; ay <= 12; ++ay) {
        const unsigned son =
            istek.tumAdlar ? 31
                           : static_cast<unsigned>(year_month_day_last(year(yil) / month(ay) / last).day());
        for (unsigned gun = 1; gun <= son; ++gun)
            for (const GunduzGece gunduzGece : {GunduzGece::Gunduz, GunduzGece::Gece}) {
                const Dilim dilim{year(yil) / month(ay) / day(gun), gunduzGece};
                adaylar.push_back({dilim, Agirlik(istek, dilim)});
            }
    }
    return adaylar;
}

} // namespace

int GunNo(const Gun& gun) {
    return static_cast<int>(sys_days(gun).time_since_epoch().count());
}

Gun GunuBul(int no) {
    return sys_days(days(no));
}

std::vector<Dilim> DilimleriSec(const Istek& istek, int yil, Rastgele& rastgele) {
    std::vector<Aday> adaylar = Adaylar(istek, yil);
    int toplam = 0;
    for (const Aday& aday : adaylar)
        toplam += aday.agirlik;
    for (unsigned secilen = 0; secilen < istek.rezervasyon && toplam > 0; ++secilen) {
        int yer = rastgele.Arasi(1, toplam);
        auto aday = adaylar.begin();
        for (; yer > aday->agirlik; ++aday)
            yer -= aday->agirlik;
        toplam -= aday->agirlik;
        aday->agirlik = 0;
    }
    std::vector<Dilim> secilenler;
    for (const Aday& aday : adaylar)
        if (aday.agirlik == 0)
            secilenler.push_back(aday.dilim);
    return secilenler;
}

} // namespace velora::ornek
