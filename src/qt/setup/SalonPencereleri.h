#pragma once

#include "qt/Diyalog.h"

namespace velora {

struct Program;

/// The window of `FormSalonTanim`.
class SalonTanimPenceresi : public Diyalog {
  public:
    explicit SalonTanimPenceresi(Program& program);
};

/// The window of `FormSalonTanimAd`.
class SalonAdPenceresi : public Diyalog {
  public:
    explicit SalonAdPenceresi(Program& program);
};

} // namespace velora
