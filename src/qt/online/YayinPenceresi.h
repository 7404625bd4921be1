#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormWebteYayinla;
struct Program;

/// The window of `FormWebteYayinla`.
class YayinPenceresi : public EkranPenceresi<FormWebteYayinla> {
  public:
    explicit YayinPenceresi(Program& program);
};

} // namespace velora
