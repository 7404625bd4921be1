#pragma once

#include "qt/Diyalog.h"

class QGridLayout;
class QWidget;

namespace velora {

struct Etiket;
struct FormBakiye;
struct Program;

/// The window of `FormBakiye`.
class BakiyePenceresi : public Diyalog {
  public:
    explicit BakiyePenceresi(Program& program);

  private:
    void SuzgecleriKur(QGridLayout& izgara, FormBakiye* ekran);
    QWidget* Liste(FormBakiye* ekran);
    QWidget* Toplamlar(FormBakiye* ekran);
    void ToplamEkle(QGridLayout& izgara, int satir, int sutun, const QString& ad, const QString& yazi,
                    Etiket& model);
};

} // namespace velora
