#pragma once

#include <cstdint>
#include <unordered_map>

#include <QFont>
#include <QPixmap>
#include <QStaticText>

#include "qt/table/TabloGoruntusu.h"

class QPainter;

namespace velora {

/// The colours of the table that are no colours of the model.
struct TabloTonlari {
    QColor zemin{243, 244, 245}; ///< where nothing stands
    QColor cizgi{214, 216, 219}; ///< between cells
    QColor koyu{32, 33, 36};     ///< edges of frames and marks, so that they stand out on any cell
};

/// Paints the year table from a picture of its screen, on a widget or into a picture. Texts and pictograms
/// are shaped once and kept for the next painting.
class TabloCizici {
  public:
    /// `yaziTipi` is the interface font at its own size; in cells too small for it, it is taken smaller.
    TabloCizici(const QFont& yaziTipi, const TabloTonlari& tonlar);

    /// Paints what lies in `bolge`, in device pixels. The painter's unit is the logical pixel.
    void Ciz(QPainter& boyaci, const TabloGoruntusu& tablo, const QRect& bolge);

    /// Marks the cell that the keys work on: two thin rings within its edge, dark and light, so that they
    /// stand out on any colour and leave most of it free.
    static void OdakIsareti(QPainter& boyaci, const TabloDuzeni& duzen, const QRect& hucre);

  private:
    struct HazirMetin {
        QStaticText metin;
        QPointF pay; // from its upper left corner to the middle of its letters
        std::unordered_map<RenkDegeri, QPixmap> konturlu; // with an outline, by its colour
    };
    /// Texts in one font.
    class HazirMetinler {
      public:
        void Kur(const QFont& tip);
        HazirMetin& Bul(MetinBakis metin);
        const QFont& Tip() const { return tip_; }

      private:
        QFont tip_;
        std::unordered_map<Metin, HazirMetin> metinler_;
    };
    /// What the kept texts and pictograms were made for.
    struct Olcu {
        double olcek = 0;
        QSize hucre;
        QSize ay;
        bool gunAdiVar = false;
        bool operator==(const Olcu&) const = default;
    };

    void OlculeriKur(const TabloGoruntusu& tablo);
    QFont SiganTip(const QStringList& metinler, QSize yer, bool kalin) const;
    void GunBasliklari(QPainter& boyaci, const TabloGoruntusu& tablo, const QRect& bolge);
    void AyBasligi(QPainter& boyaci, const TabloGoruntusu& tablo, int ay);
    void AyHucreleri(QPainter& boyaci, const TabloGoruntusu& tablo, int ay, const QRect& bolge);
    void GozCiz(QPainter& boyaci, const QRect& yer, const TabloGoruntusu::Goz& goz);
    void Cerceve(QPainter& boyaci, const TabloDuzeni& duzen, const TabloGoruntusu::Cerceve& cerceve) const;
    /// A caption on its back colour, with an outline where it needs one.
    void Ortala(QPainter& boyaci, const QRect& yer, HazirMetin& hazir, RenkDegeri yazi, RenkDegeri zemin);
    const QPixmap& KonturluMetin(HazirMetin& hazir, const QFont& tip, RenkDegeri yazi) const;
    bool Konturlu(RenkDegeri yazi, RenkDegeri zemin);
    const QPixmap& Pictogram(GunduzGece dilim, RenkDegeri renk);

    QFont yaziTipi_;
    TabloTonlari tonlar_;
    Olcu olcu_;
    HazirMetinler hucreMetinleri_;
    HazirMetinler baslikMetinleri_;
    HazirMetinler ayMetinleri_;
    int pictogramBoyu_ = 0;
    int cizgi_ = 1;
    std::unordered_map<std::uint64_t, bool> konturlular_; // by both colours
    std::unordered_map<RenkDegeri, QPixmap> pictogramlar_[2];
};

/// The mark of a pre-reservation in the upper right corner of a place: a light triangle with dark edges,
/// `boy` wide and high. `cizgi` is how thick the edges are.
void OnIsareti(QPainter& boyaci, const QRect& yer, int boy, int cizgi, const QColor& koyu);

/// A ring of this thickness along the inside of a place.
void Halka(QPainter& boyaci, const QRect& yer, int kalinlik, const QColor& ton);

} // namespace velora
