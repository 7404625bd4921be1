#pragma once

#include "qt/EkranPenceresi.h"

class QGridLayout;

namespace velora {

struct FormKullaniciEkle;
struct FormKullanicilar;
struct Program;

/// The window of `FormKullanicilar`.
class KullanicilarPenceresi : public EkranPenceresi<FormKullanicilar> {
  public:
    explicit KullanicilarPenceresi(Program& program);
};

/// The window of `FormKullaniciEkle`.
class KullaniciEklePenceresi : public EkranPenceresi<FormKullaniciEkle> {
  public:
    explicit KullaniciEklePenceresi(Program& program);

  private:
    QGridLayout* Yetkileri();
};

} // namespace velora
