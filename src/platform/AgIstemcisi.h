#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>

#include "storage/Metin.h"

namespace velora {

/// The longest reply body, in bytes. A longer one counts as failed, and is cut off as soon as that is known.
inline constexpr std::size_t kEnUzunCevap = std::size_t{8} << 20U;

/// Whether a request has its connection to itself, or takes one that others of this kind have left open, and
/// leaves it open for the next. What goes over such a connection may come to the server twice, when that has
/// closed it meanwhile.
enum class BaglantiTuru { Tek, Kalan };

/// Sends requests: plain GET over http and https.
///
/// What stands in an address behind its host goes out byte for byte, in Windows-1254: blanks, letters and
/// line breaks too, nothing is escaped, taken out or put in order. An empty path is "/". The host may hold
/// only letters and digits of ASCII, dots, hyphens, a port, and the brackets of an IPv6 address. An address
/// that holds a NUL, has no host or begins with anything else than the two schemes fails.
///
/// A reply is its body, read as Windows-1254. It counts only when it came whole, in time, with status 200;
/// redirects aren't followed. Certificates are checked, and no proxy, cookie or password comes into it.
class AgIstemcisi {
  public:
    /// What is done while a request waits. False gives the request up.
    using Sira = std::function<bool()>;

    AgIstemcisi();
    ~AgIstemcisi();
    AgIstemcisi(const AgIstemcisi&) = delete;
    AgIstemcisi& operator=(const AgIstemcisi&) = delete;

    /// The reply to a request, which may take `sure` in all. Empty on every failure.
    ///
    /// While it waits it gives `sira` a turn about every ten milliseconds. A turn may begin further requests:
    /// they go on together, and this one takes what came meanwhile when its turn returns.
    Metin Getir(const Metin& adres, std::chrono::milliseconds sure, const Sira& sira,
                BaglantiTuru tur = BaglantiTuru::Tek);

    /// A request that was sent and goes on until this is gone. Nothing gets on unless one of these, or a
    /// `Getir`, is asked or waits.
    class Gonderilen;
    /// Sends it, and waits for nothing. Null when it can't be sent.
    std::shared_ptr<Gonderilen> Gonder(const Metin& adres, std::chrono::milliseconds sure, BaglantiTuru tur);

    /// Gives up all requests; those that come later fail at once. For a program that ends.
    void Kapat();

  private:
    struct Ic;
    std::shared_ptr<Ic> ic_;
};

class AgIstemcisi::Gonderilen {
  public:
    struct Hal;
    explicit Gonderilen(std::unique_ptr<Hal> hal);
    ~Gonderilen();
    Gonderilen(const Gonderilen&) = delete;
    Gonderilen& operator=(const Gonderilen&) = delete;

    /// Whether it has come to its end, well or not.
    bool Bitti();
    /// Waits for that, with a turn for `sira` about every ten milliseconds. False when that said no: the
    /// request still goes on.
    bool Bekle(const Sira& sira);
    /// The reply's body; empty on every failure.
    Metin Cevap() const;

  private:
    std::unique_ptr<Hal> hal_;
};

} // namespace velora
