#pragma once

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
    const TabloDuzeni& Duzen() const { return goruntu_.duzen; }
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
    void Yerlestir();
    void Tazele();
    TabloGoruntusu GoruntuAl(const FormTablo& tablo) const;
    void IpucuGoster(const QHelpEvent& olay);
    /// Where the tool tip of a cell stands: over it, or under it when the hover label is over it.
    QPoint IpucuYeri(QSize boy, const QRect& goz) const;

    Program& program_;
    Baglayici& baglayici_;
    std::weak_ptr<FormTablo> ekran_;
    TabloCizici cizici_;
    TabloGoruntusu goruntu_; // what is painted
    TabloGirisi* giris_ = nullptr;
};

} // namespace velora
