// The year table of 744 taken slots on its way to a service on this machine, as a ratio to the same requests
// sent bare.
#include <arpa/inet.h>
#include <benchmark/benchmark.h>
#include <curl/curl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <fstream>
#include <memory>
#include <string>
#include <thread>

#include "access/Splash.h"
#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/Zemin.h"
#include "online/FormWebteYayinla.h"
#include "platform/Ag.h"
#include "storage/KodSayfasi.h"
#include "table/FormTablo.h"

namespace velora::olcum {

namespace {

/// A service that answers whatever comes, on each connection until that is closed, and counts the requests.
class Servis {
  public:
    Servis() {
        sockaddr_in adres{};
        adres.sin_family = AF_INET;
        adres.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t boy = sizeof adres;
        auto* ham = reinterpret_cast<sockaddr*>(&adres);
        soket_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (soket_ < 0 || bind(soket_, ham, boy) != 0 || listen(soket_, 16) != 0 ||
            getsockname(soket_, ham, &boy) != 0)
            std::abort();
        kapi_ = ntohs(adres.sin_port);
        dinleyen_ = std::thread([this] { Dinle(); });
    }
    ~Servis() {
        shutdown(soket_, SHUT_RDWR);
        dinleyen_.join();
        close(soket_);
    }
    Servis(const Servis&) = delete;
    Servis& operator=(const Servis&) = delete;

    std::string Adres() const { return "http://127.0.0.1:" + std::to_string(kapi_) + "/"; }
    int Istekler() const { return istekler_; }

  private:
    void Dinle() {
        std::vector<std::thread> karsilayanlar;
        for (int soket = 0; (soket = accept4(soket_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
            karsilayanlar.emplace_back([this, soket] { Karsila(soket); });
        }
        for (std::thread& karsilayan : karsilayanlar)
            karsilayan.join();
    }
    void Karsila(int soket) {
        constexpr std::string_view kCevap = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nOK";
        std::string gelen;
        std::array<char, 4096> tampon{};
        for (ssize_t boy = 0; (boy = recv(soket, tampon.data(), tampon.size(), 0)) > 0;) {
            gelen.append(tampon.data(), static_cast<std::size_t>(boy));
            for (std::size_t son = 0; (son = gelen.find("\r\n\r\n")) != std::string::npos;) {
                gelen.erase(0, son + 4);
                ++istekler_;
                send(soket, kCevap.data(), kCevap.size(), MSG_NOSIGNAL);
            }
        }
        close(soket);
    }

    int soket_ = -1;
    int kapi_ = 0;
    std::atomic<int> istekler_{0};
    std::thread dinleyen_;
};

std::size_t At(const char* /*bayt*/, std::size_t bir, std::size_t adet, void* /*kendisi*/) {
    return bir * adet;
}

/// The floor: the library alone sends each request on one connection and drops its reply.
void YalinIstekler(const std::string& servis, const std::vector<std::string>& hedefler) {
    const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> kol(curl_easy_init(), &curl_easy_cleanup);
    curl_easy_setopt(kol.get(), CURLOPT_URL, servis.c_str());
    curl_easy_setopt(kol.get(), CURLOPT_WRITEFUNCTION, &At);
    for (const std::string& hedef : hedefler) {
        curl_easy_setopt(kol.get(), CURLOPT_REQUEST_TARGET, hedef.c_str());
        if (curl_easy_perform(kol.get()) != CURLE_OK)
            std::abort();
    }
}

} // namespace

void YayininYalinIsteklereOrani(benchmark::State& durum) {
    const OlcumAgaci agac;
    const Servis servis;
    std::ofstream(agac.Kok() / "Adresler.dat", std::ios::binary) << '"' << servis.Adres() << R"(","","","")"
                                                                 << "\r\n";
    Ortam ortam = OlcumOrtami(OlcumAgaci::Bugun());
    ortam.goster.modal = [](EkranAdi, const std::function<void()>& gorununce) { gorununce(); };
    AgiBagla(ortam);
    std::vector<std::string> hedefler;
    const auto getir = ortam.ag.getir;
    ortam.ag.getir = [&](const AgIstegi& istek) {
        const std::string adres = KodYaz(istek.adres);
        if (adres.find("/save.php?") != std::string::npos)
            hedefler.push_back(adres.substr(servis.Adres().size() - 1));
        return getir(istek);
    };
    Program program(ortam, agac.Kok());
    program.FormTablo.Tut();
    program.Splash->Check1 = 1;
    std::vector<double> zemin;
    std::vector<double> yayin;
    for (auto _ : durum) {
        hedefler.clear();
        const int once = servis.Istekler();
        yayin.push_back(Saniye([&] { program.FormTablo->Yayinla(); }));
        // The whole year, its clearing and its hall.
        if (servis.Istekler() - once != 744 + 2)
            durum.SkipWithError("not all of the year went out");
        zemin.push_back(Saniye([&] { YalinIstekler(servis.Adres(), hedefler); }));
    }
    durum.counters["zemin_ms"] = Ortanca(zemin) * 1000;
    durum.counters["yayin_ms"] = Ortanca(yayin) * 1000;
    durum.counters["oran"] = Ortanca(yayin) / Ortanca(zemin);
}
BENCHMARK(YayininYalinIsteklereOrani)->Unit(benchmark::kMillisecond)->Iterations(20);

} // namespace velora::olcum
