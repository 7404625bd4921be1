#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormHakkinda;
struct Program;

/// The window of `FormHakkinda`.
class HakkindaPenceresi : public EkranPenceresi<FormHakkinda> {
  public:
    explicit HakkindaPenceresi(Program& program);

  private:
    /// The icon of the program beside its name and version.
    QLayout* Baslik();
};

} // namespace velora
