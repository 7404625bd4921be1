#pragma once

#include "qt/Diyalog.h"

namespace velora {

struct Program;

/// The window of `FormMenuAyar`.
class MenuAyarPenceresi : public Diyalog {
  public:
    explicit MenuAyarPenceresi(Program& program);
};

/// The window of `FormMenuEkle`.
class MenuEklePenceresi : public Diyalog {
  public:
    explicit MenuEklePenceresi(Program& program);
};

} // namespace velora
