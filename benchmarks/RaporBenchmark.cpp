// The export of the reservation report: a year of 744 rows as a spreadsheet, against putting the same bytes
// on the disk.
#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>

#include "accounts/FormBakiye.h"
#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/Zemin.h"
#include "table/FormTablo.h"

namespace velora::olcum {

namespace {

constexpr std::size_t kSatirSayisi = 744;

/// The rows of a whole year. A name that is no date ends the report's scan, and the year of the measurements
/// has such ones: what came until then is taken again.
SatirListesi YilinSatirlari(FormBakiye& rapor) {
    rapor.DTPicker1.deger = TarihCoz(u"01.01.2026").value();
    rapor.DTPicker2.deger = TarihCoz(u"31.12.2026").value();
    rapor.ListeleGun();
    std::vector<ListeSatiri> satirlar;
    const SatirListesi& okunan = rapor.Liste.satirlar;
    for (std::size_t i = 0; i < kSatirSayisi && !okunan.empty(); ++i)
        satirlar.push_back(okunan[i % okunan.size()]);
    return satirlar;
}

/// The floor: the old file is deleted and one of these bytes is made.
double YazmaSuresi(const std::filesystem::path& yol, const std::string& bayt) {
    return Saniye([&] {
        std::filesystem::remove(yol);
        std::ofstream(yol, std::ios::binary) << bayt;
    });
}

} // namespace

void RaporunAktarilmasi(benchmark::State& durum) {
    const OlcumAgaci agac;
    Program program(OlcumOrtami(OlcumAgaci::Bugun()), agac.Kok());
    program.FormTablo.Tut();
    const auto rapor = program.FormBakiye.Tut();
    rapor->Liste.satirlar = YilinSatirlari(*rapor);
    if (rapor->Liste.satirlar.size() != kSatirSayisi)
        durum.SkipWithError("nothing to export");
    const auto yol = agac.Kok() / "Rapor.xls";
    std::vector<double> aktarmalar;
    std::vector<double> yazmalar;
    for (auto _ : durum) {
        aktarmalar.push_back(Saniye([&] { rapor->Command2_Click(); }));
        std::ifstream dosya(yol, std::ios::binary);
        const std::string bayt(std::istreambuf_iterator<char>(dosya), {});
        yazmalar.push_back(YazmaSuresi(yol, bayt));
    }
    durum.counters["yazma_ms"] = Ortanca(yazmalar) * 1e3;
    OlcuYaz(durum, "aktarma_ms", Ortanca(aktarmalar) * 1e3, 100);
    OranYaz(durum, Ortanca(aktarmalar) / Ortanca(yazmalar), 40);
}
BENCHMARK(RaporunAktarilmasi)->Unit(benchmark::kMillisecond)->Iterations(51);

} // namespace velora::olcum
