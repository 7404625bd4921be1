#pragma once

#include <unordered_map>

#include <QFont>
#include <QPixmap>
#include <QStaticText>

#include "qt/table/TabloDuzeni.h"

class QPainter;

namespace velora {

/// The colours of the table that are no colours of the model.
struct TabloTonlari {
    QColor zemin{243, 244, 245};      ///< where nothing stands
    QColor cizgi{214, 216, 219};      ///< between cells
    QColor cetvel{255, 128, 0};       ///< frame of the ruler
    QColor cerceveIci{255, 255, 255}; ///< thin line on the inside of a frame, so that it stands out on any
                                      ///< cell
};

/// Paints the year table from the model of its screen, on a widget or into a picture. Texts and pictograms
/// are shaped once and kept for the next painting.
class TabloCizici {
  public:
    /// `yaziTipi` is the interface font at its own size; in cells too small for it, it is taken smaller.
    TabloCizici(const QFont& yaziTipi, const TabloTonlari& tonlar);

    /// Paints what lies in `bolge`, in device pixels. The painter's unit is the logical pixel. `bugunRengi`
    /// is the colour of today's frame.
    void Ciz(QPainter& boyaci, const FormTablo& tablo, const TabloDuzeni& duzen, const QRect& bolge,
             RenkDegeri bugunRengi);

    /// The part of the table that a frame about this pair of cells covers, in device pixels.
    static QRect CerceveBolgesi(const TabloDuzeni& duzen, const QRect& cift);

    /// Marks the cell that the keys work on: two thin rings within its edge, dark and light, so that they
    /// stand out on any colour and leave most of it free.
    static void OdakIsareti(QPainter& boyaci, const TabloDuzeni& duzen, const QRect& hucre);

  private:
    struct HazirMetin {
        QStaticText metin;
        QPointF pay; // from its upper left corner to the middle of its letters
    };
    /// Texts in one font.
    class HazirMetinler {
      public:
        void Kur(const QFont& tip);
        const HazirMetin& Bul(MetinBakis metin);
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

    void OlculeriKur(const FormTablo& tablo, const TabloDuzeni& duzen);
    QFont SiganTip(const QStringList& metinler, QSize yer, bool kalin) const;
    void GunBasliklari(QPainter& boyaci, const FormTablo& tablo, const TabloDuzeni& duzen,
                       const QRect& bolge);
    void AyBasligi(QPainter& boyaci, const FormTablo& tablo, const TabloDuzeni& duzen, int ay);
    void AyHucreleri(QPainter& boyaci, const FormTablo& tablo, const TabloDuzeni& duzen, int ay,
                     const QRect& bolge);
    void Cerceve(QPainter& boyaci, const TabloDuzeni& duzen, const velora::Cerceve& cerceve,
                 const QColor& renk) const;
    static void Ortala(QPainter& boyaci, const QRect& yer, const HazirMetin& hazir, RenkDegeri renk);
    const QPixmap& Pictogram(GunduzGece dilim, RenkDegeri renk);

    QFont yaziTipi_;
    TabloTonlari tonlar_;
    Olcu olcu_;
    HazirMetinler hucreMetinleri_;
    HazirMetinler baslikMetinleri_;
    HazirMetinler ayMetinleri_;
    int pictogramBoyu_ = 0;
    std::unordered_map<RenkDegeri, QPixmap> pictogramlar_[2];
};

} // namespace velora
