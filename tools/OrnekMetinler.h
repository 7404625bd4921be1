#pragma once

#include <span>

#include "storage/Metin.h"

namespace velora::ornek {

/// Who books and how much such an event costs, in whole lira.
struct Nitelik {
    MetinBakis ad;
    int pay; ///< in so many of a hundred reservations
    int enAz;
    int enCok;
    bool ciftVar; ///< bride and groom are named
    bool kurum;   ///< booked by a company
};

struct Menu {
    MetinBakis ad;
    MetinBakis icerik;
};

struct Tatil {
    MetinBakis gunAy; ///< dd.mm.
    MetinBakis ad;
};

/// An expense that comes back each month, or once at a chosen day.
struct GiderTuru {
    MetinBakis aciklama;
    int enAz;
    int enCok;
};

std::span<const MetinBakis> HazirSalonAdlari();
std::span<const MetinBakis> KadinAdlari();
std::span<const MetinBakis> ErkekAdlari();
std::span<const MetinBakis> Soyadlari();
std::span<const MetinBakis> Kurumlar();
std::span<const MetinBakis> Yoreler();
std::span<const MetinBakis> Mahalleler();
std::span<const MetinBakis> Caddeler();
std::span<const MetinBakis> OnAciklamalar();
std::span<const MetinBakis> OzelIstekler();
/// One note for each service, in the order of the services.
std::span<const MetinBakis> HizmetNotlari();
std::span<const Nitelik> Nitelikler();
std::span<const Menu> Menuler();
std::span<const Tatil> ResmiTatiller();
std::span<const GiderTuru> AylikGiderler();
std::span<const GiderTuru> AradaGiderler();

} // namespace velora::ornek
