// The full scan of a year of 744 reservations, as a ratio to the floor. Both are measured in turn within one
// run.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/Zemin.h"
#include "table/FormTablo.h"

namespace velora::olcum {

namespace {

/// For comparison: the same files through the standard library's streams.
void Akislar(const std::filesystem::path& klasor) {
    for (const auto& oge : std::filesystem::directory_iterator(klasor)) {
        std::ifstream dosya(oge.path(), std::ios::binary);
        const std::string bayt(std::istreambuf_iterator<char>(dosya), {});
        benchmark::DoNotOptimize(bayt.data());
    }
}

constexpr double kEnCokYine = 0.6;

/// Kilobytes of memory that the process holds.
double Bellek() {
    long toplam = 0;
    long yerlesik = 0;
    std::ifstream("/proc/self/statm") >> toplam >> yerlesik;
    return static_cast<double>(yerlesik * sysconf(_SC_PAGESIZE)) / 1024;
}

} // namespace

void TaramaninZemineOrani(benchmark::State& durum) {
    const OlcumAgaci agac;
    const OlcumAgaci izlenmeyen; // for the floor: to read what is watched is slower
    malloc_trim(0);              // what making the tree left behind
    const double bos = Bellek();
    Program program(OlcumOrtami(OlcumAgaci::Bugun()), agac.Kok());
    FormTablo& tablo = *program.FormTablo.Tut();
    std::vector<double> zemin;
    std::vector<double> tarama;
    std::vector<double> akis;
    int dosyaSayisi = 0;
    while (durum.KeepRunning()) {
        zemin.push_back(Saniye([&] { dosyaSayisi = Zemin(izlenmeyen.YilYolu()); }));
        tarama.push_back(Saniye([&] { tablo.Command1(); }));
        akis.push_back(Saniye([&] { Akislar(agac.YilYolu()); }));
    }
    durum.counters["dosya"] = dosyaSayisi;
    durum.counters["zemin_ms"] = Ortanca(zemin) * 1000;
    durum.counters["tarama_ms"] = Ortanca(tarama) * 1000;
    OranYaz(durum, Ortanca(tarama) / Ortanca(zemin), kEnCokYine);
    durum.counters["akis_orani"] = Ortanca(akis) / Ortanca(zemin);
    OlcuYaz(durum, "bellek_KiB", Bellek() - bos, 25 * 1024);
}
BENCHMARK(TaramaninZemineOrani)->Unit(benchmark::kMillisecond)->Iterations(200);

void BinTaramadaBellek(benchmark::State& durum) {
    const OlcumAgaci agac;
    Program program(OlcumOrtami(OlcumAgaci::Bugun()), agac.Kok());
    FormTablo& tablo = *program.FormTablo.Tut();
    // What is kept of the files is there before: it is no growth.
    OlcumAgaci::Yaslandir();
    tablo.Command1();
    while (durum.KeepRunning()) {
        const auto once = mallinfo2().uordblks;
        for (int i = 0; i < 1000; ++i)
            tablo.Command1();
        durum.counters["artis_bayt"] = static_cast<double>(mallinfo2().uordblks) - static_cast<double>(once);
    }
}
BENCHMARK(BinTaramadaBellek)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace velora::olcum
