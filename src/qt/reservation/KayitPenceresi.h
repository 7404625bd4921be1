#pragma once

#include "qt/EkranPenceresi.h"

class QGridLayout;
class QTabWidget;

namespace velora {

struct FormKayit;
struct Program;

/// The window of `FormKayit`: four pages and a row of buttons.
class KayitPenceresi : public EkranPenceresi<FormKayit> {
  public:
    explicit KayitPenceresi(Program& program);

  private:
    void GunSatiri(QGridLayout& izgara);
    QWidget* GenelSayfasi();
    QWidget* OdemeSayfasi();
    QWidget* MenuSayfasi();
    QWidget* HizmetSayfasi();

    /// The caption and the field of a number in a row of the page; how many rows it takes.
    int AlanEkle(QGridLayout& izgara, int satir, int sutun, int no);
    QWidget* AlanYap(int no);
    QWidget* DurumSecimi();
    QWidget* HatirlatmaSecimi();
    QLayout* Toplamlar();

    QTabWidget* sayfalar_;
};

} // namespace velora
