#pragma once

#include <QWidget>

namespace velora {

/// A bar with a block that wanders over it while the program is busy for longer than a second. Nobody knows
/// how far it has come: the block begins again at the left end. Hidden at all other times.
class MesgulCubugu : public QWidget {
  public:
    MesgulCubugu();

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* olay) override;

  private:
    int adim_ = 0;
};

} // namespace velora
