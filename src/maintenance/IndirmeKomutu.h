#pragma once

#include "maintenance/FileDownloader.h"
#include "screen/Kontroller.h"

namespace velora {

/// What the screens that fetch a file have in common: the caption of their button tells whether they fetch.
inline constexpr MetinBakis kYenidenDene = u"Yeniden Dene";
inline constexpr MetinBakis kDurdur = u"Durdur";
/// What the bar of such a screen counts to.
inline constexpr int kTamYuzde = 100;

struct IndirmeParcalari {
    Dugme& Command;
    IlerlemeCubugu& ProgressBar;
    FileDownloader& indiren;
};

/// The button is pressed: with the caption "Yeniden Dene" it fetches, with any other one it stops the fetch.
/// Returns when the fetch has ended. One that ends without an event lets it be tried again.
void IndirmeKomutu(const IndirmeParcalari& parcalar, const Metin& adres, const Metin& hedef);

/// The button can be pressed for a new try, and the bar is empty.
void IndirmeyiSifirla(const IndirmeParcalari& parcalar);

} // namespace velora
