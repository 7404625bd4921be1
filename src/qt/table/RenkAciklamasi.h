#pragma once

#include <vector>

#include <QWidget>

#include "screen/Kontroller.h"

namespace velora {

class Baglayici;
struct FormAyarlar;
struct Program;

/// What the colours of the cells mean: which half of a day is which slot, then one small sample for each
/// state, the two slots one over the other as on the table, in the colours of the settings. Where it is too
/// narrow for all, the words at its head are left out, then the last samples; its tool tip names them all.
class RenkAciklamasi : public QWidget {
  public:
    RenkAciklamasi(Program& program, Baglayici& baglayici, QWidget* ust);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* olay) override;

  private:
    struct Ornek {
        enum class Tur { Yazi, Renkler, OnRenkleri, Cerceve };
        Tur tur = Tur::Renkler;
        QString ad;
        RenkDegeri ust = 0; ///< of a frame, its colour
        RenkDegeri alt = 0;
        bool operator==(const Ornek&) const = default;
    };
    static std::vector<Ornek> Ornekler(const FormAyarlar& ayarlar, bool gunduzUstte);
    int Genislik(const Ornek& ornek) const;
    void OrnekCiz(QPainter& boyaci, const Ornek& ornek, const QRect& kutu) const;

    std::vector<Ornek> ornekler_;
};

} // namespace velora
