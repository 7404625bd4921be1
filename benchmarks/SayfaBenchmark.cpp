// Building the page of the contract with five thousand letters of clauses, in the type that it is painted in,
// against measuring each word of them once.
#include <benchmark/benchmark.h>

#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/Zemin.h"
#include "documents/FormPrint.h"
#include "qt/SayfaCizimi.h"

namespace velora::olcum {

namespace {

constexpr std::size_t kMaddeHarfi = 5'000;

/// Clauses without a line end: each line is looked for in all that is left.
Metin UzunMaddeler() {
    Metin metin;
    for (int sira = 1; metin.size() < kMaddeHarfi; ++sira)
        metin += SayiMetni(sira) + u" - Salonun kira ücreti düğün günü peşin ödenir, “kaparo” iade edilmez. ";
    return metin.substr(0, kMaddeHarfi);
}

double KelimeleriOlc(MetinBakis metin, const YaziOlcer& olcer) {
    double en = 0;
    while (!metin.empty()) {
        const std::size_t son = std::min(metin.find(u' ') + 1, metin.size());
        const std::size_t boy = son == 0 ? metin.size() : son;
        en += olcer(metin.substr(0, boy), {10, false});
        metin.remove_prefix(boy);
    }
    return en;
}

} // namespace

void SozlesmeSayfasi(benchmark::State& durum) {
    const OlcumAgaci agac;
    Program program(OlcumOrtami(OlcumAgaci::Bugun()), agac.Kok());
    FormPrint sayfa(program);
    sayfa.Sozlesme.baslik = UzunMaddeler();
    sayfa.Senet = durum.range(0) != 0;
    sayfa.Label55.gorunur = sayfa.Onaciklama.gorunur = !sayfa.Senet;
    std::vector<double> sayfalar;
    std::vector<double> zemin;
    double ilk = 0;
    for (auto _ : durum) {
        const YaziOlcer olcer = SayfaOlcer();
        const double bastan = Saniye([&] { benchmark::DoNotOptimize(sayfa.Sayfalar(olcer)); });
        ilk = std::max(ilk, bastan);
        sayfalar.push_back(Saniye([&] { benchmark::DoNotOptimize(sayfa.Sayfalar(olcer)); }));
        zemin.push_back(
            Saniye([&] { benchmark::DoNotOptimize(KelimeleriOlc(sayfa.Sozlesme.baslik, olcer)); }));
    }
    OlcuYaz(durum, "ilk_ms", ilk * 1e3, 50);
    durum.counters["sayfa_ms"] = Ortanca(sayfalar) * 1e3;
    OranYaz(durum, Ortanca(sayfalar) / Ortanca(zemin), 400);
}
BENCHMARK(SozlesmeSayfasi)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(21);

} // namespace velora::olcum
