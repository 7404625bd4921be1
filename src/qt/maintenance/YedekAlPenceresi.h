#pragma once

#include "qt/EkranPenceresi.h"

class QFormLayout;

namespace velora {

struct FormYedekAl;
struct Program;

/// The window of `FormYedekAl`.
class YedekAlPenceresi : public EkranPenceresi<FormYedekAl> {
  public:
    explicit YedekAlPenceresi(Program& program);

  private:
    /// A folder's field with the button that browses for it.
    void KlasorSatiri(QFormLayout& form, const char* ad, MetinKutusu& model, Olay degisti,
                      const DugmeTanimi& gozat);
};

} // namespace velora
