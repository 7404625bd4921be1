// The full scan of a year of 744 reservations, as a ratio to the floor: one listing of the folder plus open,
// read and close of each of its files once, nothing decoded, warm cache. Both are measured in turn within one
// run.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "OlcumAgaci.h"
#include "table/FormTablo.h"

namespace velora::olcum {

namespace {

double Saniye(const std::function<void()>& is) {
    const auto bas = std::chrono::steady_clock::now();
    is();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - bas).count();
}

double Ortanca(std::vector<double> sureler) {
    std::nth_element(sureler.begin(), sureler.begin() + static_cast<std::ptrdiff_t>(sureler.size() / 2),
                     sureler.end());
    return sureler[sureler.size() / 2];
}

/// Returns how many files it read.
int Zemin(const std::filesystem::path& klasor) {
    static std::array<char, 1 << 16> tampon;
    std::vector<std::string> adlar;
    DIR* dizin = opendir(klasor.c_str());
    if (dizin == nullptr)
        return 0;
    while (const dirent* oge = readdir(dizin))
        if (oge->d_type == DT_REG)
            adlar.emplace_back(oge->d_name);
    for (const std::string& ad : adlar) {
        const int dosya = openat(dirfd(dizin), ad.c_str(), O_RDONLY | O_CLOEXEC);
        benchmark::DoNotOptimize(read(dosya, tampon.data(), tampon.size()));
        close(dosya);
    }
    closedir(dizin);
    return static_cast<int>(adlar.size());
}

/// For comparison: the same files through the standard library's streams.
void Akislar(const std::filesystem::path& klasor) {
    for (const auto& oge : std::filesystem::directory_iterator(klasor)) {
        std::ifstream dosya(oge.path(), std::ios::binary);
        const std::string bayt(std::istreambuf_iterator<char>(dosya), {});
        benchmark::DoNotOptimize(bayt.data());
    }
}

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
    malloc_trim(0); // what making the tree left behind
    const double bos = Bellek();
    Program program(OlcumOrtami(OlcumAgaci::Bugun()), agac.Kok());
    FormTablo& tablo = *program.FormTablo.Tut();
    std::vector<double> zemin;
    std::vector<double> tarama;
    std::vector<double> akis;
    int dosyaSayisi = 0;
    while (durum.KeepRunning()) {
        zemin.push_back(Saniye([&] { dosyaSayisi = Zemin(agac.YilYolu()); }));
        tarama.push_back(Saniye([&] { tablo.Command1(); }));
        akis.push_back(Saniye([&] { Akislar(agac.YilYolu()); }));
    }
    durum.counters["dosya"] = dosyaSayisi;
    durum.counters["zemin_ms"] = Ortanca(zemin) * 1000;
    durum.counters["tarama_ms"] = Ortanca(tarama) * 1000;
    durum.counters["oran"] = Ortanca(tarama) / Ortanca(zemin);
    durum.counters["akis_orani"] = Ortanca(akis) / Ortanca(zemin);
    durum.counters["bellek_KiB"] = Bellek() - bos;
}
BENCHMARK(TaramaninZemineOrani)->Unit(benchmark::kMillisecond)->Iterations(200);

void BinTaramadaBellek(benchmark::State& durum) {
    const OlcumAgaci agac;
    Program program(OlcumOrtami(OlcumAgaci::Bugun()), agac.Kok());
    FormTablo& tablo = *program.FormTablo.Tut();
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
