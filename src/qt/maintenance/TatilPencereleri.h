#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormResmiTatil;
struct FormResmiTatilEkle;
struct Program;

/// The window of `FormResmiTatil`.
class ResmiTatilPenceresi : public EkranPenceresi<FormResmiTatil> {
  public:
    explicit ResmiTatilPenceresi(Program& program);
};

/// The window of `FormResmiTatilEkle`.
class ResmiTatilEklePenceresi : public EkranPenceresi<FormResmiTatilEkle> {
  public:
    explicit ResmiTatilEklePenceresi(Program& program);
};

} // namespace velora
