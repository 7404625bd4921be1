#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormFirma;
struct Program;

/// The window of `FormFirma`.
class FirmaPenceresi : public EkranPenceresi<FormFirma> {
  public:
    explicit FirmaPenceresi(Program& program);
};

} // namespace velora
