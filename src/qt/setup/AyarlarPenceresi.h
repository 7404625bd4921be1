#pragma once

#include <span>

#include "qt/EkranPenceresi.h"

class QGridLayout;

namespace velora {

struct FormAyarlar;
struct Program;
struct RenkSatiri;

/// The window of `FormAyarlar`: a page of general settings, and one of appearance.
class AyarlarPenceresi : public EkranPenceresi<FormAyarlar> {
  public:
    explicit AyarlarPenceresi(Program& program);

  private:
    QWidget* GenelSayfasi();
    QWidget* GorunumSayfasi();
    void GunSatiriEkle(QGridLayout& izgara, const QString& ad, MetinKutusu& model);
    QWidget* AylarKutusu();
    QGridLayout* RenkSutunu(std::span<const RenkSatiri> satirlar);
    void RenkSatiriEkle(QGridLayout& izgara, int satir, const RenkSatiri& renkler);
    QWidget* RenkKutusu(int renk, const QString& ipucu, const QString& okunan);
};

} // namespace velora
