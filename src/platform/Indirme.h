#pragma once

#include <functional>
#include <memory>

#include "screen/Ortam.h"

namespace velora {

/// Fetches files over http and https, each on a connection of its own. An address is taken, and redirects,
/// certificates and proxies are treated, as by `AgIstemcisi`; a reply may have any status and any length, and
/// comes as it is read: no more of it is in memory than the connection had at hand.
///
/// While it waits it lets `olaylar` run about every ten milliseconds. The fetches that it began may outlive
/// it; they are given up then.
class Indirici {
  public:
    explicit Indirici(std::function<void()> olaylar);
    ~Indirici() { Kapat(); }
    Indirici(const Indirici&) = delete;
    Indirici& operator=(const Indirici&) = delete;

    Aktarim Ac(const AktarimIstegi& istek) const;

    /// Gives up all fetches; those that begin later fail at once. For a program that ends.
    void Kapat() { *kapali_ = true; }

  private:
    std::function<void()> olaylar_;
    std::shared_ptr<bool> kapali_ = std::make_shared<bool>(false);
};

} // namespace velora
