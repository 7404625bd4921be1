#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormOzelHatirlatma;
struct Program;

/// The window of `FormOzelHatirlatma`.
class HatirlatmaPenceresi : public EkranPenceresi<FormOzelHatirlatma> {
  public:
    explicit HatirlatmaPenceresi(Program& program);
};

} // namespace velora
