#pragma once

#include <optional>

#include "table/FormTablo.h"

class QWidget;

// The scenes of the pictures that take more than a field or two: how their windows are opened and filled.
namespace velora::kilavuz {

// --- the table ---
void TabloAc(Program& program);
void TabloSade(Program& program, QWidget& pencere);
void TabloCetvel(Program& program, QWidget& pencere);
void TabloSagTus(Program& program, QWidget& pencere);
void TabloTasima(Program& program, QWidget& pencere);
void UyariSec(Program& program, QWidget& pencere);
void TabloBaskisiAc(Program& program);

// --- the reservation ---
void YeniKayitAc(Program& program);
void YeniKayitDoldur(Program& program, QWidget& pencere);
void DoluKayitAc(Program& program);
void OdemeAlAc(Program& program);
void OdemeAlDoldur(Program& program, QWidget& pencere);
void MakbuzAc(Program& program);
void MenuSayfasi(Program& program, QWidget& pencere);
void HizmetSayfasi(Program& program, QWidget& pencere);

// --- lists of reservations ---
void HatirlatmaAc(Program& program);
void AramaYap(Program& program, QWidget& pencere);
void RaporListele(Program& program, QWidget& pencere);
void KasaListele(Program& program, QWidget& pencere);
void GiderYaz(Program& program, QWidget& pencere);

/// A slot of a day on the table.
struct Goz {
    SatirAdi satir;
    int gun;
};

/// The first slot behind today, in the hall and year that the table shows, of which this is true.
template <class Uyar>
Goz GozBul(const FormTablo& tablo, const Gun& bugun, const Uyar& uyar) {
    const int ilk = static_cast<int>(unsigned(bugun.month()));
    for (int ay = ilk; ay <= kAySayisi; ++ay)
        for (int gun = ay == ilk ? static_cast<int>(unsigned(bugun.day())) + 1 : 1; gun <= kGunSayisi; ++gun)
            for (const auto dilim : {GunduzGece::Gunduz, GunduzGece::Gece})
                if (const SatirAdi satir = Satir(ay, dilim);
                    tablo.Gozu(satir, gun).gorunur && uyar(satir, gun))
                    return {satir, gun};
    throw std::runtime_error("no day of the sample firm fits the picture");
}

} // namespace velora::kilavuz
