#pragma once

#include "qt/Diyalog.h"

class QGridLayout;

namespace velora {

struct FormAyarlar;
struct Program;
struct RenkSatiri;

/// The window of `FormAyarlar`: a page of general settings, and one of appearance.
class AyarlarPenceresi : public Diyalog {
  public:
    explicit AyarlarPenceresi(Program& program);

  private:
    QWidget* GenelSayfasi(FormAyarlar& ekran);
    QWidget* GorunumSayfasi(FormAyarlar& ekran);
    QWidget* AylarKutusu(FormAyarlar& ekran);
    void RenkSatiriEkle(QGridLayout& izgara, int satir, const RenkSatiri& renkler, FormAyarlar& ekran);
    QWidget* RenkKutusu(FormAyarlar& ekran, int renk, const QString& ipucu, const QString& okunan);
};

} // namespace velora
