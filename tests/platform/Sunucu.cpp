#include "platform/Sunucu.h"

#include <cerrno>
#include <cstdint>
#include <stdexcept>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace velora::test {

namespace {

constexpr std::size_t kEnUzunIstek = 1U << 20U;

/// What of a request stands before its empty line.
std::size_t BaslikSonu(std::string_view bayt) {
    return bayt.find("\r\n\r\n");
}

} // namespace

bool Baglanti::Bekle(short olaylar) const {
    pollfd beklenen[2] = {{soket_, olaylar, 0}, {durdur_, POLLIN, 0}};
    while (poll(beklenen, 2, -1) < 0 && errno == EINTR) {
    }
    return beklenen[1].revents == 0;
}

bool Baglanti::Yolla(std::string_view bayt) const {
    while (!bayt.empty()) {
        if (!Bekle(POLLOUT))
            return false;
        const ssize_t giden = send(soket_, bayt.data(), bayt.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (giden < 0 && errno != EAGAIN && errno != EINTR)
            return false;
        bayt.remove_prefix(giden < 0 ? 0 : static_cast<std::size_t>(giden));
    }
    return true;
}

void Baglanti::KapanmasiniBekle() const {
    char bosa[256];
    while (Bekle(POLLIN))
        if (recv(soket_, bosa, sizeof bosa, 0) <= 0)
            return;
}

std::string Baglanti::IstegiOku() const {
    std::string bayt;
    char gelen[4096];
    while (BaslikSonu(bayt) == std::string::npos && bayt.size() < kEnUzunIstek && Bekle(POLLIN)) {
        const ssize_t boy = recv(soket_, gelen, sizeof gelen, 0);
        if (boy <= 0)
            break;
        bayt.append(gelen, static_cast<std::size_t>(boy));
    }
    return bayt;
}

Sunucu::Sunucu(std::vector<Davranis> senaryo) : senaryo_(std::move(senaryo)) {
    Kur();
}

Sunucu::Sunucu(Baglantilar /*baglantilar*/, Cevaplayan cevapla) : cevapla_(std::move(cevapla)) {
    Kur();
}

void Sunucu::Kur() {
    sockaddr_in adres{};
    adres.sin_family = AF_INET;
    adres.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t boy = sizeof adres;
    auto* ham = reinterpret_cast<sockaddr*>(&adres);
    dinleyen_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (dinleyen_ < 0 || bind(dinleyen_, ham, boy) != 0 || listen(dinleyen_, 16) != 0 ||
        getsockname(dinleyen_, ham, &boy) != 0 || pipe(durdur_) != 0)
        throw std::runtime_error("the test's server can't listen");
    port_ = ntohs(adres.sin_port);
    dinleyenIs_ = std::thread([this] { Dinle(); });
}

Sunucu::~Sunucu() {
    Say([this] { duruyor_ = true; });
    close(durdur_[1]);
    dinleyenIs_.join();
    close(durdur_[0]);
    close(dinleyen_);
}

void Sunucu::Say(const std::function<void()>& is) {
    const std::lock_guard kilit(kilit_);
    is();
    degisti_.notify_all();
}

void Sunucu::Dinle() {
    for (std::size_t sira = 0;; ++sira) {
        pollfd beklenen[2] = {{dinleyen_, POLLIN, 0}, {durdur_[0], POLLIN, 0}};
        while (poll(beklenen, 2, -1) < 0 && errno == EINTR) {
        }
        if (beklenen[1].revents != 0)
            break;
        if (const int soket = accept4(dinleyen_, nullptr, nullptr, SOCK_CLOEXEC); soket >= 0)
            karsilayanlar_.emplace_back([this, soket, sira] { Karsila(soket, sira); });
    }
    for (std::thread& karsilayan : karsilayanlar_)
        karsilayan.join();
}

void Sunucu::Karsila(int soket, std::size_t sira) {
    const Baglanti baglanti(soket, durdur_[0]);
    if (cevapla_) {
        Konus(baglanti);
    } else {
        std::string istek = baglanti.IstegiOku();
        Say([&] { istekler_.push_back(std::move(istek)); });
        if (sira < senaryo_.size())
            senaryo_[sira](baglanti);
    }
    // What still lies unread would turn the close into a reset, which may take the reply along.
    shutdown(soket, SHUT_WR);
    close(soket);
    Say([this] { ++bitenler_; });
}

void Sunucu::Konus(const Baglanti& baglanti) {
    constexpr std::string_view kFiil = "GET ";
    for (;;) {
        const std::string istek = baglanti.IstegiOku();
        const std::size_t son = istek.find(" HTTP/1.1\r\n");
        if (!istek.starts_with(kFiil) || son == std::string::npos)
            return;
        std::optional<std::string> govde;
        {
            const std::lock_guard kilit(cevapta_);
            govde = cevapla_(std::string_view(istek).substr(kFiil.size(), son - kFiil.size()));
        }
        Say([&] { istekler_.push_back(istek); });
        if (!baglanti.Yolla(govde ? TamCevap(*govde) : "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n"))
            return;
    }
}

Metin Sunucu::Adres(MetinBakis devam) const {
    return u"http://127.0.0.1:" + SayiMetni(port_) + Metin(devam);
}

std::vector<std::string> Sunucu::Istekler() {
    const std::lock_guard kilit(kilit_);
    return istekler_;
}

std::vector<std::string> Sunucu::IstekSatirlari() {
    std::vector<std::string> satirlar = Istekler();
    for (std::string& istek : satirlar)
        istek.resize(std::min(istek.find("\r\n"), istek.size()));
    return satirlar;
}

void Sunucu::IstekleriBekle(std::size_t adet) {
    std::unique_lock kilit(kilit_);
    degisti_.wait(kilit, [&] { return duruyor_ || istekler_.size() >= adet; });
}

void Sunucu::BitenleriBekle(std::size_t adet) {
    std::unique_lock kilit(kilit_);
    degisti_.wait(kilit, [&] { return duruyor_ || bitenler_ >= adet; });
}

std::string TamCevap(std::string_view govde) {
    return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(govde.size()) + "\r\n\r\n" +
           std::string(govde);
}

Sunucu::Davranis Cevapla(std::string_view govde) {
    return HamYolla(TamCevap(govde));
}

Sunucu::Davranis HamYolla(std::string bayt) {
    return [bayt = std::move(bayt)](const Baglanti& baglanti) { baglanti.Yolla(bayt); };
}

Sunucu::Davranis Sus() {
    return [](const Baglanti& baglanti) { baglanti.KapanmasiniBekle(); };
}

} // namespace velora::test
