#pragma once

#include <array>

#include "setup/FormAyarlar.h"

namespace velora {

inline constexpr int kRenkYok = -1;
inline constexpr MetinBakis kZeminRengi = u"Zemin Rengi"; ///< head of the ground column, and its tool tip
inline constexpr MetinBakis kMetinRengi = u"Metin Rengi"; ///< the same of the text column

/// One row of the colours on the page of appearance: two colour boxes behind a caption or a check box.
struct RenkSatiri {
    MetinBakis baslik = {};                  ///< empty where the check box has the caption
    OnayKutusu FormAyarlar::*onay = nullptr; ///< the check box, if the row has one
    int zemin = kRenkYok;                    ///< colour slot of the ground box
    int yazi = kRenkYok;                     ///< colour slot of the text box; `kRenkYok`: there is none
    MetinBakis zeminIpucu = kZeminRengi;
    MetinBakis yaziIpucu = kMetinRengi;
};

/// The rows from top to bottom. The slots don't follow them.
inline constexpr std::array<RenkSatiri, 13> kRenkSatirlari{{
    {.baslik = u"Başlıklar (Ay ve Günler)", .zemin = 0, .yazi = 1},
    {.baslik = u"Normal Günler (Gündüz)", .zemin = 2, .yazi = 3},
    {.baslik = u"Normal Günler (Gece)", .zemin = 4, .yazi = 5},
    {.baslik = u"Hafta Sonu (Gündüz)", .zemin = 8, .yazi = 9},
    {.baslik = u"Hafta Sonu (Gece)", .zemin = 10, .yazi = 11},
    {.baslik = u"Kesin Rezervasyon (Gündüz)", .zemin = 6, .yazi = 7},
    {.baslik = u"Kesin Rezervasyon (Gece)", .zemin = 12, .yazi = 13},
    {.baslik = u"Ön Rezervasyon (Gündüz)", .zemin = 19, .yazi = 20},
    {.baslik = u"Ön Rezervasyon (Gece)", .zemin = 21, .yazi = 22},
    {.onay = &FormAyarlar::Check5, .zemin = 23, .yazi = 24},
    {.baslik = u"Uyarı Penceresi", .zemin = 14, .yazi = 15},
    // Both boxes have the tool tip of a ground, as is meant.
    {.onay = &FormAyarlar::Check1, .zemin = 17, .yazi = 18, .yaziIpucu = kZeminRengi},
    {.baslik = u"Bugün Çerçevesi", .zemin = 16},
}};

} // namespace velora
