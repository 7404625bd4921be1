#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormArama;
struct Program;

/// The window of `FormArama`.
class AramaPenceresi : public EkranPenceresi<FormArama> {
  public:
    explicit AramaPenceresi(Program& program);

  private:
    /// The criteria, with "Ara" behind the last of them.
    QLayout* Olcutler();
};

} // namespace velora
