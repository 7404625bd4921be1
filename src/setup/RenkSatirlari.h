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
    {.baslik = u"Başlıklar (Ay ve Günler)", .zemin = RenkNo::BaslikZemini, .yazi = RenkNo::BaslikYazisi},
    {.baslik = u"Normal Günler (Gündüz)", .zemin = RenkNo::GunduzZemini, .yazi = RenkNo::GunduzYazisi},
    {.baslik = u"Normal Günler (Gece)", .zemin = RenkNo::GeceZemini, .yazi = RenkNo::GeceYazisi},
    {.baslik = u"Hafta Sonu (Gündüz)",
     .zemin = RenkNo::GunduzHaftaSonuZemini,
     .yazi = RenkNo::GunduzHaftaSonuYazisi},
    {.baslik = u"Hafta Sonu (Gece)",
     .zemin = RenkNo::GeceHaftaSonuZemini,
     .yazi = RenkNo::GeceHaftaSonuYazisi},
    {.baslik = u"Kesin Rezervasyon (Gündüz)",
     .zemin = RenkNo::GunduzKesinZemini,
     .yazi = RenkNo::GunduzKesinYazisi},
    {.baslik = u"Kesin Rezervasyon (Gece)",
     .zemin = RenkNo::GeceKesinZemini,
     .yazi = RenkNo::GeceKesinYazisi},
    {.baslik = u"Ön Rezervasyon (Gündüz)", .zemin = RenkNo::GunduzOnZemini, .yazi = RenkNo::GunduzOnYazisi},
    {.baslik = u"Ön Rezervasyon (Gece)", .zemin = RenkNo::GeceOnZemini, .yazi = RenkNo::GeceOnYazisi},
    {.onay = &FormAyarlar::Check5, .zemin = RenkNo::TatilZemini, .yazi = RenkNo::TatilYazisi},
    {.baslik = u"Uyarı Penceresi", .zemin = RenkNo::UyariZemini, .yazi = RenkNo::UyariYazisi},
    // Both boxes have the tool tip of a ground, as is meant.
    {.onay = &FormAyarlar::Check1,
     .zemin = RenkNo::GecmisZemini,
     .yazi = RenkNo::GecmisYazisi,
     .yaziIpucu = kZeminRengi},
    {.baslik = u"Bugün Çerçevesi", .zemin = RenkNo::BuGunCercevesi},
}};

} // namespace velora
