#pragma once

#include "qt/Diyalog.h"

namespace velora {

struct Program;

/// The window of `FormOdemeAl`.
class OdemeAlPenceresi : public Diyalog {
  public:
    explicit OdemeAlPenceresi(Program& program);
};

} // namespace velora
