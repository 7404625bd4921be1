// The way in, in windows: from the last tick of the start to the login, and from there to the painted table.
#include <benchmark/benchmark.h>

#include "access/FormSifre.h"
#include "access/Splash.h"
#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/Pencere.h"
#include "benchmarks/Zemin.h"
#include "qt/Ekranlar.h"

namespace velora::olcum {

namespace {

constexpr int kSonTiktenOnce = 69;
} // namespace

void BaslangictanTabloya(benchmark::State& durum) {
    const OlcumAgaci agac;
    std::vector<double> giris;
    std::vector<double> tablo;
    std::vector<double> zemin;
    for (auto _ : durum) {
        zemin.push_back(Saniye([&] { benchmark::DoNotOptimize(Zemin(agac.YilYolu())); }));
        QtOrtam disDunya;
        Ortam ortam = disDunya.Ver();
        ortam.zaman.simdi = OlcumOrtami(OlcumAgaci::Bugun()).zaman.simdi;
        Program program(ortam, agac.Kok());
        EkranlariTanit(disDunya, program);
        program.Splash->Baslat();
        program.Splash->Tag = SayiMetni(kSonTiktenOnce);
        giris.push_back(Saniye([&] {
            if (!HazirOlmali(disDunya, EkranAdi::FormSifre, [&] { program.Splash->Timer1_Tick(); }))
                durum.SkipWithError("no login");
        }));
        program.FormSifre->Text2.metin = ornek::kYoneticiParolasi;
        tablo.push_back(Saniye([&] {
            if (!HazirOlmali(disDunya, EkranAdi::FormTablo, [&] { program.FormSifre->Command1_Click(); }))
                durum.SkipWithError("no table");
        }));
        disDunya.PencereleriBirak();
    }
    OlcuYaz(durum, "giris_ms", Ortanca(giris) * 1000, 100);
    OlcuYaz(durum, "tablo_ms", Ortanca(tablo) * 1000, 400);
    durum.counters["zemin_ms"] = Ortanca(zemin) * 1000;
    durum.counters["oran"] = Ortanca(tablo) / Ortanca(zemin);
}
BENCHMARK(BaslangictanTabloya)->Unit(benchmark::kMillisecond)->Iterations(20);

} // namespace velora::olcum
