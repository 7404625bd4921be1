#pragma once

#include <cstdint>
#include <memory>

#include <QWidget>

#include "qt/table/TabloCizici.h"

class QHelpEvent;

namespace velora {

class Baglayici;
class TabloGirisi;
struct Program;

/// The year table on the window: one widget, painted from the cell model. It reports its size to the screen
/// in twips and shows the tool tips of the cells. What the user does on it goes through `TabloGirisi`.
class TabloGorunumu : public QWidget {
  public:
    TabloGorunumu(Program& program, Baglayici& baglayici, QWidget* ust);

    const TabloGirisi& Giris() const { return *giris_; }
    /// Where the parts of the table stand now.
    const TabloDuzeni& Duzen() const { return duzen_; }
    /// What lies at a place; the place of a hidden cell is bare.
    TabloIsabeti Isabet(QPointF yer) const;
    /// Device pixels of the layout as logical pixels of the widget.
    QRect Mantiksal(const QRect& bolge) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* olay) override;
    void paintEvent(QPaintEvent* olay) override;
    bool event(QEvent* olay) override;

  private:
    /// What a frame looks like: only its surroundings are painted when nothing else has changed.
    struct CerceveGoruntusu {
        bool gorunur = false;
        QRect bolge; // device pixels
        bool operator==(const CerceveGoruntusu&) const = default;
    };

    void Yerlestir();
    void Tazele();
    void CerceveTazele(CerceveGoruntusu& eski, const velora::Cerceve& cerceve);
    void DuzeniKur(const FormTablo& tablo);
    void IpucuGoster(const QHelpEvent& olay);

    Program& program_;
    Baglayici& baglayici_;
    std::weak_ptr<FormTablo> ekran_;
    TabloCizici cizici_;
    TabloDuzeni duzen_;
    TabloGirisi* giris_;
    std::uint64_t iz_ = 0;
    CerceveGoruntusu buGun_;
    CerceveGoruntusu cetvel_;
};

/// A number that changes whenever the table, apart from its frames, has to be painted anew.
std::uint64_t TabloIzi(const FormTablo& tablo);

} // namespace velora
