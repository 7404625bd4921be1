#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct Program;
struct Splash;

/// The window of `Splash`: no frame, no field, no button. No key closes it.
class SplashPenceresi : public EkranPenceresi<Splash> {
  public:
    explicit SplashPenceresi(Program& program);

    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent* olay) override;

  private:
    QLayout* Baslik();
    QLayout* Adimlar();
    QLabel* ResimYap(const char* ad, const QString& cizim, int boy);
};

} // namespace velora
