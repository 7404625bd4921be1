// A save in windows: from the press of its button to the table painted anew, each pixel of it, as a ratio to
// the floor.
#include <benchmark/benchmark.h>

#include <QPushButton>
#include <QTimer>

#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/Pencere.h"
#include "benchmarks/YeniKayit.h"
#include "benchmarks/Zemin.h"
#include "qt/Ekranlar.h"
#include "table/FormTablo.h"

namespace velora::olcum {

namespace {

constexpr int kGorunmeSuresi = 100; // milliseconds

/// The program in windows, its table shown over a whole screen.
struct Pencereler {
    explicit Pencereler(const OlcumAgaci& agac) : program(Dis(agac), agac.Kok()) {
        EkranlariTanit(disDunya, program);
        program.GunluguAc();
        const bool acildi =
            HazirOlmali(disDunya, EkranAdi::FormTablo, [this] { program.FormTablo.Goster(); });
        QWidget* pencere = disDunya.Pencere(EkranAdi::FormTablo);
        pencere->resize(1920, 1080);
        QCoreApplication::processEvents();
        tablo = !acildi ? nullptr : pencere->findChild<QWidget*>(QStringLiteral("Picture4"));
    }
    ~Pencereler() { disDunya.PencereleriBirak(); }
    Pencereler(const Pencereler&) = delete;
    Pencereler& operator=(const Pencereler&) = delete;

    Ortam Dis(const OlcumAgaci& agac) {
        Ortam ortam = disDunya.Ver();
        const Ortam sakin = OlcumOrtami(OlcumAgaci::Bugun());
        ortam.zaman = sakin.zaman;
        ortam.sor.mesaj = sakin.sor.mesaj;
        ortam.klasorler.durum = [&agac] { return agac.DurumKlasoru(); };
        return ortam;
    }

    /// Opens the reservation over the table, presses its button and waits for the table. How long that took,
    /// in seconds; nothing when it wasn't saved or the table not painted.
    std::optional<double> Kaydet() {
        if (tablo == nullptr)
            return {};
        std::optional<double> sure;
        const auto kayit = program.FormKayit.Tut(); // its loading lets events run
        Doldur(*kayit);
        // What has changed is seen on the table; the same again would not be painted.
        kesin_ = !kesin_;
        kayit->Option1.deger = kesin_ ? 1 : 0;
        kayit->Option2.deger = kesin_ ? 0 : 1;
        // Whoever presses it has long seen the window.
        QTimer::singleShot(kGorunmeSuresi, qApp, [&] {
            QCoreApplication::processEvents();
            auto* dugme =
                disDunya.Pencere(EkranAdi::FormKayit)->findChild<QPushButton*>(QStringLiteral("Command1"));
            const BoyaGozcusu gozcu(tablo);
            const double gecen = Saniye([&] {
                dugme->click();
                QElapsedTimer bekleyis;
                bekleyis.start();
                while (!gozcu.Boyandi() && bekleyis.elapsed() < kSabir)
                    QCoreApplication::processEvents();
            });
            if (gozcu.Boyandi() && disDunya.Pencere(EkranAdi::FormKayit) == nullptr)
                sure = gecen;
        });
        program.FormKayit.GosterModal();
        return sure;
    }

    QtOrtam disDunya;
    Program program;
    QWidget* tablo = nullptr;

  private:
    bool kesin_ = false;
};

} // namespace

void PenceredeKaydetme(benchmark::State& durum) {
    const OlcumAgaci agac;
    const OlcumAgaci zeminAgaci;
    Pencereler pencereler(agac);
    const Dosyalar& dosyalar = pencereler.program.dosyalar;
    std::vector<double> zemin;
    std::vector<double> sure;
    std::vector<double> bekleme;
    for (auto _ : durum) {
        zemin.push_back(Saniye([&] { benchmark::DoNotOptimize(Zemin(zeminAgaci.YilYolu())); }));
        pencereler.program.FormTablo->Picture1.gorunur = durum.range(0) == 1;
        const auto once = dosyalar.GunlukBeklemesi();
        const std::optional<double> gecen = pencereler.Kaydet();
        bekleme.push_back(std::chrono::duration<double>(dosyalar.GunlukBeklemesi() - once).count());
        sure.push_back(gecen.value_or(0) - bekleme.back());
        if (!gecen)
            return durum.SkipWithError("no save, or no table behind it");
        dosyalar.GunluguBekle(); // the syncs behind must not slow the next floor down
    }
    durum.counters["zemin_ms"] = Ortanca(zemin) * 1000;
    durum.counters["kaydetme_ms"] = Ortanca(sure) * 1000;
    durum.counters["bekleme_ms"] = Ortanca(bekleme) * 1000;
    OranYaz(durum, Ortanca(sure) / Ortanca(zemin), kEnCokKayitOrani);
}
BENCHMARK(PenceredeKaydetme)->ArgName("panel")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(60);

} // namespace velora::olcum
