// The start in a process of its own: from the login to the painted table, against a process that paints a
// bare window of the toolkit, from its birth on.
#include "benchmarks/SurecBenchmark.h"

#include <benchmark/benchmark.h>

#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QProcess>
#include <QStatusBar>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "access/FormSifre.h"
#include "access/Splash.h"
#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/Pencere.h"
#include "benchmarks/Zemin.h"
#include "qt/Dil.h"
#include "qt/Ekranlar.h"
#include "qt/Gorunum.h"
#include "qt/TusTekrari.h"
#include "storage/Sayi.h"

namespace velora::olcum {

namespace {

constexpr const char* kBosPencere = "bos-pencere";
constexpr const char* kProgram = "program";
constexpr int kTikSayisi = 100; // more than the start screen takes

/// Kilobytes that the process has held at most.
long EnCokBellek() {
    std::ifstream durum("/proc/self/status");
    for (std::string satir; std::getline(durum, satir);)
        if (satir.starts_with("VmHWM:"))
            return std::stol(satir.substr(satir.find(':') + 1));
    return 0;
}

/// Tells what was measured and ends the process here: what it would tidy up is no part of a start.
[[noreturn]] void Bitir(bool oldu, double saniye = 0) {
    std::printf("%ld %f", EnCokBellek(), saniye);
    std::fflush(stdout);
    std::_Exit(oldu ? EXIT_SUCCESS : EXIT_FAILURE);
}

[[noreturn]] void BosPencere() {
    const BoyaGozcusu gozcu;
    QMainWindow pencere;
    pencere.resize(1280, 720);
    pencere.menuBar()->addMenu(QStringLiteral("Dosya"));
    pencere.statusBar()->addWidget(new QLabel(QStringLiteral("Velora")));
    pencere.show();
    QElapsedTimer sure;
    sure.start();
    while (!gozcu.Boyandi(&pencere) && sure.elapsed() < kSabir)
        QCoreApplication::processEvents();
    Bitir(gozcu.Boyandi(&pencere));
}

[[noreturn]] void ProgramiBaslat(const std::filesystem::path& kok, const std::filesystem::path& durum) {
    DiliKur();
    TusTekrariniKes();
    GorunumuKur();
    QtOrtam disDunya;
    Ortam ortam = disDunya.Ver();
    ortam.zaman.simdi = OlcumOrtami(OlcumAgaci::Bugun()).zaman.simdi;
    ortam.klasorler.durum = [&] { return durum; };
    Program program(ortam, kok);
    EkranlariTanit(disDunya, program);
    const auto girise = [&] {
        program.Splash->Baslat();
        for (int i = 0; i < kTikSayisi && disDunya.Pencere(EkranAdi::FormSifre) == nullptr; ++i) {
            QCoreApplication::processEvents();
            program.Splash->Timer1_Tick();
        }
    };
    if (!HazirOlmali(disDunya, EkranAdi::FormSifre, girise))
        Bitir(false);
    program.FormSifre->Text2.metin = ornek::kYoneticiParolasi;
    bool oldu = false;
    const double sure = Saniye([&] {
        oldu = HazirOlmali(disDunya, EkranAdi::FormTablo, [&] { program.FormSifre->Command1_Click(); });
    });
    Bitir(oldu, sure);
}

struct Olcu {
    double surec = 0;  ///< seconds from its birth to its end
    double tablo = 0;  ///< seconds from the login to the table
    double bellek = 0; ///< megabytes at most
    bool oldu = false;
};

Olcu Calistir(const QStringList& nasil) {
    QProcess surec;
    Olcu olcu;
    olcu.surec = Saniye([&] {
        surec.start(QCoreApplication::applicationFilePath(), nasil);
        olcu.oldu = surec.waitForFinished(3 * kSabir);
    });
    olcu.oldu = olcu.oldu && surec.exitStatus() == QProcess::NormalExit && surec.exitCode() == EXIT_SUCCESS;
    std::istringstream sayilar(surec.readAllStandardOutput().toStdString());
    sayilar >> olcu.bellek >> olcu.tablo;
    olcu.bellek /= 1024;
    return olcu;
}

constexpr double kEnCokBellek = 64;

struct Firma {
    const char* ad;
    unsigned salon;
    unsigned yil;
    unsigned rezervasyon; ///< for each hall and year
    double enCok;
};

/// The second one holds 234,000 files.
constexpr std::array<Firma, 2> kFirmalar{
    {{"744", 1, 1, ornek::kEnCokRezervasyon, 1.6}, {"20 salon x 21 yil", 20, ornek::kEnCokYil, 186, 3.5}}};

} // namespace

void SurecOlarakCalis(std::span<char*> parcalar) {
    if (parcalar.size() == 2 && parcalar[1] == std::string_view(kBosPencere))
        BosPencere();
    if (parcalar.size() == 4 && parcalar[1] == std::string_view(kProgram))
        ProgramiBaslat(parcalar[2], parcalar[3]);
}

void SurecinBaslamasi(benchmark::State& durum) {
    const Firma& firma = kFirmalar.at(static_cast<std::size_t>(durum.range(0)));
    const OlcumAgaci agac({.salon = firma.salon,
                           .yil = firma.yil,
                           .rezervasyon = firma.rezervasyon,
                           .bugun = OlcumAgaci::Bugun()});
    std::vector<double> zemin;
    std::vector<double> surec;
    std::vector<double> tablo;
    std::vector<double> bellek;
    OlcumAgaci::Yaslandir();
    for (auto _ : durum) {
        const Olcu bos = Calistir({QString::fromLatin1(kBosPencere)});
        const Olcu program = Calistir({QString::fromLatin1(kProgram), QString::fromStdString(agac.Kok()),
                                       QString::fromStdString(agac.DurumKlasoru())});
        if (!bos.oldu || !program.oldu)
            durum.SkipWithError("no window");
        zemin.push_back(bos.surec);
        surec.push_back(program.surec);
        tablo.push_back(program.tablo);
        bellek.push_back(program.bellek);
    }
    durum.SetLabel(firma.ad);
    durum.counters["pencere_ms"] = Ortanca(zemin) * 1000;
    durum.counters["surec_ms"] = Ortanca(surec) * 1000;
    durum.counters["tablo_ms"] = Ortanca(tablo) * 1000;
    OlcuYaz(durum, "bellek_MiB", Ortanca(bellek), kEnCokBellek);
    OranYaz(durum, Ortanca(tablo) / Ortanca(zemin), firma.enCok);
}
BENCHMARK(SurecinBaslamasi)->DenseRange(0, 1)->Unit(benchmark::kMillisecond)->Iterations(15);

} // namespace velora::olcum
