#pragma once

#include <vector>

#include <QWidget>

#include "screen/Kontroller.h"

namespace velora {

class Baglayici;
struct Program;

/// What the colours of the cells mean: one small sample for each state, day and evening slot one over the
/// other, in the colours of the settings. Where it is too narrow for all, the last ones are left out.
class RenkAciklamasi : public QWidget {
  public:
    RenkAciklamasi(Program& program, Baglayici& baglayici, QWidget* ust);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* olay) override;

  private:
    struct Ornek {
        QString ad;
        RenkDegeri ust = 0;
        RenkDegeri alt = 0;
        bool operator==(const Ornek&) const = default;
    };
    int Genislik(const Ornek& ornek) const;

    std::vector<Ornek> ornekler_;
};

} // namespace velora
