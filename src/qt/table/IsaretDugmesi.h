#pragma once

#include "qt/table/IkiResimliDugme.h"

namespace velora {

class Baglayici;
struct OnlineIsareti;

/// What a mark is called as a control, and its drawings: the plain one, and the one in its own colours.
struct IsaretResimleri {
    const char* ad;
    const char* sade;
    const char* renkli;
};

/// A mark over the table for what waits at the service: grey and out of reach while nothing does, then plain
/// and coloured in turn.
class IsaretDugmesi : public IkiResimliDugme {
  public:
    IsaretDugmesi(OnlineIsareti& isaret, const IsaretResimleri& resimler, Baglayici& baglayici,
                  const std::function<void()>& tiklandi, std::function<void()> tabloyaDon);

  private:
    Cizim Sade(const char* ad) const;
    void Goster(const OnlineIsareti& isaret);
};

} // namespace velora
