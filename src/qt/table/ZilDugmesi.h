#pragma once

#include "qt/table/IkiResimliDugme.h"

namespace velora {

class Baglayici;
struct FormTablo;

/// The bell over the table: there while a personal reminder falls on today, quiet and ringing in turn. It
/// lists what it rings for.
class ZilDugmesi : public IkiResimliDugme {
  public:
    /// `tabloyaDon` gives the focus to the table: where it goes from a bell that falls silent.
    ZilDugmesi(FormTablo& tablo, Baglayici& baglayici, std::function<void()> tabloyaDon);

  private:
    Cizim Zil(const char* ad) const;
    void Goster(bool var, bool sakin);
};

} // namespace velora
