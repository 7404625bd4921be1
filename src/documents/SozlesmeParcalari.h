#pragma once

#include <functional>

#include "documents/SayfaAkisi.h"

namespace velora {

// What the page of the contract and the one of its menu have in common.

inline constexpr double kBlokArasi = 4; ///< between two blocks, in millimetres

/// Two columns, of the details and of the signatures.
inline constexpr double kSutunEni = 88;
inline constexpr double kSagSutun = SayfaAkisi::kEn - kSutunEni; ///< from the edge of the text

/// The name of the firm, in the middle of the paper, on so much of its width.
SayfaParcasi UnvanParcasi(const SayfaAkisi& akis, MetinBakis unvan, double en);

/// Puts down who signs, at the left and at the right, each over a rule to sign on.
void ImzalariKoy(SayfaAkisi& akis, MetinBakis soldaki, MetinBakis sagdaki);

/// The pages that `diz` fills with the running texts in that size: in the best size with which all goes on
/// one sheet. Where it doesn't even at the smallest, it goes on to others.
std::vector<Sayfa> EnIyiBoyda(const std::function<SayfaAkisi(double punto)>& diz);

} // namespace velora
