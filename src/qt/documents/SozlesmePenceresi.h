#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormSozlesme;
struct Program;

/// The window of `FormSozlesme`.
class SozlesmePenceresi : public EkranPenceresi<FormSozlesme> {
  public:
    explicit SozlesmePenceresi(Program& program);
};

} // namespace velora
