#pragma once

#include <vector>

#include <QAbstractScrollArea>

#include "screen/Sayfa.h"

namespace velora {

/// Shows pages as they come onto paper: white sheets, one under the other, the first on top, as wide as its
/// place allows while their letters stay readable. A single one is shown whole where it can be. What is
/// larger is scrolled, by the keys too. A screen reader hears the texts.
class SayfaGorunumu : public QAbstractScrollArea {
  public:
    explicit SayfaGorunumu(QWidget* ust = nullptr);

    /// Shows other pages, from the first on; nothing happens when they are those that it shows.
    void Goster(std::vector<Sayfa> sayfalar);

    /// Where a sheet is, counted from 0, on the viewport, in logical pixels.
    QRectF SayfaninYeri(int sira) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* olay) override;
    void resizeEvent(QResizeEvent* olay) override;
    void keyPressEvent(QKeyEvent* olay) override;

  private:
    void Diz();

    std::vector<Sayfa> sayfalar_;
    double olcek_ = 1; // logical pixels of a millimetre
    QSize tumu_;       // all sheets with what is between and around them
};

} // namespace velora
