// The repaint of the whole table at 1920x1080 after a scan, beside filling the same picture with one colour.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include "benchmarks/OlcumAgaci.h"
#include "benchmarks/SurecBenchmark.h"
#include "qt/table/TabloCizici.h"
#include "setup/FormAyarlar.h"
#include "table/FormTablo.h"
#include "table/Yerlesim.h"

namespace velora::olcum {

namespace {

constexpr int kGenislik = 1920;
constexpr int kYukseklik = 1080;
constexpr double kTwip = 15;

} // namespace

void TumTablonunBoyanmasi(benchmark::State& durum) {
    const OlcumAgaci agac;
    Program program(OlcumOrtami(OlcumAgaci::Bugun()), agac.Kok());
    FormTablo& tablo = *program.FormTablo.Tut();
    tablo.Resize(TabloIcGenisligi(kGenislik * kTwip), TabloIcYuksekligi(kYukseklik * kTwip));
    const TabloGoruntusu goruntu(tablo, *program.FormAyarlar.Tut(), 1);
    TabloCizici cizici(QApplication::font(), {});
    QImage resim(kGenislik, kYukseklik, QImage::Format_ARGB32_Premultiplied);
    while (durum.KeepRunning()) {
        QPainter boyaci(&resim);
        cizici.Ciz(boyaci, goruntu, resim.rect());
    }
}
BENCHMARK(TumTablonunBoyanmasi)->Unit(benchmark::kMillisecond);

/// What each refresh costs while nothing on the table has changed: a frame that blinks asks for it.
void GoruntununKarsilastirilmasi(benchmark::State& durum) {
    const OlcumAgaci agac;
    Program program(OlcumOrtami(OlcumAgaci::Bugun()), agac.Kok());
    FormTablo& tablo = *program.FormTablo.Tut();
    tablo.Resize(TabloIcGenisligi(kGenislik * kTwip), TabloIcYuksekligi(kYukseklik * kTwip));
    const TabloGoruntusu eski(tablo, *program.FormAyarlar.Tut(), 1);
    while (durum.KeepRunning())
        benchmark::DoNotOptimize(TabloGoruntusu(tablo, *program.FormAyarlar.Tut(), 1) == eski);
}
BENCHMARK(GoruntununKarsilastirilmasi)->Unit(benchmark::kMicrosecond);

void AyniResminDoldurulmasi(benchmark::State& durum) {
    QImage resim(kGenislik, kYukseklik, QImage::Format_ARGB32_Premultiplied);
    while (durum.KeepRunning()) {
        QPainter boyaci(&resim);
        boyaci.fillRect(resim.rect(), Qt::white);
    }
}
BENCHMARK(AyniResminDoldurulmasi)->Unit(benchmark::kMillisecond);

} // namespace velora::olcum

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication uygulama(argc, argv);
    velora::olcum::SurecOlarakCalis({argv, static_cast<std::size_t>(argc)});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
