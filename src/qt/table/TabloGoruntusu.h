#pragma once

#include <array>
#include <vector>

#include "qt/table/TabloDuzeni.h"

namespace velora {

struct FormAyarlar;

/// All that the painter reads, as one value. Where it differs from the value painted last, the table has to
/// be painted anew.
struct TabloGoruntusu {
    struct Goz {
        Metin baslik;
        RenkDegeri zemin = kBeyaz;
        RenkDegeri yazi = 0;
        bool gorunur = false;
        bool on = false; ///< carries the mark of a pre-reservation
        bool operator==(const Goz&) const = default;
    };
    /// The head of a day or a month.
    struct Baslik {
        Metin baslik;
        RenkDegeri zemin = kBeyaz;
        RenkDegeri yazi = 0;
        bool gorunur = true;
        bool vurgulu = false; ///< the pointer is on one of its cells
        bool operator==(const Baslik&) const = default;
    };
    struct AyBasligi : Baslik {
        bool adGorunur = false;
        bool resimGorunur = false;
        bool gunduzUstte = false;
        bool operator==(const AyBasligi&) const = default;
    };
    struct Cerceve {
        bool gorunur = false;
        int ay = 0; ///< of the day it stands about, 0 for none
        int gun = 0;
        RenkDegeri renk = 0;
        bool operator==(const Cerceve&) const = default;
    };

    TabloGoruntusu() = default;
    /// What the screen shows now. `olcek` as in `TabloDuzeni`; `uzerinde` is the cell under the pointer.
    TabloGoruntusu(const FormTablo& tablo, const FormAyarlar& ayarlar, double olcek,
                   const TabloIsabeti& uzerinde = {});

    /// The parts, in device pixels, that have to be painted anew where `eski` was painted. Only heads and
    /// frames are told apart: a scan changes cells all over the table.
    std::vector<QRect> Farki(const TabloGoruntusu& eski) const;
    /// True when more than heads and frames differs.
    bool GozlerFarkli(const TabloGoruntusu& eski) const {
        return duzen != eski.duzen || satirlar != eski.satirlar;
    }

    const Goz& Gozu(SatirAdi satir, int gun) const { return satirlar[static_cast<std::size_t>(satir)][gun]; }

    TabloDuzeni duzen;
    std::array<BirTabanli<Goz, kGunSayisi>, kSatirSayisi> satirlar;
    BirTabanli<Baslik, kGunSayisi> gunler;
    BirTabanli<AyBasligi, kAySayisi> aylar;
    Cerceve buGun;
    Cerceve cetvel;

    bool operator==(const TabloGoruntusu&) const = default;
};

/// The part of the table that a frame about this pair of cells covers, in device pixels.
QRect CerceveBolgesi(const TabloDuzeni& duzen, const QRect& cift);

} // namespace velora
