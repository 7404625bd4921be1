#pragma once

#include "qt/EkranPenceresi.h"

class QFormLayout;
class QTabWidget;

namespace velora {

struct FormKayit;
struct Program;

/// The window of `FormKayit`: four pages and a row of buttons.
class KayitPenceresi : public EkranPenceresi<FormKayit> {
  public:
    explicit KayitPenceresi(Program& program);

  private:
    void GunSatiri(QFormLayout& form);
    QWidget* GenelSayfasi();
    QWidget* OdemeSayfasi();
    QWidget* MenuSayfasi();
    QWidget* HizmetSayfasi();

    void AlanEkle(QFormLayout& form, int no);
    QWidget* AlanYap(int no);
    QWidget* DurumSecimi();
    QWidget* HatirlatmaSecimi();
    QLayout* Toplamlar();

    QTabWidget* sayfalar_;
};

} // namespace velora
