#pragma once

namespace velora {

/// The colours of the settings, by their numbers: what they paint. "Zemini" is a back colour, "Yazisi" the
/// colour of the text on it.
struct RenkNo {
    enum No : int {
        BaslikZemini, ///< heads of days and months
        BaslikYazisi,
        GunduzZemini, ///< free weekdays
        GunduzYazisi,
        GeceZemini,
        GeceYazisi,
        GunduzKesinZemini, ///< firm reservations
        GunduzKesinYazisi,
        GunduzHaftaSonuZemini, ///< free weekends
        GunduzHaftaSonuYazisi,
        GeceHaftaSonuZemini,
        GeceHaftaSonuYazisi,
        GeceKesinZemini,
        GeceKesinYazisi,
        UyariZemini, ///< panel of warnings
        UyariYazisi, ///< its title
        BuGunCercevesi,
        GecmisZemini, ///< days gone by
        GecmisYazisi,
        GunduzOnZemini, ///< pre-reservations
        GunduzOnYazisi,
        GeceOnZemini,
        GeceOnYazisi,
        TatilZemini, ///< holidays
        TatilYazisi
    };
};

inline constexpr int kRenkSayisi = RenkNo::TatilYazisi + 1;

} // namespace velora
