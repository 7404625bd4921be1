#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormSifre;
struct FormSifreDegistir;
struct Program;

/// The window of `FormSifre`.
class SifrePenceresi : public EkranPenceresi<FormSifre> {
  public:
    explicit SifrePenceresi(Program& program);
};

/// The window of `FormSifreDegistir`.
class SifreDegistirPenceresi : public EkranPenceresi<FormSifreDegistir> {
  public:
    explicit SifreDegistirPenceresi(Program& program);
};

} // namespace velora
