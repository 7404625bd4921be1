#pragma once

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "screen/Kontroller.h"

namespace velora::test {

/// What a user does to the controls of a screen. On a control that is off, locked or hidden each of these
/// fails the test and does nothing.

/// What a window tells a screen of one of its fields.
struct AlanOlaylari {
    std::function<void()> degisti{};   ///< after each key that changed the text
    std::function<void()> odakGitti{}; ///< when the user leaves it
};

/// Takes out what stands in a field of one line, types these keys and leaves it. What the keys bring passes
/// the mask, the filter and the limit of the field: the text need not become `tuslar`.
void AlanaYaz(MetinKutusu& alan, MetinBakis tuslar, const AlanOlaylari& olaylar = {});
/// The same in a field of many lines; a line break is one press of the Enter key.
void SatirlaraYaz(MetinKutusu& alan, MetinBakis tuslar, const AlanOlaylari& olaylar = {});
/// Pastes over what stands in a field of many lines.
void SatirlaraYapistir(MetinKutusu& alan, MetinBakis metin);

/// A click on a box: takes the tick away, or sets it.
void Tikla(OnayKutusu& kutu);
/// A click on one of some boxes of which one has the mark.
void Isaretle(OnayKutusu& dugme);
/// Picks an entry, which must be there, from an open list.
void ListedenSec(AcilirListe& liste, MetinBakis oge);

/// Picks a day, which must lie within the limits.
void TarihSec(TarihSecici& secici, const Gun& gun);

/// A click on a row of a list, which must be there; `tiklandi` is the screen's handler.
void SatiraTikla(ListeKutusu& liste, int sira, const std::function<void()>& tiklandi);
void SatiraTikla(ListeGorunumu& liste, int sira, const std::function<void()>& tiklandi);

/// Whether a user can press it; if not, the test fails. `ad` is its name for the failure.
bool Basilabilir(const Dugme& dugme, const std::string& ad);
bool Basilabilir(const MenuGirdisi& girdi, const std::string& ad);

} // namespace velora::test

/// Presses a button or an entry of a menu on a screen that stands: its click runs, and holds the screen until
/// it returns. `pencere` is the screen's place in `Program`.
#define VELORA_BAS(pencere, Kontrol)                                                                         \
    do {                                                                                                     \
        if (!(pencere).Yuklu()) {                                                                            \
            ADD_FAILURE() << #pencere << " doesn't stand";                                                   \
            break;                                                                                           \
        }                                                                                                    \
        SCOPED_TRACE(#pencere);                                                                              \
        const auto ekran = (pencere).Tut();                                                                  \
        if (velora::test::Basilabilir(ekran->Kontrol, #Kontrol))                                             \
            ekran->Kontrol##_Click();                                                                        \
    } while (false)
