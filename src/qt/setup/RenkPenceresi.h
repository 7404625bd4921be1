#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormRenk;
struct Program;

/// The window of `FormRenk`.
class RenkPenceresi : public EkranPenceresi<FormRenk> {
  public:
    explicit RenkPenceresi(Program& program);
};

} // namespace velora
