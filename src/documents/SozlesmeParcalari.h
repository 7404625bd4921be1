#pragma once

#include <functional>

#include "documents/SayfaAkisi.h"

namespace velora {

// What the page of the contract and the one of its menu have in common.

/// How roomy a page is.
struct SayfaDuzeni {
    double punto; ///< of its running texts
    double ara;   ///< between two blocks, in millimetres
};

/// Two columns, of the details and of the signatures.
inline constexpr double kSutunEni = 88;
inline constexpr double kSagSutun = SayfaAkisi::kEn - kSutunEni; ///< from the edge of the text

/// The name of the firm, in the middle of the paper, on so much of its width.
SayfaParcasi UnvanParcasi(const SayfaAkisi& akis, MetinBakis unvan, double en);

/// Puts down who signs, at the left and at the right, each over a rule to sign on.
void ImzalariKoy(SayfaAkisi& akis, MetinBakis soldaki, MetinBakis sagdaki);

/// The pages that `diz` fills, as roomy as they can be with all of it on one sheet. What doesn't go on one
/// even when it is at its smallest goes on as few as can be, these with `ad` and their number at the foot.
std::vector<Sayfa> EnIyiDuzende(const YaziOlcer& olcer, MetinBakis ad,
                                const std::function<void(SayfaAkisi&, const SayfaDuzeni&)>& diz);

} // namespace velora
