#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormMenuAyar;
struct FormMenuEkle;
struct Program;

/// The window of `FormMenuAyar`.
class MenuAyarPenceresi : public EkranPenceresi<FormMenuAyar> {
  public:
    explicit MenuAyarPenceresi(Program& program);
};

/// The window of `FormMenuEkle`.
class MenuEklePenceresi : public EkranPenceresi<FormMenuEkle> {
  public:
    explicit MenuEklePenceresi(Program& program);
};

} // namespace velora
