#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormOdemeAl;
struct Program;

/// The window of `FormOdemeAl`.
class OdemeAlPenceresi : public EkranPenceresi<FormOdemeAl> {
  public:
    explicit OdemeAlPenceresi(Program& program);
};

} // namespace velora
