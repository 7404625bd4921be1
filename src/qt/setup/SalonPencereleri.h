#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormSalonTanim;
struct FormSalonTanimAd;
struct Program;

/// The window of `FormSalonTanim`.
class SalonTanimPenceresi : public EkranPenceresi<FormSalonTanim> {
  public:
    explicit SalonTanimPenceresi(Program& program);
};

/// The window of `FormSalonTanimAd`.
class SalonAdPenceresi : public EkranPenceresi<FormSalonTanimAd> {
  public:
    explicit SalonAdPenceresi(Program& program);
};

} // namespace velora
