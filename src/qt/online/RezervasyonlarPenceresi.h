#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormRezervasyonlar;
struct Program;

/// The window of `FormRezervasyonlar`.
class RezervasyonlarPenceresi : public EkranPenceresi<FormRezervasyonlar> {
  public:
    explicit RezervasyonlarPenceresi(Program& program);
};

} // namespace velora
