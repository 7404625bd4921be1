// A backup against the system's own recursive copy, and one that finds nothing to do against listing both
// trees and comparing them.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cstdlib>
#include <utility>

#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/Zemin.h"
#include "maintenance/FormYedekAl.h"

namespace velora::olcum {

namespace {

namespace fs = std::filesystem;

constexpr int kSalonYili = 21;
constexpr int kAzYil = 4;
constexpr int kTumYillar = 5 * kSalonYili; // 234,360 files of reservations
constexpr int kTekrar = 3;

/// A program folder in which so many years of halls are full, and a place beside it for its copies.
class YedekAgaci {
  public:
    explicit YedekAgaci(int yil) {
        const fs::path ornek = agac_.YilYolu();
        for (int i = 1; i < yil; ++i) {
            const fs::path salon = agac_.Kok() / ("Salon " + std::to_string(i / kSalonYili));
            fs::create_directories(salon);
            fs::copy(ornek, salon / std::to_string(2010 + i % kSalonYili), fs::copy_options::recursive);
        }
        fs::create_directories(Hedef());
    }
    ~YedekAgaci() { fs::remove_all(Hedef()); }
    YedekAgaci(const YedekAgaci&) = delete;
    YedekAgaci& operator=(const YedekAgaci&) = delete;

    const fs::path& Kok() const { return agac_.Kok(); }
    fs::path Hedef() const { return agac_.Kok().string() + "-yedek"; }

    /// Takes a backup as its button does. How long that takes, in seconds.
    double Yedekle() const {
        Program program(OlcumOrtami(OlcumAgaci::Bugun()), Kok());
        program.FormYedekAl->txtDestination.metin = YolMetni(Hedef());
        return Saniye([&] { program.FormYedekAl->cmdStart_Click(); });
    }
    fs::path Yedek() const { return Hedef() / "15_06_2026"; }

  private:
    OlcumAgaci agac_;
};

/// What a run before has left for the disk to do is no part of the next one.
void DiskiBekle() {
    ::sync();
}

int DosyaSayisi(const fs::path& klasor) {
    int adet = 0;
    for (const auto& oge : fs::recursive_directory_iterator(klasor))
        adet += oge.is_regular_file() ? 1 : 0;
    return adet;
}

struct Kayit {
    std::string ad;
    struct stat bilgi {};
};

std::vector<Kayit> Listele(const std::string& klasor) {
    std::vector<Kayit> kayitlar;
    DIR* dizin = opendir(klasor.c_str());
    while (const dirent* oge = dizin == nullptr ? nullptr : readdir(dizin)) {
        Kayit kayit{static_cast<const char*>(oge->d_name), {}};
        if (kayit.ad != "." && kayit.ad != ".." && fstatat(dirfd(dizin), oge->d_name, &kayit.bilgi, 0) == 0)
            kayitlar.push_back(std::move(kayit));
    }
    if (dizin != nullptr)
        closedir(dizin);
    std::sort(kayitlar.begin(), kayitlar.end(),
              [](const Kayit& bir, const Kayit& iki) { return bir.ad < iki.ad; });
    return kayitlar;
}

bool Ayni(const struct stat& bir, const struct stat& iki) {
    return bir.st_size == iki.st_size && bir.st_mode == iki.st_mode &&
           std::abs(bir.st_mtim.tv_sec - iki.st_mtim.tv_sec) <= 1;
}

/// Lists both trees once, each of their entries asked about once, and compares them. How many files of the
/// first aren't in the second as they are.
int Karsilastir(const std::string& bir, const std::string& iki) {
    const std::vector<Kayit> sol = Listele(bir);
    const std::vector<Kayit> sag = Listele(iki);
    int farkli = 0;
    auto es = sag.begin();
    for (const Kayit& kayit : sol) {
        while (es != sag.end() && es->ad < kayit.ad)
            ++es;
        const bool var = es != sag.end() && es->ad == kayit.ad;
        if (S_ISDIR(kayit.bilgi.st_mode))
            farkli += Karsilastir(bir + '/' + kayit.ad, iki + '/' + kayit.ad);
        else if (!var || !Ayni(kayit.bilgi, es->bilgi))
            ++farkli;
    }
    return farkli;
}

} // namespace

void IlkYedek(benchmark::State& durum) {
    const YedekAgaci agac(static_cast<int>(durum.range(0)));
    const fs::path kopya = agac.Hedef() / "kopya";
    const std::string komut = "cp -r '" + agac.Kok().string() + "' '" + kopya.string() + "'";
    std::vector<double> yedekler;
    std::vector<double> kopyalar;
    int dosya = 0;
    for (auto _ : durum) {
        DiskiBekle();
        kopyalar.push_back(Saniye([&] {
            if (std::system(komut.c_str()) != 0)
                durum.SkipWithError("no plain copy");
        }));
        fs::remove_all(kopya);
        DiskiBekle();
        yedekler.push_back(agac.Yedekle());
        dosya = DosyaSayisi(agac.Yedek());
        if (Karsilastir(agac.Kok().string(), agac.Yedek().string()) != 0)
            durum.SkipWithError("the backup isn't whole");
        fs::remove_all(agac.Yedek());
    }
    durum.counters["dosya"] = dosya;
    durum.counters["kopya_ms"] = Ortanca(kopyalar) * 1e3;
    durum.counters["yedek_ms"] = Ortanca(yedekler) * 1e3;
    OranYaz(durum, Ortanca(yedekler) / Ortanca(kopyalar), 1.3);
}
BENCHMARK(IlkYedek)->Arg(kAzYil)->Arg(kTumYillar)->Unit(benchmark::kMillisecond)->Iterations(kTekrar);

void DegisiksizYedek(benchmark::State& durum) {
    const YedekAgaci agac(static_cast<int>(durum.range(0)));
    agac.Yedekle();
    std::vector<double> yedekler;
    std::vector<double> listelemeler;
    for (auto _ : durum) {
        listelemeler.push_back(Saniye([&] {
            if (Karsilastir(agac.Kok().string(), agac.Yedek().string()) != 0)
                durum.SkipWithError("the backup isn't whole");
        }));
        yedekler.push_back(agac.Yedekle());
    }
    durum.counters["dosya"] = DosyaSayisi(agac.Yedek());
    durum.counters["zemin_ms"] = Ortanca(listelemeler) * 1e3;
    durum.counters["yedek_ms"] = Ortanca(yedekler) * 1e3;
    OranYaz(durum, Ortanca(yedekler) / Ortanca(listelemeler), 1);
}
BENCHMARK(DegisiksizYedek)->Arg(kAzYil)->Arg(kTumYillar)->Unit(benchmark::kMillisecond)->Iterations(9);

} // namespace velora::olcum
