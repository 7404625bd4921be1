#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormDuyurular;
struct FormOneri;
struct Program;

/// The window of `FormDuyurular`.
class DuyurularPenceresi : public EkranPenceresi<FormDuyurular> {
  public:
    explicit DuyurularPenceresi(Program& program);
};

/// The window of `FormOneri`.
class OneriPenceresi : public EkranPenceresi<FormOneri> {
  public:
    explicit OneriPenceresi(Program& program);
};

} // namespace velora
