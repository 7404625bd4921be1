#pragma once

#include <vector>

#include "online/Istekler.h"
#include "screen/Ortam.h"

namespace velora {

/// A taken slot, as a publish tells it.
struct YayinGozu {
    Metin gun;   ///< dd-mm-yyyy
    Metin durum; ///< the cell's tag
    Metin dilim; ///< "Gündüz" or "Gece"
};

/// All that one publish sends: a copy of what the table showed at one moment.
struct Yayin {
    Metin anahtar; ///< of the firm
    int salonNo = -1;
    Metin salon;
    Metin sene;
    std::vector<Metin> salonlar; ///< all halls of the firm
    std::vector<YayinGozu> gozler;
};

/// One publish on its way: it clears the year at the service, tells it all halls, then each taken slot, one
/// request each. It stands on its own copy and sends by itself: no screen that comes or goes touches it. A
/// request that fails isn't noticed.
class YayinKosusu {
  public:
    /// The places of the service are those of now.
    YayinKosusu(Program& program, Yayin yayin);

    /// Sends the next request, unless one is under way, and waits for its end; events run meanwhile. Where
    /// `birak` says true it waits no longer, and the request is still under way.
    void Adim(const std::function<bool()>& birak);
    /// Sends the next request, unless one is under way. It waits for nothing.
    void Ilerle();
    bool Bitti() const { return sira_ == istekler_.size() && suren_.bitti(); }
    int GidenGoz() const; ///< how many of the slots have been sent
    const Yayin& Icerik() const { return yayin_; }

  private:
    struct Siradaki {
        Istek istek;
        Metin adres;
    };

    Program& program_;
    Yayin yayin_;
    std::vector<Siradaki> istekler_;
    std::size_t sira_ = 0; // the next one
    Gonderim suren_;       // the last one that was sent
};

} // namespace velora
