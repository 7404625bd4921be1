#pragma once

#include <vector>

#include "online/Istekler.h"
#include "screen/Inet.h"

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
/// request each. It stands on its own copy and has its own transfer control: no screen that comes or goes
/// touches it. A request that fails isn't noticed.
class YayinKosusu {
  public:
    /// The places of the service are those of now.
    YayinKosusu(Program& program, Yayin yayin);

    /// Sends the next request and waits for its end; events run meanwhile. Not to be entered again until it
    /// has returned.
    void Adim();
    bool Bitti() const { return sira_ == istekler_.size(); }
    int GidenGoz() const; ///< how many of the slots have been sent
    const Yayin& Icerik() const { return yayin_; }

  private:
    struct Siradaki {
        Istek istek;
        Metin adres;
    };

    Yayin yayin_;
    std::vector<Siradaki> istekler_;
    std::size_t sira_ = 0; // the next one
    Inet inet_;
};

} // namespace velora
