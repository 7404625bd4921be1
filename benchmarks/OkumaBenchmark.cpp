// Who reads a year folder: the first time, and again when nothing in it has changed, each as a ratio to a
// floor that reads the same files once.
#include <benchmark/benchmark.h>

#include "accounts/FormBakiye.h"
#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/Zemin.h"
#include "reservation/FormArama.h"
#include "reservation/Uyarilar.h"
#include "storage/dosya/OkumaBellegi.h"
#include "table/FormTablo.h"

namespace velora::olcum {

namespace {

constexpr UyariSuresi kSure{.kesin = 30, .on = 30};

bool Hepsi(std::string_view /*ad*/) {
    return true;
}

/// The files of a reservation that the report reads.
bool RaporDosyasi(std::string_view ad) {
    return ad.size() > 3 && ad[2] == '.' && !ad.ends_with("Odeme");
}

/// Those that the warnings read: of the 30 days behind 15 June.
bool YakinDosya(std::string_view ad) {
    return RaporDosyasi(ad) && ((ad.substr(2, 4) == ".06." && ad.substr(0, 2) > "15") ||
                                (ad.substr(2, 4) == ".07." && ad.substr(0, 2) <= "15"));
}

std::size_t Tara(Program& program) {
    program.FormTablo->Command1();
    return OlcumAgaci::kRezervasyon;
}

std::size_t Raporla(Program& program) {
    const auto rapor = program.FormBakiye.Tut();
    rapor->DTPicker1.deger = Gun{std::chrono::year{2026}, std::chrono::month{1}, std::chrono::day{1}};
    rapor->DTPicker2.deger = Gun{std::chrono::year{2026}, std::chrono::month{12}, std::chrono::day{31}};
    rapor->ListeleGun();
    return rapor->Liste.satirlar.size();
}

std::size_t Ara(Program& program) {
    const auto arama = program.FormArama.Tut();
    arama->Text[1].metin = u"a";
    arama->Command3_Click();
    return arama->Liste.satirlar.size();
}

std::size_t Uyar(Program& program) {
    UyariTaramasi tarama(program.dosyalar, OlcumAgaci::Bugun(), kSure);
    const auto tablo = program.FormTablo.Tut();
    tarama.KlasorEkle(tablo->Salon.Metni(), program.agac.YilKlasoru(tablo->Salon.Metni(), u"2026"));
    return tarama.Satirlar().size();
}

struct Okuyan {
    const char* ad;
    std::size_t (*is)(Program& program); ///< how many rows it has brought
    bool (*istenen)(std::string_view ad);
    double ilk;  ///< the most that it may cost the first time
    double yine; ///< and again
};

constexpr std::array<Okuyan, 4> kOkuyanlar{{{"tarama", Tara, Hepsi, 1.35, 0.6},
                                            {"rapor", Raporla, RaporDosyasi, 1.35, 0.5},
                                            {"arama", Ara, Hepsi, 1.35, 0.5},
                                            {"uyarilar", Uyar, YakinDosya, 1.35, 0.5}}};

} // namespace

void YilOkuyanlar(benchmark::State& durum) {
    const Okuyan& okuyan = kOkuyanlar.at(static_cast<std::size_t>(durum.range(0)));
    const bool ilk = durum.range(1) == 0;
    const OlcumAgaci agac(OlcumAgaci::Adlar::Gercek);
    // From the second reading on the folder is watched, which slows the floor down: that one has its own.
    const std::optional<OlcumAgaci> izlenmeyen =
        ilk ? std::nullopt : std::optional<OlcumAgaci>(std::in_place, OlcumAgaci::Adlar::Gercek);
    const std::filesystem::path zeminYolu = izlenmeyen ? izlenmeyen->YilYolu() : agac.YilYolu();
    Program program(OlcumOrtami(OlcumAgaci::Bugun()), agac.Kok());
    program.FormTablo.Tut();
    OlcumAgaci::Yaslandir();
    if (okuyan.is(program) == 0)
        durum.SkipWithError("nothing was found");
    std::vector<double> zemin;
    std::vector<double> sure;
    for (auto _ : durum) {
        zemin.push_back(Saniye([&] { benchmark::DoNotOptimize(Zemin(zeminYolu, okuyan.istenen)); }));
        if (ilk)
            program.dosyalar.Bellek().Bosalt();
        sure.push_back(Saniye([&] { benchmark::DoNotOptimize(okuyan.is(program)); }));
    }
    durum.SetLabel(std::string(okuyan.ad) + (ilk ? ", ilk" : ", yine"));
    durum.counters["zemin_ms"] = Ortanca(zemin) * 1000;
    durum.counters["sure_ms"] = Ortanca(sure) * 1000;
    OranYaz(durum, Ortanca(sure) / Ortanca(zemin), ilk ? okuyan.ilk : okuyan.yine);
}
BENCHMARK(YilOkuyanlar)->ArgsProduct({{0, 1, 2, 3}, {0, 1}})->Unit(benchmark::kMillisecond)->Iterations(60);

} // namespace velora::olcum
