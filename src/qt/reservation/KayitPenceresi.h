#pragma once

#include "qt/Diyalog.h"

class QFormLayout;
class QTabWidget;

namespace velora {

struct FormKayit;
struct Program;

/// The window of `FormKayit`: four pages and a row of buttons.
class KayitPenceresi : public Diyalog {
  public:
    explicit KayitPenceresi(Program& program);

  private:
    QWidget* GenelSayfasi();
    QWidget* OdemeSayfasi();
    QWidget* MenuSayfasi();
    QWidget* HizmetSayfasi();
    QLayout* Dugmeler();

    void AlanEkle(QFormLayout& form, int no, const QString& yazi, const QString& ardindan = {});
    QWidget* AlanYap(int no);
    QWidget* DurumSecimi();
    QWidget* HatirlatmaSecimi();
    QLayout* Toplamlar();

    Program& program_;
    std::shared_ptr<FormKayit> tut_; // only while the window is built
    FormKayit& ekran_;
    QTabWidget* sayfalar_;
};

} // namespace velora
