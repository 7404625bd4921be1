// A refresh of a window whose list has 30,000 rows, beside that of one whose list has a single one; and the
// opening of a list of 300,000 rows, beside the making of its rows.
#include <benchmark/benchmark.h>

#include <QTreeWidget>

#include "benchmarks/Zemin.h"
#include "qt/Baglayici.h"

namespace velora::olcum {

namespace {

constexpr int kSatirSayisi = 30'000;
constexpr int kTazelemeSayisi = 1'000;
constexpr int kCokSatir = 300'000;

/// A window with a list of so many rows, one of them in the middle marked.
struct ListePenceresi {
    explicit ListePenceresi(int satirSayisi) : baglayici(model, &liste) {
        model->basliklar = {u"Tarih", u"Ad Soyad", u"Toplam"};
        model->sayiSutunlari = {2};
        for (int i = 0; i < satirSayisi; ++i)
            model->satirlar.push_back({{u"01.01.2026 - Gece", u"Ali Veli", u"50000"}, {}, 0});
        model->secili = satirSayisi / 2;
        baglayici.Bagla(liste, *model);
    }

    std::shared_ptr<ListeGorunumu> model = std::make_shared<ListeGorunumu>();
    QTreeWidget liste;
    Baglayici baglayici;
};

double TazelemeSuresi(int satirSayisi) {
    const ListePenceresi pencere(satirSayisi);
    return Saniye([] {
        for (int i = 0; i < kTazelemeSayisi; ++i)
            Baglayici::HepsiniTazele();
    });
}

} // namespace

void UzunListeninTazelenmesi(benchmark::State& durum) {
    std::vector<double> tek;
    std::vector<double> uzun;
    for (auto _ : durum) {
        tek.push_back(TazelemeSuresi(1));
        uzun.push_back(TazelemeSuresi(kSatirSayisi));
    }
    durum.counters["tazeleme_us"] = Ortanca(uzun) * 1e6 / kTazelemeSayisi;
    OranYaz(durum, Ortanca(uzun) / Ortanca(tek), 2);
}
BENCHMARK(UzunListeninTazelenmesi)->Unit(benchmark::kMillisecond)->Iterations(9);

void CokSatirinAcilmasi(benchmark::State& durum) {
    std::vector<double> zemin;
    std::vector<double> acilma;
    for (auto _ : durum) {
        const auto model = std::make_shared<ListeGorunumu>();
        model->basliklar = {u"Tarih", u"Tutar", u"Açıklama"};
        model->sayiSutunlari = {1};
        zemin.push_back(Saniye([&model] {
            for (int i = 0; i < kCokSatir; ++i)
                model->satirlar.push_back(
                    {{u"01.01.2026", u"50000", u"Ali Veli, üçüncü taksit, elden"}, {}, 0});
        }));
        acilma.push_back(Saniye([&model] {
            QTreeWidget liste;
            Baglayici baglayici(model, &liste);
            baglayici.Bagla(liste, *model);
            liste.resize(800, 600);
            benchmark::DoNotOptimize(liste.grab());
        }));
    }
    durum.counters["acilma_ms"] = Ortanca(acilma) * 1e3;
    OranYaz(durum, Ortanca(acilma) / Ortanca(zemin), 3);
}
BENCHMARK(CokSatirinAcilmasi)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace velora::olcum
