#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "screen/Kontroller.h"

namespace velora {

/// The paper: A4, upright, in millimetres.
inline constexpr double kSayfaEni = 210;
inline constexpr double kSayfaBoyu = 297;

enum class Yon { Dik, Yatay };

/// Where something stands on the paper, in millimetres from its upper left corner.
struct SayfaYeri {
    double sol = 0;
    double ust = 0;
    double en = 0;
    double boy = 0;

    double Alt() const { return ust + boy; }
    double Sag() const { return sol + en; }
    bool operator==(const SayfaYeri&) const = default;
};

/// Of a text, the size in points.
struct SayfaYazisi {
    double punto = 10;
    bool kalin = false;

    bool operator==(const SayfaYazisi&) const = default;
};

enum class Hiza { Sol, Orta, Sag };

enum class ParcaTuru { Yazi, Cerceve };

/// One thing on a page: lines of text, or a frame.
struct SayfaParcasi {
    ParcaTuru tur = ParcaTuru::Yazi;
    Metin ad{}; ///< of the field that it shows
    SayfaYeri yer{};
    SayfaYazisi yazi{};
    Hiza hiza = Hiza::Sol;
    std::vector<Metin> satirlar{};     ///< broken already: each is painted as it stands
    RenkDegeri renk = 0;               ///< of the letters, of a frame's line
    std::optional<RenkDegeri> zemin{}; ///< what its place is filled with before

    bool operator==(const SayfaParcasi&) const = default;
};

struct Sayfa {
    Yon yon = Yon::Dik;
    std::vector<SayfaParcasi> parcalar{};

    double En() const { return yon == Yon::Dik ? kSayfaEni : kSayfaBoyu; }
    double Boy() const { return yon == Yon::Dik ? kSayfaBoyu : kSayfaEni; }
    bool operator==(const Sayfa&) const = default;
};

/// How wide a text of one line is, in millimetres. Who paints the page says so, in the font that it is
/// painted in.
using YaziOlcer = std::function<double(MetinBakis metin, const SayfaYazisi& yazi)>;

/// From one line of a text to the next, in millimetres.
double SatirBoyu(const SayfaYazisi& yazi);

/// Breaks a text into lines that are no wider than `en`: at its line ends, else at blanks, else within a word
/// that is too wide for a line of its own. Blanks at a break go, all else stays. An empty text has no line.
/// It stops as soon as there are more than `enCok`: who asks then only wants to know that.
std::vector<Metin> SatirlaraBol(MetinBakis metin, double en, const SayfaYazisi& yazi, const YaziOlcer& olcer,
                                std::size_t enCok = MetinBakis::npos);

/// The pages as text, one line for each part: its field, its place, its size, its colours where it isn't
/// plain black, and its lines.
Metin SayfalarMetni(const std::vector<Sayfa>& sayfalar);

} // namespace velora
