#pragma once

#include "qt/Diyalog.h"

namespace velora {

struct Program;

/// The window of `FormRenk`.
class RenkPenceresi : public Diyalog {
  public:
    explicit RenkPenceresi(Program& program);
};

} // namespace velora
