#pragma once

#include <memory>

#include "storage/Metin.h"

namespace velora {

struct Program;

inline constexpr int kIstekSuresi = 10; // seconds that a request may take, unless its screen says more

/// The transfer control of a screen. It carries one request at a time.
class Inet {
  public:
    explicit Inet(Program& program) : program_(program) {}
    /// A request that still goes on is given up: its screen has gone.
    ~Inet() { Iptal(); }
    Inet(const Inet&) = delete;
    Inet& operator=(const Inet&) = delete;

    int sure = kIstekSuresi; ///< seconds that a request may take

    /// The reply's body. Empty on every failure, and when it was given up. Events run while it waits: a
    /// second request of this control that they begin fails at once, and the screen may be gone afterwards.
    /// An empty address is no request: nothing goes out.
    Metin Getir(const Metin& adres);
    /// Gives up the request that goes on, if there is one. The control is free for the next one then.
    void Iptal();

  private:
    Program& program_;
    std::shared_ptr<bool> suren_; // the request that goes on; true: it was given up
};

} // namespace velora
