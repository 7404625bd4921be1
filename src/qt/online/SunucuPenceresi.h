#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormSunucu;
struct Program;

/// The window of `FormSunucu`.
class SunucuPenceresi : public EkranPenceresi<FormSunucu> {
  public:
    explicit SunucuPenceresi(Program& program);
};

} // namespace velora
