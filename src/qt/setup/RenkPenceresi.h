#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormRenk;
struct Program;

/// The window of `FormRenk`.
class RenkPenceresi : public EkranPenceresi<FormRenk> {
  public:
    explicit RenkPenceresi(Program& program);

  private:
    /// The sample, and below it the fields that say its colour.
    QFormLayout* Degerler();
};

} // namespace velora
