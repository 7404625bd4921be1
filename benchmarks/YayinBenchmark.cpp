// The year table of 744 taken slots on its way to a service on this machine, as a ratio to the same requests
// sent bare.
#include <benchmark/benchmark.h>
#include <curl/curl.h>

#include <fstream>
#include <memory>
#include <optional>
#include <string>

#include "access/Splash.h"
#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/Zemin.h"
#include "online/FormWebteYayinla.h"
#include "platform/Ag.h"
#include "platform/Sunucu.h"
#include "storage/KodSayfasi.h"
#include "table/FormTablo.h"

namespace velora::olcum {

using namespace std::string_literals;

namespace {

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
    test::Sunucu servis(test::Baglantilar::AcikKalir, [](std::string_view) { return std::optional("OK"s); });
    const std::string yeri = KodYaz(servis.Adres(u"/"));
    std::ofstream(agac.Kok() / "Adresler.dat", std::ios::binary) << "\"" << yeri << "\",\"\",\"\",\"\"\r\n";
    Ortam ortam = OlcumOrtami(OlcumAgaci::Bugun());
    ortam.goster.modal = [](EkranAdi, const std::function<void()>& gorununce) { gorununce(); };
    AgiBagla(ortam);
    std::vector<std::string> hedefler;
    const auto gonder = ortam.ag.gonder;
    ortam.ag.gonder = [&](const AgIstegi& istek) {
        const std::string adres = KodYaz(istek.adres);
        if (adres.find("/save.php?") != std::string::npos)
            hedefler.push_back(adres.substr(yeri.size() - 1));
        return gonder(istek);
    };
    Program program(ortam, agac.Kok());
    program.FormTablo.Tut();
    program.Splash->Check1 = 1;
    std::vector<double> zemin;
    std::vector<double> yayin;
    for (auto _ : durum) {
        hedefler.clear();
        const std::size_t once = servis.Istekler().size();
        yayin.push_back(Saniye([&] { program.FormTablo->Yayinla(); }));
        // The whole year, its clearing and its hall.
        if (servis.Istekler().size() - once != 744 + 2)
            durum.SkipWithError("not all of the year went out");
        zemin.push_back(Saniye([&] { YalinIstekler(yeri, hedefler); }));
    }
    durum.counters["zemin_ms"] = Ortanca(zemin) * 1000;
    durum.counters["yayin_ms"] = Ortanca(yayin) * 1000;
    OranYaz(durum, Ortanca(yayin) / Ortanca(zemin), 1.3);
}
BENCHMARK(YayininYalinIsteklereOrani)->Unit(benchmark::kMillisecond)->Iterations(20);

} // namespace velora::olcum
