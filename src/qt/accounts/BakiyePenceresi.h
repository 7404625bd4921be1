#pragma once

#include "qt/EkranPenceresi.h"

class QGridLayout;
class QWidget;

namespace velora {

struct FormBakiye;
struct Program;

/// The window of `FormBakiye`.
class BakiyePenceresi : public EkranPenceresi<FormBakiye> {
  public:
    explicit BakiyePenceresi(Program& program);

  private:
    void SuzgecleriKur(QGridLayout& izgara);
    QWidget* Toplamlar();
};

} // namespace velora
