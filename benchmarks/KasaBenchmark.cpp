// The cash book over 21 years, against listing their folders and reading their files of payments and
// expenses.
#include <benchmark/benchmark.h>

#include <fstream>

#include "accounts/FormKasa.h"
#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/Zemin.h"
#include "table/FormTablo.h"

namespace velora::olcum {

namespace {

namespace fs = std::filesystem;

/// Every year of the table gets what the one of the tree holds.
void YillariDoldur(const OlcumAgaci& agac, const FormTablo& tablo) {
    for (const Metin& yil : tablo.Sene.ogeler)
        if (const fs::path yol = agac.YilYolu().parent_path() / fs::path(yil); yol != agac.YilYolu()) {
            fs::remove_all(yol);
            fs::copy(agac.YilYolu(), yol, fs::copy_options::recursive);
        }
}

bool KasaDosyasi(std::string_view ad) {
    return ad.ends_with("Odeme") || ad.ends_with("Gider.dat");
}

} // namespace

void KasaninListelenmesi(benchmark::State& durum) {
    const OlcumAgaci agac;
    Program program(OlcumOrtami(OlcumAgaci::Bugun()), agac.Kok());
    const auto tablo = program.FormTablo.Tut();
    YillariDoldur(agac, *tablo);
    const auto kasa = program.FormKasa.Tut();
    std::vector<double> listelemeler;
    std::vector<double> okumalar;
    int dosya = 0;
    for (auto _ : durum) {
        okumalar.push_back(Saniye([&] {
            dosya = 0;
            for (const Metin& yil : tablo->Sene.ogeler)
                dosya += Zemin(agac.YilYolu().parent_path() / fs::path(yil), KasaDosyasi);
        }));
        listelemeler.push_back(Saniye([&] { kasa->ListeleGun1(); }));
    }
    if (kasa->Liste.satirlar.empty() || dosya < static_cast<int>(tablo->Sene.ogeler.size()))
        durum.SkipWithError("nothing to list");
    durum.counters["dosya"] = dosya;
    durum.counters["zemin_ms"] = Ortanca(okumalar) * 1e3;
    durum.counters["kasa_ms"] = Ortanca(listelemeler) * 1e3;
    OranYaz(durum, Ortanca(listelemeler) / Ortanca(okumalar), 1.35);
}
BENCHMARK(KasaninListelenmesi)->Unit(benchmark::kMillisecond)->Iterations(21);

} // namespace velora::olcum
