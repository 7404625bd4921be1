#pragma once

#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "storage/Metin.h"

namespace velora::test {

/// One connection to the test's server, behind its request.
class Baglanti {
  public:
    Baglanti(int soket, int durdur) : soket_(soket), durdur_(durdur) {}

    /// Sends bytes. False when the other side has closed, or the server is to stop.
    bool Yolla(std::string_view bayt) const;
    /// Waits until the other side has closed.
    void KapanmasiniBekle() const;
    /// Reads up to the empty line that ends a request; what came until the other side closed.
    std::string IstegiOku() const;

  private:
    /// Waits for one of `olaylar`. False when the server is to stop.
    bool Bekle(short olaylar) const;

    int soket_;
    int durdur_;
};

/// What a server does with connections that have got their reply.
enum class Baglantilar { AcikKalir };

/// A server on the loopback, which speaks plain HTTP and does what its script says: the n-th connection gets
/// the n-th entry. One that nobody has scripted is closed at once. It ends with its test, whatever hangs.
class Sunucu {
  public:
    using Davranis = std::function<void(const Baglanti&)>;

    explicit Sunucu(std::vector<Davranis> senaryo);
    /// Answers each request of each connection with the body that `cevapla` makes of what stands between "GET
    /// " and the version; none is a 404. Connections stay open until the other side closes them. `cevapla`
    /// runs in a thread of the server, for one request at a time.
    using Cevaplayan = std::function<std::optional<std::string>(std::string_view hedef)>;
    Sunucu(Baglantilar baglantilar, Cevaplayan cevapla);
    ~Sunucu();
    Sunucu(const Sunucu&) = delete;
    Sunucu& operator=(const Sunucu&) = delete;

    /// "http://127.0.0.1:port", and behind it `devam`.
    Metin Adres(MetinBakis devam) const;

    /// The raw bytes of the requests that came, each up to the empty line at its end.
    std::vector<std::string> Istekler();
    /// The first lines of the requests; a request whose target holds line ends shows only what stands before.
    std::vector<std::string> IstekSatirlari();
    /// Waits until so many requests have come, or the server is to stop.
    void IstekleriBekle(std::size_t adet);
    /// Waits until so many entries of the script have been carried out.
    void BitenleriBekle(std::size_t adet);

  private:
    void Dinle();
    void Karsila(int soket, std::size_t sira);
    void Konus(const Baglanti& baglanti);
    void Kur();
    void Say(const std::function<void()>& is);

    std::vector<Davranis> senaryo_;
    Cevaplayan cevapla_; // in place of a script
    std::mutex cevapta_;
    int dinleyen_ = -1;
    int port_ = 0;
    int durdur_[2] = {-1, -1}; // a pipe: closed at the writing end, all waits end
    std::mutex kilit_;
    std::condition_variable degisti_;
    std::vector<std::string> istekler_;
    std::size_t bitenler_ = 0;
    bool duruyor_ = false;
    std::list<std::thread> karsilayanlar_; // of the listening thread alone
    std::thread dinleyenIs_;
};

/// A reply with status 200 and its length.
std::string TamCevap(std::string_view govde);
/// Sends that, and closes.
Sunucu::Davranis Cevapla(std::string_view govde);
/// Sends these bytes as they stand, and closes.
Sunucu::Davranis HamYolla(std::string bayt);
/// Takes the request and never answers.
Sunucu::Davranis Sus();

} // namespace velora::test
