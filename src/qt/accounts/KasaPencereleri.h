#pragma once

#include "qt/EkranPenceresi.h"

class QGridLayout;

namespace velora {

struct FormGiderler;
struct FormKasa;
struct FormKasaEkle;
struct Program;

/// The window of `FormKasa`.
class KasaPenceresi : public EkranPenceresi<FormKasa> {
  public:
    explicit KasaPenceresi(Program& program);

  private:
    QPushButton* SuzgecleriKur(QGridLayout& izgara);
    QWidget* Toplamlar();
};

/// The window of `FormKasaEkle`.
class KasaEklePenceresi : public EkranPenceresi<FormKasaEkle> {
  public:
    explicit KasaEklePenceresi(Program& program);
};

/// The window of `FormGiderler`.
class GiderlerPenceresi : public EkranPenceresi<FormGiderler> {
  public:
    explicit GiderlerPenceresi(Program& program);

  private:
    QPushButton* SuzgecleriKur(QGridLayout& izgara);
    QWidget* Toplamlar();
};

} // namespace velora
